#include "gallery.h"

#include "catalogue.h"
#include "demo.h"
#include "eventpump.h"
#include "hostsim.h"
#include "scenario.h"
#include "simulatorhost.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSaveFile>
#include <QScrollBar>
#include <QStringList>
#include <QTableView>

namespace Gallery {

namespace {

// A page longer than this many screens is cut there; the longest page of
// the catalogue, 28_3, takes 24.
constexpr int MaxScreens = 40;

// One line of the scenario language, run at once.
bool run(Scenario::Runner &runner, QString const &line, Scenario::Result *result)
{
    Scenario::Command command;
    bool isCommand = false;
    QString failure;
    if (!Scenario::parseLine(line, &command, &isCommand, &failure)) {
        result->status = Scenario::Malformed;
        result->message = QStringLiteral("gallery: malformed line \"%1\": %2").arg(line, failure);
        return false;
    }
    if (!runner.execute(command, &failure)) {
        result->status = Scenario::Failed;
        result->message = QStringLiteral("gallery: %1: %2").arg(line, failure);
        return false;
    }
    return true;
}

QString escaped(QString const &text)
{
    return text.toHtmlEscaped();
}

// Scrolls the page's table so that the first row that the screen doesn't
// show whole comes to the top. False at the end of the table.
bool scrollToNextScreen(QTableView *table)
{
    QScrollBar *bar = table->verticalScrollBar();
    if (!table->isVisible() || bar->value() >= bar->maximum())
        return false;
    const int height = table->viewport()->height();
    int row = table->rowAt(height - 1);
    if (row < 0)
        return false;
    if (table->rowViewportPosition(row) + table->rowHeight(row) <= height)
        ++row;
    const int top = row < table->model()->rowCount() ? table->rowViewportPosition(row) : height;
    if (top <= 0)
        return false;
    bar->setValue(qMin(bar->maximum(), bar->value() + top));
    EventPump::settle();
    return true;
}

} // namespace

Scenario::Result write(SimulatorHost &host, QString const &directory, QList<int> const &families)
{
    Scenario::Result result;
    QString error;
    if (!Scenario::makeFolder(directory, &error)) {
        result.status = Scenario::Failed;
        result.message = QStringLiteral("gallery: %1").arg(error);
        return result;
    }
    QMap<int, QList<int>> idsOfFamily;
    for (int id : Catalogue::protocolIds()) {
        const int family = Catalogue::familyOf(id);
        if (families.isEmpty() || families.contains(family))
            idsOfFamily[family].append(id);
    }

    Scenario::Runner runner(host);
    runner.setOutputDirectory(directory);
    QString sections;
    QString contents;
    int pagesWithoutRows = 0;
    int pageCount = 0;
    int familiesWithoutRows = 0;
    int idsWithoutRows = 0;
    for (auto it = idsOfFamily.constBegin(); it != idsOfFamily.constEnd(); ++it) {
        const int family = it.key();
        const int protocolId = it.value().first();
        HostSim::reset();
        const Scenario::Result samples = Demo::writeSamples(host, protocolId);
        if (samples.status != Scenario::Passed)
            return samples;
        // The unit's own switch, in the process that showed the families
        // before: the root learns the protocol, then the view opens anew.
        Demo::selectProtocol(host, protocolId);
        if (!run(runner, QStringLiteral("call showExView"), &result))
            return result;
        QAbstractItemView *list = host.probe().titleList();
        const int pages = list && list->model() ? list->model()->rowCount() : 0;
        pageCount += pages;
        QStringList ids;
        for (int id : it.value())
            ids << QString::number(id);
        const bool rows = !host.box().hasOnlyEmptyPages(protocolId);
        const QString name = host.box().familyName(protocolId);
        contents += QStringLiteral("<li><a href=\"#family%1\">Family %1</a>: %2%3</li>\n")
                        .arg(family)
                        .arg(escaped(name), rows ? QString() : QStringLiteral(" <em>(no rows)</em>"));
        sections += QStringLiteral("<h2 id=\"family%1\">Family %1</h2>\n<p>Protocol ids %2.").arg(family).arg(ids.join(QStringLiteral(", ")));
        if (!rows) {
            // The catalogue gives these families their pages and titles and
            // nothing more: every page opens empty, and that is no fault.
            sections += QStringLiteral(" Its pages have no rows: the catalogue names them and their titles "
                                       "but gives them no rows, so each opens empty.");
            ++familiesWithoutRows;
            idsWithoutRows += it.value().size();
        }
        sections += QStringLiteral("</p>\n");
        for (int page = 0; page < pages; ++page) {
            const QString title = list->model()->index(page, 0).data().toString();
            const bool empty = host.box().isEmptyPage(protocolId, page);
            if (empty)
                ++pagesWithoutRows;
            const QString stem = QStringLiteral("%1_%2").arg(family).arg(page + 1);
            if (!run(runner, QStringLiteral("tap title %1").arg(page), &result))
                return result;
            // The whole page, a screen at a time, scrolled as a finger would.
            QStringList files;
            QTableView *table = host.probe().pageTable();
            do {
                const QString file = files.isEmpty() ? stem + QStringLiteral(".png")
                                                     : QStringLiteral("%1-%2.png").arg(stem).arg(files.size() + 1);
                if (!run(runner, QStringLiteral("screenshot %1").arg(Scenario::quoted(file)), &result))
                    return result;
                files << file;
                result.screenshots << QDir(directory).filePath(file);
            } while (table && files.size() < MaxScreens && scrollToNextScreen(table));
            if (!run(runner, QStringLiteral("key back"), &result))
                return result;
            for (int screen = 0; screen < files.size(); ++screen) {
                QString caption = files.size() == 1
                        ? QStringLiteral("%1. %2").arg(page + 1).arg(escaped(title))
                        : QStringLiteral("%1. %2 (%3 of %4)").arg(page + 1).arg(escaped(title)).arg(screen + 1).arg(files.size());
                if (empty)
                    caption += QStringLiteral(" <em>(no rows)</em>");
                sections += QStringLiteral("<figure><img src=\"%1\" alt=\"%2\"><figcaption>%3</figcaption></figure>\n")
                                .arg(files.at(screen), escaped(title), caption);
            }
        }
        run(runner, QStringLiteral("tap bar home"), &result);
    }
    QString html = QStringLiteral("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>Pages of the catalogue"
                                  "</title>\n<style>body{font-family:sans-serif}figure{display:inline-block;"
                                  "margin:8px;width:320px;vertical-align:top}img{width:320px;border:1px solid #888}"
                                  "</style></head><body>\n<h1>Pages of the catalogue</h1>\n");
    html += QStringLiteral("<p>Every page of every family with the catalogue's sample data, a picture for each "
                           "screen of a page. The head unit's clock stands still, so that two runs give the same "
                           "pictures.</p>\n");
    if (pagesWithoutRows) {
        html += QStringLiteral("<p>%1 of the %2 pages have no rows: the catalogue names these pages and their "
                               "titles and nothing more, so they open empty, and that is no fault. %3 families "
                               "(%4 protocol ids) have no page with rows at all.</p>\n")
                    .arg(pagesWithoutRows)
                    .arg(pageCount)
                    .arg(familiesWithoutRows)
                    .arg(idsWithoutRows);
    }
    html += QStringLiteral("<ul>\n") + contents + QStringLiteral("</ul>\n") + sections;
    html += QStringLiteral("</body></html>\n");
    QSaveFile index(QDir(directory).filePath(QStringLiteral("index.html")));
    const QByteArray bytes = html.toUtf8();
    if (!index.open(QIODevice::WriteOnly) || index.write(bytes) != bytes.size() || !index.commit()) {
        result.status = Scenario::Failed;
        result.message = QStringLiteral("gallery: can't write %1: %2").arg(index.fileName(), index.errorString());
    }
    HostSim::reset();
    return result;
}

} // namespace Gallery
