#include "pages64.h"

void CarInfoItem64_5::middlePressed(int row)
{
    if (row == 40) // the reset row
        emit TirePressure();
}
