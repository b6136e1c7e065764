#include "pages37.h"

CarInfoItem37_1::CarInfoItem37_1(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

CarInfoItem37_2::CarInfoItem37_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem37_3::CarInfoItem37_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem37_4::CarInfoItem37_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem37_5::CarInfoItem37_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem37_6::CarInfoItem37_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem37_7::CarInfoItem37_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem37_8::CarInfoItem37_8(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem37_9::CarInfoItem37_9(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
