#include "pages69.h"

void CarInfoItem69_7::OnitemBtMiddle(QModelIndex index)
{
    middlePressed(index.row());
}

const char *CarInfoItem69_7::middleSlot() const
{
    return SLOT(OnitemBtMiddle(QModelIndex));
}
