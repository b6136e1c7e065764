#ifndef AIRDATA_H
#define AIRDATA_H

#include <QByteArray>
#include <QString>
#include <QtGlobal>

// The climate record of the CAN-bus module, with the tyre and seat heating
// records of the vehicle inside it. These records cross into the closed
// module by pointer, so their layout is a fixed format: the offsets named in
// the comments are those of the head unit's 32-bit build, where a QString or
// QByteArray is one pointer of four bytes. recordlayout.cpp checks them.
// Keep the members public and the classes without bases: offsetof must stay
// well defined.

// Seat heating state, 14 bytes, embedded in AirData at offset 89.
class SeatHeatingData
{
public:
    SeatHeatingData();
    // Copies bytes 0 to 5, 7, 8, 10 and 11 only; bytes 6, 9, 12 and 13 of
    // the new record are not taken from the other and start at zero.
    SeatHeatingData(SeatHeatingData const &other);

    quint8 hasSeatHeating;   // 0: non-zero when the car has seat heating
    qint8 leftSeat;          // 1: >= 0 heating level, < 0 cooling level
    qint8 rightSeat;         // 2: as leftSeat
    quint8 stored[11];       // 3..13: carried for the module, not read
};

// Tyre record, 40 bytes, embedded in AirData at offset 104.
class TirePressureInformation
{
public:
    TirePressureInformation();
    // Bytes 29 and 34 are not copied; they start at zero.
    TirePressureInformation(TirePressureInformation const &other);
    TirePressureInformation &operator=(TirePressureInformation const &other);

    // State 255, pressures "--", summary 255, status, alarm and temperature
    // bytes 0. Bytes 29 and 34 keep their values.
    void clear();

    enum Wheel { FrontLeft = 0, FrontRight = 1, RearLeft = 2, RearRight = 3 };

    quint8 state;                 // 0
    quint8 reserved1[3];          // 1..3
    QString frontLeftPressure;    // 4
    QString frontRightPressure;   // 8
    QString rearLeftPressure;     // 12
    QString rearRightPressure;    // 16
    QString sparePressure;        // 20
    quint8 summary;               // 24
    quint8 status[4];             // 25..28, by Wheel
    quint8 reserved29;            // 29
    quint8 alarm[4];              // 30..33, by Wheel
    quint8 reserved34;            // 34
    quint8 temperature[4];        // 35..38, by Wheel
    quint8 reserved39;            // 39
};

class AirData
{
public:
    // The climate functions at bytes 48 to 88, one signed byte each: below 0
    // the car lacks the function, 0 it is off, above 0 it is on. The
    // enumerators are the byte numbers of the record.
    enum Function {
        FirstFunction = 48,
        ClimateSwitch = 49,
        Ac = 50,
        Function51 = 51,          // read by the climate panel's record only
        Fdc = 52,
        Function53 = 53,          // read by the climate panel's record only
        Dual = 54,
        Auto = 55,
        Auto2 = 56,
        Auto3 = 57,
        InnerLoop = 59,
        InnerLoopQas = 60,
        InnerLoopInverted = 61,   // inner loop reported in the opposite sense
        Heat = 66,
        FrontDefrost = 67,
        FrontDefrost2 = 68,
        RearDefrost = 69,
        RearDefrost2 = 70,
        LeftWindUp = 71,
        LeftWindFront = 72,
        LeftWindDown = 73,
        LeftWindSpeed = 75,
        RightWindUp = 76,
        RightWindFront = 77,
        RightWindDown = 78,
        RightWindSpeed = 80,
        LastFunction = 88
    };
    enum { FunctionCount = LastFunction - FirstFunction + 1 };

    AirData();
    AirData(AirData const &other);
    AirData &operator=(AirData const &other);

    // Resets the climate part. hasAirConditioner, reserved6 and the tyre
    // record keep their values.
    void clear();
    // True when the two records show the same climate; see airdata.cpp for
    // which bytes count.
    bool compare(AirData const &other) const;

    // The function byte with the given record offset (48 to 88); -1, the
    // "no such function" value, for an offset outside that range.
    qint8 function(int byte) const;
    void setFunction(int byte, qint8 value);

    qint32 airType;                   // 0
    quint8 hasAirConditioner;         // 4: zero when the model has no climate functions
    quint8 showRequest;               // 5
    quint8 reserved6;                 // 6
    quint8 leftTemperatureValid;      // 7
    quint8 leftTemperatureLow;        // 8
    quint8 leftTemperatureHigh;       // 9
    quint8 rightTemperatureValid;     // 10
    quint8 rightTemperatureLow;       // 11
    quint8 rightTemperatureHigh;      // 12
    qint8 leftTemperatureUnit;        // 13: 0 C, 1 F, -1 no unit text
    qint8 rightTemperatureUnit;       // 14
    quint8 reserved15;                // 15
    QString leftTemperature;          // 16
    QString rightTemperature;         // 20
    quint8 extra24[4];                // 24
    QString extra28;                  // 28
    quint8 extra32[3];                // 32
    quint8 reserved35;                // 35
    QString extra36;                  // 36
    quint8 extra40;                   // 40
    qint8 extra41;                    // 41
    quint8 reserved42[2];             // 42
    QString outsideTemperature;       // 44
    qint8 functions[FunctionCount];   // 48..88, see Function
    SeatHeatingData seatHeating;      // 89
    quint8 reserved103;               // 103
    TirePressureInformation tirePressure; // 104
    QByteArray raw;                   // 144

private:
    void copyFrom(AirData const &other);
};

#endif // AIRDATA_H
