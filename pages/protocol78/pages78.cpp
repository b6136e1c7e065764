#include "pages78.h"

CarInfoItem78_1::CarInfoItem78_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem78_2::CarInfoItem78_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem78_3::CarInfoItem78_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem78_4::CarInfoItem78_4(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem78_5::CarInfoItem78_5(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}
