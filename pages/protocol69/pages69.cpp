#include "pages69.h"

CarInfoItem69_1::CarInfoItem69_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem69_2::CarInfoItem69_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem69_3::CarInfoItem69_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem69_4::CarInfoItem69_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem69_5::CarInfoItem69_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem69_6::CarInfoItem69_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem69_7::CarInfoItem69_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

void CarInfoItem69_7::OnitemBtMiddle(QModelIndex index)
{
    middlePressed(index.row());
}

const char *CarInfoItem69_7::middleSlot() const
{
    return SLOT(OnitemBtMiddle(QModelIndex));
}

CarInfoItem69_8::CarInfoItem69_8(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
