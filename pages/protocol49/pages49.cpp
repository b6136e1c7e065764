#include "pages49.h"

CarInfoItem49_1::CarInfoItem49_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem49_2::CarInfoItem49_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem49_3::CarInfoItem49_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem49_4::CarInfoItem49_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem49_5::CarInfoItem49_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem49_6::CarInfoItem49_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem49_7::CarInfoItem49_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
