#include "pages56.h"

CarInfoItem56_1::CarInfoItem56_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem56_2::CarInfoItem56_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem56_3::CarInfoItem56_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem56_6::CarInfoItem56_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
