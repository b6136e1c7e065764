#include "pages82.h"

CarInfoItem82_1::CarInfoItem82_1(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}
