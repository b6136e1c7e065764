#include "pages105.h"

CarInfoItem105_1::CarInfoItem105_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem105_2::CarInfoItem105_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem105_3::CarInfoItem105_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem105_4::CarInfoItem105_4(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem105_5::CarInfoItem105_5(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem105_6::CarInfoItem105_6(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem105_7::CarInfoItem105_7(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem105_8::CarInfoItem105_8(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem105_9::CarInfoItem105_9(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}
