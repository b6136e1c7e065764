// Holds the simulator's gallery against its reference of pixel digests:
//
//     gallerycheck digests --language L [--commit SHA] GALLERY_DIR
//         prints the reference of a rendered gallery
//     gallerycheck compare --references DIR --gallery DIR LANGUAGE...
//         compares each language's gallery (GALLERY/LANGUAGE/) with its
//         reference (REFERENCES/reference-LANGUAGE.txt); exit status 1 when
//         a picture differs, 2 when a reference or a gallery can't be read
//     ... compare --diff DIR [--renders DIR | --no-renders REASON] ...
//         writes the differing pictures side by side into DIR, with an
//         index.html; the reference's pictures are RENDERS/COMMIT/LANGUAGE/
//
// tools/gallery.sh renders the galleries and calls it.

#include "picturecheck.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QSaveFile>

#include <algorithm>
#include <cstdio>

namespace {

enum Status { Same = 0, Differs = 1, Unreadable = 2 };

struct Options
{
    QString command;
    QStringList arguments;
    QString language;
    QString commit;
    QString references;
    QString gallery;
    QString diff;
    QString renders;
    QString noRenders;
};

void print(FILE *stream, QString const &line)
{
    std::fprintf(stream, "%s\n", qPrintable(line));
}

QString languageName(QString const &language)
{
    const QLocale locale(language);
    return QStringLiteral("%1 (%2)").arg(QLocale::languageToString(locale.language()), language);
}

int digests(Options const &options)
{
    if (options.arguments.size() != 1 || options.language.isEmpty()) {
        print(stderr, QStringLiteral("gallerycheck digests: give --language and one gallery folder"));
        return Unreadable;
    }
    QStringList errors;
    const QMap<QString, QString> digests = PictureCheck::digestsOf(options.arguments.first(), &errors);
    for (QString const &error : errors)
        print(stderr, error);
    if (!errors.isEmpty())
        return Unreadable;
    if (digests.isEmpty()) {
        print(stderr, QStringLiteral("gallerycheck: no pictures in %1").arg(options.arguments.first()));
        return Unreadable;
    }
    const QStringList header = {
        QStringLiteral("The gallery's pictures in %1: headunit-sim --gallery DIR --language %2.")
            .arg(languageName(options.language), options.language),
        QStringLiteral("A line per picture: its name and the SHA-256 of its pixels (RGBA, row by row,"),
        QStringLiteral("after \"WIDTHxHEIGHT\\n\"). make gallery-check compares them; make gallery-accept"),
        QStringLiteral("writes this file anew, and the commit below is the one it was made at."),
    };
    const QByteArray text = PictureCheck::referenceText(header, options.commit, digests);
    std::fwrite(text.constData(), 1, size_t(text.size()), stdout);
    return Same;
}

// The gallery's title of each picture, from its index.html: <img src="NAME" alt="TITLE">.
QMap<QString, QString> titlesOf(QString const &gallery)
{
    QMap<QString, QString> titles;
    QFile index(QDir(gallery).filePath(QStringLiteral("index.html")));
    if (!index.open(QIODevice::ReadOnly))
        return titles;
    static const QRegularExpression image(QStringLiteral("<img src=\"([^\"]+)\" alt=\"([^\"]*)\""));
    auto it = image.globalMatch(QString::fromUtf8(index.readAll()));
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        titles.insert(match.captured(1), match.captured(2));
    }
    return titles;
}

// One language's pictures that differ, written side by side into
// diff/LANGUAGE/; returns its section of the index.
QString writeDiff(Options const &options, QString const &language, PictureCheck::Reference const &reference,
                  PictureCheck::Outcome const &outcome)
{
    const QString gallery = QDir(options.gallery).filePath(language);
    const QString renders = options.renders.isEmpty() || reference.commit.isEmpty()
        ? QString()
        : QDir(options.renders).filePath(reference.commit + QLatin1Char('/') + language);
    const QString folder = QDir(options.diff).filePath(language);
    QDir().mkpath(folder);
    const QMap<QString, QString> titles = titlesOf(gallery);
    const QString shortCommit = reference.commit.left(10);

    QString html = QStringLiteral("<h2>%1</h2>\n").arg(languageName(language).toHtmlEscaped());
    QStringList names = outcome.changed + outcome.missing + outcome.unlisted;
    std::sort(names.begin(), names.end(), PictureCheck::namesInOrder);
    for (QString const &name : names) {
        const QImage current(QDir(gallery).filePath(name));
        const QImage before = renders.isEmpty() ? QImage() : QImage(QDir(renders).filePath(name));
        QString note;
        if (outcome.missing.contains(name))
            note = QStringLiteral("in the reference, not rendered now");
        else if (outcome.unlisted.contains(name))
            note = QStringLiteral("rendered now, not in the reference");
        if (!before.isNull() && reference.digests.contains(name)
                && PictureCheck::digest(before) != reference.digests.value(name)) {
            note += QStringLiteral("%1the reference's commit renders this picture otherwise than the reference "
                                   "file says: the left picture is what %2 renders here")
                        .arg(note.isEmpty() ? QString() : QStringLiteral("; "), shortCommit);
        }
        QString picture;
        if (!current.isNull() || !before.isNull()) {
            int differing = 0;
            const QStringList captions = {
                before.isNull() ? QStringLiteral("no reference picture") : QStringLiteral("reference, %1").arg(shortCommit),
                current.isNull() ? QStringLiteral("not rendered") : QStringLiteral("now"),
                QStringLiteral("differences in red")};
            const QImage sheet = PictureCheck::sideBySide(before, current, captions, &differing);
            const QString file = language + QLatin1Char('/') + name;
            if (sheet.save(QDir(options.diff).filePath(file)))
                picture = QStringLiteral("<a href=\"%1\"><img src=\"%1\" alt=\"%2\"></a>").arg(file, name);
            if (!before.isNull() && !current.isNull())
                note += QStringLiteral("%1%2 pixels differ").arg(note.isEmpty() ? QString() : QStringLiteral("; ")).arg(differing);
        }
        html += QStringLiteral("<figure>%1<figcaption><b>%2</b> %3<br>%4</figcaption></figure>\n")
                    .arg(picture, name, titles.value(name), note.toHtmlEscaped());
    }
    return html;
}

int compare(Options const &options)
{
    if (options.arguments.isEmpty() || options.references.isEmpty() || options.gallery.isEmpty()) {
        print(stderr, QStringLiteral("gallerycheck compare: give --references, --gallery and the languages"));
        return Unreadable;
    }
    const bool writing = !options.diff.isEmpty();
    int status = Same;
    QString sections;
    for (QString const &language : options.arguments) {
        const QString file = QDir(options.references).filePath(QStringLiteral("reference-%1.txt").arg(language));
        const QString gallery = QDir(options.gallery).filePath(language);
        QStringList errors;
        PictureCheck::Reference reference;
        if (!QFileInfo::exists(file)) {
            errors << QStringLiteral("%1: no reference for %2; make gallery-accept writes it")
                          .arg(file, languageName(language));
        } else {
            PictureCheck::readReference(file, &reference, &errors);
        }
        const QMap<QString, QString> rendered = PictureCheck::digestsOf(gallery, &errors);
        if (rendered.isEmpty())
            errors << QStringLiteral("%1: no pictures rendered").arg(gallery);
        if (!errors.isEmpty()) {
            if (!writing) {
                for (QString const &error : errors)
                    print(stderr, error);
            }
            status = Unreadable;
            continue;
        }
        const PictureCheck::Outcome outcome = PictureCheck::compare(reference, rendered);
        if (outcome.same()) {
            if (!writing)
                print(stdout, QStringLiteral("gallery check: %1: %2 pictures as in %3").arg(language).arg(rendered.size()).arg(file));
            continue;
        }
        status = qMax(status, int(Differs));
        if (writing) {
            sections += writeDiff(options, language, reference, outcome);
        } else {
            print(stderr, QStringLiteral("gallery check: %1: %2 changed, %3 not rendered, %4 without a line, of %5 pictures")
                              .arg(language).arg(outcome.changed.size()).arg(outcome.missing.size())
                              .arg(outcome.unlisted.size()).arg(rendered.size()));
            for (QString const &line : PictureCheck::describe(file, reference, outcome))
                print(stderr, QStringLiteral("  ") + line);
        }
    }
    if (writing && !sections.isEmpty()) {
        QString html = QStringLiteral(
            "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>Pictures that differ from the reference</title>\n"
            "<style>body{font-family:sans-serif}figure{margin:12px 0}img{width:100%;max-width:1600px;"
            "border:1px solid #888}</style></head><body>\n<h1>Pictures that differ from the reference</h1>\n"
            "<p>Each row: the reference's picture, the picture now, and the picture now faded with every "
            "differing pixel in red and the region of the differences framed.</p>\n");
        if (!options.noRenders.isEmpty())
            html += QStringLiteral("<p><b>No reference pictures:</b> %1</p>\n").arg(options.noRenders.toHtmlEscaped());
        html += sections + QStringLiteral("</body></html>\n");
        QSaveFile index(QDir(options.diff).filePath(QStringLiteral("index.html")));
        const QByteArray bytes = html.toUtf8();
        if (!index.open(QIODevice::WriteOnly) || index.write(bytes) != bytes.size() || !index.commit()) {
            print(stderr, QStringLiteral("gallerycheck: can't write %1: %2").arg(index.fileName(), index.errorString()));
            return Unreadable;
        }
    }
    return status;
}

} // namespace

int main(int argc, char **argv)
{
    // Pictures are read and drawn off screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("gallerycheck"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Holds the simulator's gallery against its reference of pixel digests."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("digests or compare"));
    Options options;
    const struct
    {
        const char *name;
        const char *description;
        const char *valueName;
        QString *value;
    } table[] = {
        {"language", "digests: the gallery's locale", "locale", &options.language},
        {"commit", "digests: the commit the gallery was made at", "sha", &options.commit},
        {"references", "compare: the folder of the reference-LANGUAGE.txt files", "dir", &options.references},
        {"gallery", "compare: the folder of the galleries, one folder per language", "dir", &options.gallery},
        {"diff", "compare: write the differing pictures side by side here", "dir", &options.diff},
        {"renders", "compare: the reference's pictures, as COMMIT/LANGUAGE/ here", "dir", &options.renders},
        {"no-renders", "compare: why there are no reference pictures", "reason", &options.noRenders},
    };
    QList<QCommandLineOption> list;
    for (auto const &option : table) {
        list << QCommandLineOption(QString::fromLatin1(option.name), QString::fromLatin1(option.description),
                                   QString::fromLatin1(option.valueName));
    }
    parser.addOptions(list);
    parser.process(app);
    for (int i = 0; i < list.size(); ++i)
        *table[i].value = parser.value(list.at(i));
    options.arguments = parser.positionalArguments();
    options.command = options.arguments.isEmpty() ? QString() : options.arguments.takeFirst();
    if (options.command == QLatin1String("digests"))
        return digests(options);
    if (options.command == QLatin1String("compare"))
        return compare(options);
    print(stderr, QStringLiteral("gallerycheck: give a command, digests or compare"));
    return Unreadable;
}
