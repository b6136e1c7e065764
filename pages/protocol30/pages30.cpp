#include "pages30.h"

CarInfoItem30_1::CarInfoItem30_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem30_2::CarInfoItem30_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem30_3::CarInfoItem30_3(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

CarInfoItem30_4::CarInfoItem30_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem30_5::CarInfoItem30_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem30_6::CarInfoItem30_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem30_7::CarInfoItem30_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem30_8::CarInfoItem30_8(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem30_9::CarInfoItem30_9(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
