#include "pages122.h"

CarInfoItem122_1::CarInfoItem122_1(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

CarInfoItem122_2::CarInfoItem122_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem122_3::CarInfoItem122_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem122_4::CarInfoItem122_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem122_5::CarInfoItem122_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem122_6::CarInfoItem122_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem122_7::CarInfoItem122_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem122_8::CarInfoItem122_8(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
