#include "pages80.h"

CarInfoItem80_1::CarInfoItem80_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem80_2::CarInfoItem80_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
