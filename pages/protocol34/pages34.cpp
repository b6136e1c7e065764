#include "pages34.h"

CarInfoItem34_1::CarInfoItem34_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem34_2::CarInfoItem34_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem34_3::CarInfoItem34_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
