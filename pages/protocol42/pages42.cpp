#include "pages42.h"

CarInfoItem42_1::CarInfoItem42_1(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

void CarInfoItem42_1::middlePressed(int row)
{
    if (row == 2) // the reset row
        emit TirePressure();
}
