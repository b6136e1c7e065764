#include "pages31.h"

CarInfoItem31_1::CarInfoItem31_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem31_2::CarInfoItem31_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem31_3::CarInfoItem31_3(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

void CarInfoItem31_3::middlePressed(int row)
{
    if (row == 6) // the reset row
        emit TirePressure();
}

CarInfoItem31_4::CarInfoItem31_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem31_5::CarInfoItem31_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem31_6::CarInfoItem31_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
