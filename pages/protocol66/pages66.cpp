#include "pages66.h"

CarInfoItem66_1::CarInfoItem66_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}
