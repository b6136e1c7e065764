#include "pages86.h"

CarInfoItem86_1::CarInfoItem86_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem86_2::CarInfoItem86_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
