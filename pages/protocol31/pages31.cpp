#include "pages31.h"

void CarInfoItem31_3::middlePressed(int row)
{
    if (row == 6) // the reset row
        emit TirePressure();
}
