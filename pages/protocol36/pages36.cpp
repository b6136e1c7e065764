#include "pages36.h"

CarInfoItem36_1::CarInfoItem36_1(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

CarInfoItem36_2::CarInfoItem36_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
