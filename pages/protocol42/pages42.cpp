#include "pages42.h"

void CarInfoItem42_1::middlePressed(int row)
{
    if (row == 2) // the reset row
        emit TirePressure();
}
