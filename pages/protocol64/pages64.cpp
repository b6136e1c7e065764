#include "pages64.h"

CarInfoItem64_1::CarInfoItem64_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem64_2::CarInfoItem64_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem64_3::CarInfoItem64_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem64_4::CarInfoItem64_4(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem64_5::CarInfoItem64_5(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

void CarInfoItem64_5::middlePressed(int row)
{
    if (row == 40) // the reset row
        emit TirePressure();
}

CarInfoItem64_6::CarInfoItem64_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem64_7::CarInfoItem64_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem64_8::CarInfoItem64_8(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
