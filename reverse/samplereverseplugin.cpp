#include "samplereverseplugin.h"

#include "samplereverseview.h"

SampleReversePlugin::SampleReversePlugin(QObject *parent)
    : ReverseInterface(parent)
{
}

ReverseView *SampleReversePlugin::createView(QWidget *parent)
{
    return new SampleReverseView(parent);
}
