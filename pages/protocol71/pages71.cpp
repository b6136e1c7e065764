#include "pages71.h"

CarInfoItem71_1::CarInfoItem71_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem71_2::CarInfoItem71_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem71_3::CarInfoItem71_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem71_4::CarInfoItem71_4(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}
