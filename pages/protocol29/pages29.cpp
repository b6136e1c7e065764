#include "pages29.h"

CarInfoItem29_1::CarInfoItem29_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem29_2::CarInfoItem29_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem29_3::CarInfoItem29_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
