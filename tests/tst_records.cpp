// The vehicle records: defaults, clear, copy rules and comparisons.

#include "airdata.h"
#include "carbodydata.h"
#include "cardoordata.h"
#include "radardata.h"

#include <QtTest>

class TestRecords : public QObject
{
    Q_OBJECT

private slots:
    void airDataDefaultsAndClear();
    void airDataCompareCountsTheClimateOnly();
    void airDataCompareCrossesSeatBytes95And98();
    void airDataCompareRawArrays();
    void copyRules();
    void functionBytesByRecordOffset();
    void carbodyWarnings();
    void carbodyCompareSkipsPadding();
    void cardoorWarnings();
    void radarClearAndWarnings();
    void radarTravelsInAVariant();
};

void TestRecords::airDataDefaultsAndClear()
{
    AirData air;
    QCOMPARE(air.airType, 0);
    QVERIFY(air.hasAirConditioner);
    QCOMPARE(air.reserved6, quint8(1));
    QCOMPARE(air.leftTemperatureValid, quint8(1));
    QCOMPARE(air.rightTemperatureValid, quint8(1));
    QCOMPARE(air.leftTemperatureUnit, qint8(0));
    QCOMPARE(air.extra28, QString(QChar(0xFF)));
    QCOMPARE(air.extra36, QString(QChar(0xFF)));
    QCOMPARE(air.extra41, qint8(-1));
    for (int byte = 48; byte <= 88; ++byte)
        QCOMPARE(air.function(byte), qint8(-1));
    QCOMPARE(air.seatHeating.hasSeatHeating, quint8(0));
    QCOMPARE(air.tirePressure.state, quint8(255));
    QCOMPARE(air.tirePressure.frontLeftPressure, QStringLiteral("--"));
    QCOMPARE(air.tirePressure.sparePressure, QStringLiteral("--"));
    QCOMPARE(air.tirePressure.summary, quint8(255));
    QVERIFY(air.raw.isEmpty());

    // clear() leaves bytes 4 and 6 and the tyre record as they are.
    air.hasAirConditioner = 0;
    air.reserved6 = 7;
    air.tirePressure.frontLeftPressure = QStringLiteral("2.4");
    air.tirePressure.status[TirePressureInformation::RearRight] = 3;
    air.airType = 5;
    air.showRequest = 1;
    air.leftTemperature = QStringLiteral("22");
    air.setFunction(AirData::Ac, 1);
    air.seatHeating.leftSeat = -2;
    air.raw = QByteArray("\x01\x02", 2);
    air.clear();
    QVERIFY(!air.hasAirConditioner);
    QCOMPARE(air.reserved6, quint8(7));
    QCOMPARE(air.tirePressure.frontLeftPressure, QStringLiteral("2.4"));
    QCOMPARE(air.tirePressure.status[TirePressureInformation::RearRight], quint8(3));
    QCOMPARE(air.airType, 0);
    QCOMPARE(air.showRequest, quint8(0));
    QVERIFY(air.leftTemperature.isEmpty());
    QCOMPARE(air.function(AirData::Ac), qint8(-1));
    QCOMPARE(air.seatHeating.leftSeat, qint8(0));
    QVERIFY(air.raw.isEmpty());

    // The tyre record's own clear leaves bytes 29 and 34.
    TirePressureInformation tyres;
    tyres.reserved29 = 9;
    tyres.reserved34 = 8;
    tyres.alarm[0] = 1;
    tyres.rearLeftPressure = QStringLiteral("1.9");
    tyres.clear();
    QCOMPARE(tyres.reserved29, quint8(9));
    QCOMPARE(tyres.reserved34, quint8(8));
    QCOMPARE(tyres.alarm[0], quint8(0));
    QCOMPARE(tyres.rearLeftPressure, QStringLiteral("--"));

    // Byte 4 is whatever the car sent, not a bool: copies keep it as it is.
    air.hasAirConditioner = 2;
    AirData copy(air);
    QCOMPARE(copy.hasAirConditioner, quint8(2));
    copy = AirData();
    copy = air;
    QCOMPARE(copy.hasAirConditioner, quint8(2));
}

void TestRecords::airDataCompareCountsTheClimateOnly()
{
    const AirData base;
    QVERIFY(base.compare(base));

    // Changes that are no change of the climate.
    {
        AirData other;
        other.hasAirConditioner = false;
        other.reserved6 = 0;
        other.extra40 = 3;
        other.extra41 = 4;
        other.outsideTemperature = QStringLiteral("12");
        other.tirePressure.state = 1;
        other.tirePressure.frontRightPressure = QStringLiteral("3.0");
        other.tirePressure.summary = 2;
        other.tirePressure.temperature[3] = 40;
        QVERIFY(base.compare(other));
        QVERIFY(other.compare(base));
    }

    // Each of these counts.
    const QList<std::function<void(AirData &)>> changes = {
        [](AirData &a) { a.airType = 1; },
        [](AirData &a) { a.showRequest = 1; },
        [](AirData &a) { a.leftTemperatureValid = 0; },
        [](AirData &a) { a.leftTemperatureLow = 1; },
        [](AirData &a) { a.rightTemperatureHigh = 1; },
        [](AirData &a) { a.rightTemperatureUnit = 1; },
        [](AirData &a) { a.leftTemperature = QStringLiteral("20"); },
        [](AirData &a) { a.rightTemperature = QStringLiteral("20"); },
        [](AirData &a) { a.extra24[3] = 1; },
        [](AirData &a) { a.extra28.clear(); },
        [](AirData &a) { a.extra32[2] = 1; },
        [](AirData &a) { a.extra36 = QStringLiteral("x"); },
        [](AirData &a) { a.setFunction(48, 0); },
        [](AirData &a) { a.setFunction(AirData::RightWindSpeed, 3); },
        [](AirData &a) { a.setFunction(88, 1); },
        [](AirData &a) { a.seatHeating.hasSeatHeating = 1; },
        [](AirData &a) { a.seatHeating.rightSeat = 2; },
        [](AirData &a) { a.seatHeating.stored[10] = 1; },   // byte 102
        [](AirData &a) { a.raw = QByteArray(1, 'x'); },
    };
    for (int i = 0; i < changes.size(); ++i) {
        AirData other;
        changes[i](other);
        QVERIFY2(!base.compare(other), qPrintable(QStringLiteral("change %1").arg(i)));
        QVERIFY2(!other.compare(base), qPrintable(QStringLiteral("change %1").arg(i)));
    }
}

void TestRecords::airDataCompareCrossesSeatBytes95And98()
{
    // Byte 95 is seat byte 6, byte 98 seat byte 9: stored[3] and stored[6].
    AirData a;
    AirData b;
    a.seatHeating.stored[3] = 5;   // a's byte 95
    b.seatHeating.stored[6] = 5;   // b's byte 98
    // b's byte 98 against a's byte 95: equal, though the bytes 95 differ.
    QVERIFY(b.compare(a));
    // The other way round it is a's byte 98 (0) against b's byte 95 (0).
    QVERIFY(a.compare(b));

    AirData c;
    c.seatHeating.stored[6] = 7;   // byte 98 of the record asked
    QVERIFY(!c.compare(AirData()));
    QVERIFY(AirData().compare(c));

    AirData d;
    d.seatHeating.stored[3] = 7;   // byte 95 of the argument
    QVERIFY(!AirData().compare(d));
    QVERIFY(d.compare(AirData()));
}

void TestRecords::airDataCompareRawArrays()
{
    AirData a;
    AirData b;
    a.raw = QByteArray("abc");
    b.raw = QByteArray("abc");
    QVERIFY(a.compare(b));
    b.raw = QByteArray("abd");
    QVERIFY(!a.compare(b));
    b.raw = QByteArray("abcd");   // contains a's, but longer
    QVERIFY(!a.compare(b));
    QVERIFY(!b.compare(a));
    a.raw = QByteArray();
    b.raw = QByteArray("");
    QVERIFY(a.compare(b));
}

void TestRecords::copyRules()
{
    // The seat record's own copy leaves bytes 6, 9, 12 and 13 behind.
    SeatHeatingData seat;
    seat.hasSeatHeating = 1;
    seat.leftSeat = -3;
    seat.rightSeat = 2;
    for (int i = 0; i < 11; ++i)
        seat.stored[i] = quint8(10 + i);
    const SeatHeatingData copy(seat);
    QCOMPARE(copy.hasSeatHeating, quint8(1));
    QCOMPARE(copy.leftSeat, qint8(-3));
    QCOMPARE(copy.rightSeat, qint8(2));
    const int copied[] = {3, 4, 5, 7, 8, 10, 11};
    for (int byte : copied)
        QCOMPARE(copy.stored[byte - 3], quint8(10 + byte - 3));
    const int left[] = {6, 9, 12, 13};
    for (int byte : left)
        QCOMPARE(copy.stored[byte - 3], quint8(0));

    // AirData copies all fourteen seat bytes itself.
    AirData air;
    air.seatHeating.hasSeatHeating = 1;
    for (int i = 0; i < 11; ++i)
        air.seatHeating.stored[i] = quint8(20 + i);
    air.reserved6 = 4;
    air.extra40 = 6;
    air.extra41 = 7;
    air.outsideTemperature = QStringLiteral("-3");
    air.tirePressure.rearRightPressure = QStringLiteral("2.2");
    air.tirePressure.reserved29 = 1;
    air.raw = QByteArray("raw");
    const AirData airCopy(air);
    for (int i = 0; i < 11; ++i)
        QCOMPARE(airCopy.seatHeating.stored[i], quint8(20 + i));
    QCOMPARE(airCopy.reserved6, quint8(4));
    QCOMPARE(airCopy.extra40, quint8(6));
    QCOMPARE(airCopy.extra41, qint8(7));
    QCOMPARE(airCopy.outsideTemperature, QStringLiteral("-3"));
    QCOMPARE(airCopy.tirePressure.rearRightPressure, QStringLiteral("2.2"));
    QCOMPARE(airCopy.raw, QByteArray("raw"));
    // Bytes 95 and 98 are compared crosswise, so a record whose two bytes
    // differ isn't the same as its own copy.
    QVERIFY(!airCopy.compare(air));
    air.seatHeating.stored[6] = air.seatHeating.stored[3];
    AirData assigned;
    assigned = air;
    QVERIFY(assigned.compare(air));
    QCOMPARE(assigned.seatHeating.stored[9], quint8(29));
    QCOMPARE(assigned.seatHeating.stored[6], quint8(23));

    // The tyre record doesn't copy bytes 29 and 34.
    TirePressureInformation tyres;
    tyres.reserved29 = 3;
    tyres.reserved34 = 4;
    tyres.status[1] = 2;
    tyres.alarm[2] = 1;
    tyres.temperature[3] = 30;
    tyres.frontLeftPressure = QStringLiteral("2.5");
    const TirePressureInformation tyreCopy(tyres);
    QCOMPARE(tyreCopy.reserved29, quint8(0));
    QCOMPARE(tyreCopy.reserved34, quint8(0));
    QCOMPARE(tyreCopy.status[1], quint8(2));
    QCOMPARE(tyreCopy.alarm[2], quint8(1));
    QCOMPARE(tyreCopy.temperature[3], quint8(30));
    QCOMPARE(tyreCopy.frontLeftPressure, QStringLiteral("2.5"));
}

void TestRecords::functionBytesByRecordOffset()
{
    AirData air;
    air.setFunction(AirData::ClimateSwitch, 1);
    air.setFunction(AirData::InnerLoopInverted, 0);
    QCOMPARE(air.functions[49 - 48], qint8(1));
    QCOMPARE(air.functions[61 - 48], qint8(0));
    QCOMPARE(air.function(49), qint8(1));
    // Outside 48 to 88 there is no function: -1, and writes go nowhere.
    air.setFunction(47, 5);
    air.setFunction(89, 5);
    QCOMPARE(air.function(47), qint8(-1));
    QCOMPARE(air.function(89), qint8(-1));
    QCOMPARE(air.seatHeating.hasSeatHeating, quint8(0));
}

void TestRecords::carbodyWarnings()
{
    CarbodyData body;
    QCOMPARE(body.handbrake, qint8(-1));
    QCOMPARE(body.byte3, qint8(0));
    QCOMPARE(body.temperatureUnit, qint8(-1));
    QVERIFY(!body.isWarningState());

    CarbodyData parking;
    parking.autoParkingFault = 1;
    QVERIFY(parking.isWarningState());
    // The warning part is seat belt and condensate only.
    QVERIFY(parking.compareWarningPart(body));
    QVERIFY(!parking.compare(body));

    CarbodyData belt;
    belt.seatBelt = 1;
    QVERIFY(belt.isWarningState());
    QVERIFY(!belt.compareWarningPart(body));
    QVERIFY(!belt.compareseatBelt(body));

    CarbodyData condensate;
    condensate.condensateFault = 1;
    QVERIFY(condensate.isWarningState());
    QVERIFY(!condensate.compareWarningPart(body));
    QVERIFY(condensate.compareseatBelt(body));

    // Only the value 1 warns.
    CarbodyData two;
    two.seatBelt = 2;
    two.condensateFault = 2;
    two.autoParkingFault = 2;
    QVERIFY(!two.isWarningState());
}

void TestRecords::carbodyCompareSkipsPadding()
{
    CarbodyData a;
    CarbodyData b;
    b.reserved5[1] = 1;
    b.reserved21 = 1;
    b.reserved25 = 1;
    QVERIFY(a.compare(b));
    b.distance = 1;
    QVERIFY(!a.compare(b));
    b = a;
    b.cleaningFluid = 0;
    QVERIFY(!a.compare(b));
    b = a;
    b.value26 = 1;
    QVERIFY(!a.compare(b));
}

void TestRecords::cardoorWarnings()
{
    CardoorData door;
    QVERIFY(!door.isWarningState());
    quint8 CardoorData::*const fields[] = {
        &CardoorData::frontLeftDoor, &CardoorData::frontRightDoor, &CardoorData::rearLeftDoor,
        &CardoorData::rearRightDoor, &CardoorData::trunk, &CardoorData::hood};
    for (auto field : fields) {
        CardoorData open;
        open.*field = 1;
        QVERIFY(open.isWarningState());
        QVERIFY(!open.compare(door));
        open.clear();
        QVERIFY(open.compare(door));
    }
}

void TestRecords::radarClearAndWarnings()
{
    RadarData radar;
    QCOMPARE(radar.valid, quint8(1));
    QCOMPARE(radar.scale, quint8(10));
    QVERIFY(!radar.isWarningState());
    radar.distances[7] = 3;
    QVERIFY(radar.isWarningState());
    QVERIFY(!radar.isBothSides());
    radar.secondDistances[0] = 1;
    QVERIFY(radar.isBothSides());

    radar.scale = 20;
    radar.clear();
    QCOMPARE(radar.scale, quint8(20));
    QCOMPARE(radar.valid, quint8(0));
    QCOMPARE(radar.distances[7], quint8(0));
    // After clear the mark is 0: no distance warns any more.
    for (int i = 0; i < RadarData::DistanceCount; ++i)
        radar.distances[i] = 5;
    QVERIFY(!radar.isWarningState());
    radar.valid = 2;
    QVERIFY(!radar.isWarningState());
    radar.valid = 1;
    QVERIFY(radar.isWarningState());
}

void TestRecords::radarTravelsInAVariant()
{
    RadarData radar;
    radar.scale = 7;
    radar.distances[2] = 9;
    const QVariant variant = QVariant::fromValue(radar);
    QCOMPARE(variant.userType(), qMetaTypeId<RadarData>());
    QVERIFY(QMetaType::type("RadarData") != QMetaType::UnknownType);
    const RadarData back = variant.value<RadarData>();
    QCOMPARE(back.scale, quint8(7));
    QCOMPARE(back.distances[2], quint8(9));
    QVERIFY(!QVariant(5).canConvert<RadarData>());
}

QTEST_APPLESS_MAIN(TestRecords)
#include "tst_records.moc"
