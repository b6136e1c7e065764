#ifndef CARBODYDATA_H
#define CARBODYDATA_H

#include <QtGlobal>

// The body record of the CAN-bus module: 43 bytes of data, 44 with the
// alignment of its 32-bit fields. A signed byte below 0 means that the car
// doesn't report that value. Fields named byteN/valueN are carried, copied and
// compared for the module; nothing in the plug-in reads them.
class CarbodyData
{
public:
    CarbodyData();

    // A seat belt, automatic parking or condensate warning (bytes 40, 41, 34
    // equal to 1).
    bool isWarningState() const;
    bool compareseatBelt(CarbodyData const &other) const;
    // Seat belt and condensate; the automatic parking byte doesn't count.
    bool compareWarningPart(CarbodyData const &other) const;
    // Every field; the padding bytes (5 to 7, 21, 25, 43) aren't looked at.
    bool compare(CarbodyData const &other) const;

    qint8 byte0;               // 0
    qint8 handbrake;           // 1: < 0 unknown, 0 released, else pulled up
    qint8 byte2;               // 2
    qint8 byte3;               // 3
    qint8 distanceUnit;        // 4: 1 miles, otherwise kilometres
    quint8 reserved5[3];       // 5..7
    quint32 distance;          // 8
    quint32 value12;           // 12
    quint32 engineSpeed;       // 16: hundredths
    qint8 speedUnit;           // 20
    quint8 reserved21;         // 21
    qint16 speed;              // 22: hundredths
    qint8 speedUnit2;          // 24
    quint8 reserved25;         // 25
    quint16 value26;           // 26
    quint16 batteryVoltage;    // 28: tenths of a volt
    quint8 remainingFuel;      // 30
    qint8 byte31;              // 31
    qint16 value32;            // 32
    qint8 condensateFault;     // 34: 1 is a warning
    qint8 byte35;              // 35
    quint8 byte36;             // 36
    qint8 temperatureUnit;     // 37: < 0 none, 0 Celsius, else Fahrenheit
    qint16 outsideTemperature; // 38: tenths of a degree
    qint8 seatBelt;            // 40: 1 is a warning
    qint8 autoParkingFault;    // 41: 1 is a warning
    qint8 cleaningFluid;       // 42
};

#endif // CARBODYDATA_H
