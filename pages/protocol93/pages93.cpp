#include "pages93.h"

CarInfoItem93_1::CarInfoItem93_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
