#include "pages43.h"

CarInfoItem43_1::CarInfoItem43_1(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

CarInfoItem43_2::CarInfoItem43_2(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

CarInfoItem43_3::CarInfoItem43_3(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}
