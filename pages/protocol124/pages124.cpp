#include "pages124.h"

CarInfoItem124_1::CarInfoItem124_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem124_2::CarInfoItem124_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem124_3::CarInfoItem124_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
