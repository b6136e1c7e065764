#include "pages123.h"

CarInfoItem123_1::CarInfoItem123_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem123_2::CarInfoItem123_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem123_3::CarInfoItem123_3(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}
