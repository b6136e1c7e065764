#include "pages84.h"

CarInfoItem84_1::CarInfoItem84_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
