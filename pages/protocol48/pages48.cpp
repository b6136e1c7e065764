#include "pages48.h"

CarInfoItem48_1::CarInfoItem48_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem48_2::CarInfoItem48_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem48_3::CarInfoItem48_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem48_4::CarInfoItem48_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem48_5::CarInfoItem48_5(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

CarInfoItem48_6::CarInfoItem48_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem48_7::CarInfoItem48_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem48_8::CarInfoItem48_8(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem48_9::CarInfoItem48_9(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem48_10::CarInfoItem48_10(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
