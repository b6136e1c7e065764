#include "pages72.h"

CarInfoItem72_1::CarInfoItem72_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem72_2::CarInfoItem72_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem72_3::CarInfoItem72_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem72_4::CarInfoItem72_4(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem72_5::CarInfoItem72_5(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem72_6::CarInfoItem72_6(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem72_7::CarInfoItem72_7(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem72_8::CarInfoItem72_8(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

void CarInfoItem72_8::middlePressed(int row)
{
    // The reset row is the one with id 12.
    if (row >= 0 && row < list.size() && rowKey(row) == 12)
        emit TirePressure();
}

CarInfoItem72_9::CarInfoItem72_9(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem72_10::CarInfoItem72_10(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem72_11::CarInfoItem72_11(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem72_12::CarInfoItem72_12(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem72_13::CarInfoItem72_13(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem72_14::CarInfoItem72_14(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem72_15::CarInfoItem72_15(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}
