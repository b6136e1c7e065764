#include "carcontrolinterface.h"

CarControlInterface::CarControlInterface(QObject *parent)
    : QObject(parent)
{
}

CarControlInterface::~CarControlInterface()
{
}

void CarControlInterface::showUiRaise()
{
}

void CarControlInterface::onCarbodyDataChanged()
{
}

void CarControlInterface::onRadarDataChanged(QVariant)
{
}
