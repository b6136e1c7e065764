#include "gallery.h"

#include "catalogue.h"
#include "hostsim.h"
#include "scenario.h"
#include "simulatorhost.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSaveFile>
#include <QStringList>

namespace Gallery {

namespace {

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

} // namespace

Scenario::Result write(SimulatorHost &host, QString const &directory, QList<int> const &families)
{
    Scenario::Result result;
    if (!QDir().mkpath(directory)) {
        result.status = Scenario::Failed;
        result.message = QStringLiteral("gallery: can't make %1").arg(directory);
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
    QString html = QStringLiteral("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>Pages of the catalogue"
                                  "</title>\n<style>body{font-family:sans-serif}figure{display:inline-block;"
                                  "margin:8px;width:320px;vertical-align:top}img{width:320px;border:1px solid #888}"
                                  "</style></head><body>\n<h1>Pages of the catalogue</h1>\n");
    for (auto it = idsOfFamily.constBegin(); it != idsOfFamily.constEnd(); ++it) {
        const int family = it.key();
        const int protocolId = it.value().first();
        HostSim::reset();
        if (!run(runner, QStringLiteral("protocol %1").arg(protocolId), &result))
            return result;
        host.box().writeSamples(protocolId);
        if (!run(runner, QStringLiteral("call showExView"), &result))
            return result;
        QAbstractItemView *list = host.probe().titleList();
        const int pages = list && list->model() ? list->model()->rowCount() : 0;
        QStringList ids;
        for (int id : it.value())
            ids << QString::number(id);
        html += QStringLiteral("<h2>Family %1</h2>\n<p>Protocol ids %2.</p>\n").arg(family).arg(ids.join(QStringLiteral(", ")));
        for (int page = 0; page < pages; ++page) {
            const QString title = list->model()->index(page, 0).data().toString();
            const QString file = QStringLiteral("%1_%2.png").arg(family).arg(page + 1);
            if (!run(runner, QStringLiteral("tap title %1").arg(page), &result)
                    || !run(runner, QStringLiteral("screenshot %1").arg(Scenario::quoted(file)), &result)
                    || !run(runner, QStringLiteral("key back"), &result))
                return result;
            result.screenshots << QDir(directory).filePath(file);
            html += QStringLiteral("<figure><img src=\"%1\" alt=\"%2\"><figcaption>%3. %2</figcaption></figure>\n")
                        .arg(file, escaped(title))
                        .arg(page + 1);
        }
        run(runner, QStringLiteral("tap bar home"), &result);
    }
    html += QStringLiteral("</body></html>\n");
    QSaveFile index(QDir(directory).filePath(QStringLiteral("index.html")));
    const QByteArray bytes = html.toUtf8();
    if (!index.open(QIODevice::WriteOnly) || index.write(bytes) != bytes.size() || !index.commit()) {
        result.status = Scenario::Failed;
        result.message = QStringLiteral("gallery: can't write %1").arg(index.fileName());
    }
    HostSim::reset();
    return result;
}

} // namespace Gallery
