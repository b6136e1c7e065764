#include "pages99.h"

CarInfoItem99_2::CarInfoItem99_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem99_1::CarInfoItem99_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
