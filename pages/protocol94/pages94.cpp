#include "pages94.h"

CarInfoItem94_1::CarInfoItem94_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
