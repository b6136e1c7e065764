#include "pages45.h"

CarInfoItem45_1::CarInfoItem45_1(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

CarInfoItem45_2::CarInfoItem45_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem45_3::CarInfoItem45_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem45_4::CarInfoItem45_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
