#include "demo.h"

#include "hostsim.h"
#include "simulatorhost.h"

#include <QFile>

namespace Demo {

namespace {

Scenario::Result run(Scenario::Runner &runner, QString const &resource)
{
    Scenario::Result result;
    QFile file(resource);
    Scenario::Script script;
    QString error;
    if (!file.open(QIODevice::ReadOnly)
            || !Scenario::parse(resource, QString::fromUtf8(file.readAll()), &script, &error)) {
        result.status = Scenario::Malformed;
        result.message = error.isEmpty() ? resource + QStringLiteral(": missing") : error;
        return result;
    }
    return runner.run(script);
}

} // namespace

void selectProtocol(SimulatorHost &host, int protocolId)
{
    HostSim::setProtocolId(protocolId);
    host.call(QStringLiteral("setProtocolId"), {protocolId});
}

Scenario::Result startCar(SimulatorHost &host, int protocolId)
{
    if (protocolId == ProtocolId)
        return loadData(host);
    Scenario::Result result = writeSamples(host, protocolId);
    selectProtocol(host, protocolId);
    return result;
}

Scenario::Result writeSamples(SimulatorHost &host, int protocolId)
{
    host.box().writeSamples(protocolId);
    Scenario::Runner runner(host);
    return run(runner, QStringLiteral(":/demo/sample-data.scn"));
}

Scenario::Result loadData(SimulatorHost &host)
{
    Scenario::Runner runner(host);
    return run(runner, QStringLiteral(":/demo/demo-data.scn"));
}

Scenario::Result runTour(SimulatorHost &host, QString const &directory)
{
    Scenario::Runner runner(host);
    runner.setOutputDirectory(directory);
    Scenario::Result result = run(runner, QStringLiteral(":/demo/demo-data.scn"));
    if (result.status == Scenario::Passed)
        result = run(runner, QStringLiteral(":/demo/demo-tour.scn"));
    return result;
}

} // namespace Demo
