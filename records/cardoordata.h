#ifndef CARDOORDATA_H
#define CARDOORDATA_H

#include <QtGlobal>

// The door record of the CAN-bus module, 6 bytes: each byte non-zero while
// that door, the trunk or the hood stands open.
class CardoorData
{
public:
    CardoorData();

    void clear();
    bool isWarningState() const;
    bool compare(CardoorData const &other) const;

    quint8 frontLeftDoor;   // 0
    quint8 frontRightDoor;  // 1
    quint8 rearLeftDoor;    // 2
    quint8 rearRightDoor;   // 3
    quint8 trunk;           // 4
    quint8 hood;            // 5
};

#endif // CARDOORDATA_H
