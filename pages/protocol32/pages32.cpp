#include "pages32.h"

CarInfoItem32_1::CarInfoItem32_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem32_2::CarInfoItem32_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem32_3::CarInfoItem32_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem32_4::CarInfoItem32_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem32_5::CarInfoItem32_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem32_6::CarInfoItem32_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
