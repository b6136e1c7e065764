#include "pages98.h"

CarInfoItem98_1::CarInfoItem98_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem98_2::CarInfoItem98_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem98_3::CarInfoItem98_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
