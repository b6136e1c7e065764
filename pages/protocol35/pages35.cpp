#include "pages35.h"

CarInfoItem35_1::CarInfoItem35_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem35_2::CarInfoItem35_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
