#include "pages33.h"

CarInfoItem33_1::CarInfoItem33_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem33_2::CarInfoItem33_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem33_3::CarInfoItem33_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem33_4::CarInfoItem33_4(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

CarInfoItem33_5::CarInfoItem33_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem33_6::CarInfoItem33_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem33_7::CarInfoItem33_7(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

CarInfoItem33_8::CarInfoItem33_8(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem33_9::CarInfoItem33_9(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}
