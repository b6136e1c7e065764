#include "cardoordialogbase.h"

CardoorDialogBase::CardoorDialogBase(QWidget *parent)
    : DialogBase(parent)
    , rightDriver(false)
{
}

void CardoorDialogBase::setRightDriver(bool right)
{
    rightDriver = right;
}

void CardoorDialogBase::setData(CardoorData const &door)
{
    cardoorData = door;
}

void CardoorDialogBase::setCarbodyData(CarbodyData const &)
{
}

CardoorData const &CardoorDialogBase::getData() const
{
    return cardoorData;
}
