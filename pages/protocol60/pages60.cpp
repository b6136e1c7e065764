#include "pages60.h"

CarInfoItem60_1::CarInfoItem60_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem60_2::CarInfoItem60_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem60_3::CarInfoItem60_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem60_4::CarInfoItem60_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem60_5::CarInfoItem60_5(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

CarInfoItem60_6::CarInfoItem60_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
