#include "pages40.h"

CarInfoItem40_1::CarInfoItem40_1(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

CarInfoItem40_2::CarInfoItem40_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
