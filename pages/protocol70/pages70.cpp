#include "pages70.h"

CarInfoItem70_1::CarInfoItem70_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem70_2::CarInfoItem70_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem70_3::CarInfoItem70_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem70_4::CarInfoItem70_4(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem70_5::CarInfoItem70_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
