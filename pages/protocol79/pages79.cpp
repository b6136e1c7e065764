#include "pages79.h"

CarInfoItem79_1::CarInfoItem79_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem79_2::CarInfoItem79_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem79_3::CarInfoItem79_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem79_4::CarInfoItem79_4(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem79_5::CarInfoItem79_5(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem79_6::CarInfoItem79_6(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem79_7::CarInfoItem79_7(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}
