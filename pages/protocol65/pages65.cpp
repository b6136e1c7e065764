#include "pages65.h"

void CarInfoItem65_14::onItemBtMiddle(QModelIndex)
{
}
