#include "pages97.h"

CarInfoItem97_1::CarInfoItem97_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem97_2::CarInfoItem97_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem97_3::CarInfoItem97_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem97_4::CarInfoItem97_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem97_5::CarInfoItem97_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem97_6::CarInfoItem97_6(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem97_7::CarInfoItem97_7(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}
