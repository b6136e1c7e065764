// The translations: every message of every .ts file finished, with the
// placeholders of its source text; and every text a page shows measured
// with the font and the room that its painter gives it, in each language and
// in the source texts: the titles in the list of pages, each row's title and
// text options, and the texts of the pages that make their own buttons.

#include "appframework.h"
#include "carexviewbase.h"
#include "carinfoitem.h"
#include "catalogue.h"
#include "cdbutton.h"
#include "exview.h"
#include "hostsim.h"
#include "listdata.h"
#include "listview.h"
#include "tableview.h"
#include "translation.h"

#include <QAbstractButton>
#include <QLabel>

#include <QDir>
#include <QFontMetrics>
#include <QHeaderView>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

#include <memory>

namespace {

struct Message
{
    QString context;
    QString source;
    QString translation;
    QString type;   // "", "unfinished", "obsolete" or "vanished"
};

QList<Message> readTs(QString const &path, QString *error)
{
    QList<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return messages;
    }
    QXmlStreamReader xml(&file);
    QString context;
    Message message;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            message = Message{context, QString(), QString(), QString()};
        } else if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.type = xml.attributes().value(QLatin1String("type")).toString();
            message.translation = xml.readElementText();
            messages.append(message);
        }
    }
    if (xml.hasError())
        *error = xml.errorString();
    return messages;
}

// The placeholders of a text, sorted: "%1", "%2", ...
QStringList placeholders(QString const &text)
{
    static const QRegularExpression placeholder(QStringLiteral("%L?\\d+"));
    QStringList found;
    for (auto it = placeholder.globalMatch(text); it.hasNext();)
        found << it.next().captured();
    found.sort();
    return found;
}

// Where the row painter draws a title and a value, and with which fonts
// (the painter starts with the viewport's font and sets the pixel sizes of
// the index's roles).
struct Room
{
    QFont titleFont;
    QRect title;
    QFont valueFont;
    QRect value;
    int valueFlags;
};

Room roomOf(TableView *view, QModelIndex const &index)
{
    const int width = view->viewport()->width();
    const int height = view->verticalHeader()->defaultSectionSize();
    Room room;
    room.titleFont = view->viewport()->font();
    room.titleFont.setPixelSize(qMax(1, index.data(TitleFontSizeRole).toInt()));
    room.valueFont = view->viewport()->font();
    room.valueFont.setPixelSize(qMax(1, index.data(ValueFontSizeRole).toInt()));
    int textX = index.data(TextXRole).toInt();
    if (QPixmap const *icon = presentPixmap(index.data(LeftIconRole)))
        textX = icon->width() + index.data(LeftIconXRole).toInt() + 10;
    const int middle = index.data(LeftButtonXRole).toInt();
    room.title = QRect(0, 0, middle - textX, height);
    // The value wraps on its backdrop; without one it isn't clipped, and
    // stands between the arrows.
    room.valueFlags = Qt::AlignCenter | Qt::TextWordWrap;
    if (QPixmap const *backdrop = presentPixmap(index.data(ValueBackdropRole))) {
        room.value = QRect(0, 0, backdrop->width(), backdrop->height());
    } else {
        const int arrows = index.data(AdjustableRole).toBool() ? 2 * height : 0;
        room.value = QRect(0, 0, width - middle - arrows, height);
    }
    return room;
}

bool fits(QFont const &font, QRect const &room, int flags, QString const &text)
{
    const QRect needed = QFontMetrics(font).boundingRect(room, flags, text);
    return needed.width() <= room.width() && needed.height() <= room.height();
}

// What doesn't fit, as "where: text", once each.
class Clipped
{
public:
    void note(QString const &where, QString const &text)
    {
        const QString line = where + QStringLiteral(": ") + text;
        if (!seen.contains(line)) {
            seen.insert(line);
            lines << line;
        }
    }
    void noteUnless(bool fits, QString const &where, QString const &text)
    {
        if (!fits)
            note(where, text);
    }

    QStringList lines;
    // How many texts were measured: of the page lists, of the pages' own
    // buttons and labels.
    int listTitles = 0;
    int ownTexts = 0;

private:
    QSet<QString> seen;
};

// The list of the family's pages, as the extended view shows it: each title
// on one line, in the host painter's font, beside the entry's icons.
void measurePageList(int id, Clipped *clipped)
{
    HostSim::screen()->show();
    std::unique_ptr<ExView> view(
        new ExView(zorvappframework::UIManager::getUIHerarchy(zorvappframework::UIHerarchyLevel1)));
    view->show();
    ListView *list = view->findChild<ListView *>(QStringLiteral("listView"));
    if (!list)
        return;
    const QString where = QStringLiteral("page list %1").arg(id);
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        const QModelIndex index = list->model()->index(row, 0);
        QFont font = list->viewport()->font();
        font.setFamily(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(qMax(1, index.data(TitleFontSizeRole).toInt()));
        int textX = index.data(TextXRole).toInt();
        if (QPixmap const *icon = presentPixmap(index.data(LeftIconRole)))
            textX = icon->width() + index.data(LeftIconXRole).toInt() + 10;
        int right = list->viewport()->width();
        if (QPixmap const *icon = presentPixmap(index.data(RightIconRole)))
            right -= icon->width() + index.data(RightIconMarginRole).toInt();
        const QString title = index.data(Qt::DisplayRole).toString();
        ++clipped->listTitles;
        clipped->noteUnless(fits(font, QRect(0, 0, right - textX, list->verticalHeader()->defaultSectionSize()),
                                 Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, title),
                            where, title);
    }
}

// A page's rows: the title in the left half, each text option on the
// value's backdrop.
void measureRows(QString const &where, TableView *view, Clipped *clipped)
{
    for (int row = 0; row < view->model()->rowCount(); ++row) {
        const QModelIndex index = view->model()->index(row, 0);
        const Room room = roomOf(view, index);
        const QString title = index.data(TitleRole).toString();
        clipped->noteUnless(fits(room.titleFont, room.title, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, title),
                            where, title);
        const QVariantList options = index.data(OptionsRole).toList();
        for (QVariant const &option : options) {
            if (option.type() == QVariant::String)
                clipped->noteUnless(fits(room.valueFont, room.value, room.valueFlags, option.toString()), where,
                                    option.toString());
        }
    }
}

// The buttons and labels that a page makes itself: a flat button's text at
// its share of the button's height, wrapped; a label or Qt button's in its
// own font.
void measureOwnWidgets(QString const &where, QWidget *page, Clipped *clipped)
{
    const QList<CDButton *> buttons = page->findChildren<CDButton *>();
    for (CDButton *button : buttons) {
        QFont font = button->font();
        font.setPixelSize(qMax(1, int(button->height() * button->textScale())));
        ++clipped->ownTexts;
        clipped->noteUnless(fits(font, button->rect(), Qt::AlignCenter | Qt::TextWordWrap, button->text()), where,
                            button->text());
    }
    const QList<QLabel *> labels = page->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->isVisible() && !label->text().isEmpty() && ++clipped->ownTexts)
            clipped->noteUnless(fits(label->font(), label->contentsRect(),
                                     int(label->alignment()) | (label->wordWrap() ? Qt::TextWordWrap : 0),
                                     label->text()),
                                where, label->text());
    }
    const QList<QAbstractButton *> qtButtons = page->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : qtButtons) {
        if (button->isVisible() && !button->text().isEmpty() && ++clipped->ownTexts)
            clipped->noteUnless(fits(button->font(), button->contentsRect(), Qt::AlignCenter, button->text()),
                                where, button->text());
    }
}

// Every text of every page of every protocol that its painter would clip.
Clipped clippedTexts()
{
    Clipped clipped;
    const QList<int> ids = Catalogue::protocolIds();
    for (int id : ids) {
        HostSim::reset();
        HostSim::setProtocolId(id);
        measurePageList(id, &clipped);
        QWidget window;
        window.resize(1024, 470);
        std::unique_ptr<CarExViewBase> stack(createPageStack(id, &window));
        stack->setGeometry(window.rect());
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            clipped.note(QStringLiteral("no window"), QString::number(id));
            return clipped;
        }
        for (int i = 0; i < stack->count(); ++i) {
            CarInfoItem *page = qobject_cast<CarInfoItem *>(stack->widget(i));
            if (!page)
                continue;
            stack->setCurrentIndex(i);
            page->createView();
            QCoreApplication::processEvents();
            const QString name = QString::fromLatin1(page->metaObject()->className());
            if (TableView *view = page->findChild<TableView *>())
                measureRows(name, view, &clipped);
            else
                measureOwnWidgets(name, page, &clipped);
        }
    }
    HostSim::reset();
    return clipped;
}

// A language's translator that notes every text of the plug-in asked of it
// that it has no translation for.
class CoverageTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override
    {
        const QString text = QTranslator::translate(context, sourceText, disambiguation, n);
        // Qt's own classes translate in their own names, and the desktop
        // host's screen stands for the head unit's, which isn't ours.
        if (text.isEmpty() && context && context[0] != 'Q' && qstrcmp(context, "HostScreen") != 0 && sourceText
            && *sourceText)
            missing.insert(QString::fromUtf8(context) + QStringLiteral(" \"") + QString::fromUtf8(sourceText)
                           + QLatin1Char('"'));
        return text;
    }

    mutable QSet<QString> missing;
};

QStringList tsFiles()
{
    QStringList files;
    const QStringList names = QDir(QStringLiteral(TRANSLATIONS_SOURCE_DIR))
                                  .entryList({QStringLiteral("carcontrol_*.ts")}, QDir::Files, QDir::Name);
    for (QString const &name : names)
        files << QStringLiteral(TRANSLATIONS_SOURCE_DIR "/") + name;
    return files;
}

QStringList logLines;

void keepLogLine(QtMsgType, QMessageLogContext const &, QString const &line)
{
    logLines << line;
}

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private slots:
    // Every message that the code still has is translated, and keeps the
    // placeholders of its source text: "%1 km" can't lose its number.
    void messagesFinished()
    {
        const QStringList files = tsFiles();
        QVERIFY(!files.isEmpty());
        for (QString const &path : files) {
            QString error;
            const QList<Message> messages = readTs(path, &error);
            QVERIFY2(error.isEmpty(), qPrintable(path + QStringLiteral(": ") + error));
            QVERIFY(messages.size() > 1000);
            QStringList faults;
            for (Message const &m : messages) {
                if (m.type == QLatin1String("obsolete") || m.type == QLatin1String("vanished"))
                    continue;
                const QString where = m.context + QStringLiteral(" \"") + m.source + QStringLiteral("\"");
                if (m.type == QLatin1String("unfinished") || m.translation.isEmpty())
                    faults << where + QStringLiteral(": unfinished");
                else if (placeholders(m.source) != placeholders(m.translation))
                    faults << where + QStringLiteral(": placeholders of \"") + m.translation + QStringLiteral("\"");
            }
            QVERIFY2(faults.isEmpty(), qPrintable(path + QStringLiteral(":\n") + faults.join(QLatin1Char('\n'))));
        }
    }

    // The source texts: some long titles don't fit their half of the row.
    // Counted, not a fault.
    void sourceTextsMeasured()
    {
        const Clipped measured = clippedTexts();
        QStringList const &clipped = measured.lines;
        qInfo("source texts that the row painter clips: %d", int(clipped.size()));
        for (QString const &line : clipped)
            qInfo("  %s", qPrintable(line));
        // The page lists and the pages that make their own buttons were
        // measured too.
        QVERIFY(measured.listTitles > 100);
        QVERIFY(measured.ownTexts > 0);
    }

    // Every text that the pages translate has its translation, and every
    // translated title and text option fits its room.
    void translationsFit_data()
    {
        QTest::addColumn<QString>("language");
        const QStringList files = tsFiles();
        for (QString const &path : files) {
            const QString language = QFileInfo(path).completeBaseName().mid(int(qstrlen("carcontrol_")));
            QTest::newRow(qPrintable(language)) << language;
        }
    }
    void translationsFit()
    {
        QFETCH(QString, language);
        CoverageTranslator translator;
        QVERIFY(translator.load(QStringLiteral("carcontrol_") + language,
                                qEnvironmentVariable("CARCONTROL_RESOURCE_ROOT") + QStringLiteral("/translations")));
        QCoreApplication::installTranslator(&translator);
        const QStringList clipped = clippedTexts().lines;
        QCoreApplication::removeTranslator(&translator);
        QStringList missing = translator.missing.values();
        missing.sort();
        QVERIFY2(missing.isEmpty(), qPrintable(QStringLiteral("%1 texts untranslated (make translations, then translate):\n")
                                               .arg(missing.size()) + missing.join(QLatin1Char('\n'))));
        QVERIFY2(clipped.isEmpty(), qPrintable(QStringLiteral("%1 texts clipped:\n").arg(clipped.size())
                                               + clipped.join(QLatin1Char('\n'))));
    }

    // The file a locale reads: its own; else, for Chinese, the file of its
    // script (Simplified: zh_CN, Traditional: zh_TW); else none, and the
    // source texts with one line in the log, however often the root asks.
    void localeFindsItsFile_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("shown");
        const QString simplified = QStringLiteral("功放状态");
        const QString traditional = QStringLiteral("擴大機狀態");
        const QString source = QStringLiteral("Amplifier status");
        const struct
        {
            const char *locale;
            QString shown;
        } cases[] = {
            {"zh_CN", simplified},      {"zh", simplified},         {"zh_SG", simplified},
            {"zh_Hans_SG", simplified}, {"zh_Hans_HK", simplified}, {"zh_TW", traditional},
            {"zh_HK", traditional},     {"zh_MO", traditional},     {"zh_Hant_HK", traditional},
            {"zh_Hant_CN", traditional}, {"de_DE", source},         {"en_US", source},
        };
        for (auto const &c : cases)
            QTest::newRow(c.locale) << QString::fromLatin1(c.locale) << c.shown;
    }
    void localeFindsItsFile()
    {
        QFETCH(QString, locale);
        QFETCH(QString, shown);
        QLocale::setDefault(QLocale(locale));
        logLines.clear();
        const QtMessageHandler previous = qInstallMessageHandler(keepLogLine);
        followLocale();
        followLocale();
        qInstallMessageHandler(previous);
        const QString text = QCoreApplication::translate("CarExView28", "Amplifier status");
        QLocale::setDefault(QLocale::c());
        followLocale();
        QCOMPARE(text, shown);
        QCOMPARE(logLines.size(), 1);
        const bool found = shown != QLatin1String("Amplifier status");
        QCOMPARE(logLines.first().contains(QStringLiteral("no translation for ") + QLocale(locale).name()),
                 !found);
    }
};

QTEST_MAIN(TranslationsTest)
#include "tst_translations.moc"
