#include "pages88.h"

CarInfoItem88_1::CarInfoItem88_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem88_2::CarInfoItem88_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem88_3::CarInfoItem88_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem88_4::CarInfoItem88_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem88_5::CarInfoItem88_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem88_6::CarInfoItem88_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem88_7::CarInfoItem88_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem88_8::CarInfoItem88_8(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
