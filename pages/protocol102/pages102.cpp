#include "pages102.h"

CarInfoItem102_1::CarInfoItem102_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem102_2::CarInfoItem102_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

CarInfoItem102_3::CarInfoItem102_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
