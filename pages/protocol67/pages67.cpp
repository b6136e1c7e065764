#include "pages67.h"

CarInfoItem67_1::CarInfoItem67_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem67_2::CarInfoItem67_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem67_3::CarInfoItem67_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem67_4::CarInfoItem67_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem67_5::CarInfoItem67_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem67_6::CarInfoItem67_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem67_7::CarInfoItem67_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem67_8::CarInfoItem67_8(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem67_9::CarInfoItem67_9(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem67_10::CarInfoItem67_10(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem67_11::CarInfoItem67_11(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem67_12::CarInfoItem67_12(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem67_13::CarInfoItem67_13(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
