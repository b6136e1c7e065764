// A byte of 0xFF in the climate and body records means "the car doesn't
// have or report this", on every target. The CAN-bus module writes the
// records byte by byte; on the head unit's 32-bit ARM plain char is unsigned,
// so a reader that went through char would see 255 there, an "on" or a
// warning, where the desktop sees -1. Here the records are filled through
// raw bytes, as the module fills them, and read by what the driver sees:
// the climate panel's controls and units, the seat tiles, the body warnings
// and the body states on a page.

#include "airdata.h"
#include "airdialog27.h"
#include "carbodydata.h"
#include "hostsim.h"
#include "pagetests.h"
#include "pluginroot.h"

#include <QLabel>
#include <QLayout>
#include <QtTest>

#include <cstddef>
#include <cstring>
#include <memory>

namespace {

// The module's way of writing a field: bytes at the record's offsets.
template <typename Record>
void writeBytes(Record *record, std::size_t offset, unsigned char value, std::size_t count = 1)
{
    std::memset(reinterpret_cast<unsigned char *>(record) + offset, value, count);
}

// Every signed byte of the body record, by offset.
const std::size_t bodySignedBytes[] = {
    offsetof(CarbodyData, byte0), offsetof(CarbodyData, handbrake), offsetof(CarbodyData, byte2),
    offsetof(CarbodyData, byte3), offsetof(CarbodyData, distanceUnit), offsetof(CarbodyData, speedUnit),
    offsetof(CarbodyData, speedUnit2), offsetof(CarbodyData, byte31), offsetof(CarbodyData, condensateFault),
    offsetof(CarbodyData, byte35), offsetof(CarbodyData, temperatureUnit), offsetof(CarbodyData, seatBelt),
    offsetof(CarbodyData, autoParkingFault), offsetof(CarbodyData, cleaningFluid)};

void bodyAllAbsent(CarbodyData *body)
{
    for (std::size_t offset : bodySignedBytes)
        writeBytes(body, offset, 0xFF);
}

// A climate record of a car that has every function, switched off, with
// seat heating; then the bytes given as offsets written as 0xFF.
AirData climateWith0xFF(QList<std::size_t> const &offsets)
{
    AirData air;
    for (int byte = AirData::FirstFunction; byte <= AirData::LastFunction; ++byte)
        air.setFunction(byte, 0);
    air.seatHeating.hasSeatHeating = 1;
    for (std::size_t offset : offsets)
        writeBytes(&air, offset, 0xFF);
    return air;
}

std::size_t functionOffset(int byte)
{
    return offsetof(AirData, functions) + std::size_t(byte - AirData::FirstFunction);
}

} // namespace

class TestSignedBytes : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(28);
    }
    void cleanup() { PluginRoot::flushDeletes(); }

    // The records' own readers: functions, units and seats read -1 and
    // count as absent; the body's warnings stay off.
    void recordsRead0xFFAsAbsent()
    {
        QList<std::size_t> all;
        for (int byte = AirData::FirstFunction; byte <= AirData::LastFunction; ++byte)
            all << functionOffset(byte);
        all << offsetof(AirData, leftTemperatureUnit) << offsetof(AirData, rightTemperatureUnit)
            << offsetof(AirData, seatHeating) + 1 << offsetof(AirData, seatHeating) + 2;
        const AirData air = climateWith0xFF(all);
        for (int byte = AirData::FirstFunction; byte <= AirData::LastFunction; ++byte)
            QVERIFY2(air.function(byte) == -1, qPrintable(QString("byte %1").arg(byte)));
        QCOMPARE(int(air.leftTemperatureUnit), -1);
        QCOMPARE(int(air.rightTemperatureUnit), -1);
        QCOMPARE(int(air.seatHeating.leftSeat), -1);
        QCOMPARE(int(air.seatHeating.rightSeat), -1);
        // Written as 0xFF or set as -1: the same record.
        QVERIFY(air.compare(AirData(air)));
        AirData typed = climateWith0xFF({});
        for (int byte = AirData::FirstFunction; byte <= AirData::LastFunction; ++byte)
            typed.setFunction(byte, -1);
        typed.leftTemperatureUnit = typed.rightTemperatureUnit = -1;
        typed.seatHeating.leftSeat = typed.seatHeating.rightSeat = -1;
        QVERIFY(typed.compare(air));

        CarbodyData body;
        for (std::size_t offset : bodySignedBytes)
            writeBytes(&body, offset, 0x00);
        bodyAllAbsent(&body);
        QCOMPARE(int(body.seatBelt), -1);
        QCOMPARE(int(body.handbrake), -1);
        QCOMPARE(int(body.cleaningFluid), -1);
        QVERIFY(!body.isWarningState());
        CarbodyData typedBody;
        typedBody.byte3 = -1;
        QVERIFY(body.compare(typedBody));
        // The same byte as 0x01 is a warning.
        writeBytes(&body, offsetof(CarbodyData, seatBelt), 0x01);
        QVERIFY(body.isWarningState());
    }

    // The panel makes no control for a function byte of 0xFF and shows a
    // temperature without a unit; a seat byte of 0xFF is a cooling level
    // of 1, not a heating level of 255.
    void climatePanelLeavesOut0xFF()
    {
        AirDialog27 panel(PluginRoot::level(0));
        auto row = [&panel](char const *name) {
            QStringList names;
            QLayout *layout = panel.findChild<QLayout *>(name);
            for (int i = 0; layout && i < layout->count(); ++i)
                names << layout->itemAt(i)->widget()->objectName();
            return names;
        };

        AirData present = climateWith0xFF({});
        present.leftTemperature = present.rightTemperature = "21.5";
        panel.setData(present);
        QCOMPARE(row("topRow").size(), 7);
        QCOMPARE(row("windRow").size(), 5);
        QCOMPARE(panel.findChild<QLabel *>("leftTempLabel")->text(), QString::fromUtf8("21.5℃"));

        QList<std::size_t> absent;
        for (int byte = AirData::FirstFunction; byte <= AirData::LastFunction; ++byte)
            absent << functionOffset(byte);
        absent << offsetof(AirData, leftTemperatureUnit) << offsetof(AirData, rightTemperatureUnit);
        AirData air = climateWith0xFF(absent);
        air.leftTemperature = air.rightTemperature = "21.5";
        writeBytes(&air, offsetof(AirData, seatHeating) + 1, 0xFF);
        writeBytes(&air, offsetof(AirData, seatHeating) + 2, 0x02);
        panel.setData(air);
        PluginRoot::flushDeletes();
        QCOMPARE(row("topRow"), QStringList());
        QCOMPARE(row("windRow"), QStringList());
        QCOMPARE(panel.findChild<QLabel *>("leftTempLabel")->text(), QString("21.5"));
        QCOMPARE(panel.findChild<QLabel *>("rightTempLabel")->text(), QString("21.5"));
        QWidget *left = panel.findChild<QWidget *>("leftSeatTip");
        QWidget *right = panel.findChild<QWidget *>("rightSeatTip");
        QVERIFY(left && right);
        // The tile's picture (0 heat, 1 cool) and its level.
        QWidget *leftItem = left->findChild<QWidget *>("item");
        QWidget *rightItem = right->findChild<QWidget *>("item");
        QCOMPARE(leftItem->property("hot-cool"), QVariant(1));
        QCOMPARE(leftItem->property("v").toInt(), 1);
        QCOMPARE(rightItem->property("hot-cool"), QVariant(0));
        QCOMPARE(rightItem->property("v").toInt(), 2);
    }

    // A body record of 0xFF bytes is harmless: the plug-in's root makes no
    // overlay for it, while a seat belt byte of 0x01 brings the door overlay.
    void bodyRecordOf0xFFWarnsNothing()
    {
        QVERIFY2(PluginRoot::loader().load(), qPrintable(PluginRoot::loader().errorString()));
        bodyAllAbsent(HostSim::carbodyData());
        PluginRoot::root()->onCarbodyDataChanged();
        QVERIFY(!PluginRoot::dialogView());

        writeBytes(HostSim::carbodyData(), offsetof(CarbodyData, seatBelt), 0x01);
        PluginRoot::root()->onCarbodyDataChanged();
        QVERIFY(PluginRoot::shown(PluginRoot::overlay("carDoorView")));
        PluginRoot::restart();
    }

    // The body states of a page: a state of 0xFF shows the first option.
    void pageShowsFirstOptionFor0xFF()
    {
        HostSim::setProtocolId(124);
        CarbodyData *body = HostSim::carbodyData();
        body->byte2 = 1;
        body->handbrake = 1;
        body->byte35 = 1;
        PageTest::Page page(124, 0);
        QCOMPARE(page.title(4), QString("P-gear or handbrake status"));
        const QStringList before = {page.shown(3), page.shown(4), page.shown(5)};
        QCOMPARE(before, (QStringList{"Reversing", "Non P gear", "ON"}));

        bodyAllAbsent(body);
        page.page()->ondataChanged();
        QCOMPARE(page.value(3), 0);
        QCOMPARE(page.value(4), 0);
        QCOMPARE(page.value(5), 0);
        QCOMPARE(page.shown(4), QString("P gear"));
    }
};

QTEST_MAIN(TestSignedBytes)
#include "tst_signedbytes.moc"
