// The gallery's check against its reference: the digest of a picture's
// pixels, the reference file's lines, what a gallery rendered against it
// lacks or adds, the pictures side by side, and the tool that puts them
// together.

#include "picturecheck.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

using namespace PictureCheck;

namespace {

const QString A = QString(64, QLatin1Char('a'));
const QString B = QString(64, QLatin1Char('b'));
const QString C = QString(64, QLatin1Char('c'));

// A small screen of one colour with a square of three pixels of another at
// (x, y).
QImage screen(QColor const &square, int x = 10, int y = 10)
{
    QImage image(64, 40, QImage::Format_RGB32);
    image.fill(QColor(20, 40, 60));
    for (int dy = 0; dy < 3; ++dy) {
        for (int dx = 0; dx < 3; ++dx)
            image.setPixelColor(x + dx, y + dy, square);
    }
    return image;
}

Reference referenceOf(QMap<QString, QString> const &digests)
{
    Reference reference;
    int line = 5;
    for (auto it = digests.constBegin(); it != digests.constEnd(); ++it) {
        reference.digests.insert(it.key(), it.value());
        reference.lines.insert(it.key(), line++);
    }
    return reference;
}

} // namespace

class TestGalleryCheck : public QObject
{
    Q_OBJECT

private slots:
    // The digest is of the pixels: the same pixels in any format, or after
    // a PNG round trip, digest alike; one pixel, or the same bytes in
    // another shape, don't. Its value is SHA-256 over the size and RGBA.
    void digestOfPixels()
    {
        const QImage base = screen(Qt::white);
        const QString digestOfBase = digest(base);
        QCOMPARE(digest(base.convertToFormat(QImage::Format_ARGB32)), digestOfBase);
        QCOMPARE(digest(base.convertToFormat(QImage::Format_RGB888)), digestOfBase);
        QCOMPARE(digest(base.convertToFormat(QImage::Format_ARGB32_Premultiplied)), digestOfBase);
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        QVERIFY(base.save(&buffer, "PNG", 0));
        QCOMPARE(digest(QImage::fromData(png, "PNG")), digestOfBase);

        QImage onePixel = base;
        onePixel.setPixelColor(0, 0, QColor(20, 40, 61));
        QVERIFY(digest(onePixel) != digestOfBase);

        QImage wide(2, 1, QImage::Format_RGB32);
        wide.fill(Qt::red);
        QImage tall(1, 2, QImage::Format_RGB32);
        tall.fill(Qt::red);
        QVERIFY(digest(wide) != digest(tall));

        // Three pixels of 3x1 whose rows the image pads to four bytes.
        QImage small(3, 1, QImage::Format_RGB888);
        small.setPixelColor(0, 0, QColor(1, 2, 3));
        small.setPixelColor(1, 0, QColor(4, 5, 6));
        small.setPixelColor(2, 0, QColor(7, 8, 9));
        const QByteArray bytes = QByteArray("3x1\n") + QByteArray::fromHex("010203ff040506ff070809ff");
        QCOMPARE(digest(small), QString(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex()));
    }

    // The gallery's names in the order of families, pages and screens.
    void namesInOrderOfPages()
    {
        QStringList names = {"28_3-10.png", "124_1.png", "28_3-2.png", "9_1.png", "28_3.png", "28_10.png", "28_2.png"};
        std::sort(names.begin(), names.end(), namesInOrder);
        QCOMPARE(names, (QStringList{"9_1.png", "28_2.png", "28_3.png", "28_3-2.png", "28_3-10.png", "28_10.png",
                                     "124_1.png"}));
    }

    // Each bad line of a reference is named by file and line; comments and
    // blank lines are no pictures; the header's commit is read.
    void referenceLines_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("errors");
        QTest::addColumn<int>("pictures");
        QTest::addColumn<QString>("commit");
        const QString head = "# The gallery's pictures\n# commit 0123abcd\n";
        QTest::newRow("good") << head + "28_1.png " + A + "\n\n28_1-2.png   " + B + "\n" << QStringList() << 2
                              << "0123abcd";
        QTest::newRow("no commit") << "28_1.png " + A + "\n" << QStringList() << 1 << "";
        QTest::newRow("name only") << head + "28_1.png\n28_2.png " + B + "\n"
                                   << QStringList{"ref.txt:3: malformed line \"28_1.png\": expected a picture's name "
                                                  "and its digest"}
                                   << 1 << "0123abcd";
        QTest::newRow("a third field") << "28_1.png " + A + " x\n"
                                       << QStringList{"ref.txt:1: malformed line \"28_1.png " + A
                                                      + " x\": expected a picture's name and its digest"}
                                       << 0 << "";
        QTest::newRow("short digest") << "28_1.png abc\n"
                                      << QStringList{"ref.txt:1: malformed line \"28_1.png abc\": the digest isn't 64 "
                                                     "lower-case hex digits"}
                                      << 0 << "";
        QTest::newRow("upper-case digest") << "28_1.png " + A.toUpper() + "\n"
                                           << QStringList{"ref.txt:1: malformed line \"28_1.png " + A.toUpper()
                                                          + "\": the digest isn't 64 lower-case hex digits"}
                                           << 0 << "";
        QTest::newRow("not a picture") << "28_1.jpg " + A + "\nsub/28_1.png " + A + "\n"
                                       << QStringList{"ref.txt:1: malformed line \"28_1.jpg " + A
                                                          + "\": 28_1.jpg isn't the name of a PNG picture",
                                                      "ref.txt:2: malformed line \"sub/28_1.png " + A
                                                          + "\": sub/28_1.png isn't the name of a PNG picture"}
                                       << 0 << "";
        QTest::newRow("twice") << "28_1.png " + A + "\n28_2.png " + B + "\n28_1.png " + C + "\n"
                               << QStringList{"ref.txt:3: 28_1.png again, first on line 1"} << 2 << "";
    }
    void referenceLines()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, errors);
        QFETCH(int, pictures);
        QFETCH(QString, commit);
        Reference reference;
        QStringList found;
        QCOMPARE(parseReference("ref.txt", text.toUtf8(), &reference, &found), errors.isEmpty());
        QCOMPARE(found, errors);
        QCOMPARE(reference.digests.size(), pictures);
        QCOMPARE(reference.commit, commit);
    }

    // What a reference written for digests reads back as, in the gallery's
    // order.
    void referenceRoundTrip()
    {
        const QMap<QString, QString> digests = {{"28_3-2.png", A}, {"28_3.png", B}, {"9_1.png", C}};
        const QByteArray text = referenceText({"Pictures", "of the gallery"}, "feed", digests);
        QCOMPARE(text, QByteArray("# Pictures\n# of the gallery\n# commit feed\n9_1.png " + C.toLatin1() + "\n28_3.png "
                                  + B.toLatin1() + "\n28_3-2.png " + A.toLatin1() + "\n"));
        Reference reference;
        QStringList errors;
        QVERIFY(parseReference("ref.txt", text, &reference, &errors));
        QCOMPARE(reference.digests, digests);
        QCOMPARE(reference.lines.value("28_3-2.png"), 6);
        QCOMPARE(reference.commit, QString("feed"));
    }

    // A gallery against a reference: pictures changed, not rendered
    // (fewer than the reference names), rendered without a line; each named
    // with the reference's line where it has one.
    void comparison_data()
    {
        QTest::addColumn<QStringList>("rendered"); // name=digest
        QTest::addColumn<QStringList>("lines");
        const QString file = "tests/gallery/reference-en.txt";
        QTest::newRow("same") << QStringList{"28_1.png=" + A, "28_2.png=" + B, "30_1.png=" + C} << QStringList();
        QTest::newRow("one changed") << QStringList{"28_1.png=" + A, "28_2.png=" + C, "30_1.png=" + C}
                                     << QStringList{file + ":6: 28_2.png changed"};
        QTest::newRow("fewer rendered") << QStringList{"28_1.png=" + A}
                                        << QStringList{file + ":6: 28_2.png was not rendered",
                                                       file + ":7: 30_1.png was not rendered"};
        QTest::newRow("one more") << QStringList{"28_1.png=" + A, "28_2.png=" + B, "28_2-2.png=" + B, "30_1.png=" + C}
                                  << QStringList{file + ": 28_2-2.png was rendered but has no line"};
        QTest::newRow("all three") << QStringList{"28_1.png=" + B, "30_1.png=" + C, "31_1.png=" + A}
                                   << QStringList{file + ":5: 28_1.png changed", file + ":6: 28_2.png was not rendered",
                                                  file + ": 31_1.png was rendered but has no line"};
        QTest::newRow("nothing rendered") << QStringList()
                                          << QStringList{file + ":5: 28_1.png was not rendered",
                                                         file + ":6: 28_2.png was not rendered",
                                                         file + ":7: 30_1.png was not rendered"};
    }
    void comparison()
    {
        QFETCH(QStringList, rendered);
        QFETCH(QStringList, lines);
        const Reference reference = referenceOf({{"28_1.png", A}, {"28_2.png", B}, {"30_1.png", C}});
        QMap<QString, QString> digests;
        for (QString const &entry : rendered)
            digests.insert(entry.section('=', 0, 0), entry.section('=', 1));
        const Outcome outcome = compare(reference, digests);
        QCOMPARE(outcome.same(), lines.isEmpty());
        QCOMPARE(describe("tests/gallery/reference-en.txt", reference, outcome), lines);
    }

    // The third panel marks exactly the differing pixels, red on the faded
    // picture; what only the larger picture covers differs too.
    void sideBySideMarksTheDifferences()
    {
        const QImage before = screen(Qt::white, 10, 10);
        const QImage after = screen(Qt::white, 12, 10);
        int differing = -1;
        const QImage sheet = sideBySide(before, after, {"reference", "now", "differences"}, &differing);
        // Two columns of three pixels leave, two come.
        QCOMPARE(differing, 12);
        const int band = sheet.height() - after.height();
        const int third = sheet.width() - after.width();
        QCOMPARE(sheet.width(), 3 * after.width() + 2 * 16);
        QCOMPARE(sheet.pixel(after.width() + 16 + 12, band + 10), after.pixel(12, 10));
        int red = 0;
        for (int y = 0; y < after.height(); ++y) {
            for (int x = 0; x < after.width(); ++x) {
                const bool differs = before.pixel(x, y) != after.pixel(x, y);
                const QRgb shown = sheet.pixel(third + x, band + y);
                const bool isRed = shown == qRgb(255, 0, 0);
                if (differs)
                    QVERIFY2(isRed, qPrintable(QString("pixel %1,%2").arg(x).arg(y)));
                else if (isRed)
                    ++red; // the frame around the region
                else
                    QCOMPARE(qRed(shown), qGreen(shown)); // faded to grey
            }
        }
        QVERIFY(red > 0);

        QImage taller(64, 44, QImage::Format_RGB32);
        taller.fill(QColor(20, 40, 60));
        const QImage plain = screen(QColor(20, 40, 60));
        sideBySide(plain, taller, {}, &differing);
        QCOMPARE(differing, 64 * 4);
        sideBySide(QImage(), plain, {}, &differing);
        QCOMPARE(differing, 64 * 40);
    }

    // The tool: a reference from a gallery, the gallery unchanged, one
    // picture changed and one gone, a reference with a bad line, and the
    // side-by-side pictures with their index.
    void tool()
    {
        QTemporaryDir dir;
        const QString gallery = dir.filePath("gallery/en");
        const QString references = dir.filePath("references");
        QVERIFY(QDir().mkpath(gallery) && QDir().mkpath(references) && QDir().mkpath(dir.filePath("renders/c0ffee/en")));
        const QList<QPair<QString, QImage>> pictures = {{"28_1.png", screen(Qt::white)}, {"28_2.png", screen(Qt::red)},
                                                        {"30_1.png", screen(Qt::green)}};
        for (auto const &picture : pictures) {
            QVERIFY(picture.second.save(QDir(gallery).filePath(picture.first)));
            QVERIFY(picture.second.save(dir.filePath("renders/c0ffee/en/" + picture.first)));
        }
        auto run = [](QStringList const &arguments, QString *out = nullptr, QString *err = nullptr) {
            QProcess process;
            process.start(GALLERYCHECK_BINARY, arguments);
            process.waitForFinished(60000);
            if (out)
                *out = QString::fromUtf8(process.readAllStandardOutput());
            if (err)
                *err = QString::fromUtf8(process.readAllStandardError());
            return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        };
        QString reference;
        QCOMPARE(run({"digests", "--language", "en", "--commit", "c0ffee", gallery}, &reference), 0);
        QVERIFY(reference.contains("\n# commit c0ffee\n28_1.png " + digest(screen(Qt::white)) + "\n"));
        QFile file(QDir(references).filePath("reference-en.txt"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(reference.toUtf8());
        file.close();
        const QStringList compare = {"compare", "--references", references, "--gallery", dir.filePath("gallery"), "en"};
        QString out, err;
        QCOMPARE(run(compare, &out, &err), 0);
        QVERIFY2(out.contains("en: 3 pictures as in"), qPrintable(out));

        QVERIFY(screen(Qt::blue).save(QDir(gallery).filePath("28_2.png")));
        QVERIFY(QFile::remove(QDir(gallery).filePath("30_1.png")));
        QCOMPARE(run(compare, &out, &err), 1);
        const QString path = QDir(references).filePath("reference-en.txt");
        QVERIFY2(err.contains(path + ":7: 28_2.png changed\n"), qPrintable(err));
        QVERIFY2(err.contains(path + ":8: 30_1.png was not rendered\n"), qPrintable(err));

        const QString diff = dir.filePath("diff");
        QCOMPARE(run(compare + QStringList{"--diff", diff, "--renders", dir.filePath("renders")}), 1);
        QImage sheet(QDir(diff).filePath("en/28_2.png"));
        QCOMPARE(sheet.width(), 3 * 64 + 2 * 16);
        QFile index(QDir(diff).filePath("index.html"));
        QVERIFY(index.open(QIODevice::ReadOnly));
        const QString html = QString::fromUtf8(index.readAll());
        QVERIFY(html.contains("<img src=\"en/28_2.png\""));
        QVERIFY(html.contains("9 pixels differ"));
        QVERIFY(html.contains("<b>30_1.png</b>"));
        QVERIFY(html.contains("in the reference, not rendered now"));

        QVERIFY(file.open(QIODevice::Append));
        file.write("30_2.png\n");
        file.close();
        QCOMPARE(run(compare, &out, &err), 2);
        QVERIFY2(err.contains(path + ":9: malformed line \"30_2.png\""), qPrintable(err));
        QCOMPARE(run({"compare", "--references", references, "--gallery", dir.filePath("gallery"), "zh_CN"}, &out, &err), 2);
        QVERIFY2(err.contains("no reference for Chinese (zh_CN); make gallery-accept writes it"), qPrintable(err));
    }
};

QTEST_MAIN(TestGalleryCheck)
#include "tst_gallerycheck.moc"
