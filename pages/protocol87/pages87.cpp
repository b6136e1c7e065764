#include "pages87.h"

CarInfoItem87_1::CarInfoItem87_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem87_2::CarInfoItem87_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem87_3::CarInfoItem87_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem87_4::CarInfoItem87_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem87_5::CarInfoItem87_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem87_6::CarInfoItem87_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem87_7::CarInfoItem87_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem87_8::CarInfoItem87_8(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem87_9::CarInfoItem87_9(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem87_10::CarInfoItem87_10(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem87_11::CarInfoItem87_11(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
