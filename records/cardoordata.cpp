#include "cardoordata.h"

CardoorData::CardoorData()
{
    clear();
}

void CardoorData::clear()
{
    frontLeftDoor = 0;
    frontRightDoor = 0;
    rearLeftDoor = 0;
    rearRightDoor = 0;
    trunk = 0;
    hood = 0;
}

bool CardoorData::isWarningState() const
{
    return frontLeftDoor || frontRightDoor || rearLeftDoor || rearRightDoor
            || trunk || hood;
}

bool CardoorData::compare(CardoorData const &other) const
{
    return frontLeftDoor == other.frontLeftDoor
            && frontRightDoor == other.frontRightDoor
            && rearLeftDoor == other.rearLeftDoor
            && rearRightDoor == other.rearRightDoor
            && trunk == other.trunk
            && hood == other.hood;
}
