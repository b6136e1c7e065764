#include "pages81.h"

CarInfoItem81_1::CarInfoItem81_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
