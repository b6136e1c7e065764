#include "pages68.h"

CarInfoItem68_1::CarInfoItem68_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem68_2::CarInfoItem68_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem68_3::CarInfoItem68_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
