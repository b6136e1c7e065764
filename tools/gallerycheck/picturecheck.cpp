#include "picturecheck.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>

namespace PictureCheck {

namespace {

const QRegularExpression &digestPattern()
{
    static const QRegularExpression pattern(QStringLiteral("^[0-9a-f]{64}$"));
    return pattern;
}

// A picture's name: a file of the folder itself, a PNG.
bool isPictureName(QString const &name)
{
    return name.endsWith(QLatin1String(".png")) && name.size() > 4 && !name.contains(QLatin1Char('/'))
        && !name.startsWith(QLatin1Char('.'));
}

// The rank of a character of a name: the extension's dot before all, so
// that a page's first screen comes before its others.
int rank(QChar c)
{
    return c == QLatin1Char('.') ? 0 : c.unicode() + 1;
}

} // namespace

QString digest(QImage const &image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QStringLiteral("%1x%2\n").arg(pixels.width()).arg(pixels.height()).toLatin1());
    // Rows are padded to four bytes in memory; only the pixels count.
    const int rowBytes = pixels.width() * 4;
    for (int y = 0; y < pixels.height(); ++y)
        hash.addData(reinterpret_cast<const char *>(pixels.constScanLine(y)), rowBytes);
    return QString::fromLatin1(hash.result().toHex());
}

QMap<QString, QString> digestsOf(QString const &folder, QStringList *errors)
{
    QMap<QString, QString> digests;
    const QDir dir(folder);
    for (QString const &name : dir.entryList({QStringLiteral("*.png")}, QDir::Files)) {
        QImageReader reader(dir.filePath(name));
        const QImage image = reader.read();
        if (image.isNull())
            *errors << QStringLiteral("%1: can't read the picture: %2").arg(dir.filePath(name), reader.errorString());
        else
            digests.insert(name, digest(image));
    }
    return digests;
}

bool namesInOrder(QString const &a, QString const &b)
{
    int i = 0;
    int j = 0;
    while (i < a.size() && j < b.size()) {
        if (a.at(i).isDigit() && b.at(j).isDigit()) {
            const int startA = i;
            const int startB = j;
            while (i < a.size() && a.at(i).isDigit())
                ++i;
            while (j < b.size() && b.at(j).isDigit())
                ++j;
            const qulonglong x = a.midRef(startA, i - startA).toULongLong();
            const qulonglong y = b.midRef(startB, j - startB).toULongLong();
            if (x != y)
                return x < y;
        } else {
            if (a.at(i) != b.at(j))
                return rank(a.at(i)) < rank(b.at(j));
            ++i;
            ++j;
        }
    }
    return a.size() - i < b.size() - j;
}

bool parseReference(QString const &fileName, QByteArray const &text, Reference *reference, QStringList *errors)
{
    *reference = Reference();
    const int errorsBefore = errors->size();
    const QList<QByteArray> lines = text.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        const int number = i + 1;
        const QString line = QString::fromUtf8(lines.at(i)).trimmed();
        auto fail = [&](QString const &reason) {
            *errors << QStringLiteral("%1:%2: malformed line \"%3\": %4").arg(fileName).arg(number).arg(line, reason);
        };
        if (line.isEmpty())
            continue;
        if (line.startsWith(QLatin1Char('#'))) {
            const QStringList words = line.mid(1).split(QLatin1Char(' '), Qt::SkipEmptyParts);
            if (words.size() == 2 && words.first() == QLatin1String("commit"))
                reference->commit = words.last();
            continue;
        }
        const QStringList fields = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (fields.size() != 2) {
            fail(QStringLiteral("expected a picture's name and its digest"));
            continue;
        }
        const QString &name = fields.at(0);
        const QString &value = fields.at(1);
        if (!isPictureName(name)) {
            fail(QStringLiteral("%1 isn't the name of a PNG picture").arg(name));
            continue;
        }
        if (!digestPattern().match(value).hasMatch()) {
            fail(QStringLiteral("the digest isn't 64 lower-case hex digits"));
            continue;
        }
        if (reference->lines.contains(name)) {
            *errors << QStringLiteral("%1:%2: %3 again, first on line %4")
                           .arg(fileName).arg(number).arg(name).arg(reference->lines.value(name));
            continue;
        }
        reference->digests.insert(name, value);
        reference->lines.insert(name, number);
    }
    return errors->size() == errorsBefore;
}

bool readReference(QString const &fileName, Reference *reference, QStringList *errors)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        *errors << QStringLiteral("%1: can't read the reference: %2").arg(fileName, file.errorString());
        return false;
    }
    return parseReference(fileName, file.readAll(), reference, errors);
}

QByteArray referenceText(QStringList const &header, QString const &commit, QMap<QString, QString> const &digests)
{
    QByteArray text;
    for (QString const &line : header)
        text += (QStringLiteral("# ") + line).trimmed().toUtf8() + '\n';
    if (!commit.isEmpty())
        text += "# commit " + commit.toLatin1() + '\n';
    QStringList names = digests.keys();
    std::sort(names.begin(), names.end(), namesInOrder);
    for (QString const &name : names)
        text += (name + QLatin1Char(' ') + digests.value(name)).toUtf8() + '\n';
    return text;
}

Outcome compare(Reference const &reference, QMap<QString, QString> const &rendered)
{
    Outcome outcome;
    for (auto it = reference.digests.constBegin(); it != reference.digests.constEnd(); ++it) {
        if (!rendered.contains(it.key()))
            outcome.missing << it.key();
        else if (rendered.value(it.key()) != it.value())
            outcome.changed << it.key();
    }
    for (auto it = rendered.constBegin(); it != rendered.constEnd(); ++it) {
        if (!reference.digests.contains(it.key()))
            outcome.unlisted << it.key();
    }
    for (QStringList *list : {&outcome.changed, &outcome.missing, &outcome.unlisted})
        std::sort(list->begin(), list->end(), namesInOrder);
    return outcome;
}

QStringList describe(QString const &fileName, Reference const &reference, Outcome const &outcome)
{
    QStringList lines;
    for (QString const &name : outcome.changed)
        lines << QStringLiteral("%1:%2: %3 changed").arg(fileName).arg(reference.lines.value(name)).arg(name);
    for (QString const &name : outcome.missing)
        lines << QStringLiteral("%1:%2: %3 was not rendered").arg(fileName).arg(reference.lines.value(name)).arg(name);
    for (QString const &name : outcome.unlisted)
        lines << QStringLiteral("%1: %2 was rendered but has no line").arg(fileName, name);
    return lines;
}

QImage sideBySide(QImage const &reference, QImage const &current, QStringList const &captions, int *differing)
{
    const QImage before = reference.convertToFormat(QImage::Format_RGB32);
    const QImage after = current.convertToFormat(QImage::Format_RGB32);
    const int width = qMax(before.width(), after.width());
    const int height = qMax(before.height(), after.height());

    // The new picture faded towards white, each differing pixel red.
    QImage marked(width, height, QImage::Format_RGB32);
    marked.fill(Qt::white);
    QRect region;
    int count = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool inBefore = before.rect().contains(x, y);
            const bool inAfter = after.rect().contains(x, y);
            const QRgb pixel = inAfter ? after.pixel(x, y) : qRgb(255, 255, 255);
            if (!inBefore || !inAfter || before.pixel(x, y) != pixel) {
                marked.setPixel(x, y, qRgb(255, 0, 0));
                region |= QRect(x, y, 1, 1);
                ++count;
            } else {
                const int faded = 255 - (255 - qGray(pixel)) / 4;
                marked.setPixel(x, y, qRgb(faded, faded, faded));
            }
        }
    }
    if (count) {
        // A few pixels would be lost when the picture is shown small.
        QPainter painter(&marked);
        painter.setPen(QPen(QColor(255, 0, 0), 3));
        painter.drawRect(region.adjusted(-6, -6, 6, 6));
    }
    if (differing)
        *differing = count;

    const int gap = 16;
    const int band = 28;
    QImage sheet(3 * width + 2 * gap, band + height, QImage::Format_RGB32);
    sheet.fill(QColor(64, 64, 64));
    QPainter painter(&sheet);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(16);
    painter.setFont(font);
    const QImage panels[] = {before, after, marked};
    for (int i = 0; i < 3; ++i) {
        const int left = i * (width + gap);
        painter.setPen(Qt::white);
        painter.drawText(QRect(left + 4, 0, width - 8, band), Qt::AlignVCenter | Qt::AlignLeft, captions.value(i));
        painter.drawImage(left, band, panels[i]);
    }
    return sheet;
}

} // namespace PictureCheck
