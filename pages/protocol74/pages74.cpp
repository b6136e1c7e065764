#include "pages74.h"

CarInfoItem74_1::CarInfoItem74_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem74_2::CarInfoItem74_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem74_3::CarInfoItem74_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem74_4::CarInfoItem74_4(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem74_5::CarInfoItem74_5(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem74_6::CarInfoItem74_6(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem74_7::CarInfoItem74_7(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem74_8::CarInfoItem74_8(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}
