#include "pages96.h"

CarInfoItem96_1::CarInfoItem96_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem96_2::CarInfoItem96_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem96_3::CarInfoItem96_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem96_4::CarInfoItem96_4(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem96_5::CarInfoItem96_5(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

CarInfoItem96_6::CarInfoItem96_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem96_7::CarInfoItem96_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
