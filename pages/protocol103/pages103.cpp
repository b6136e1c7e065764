#include "pages103.h"

CarInfoItem103_1::CarInfoItem103_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem103_2::CarInfoItem103_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem103_3::CarInfoItem103_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
