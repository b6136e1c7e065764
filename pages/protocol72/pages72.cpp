#include "pages72.h"

void CarInfoItem72_8::middlePressed(int row)
{
    // The reset row is the one with id 12.
    if (row >= 0 && row < list.size() && rowKey(row) == 12)
        emit TirePressure();
}
