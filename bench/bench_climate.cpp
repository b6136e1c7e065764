// The climate panel takes a record with every climate change on the car. A
// record that repeats the shown state must cost no file access and little
// else; a change of state costs the pictures' first load only once.

#include "airdialog27.h"
#include "hostsim.h"
#include "overlayimages.h"

#include <QtTest>

namespace {

// A car with every climate function, seat heating included.
AirData fullRecord()
{
    AirData air;
    for (int byte = AirData::FirstFunction; byte <= AirData::LastFunction; ++byte)
        air.setFunction(byte, 0);
    air.seatHeating.hasSeatHeating = true;
    return air;
}

int imageReads() { return HostSim::imageFileReads() + overlayImageReads(); }

} // namespace

class BenchClimate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        HostSim::screen()->show();
        panel.reset(new AirDialog27(HostSim::screen()));
        panel->setData(fullRecord());
        panel->show();
        QCoreApplication::sendPostedEvents(0, QEvent::DeferredDelete);
    }

    // The same record again and again: the case of every steering-wheel
    // press that changes nothing the panel shows.
    void repeatedRecord()
    {
        const AirData air = fullRecord();
        const int readsBefore = imageReads();
        QBENCHMARK {
            panel->setData(air);
        }
        QCOMPARE(imageReads(), readsBefore);
    }

    // Two states in turn: after the first round, no file access either.
    void alternatingRecords()
    {
        AirData on = fullRecord();
        on.setFunction(AirData::Ac, 1);
        on.setFunction(AirData::LeftWindSpeed, 5);
        AirData off = fullRecord();
        panel->setData(on);
        panel->setData(off);
        const int readsBefore = imageReads();
        QBENCHMARK {
            panel->setData(on);
            panel->setData(off);
        }
        QCOMPARE(imageReads(), readsBefore);
    }

private:
    QScopedPointer<AirDialog27> panel;
};

QTEST_MAIN(BenchClimate)
#include "bench_climate.moc"
