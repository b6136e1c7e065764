#include "pages65.h"

CarInfoItem65_1::CarInfoItem65_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem65_2::CarInfoItem65_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem65_3::CarInfoItem65_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem65_4::CarInfoItem65_4(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem65_5::CarInfoItem65_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem65_6::CarInfoItem65_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem65_7::CarInfoItem65_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem65_8::CarInfoItem65_8(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem65_9::CarInfoItem65_9(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem65_10::CarInfoItem65_10(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem65_11::CarInfoItem65_11(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem65_12::CarInfoItem65_12(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem65_13::CarInfoItem65_13(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

CarInfoItem65_14::CarInfoItem65_14(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

void CarInfoItem65_14::onItemBtMiddle(QModelIndex)
{
}
