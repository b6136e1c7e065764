#ifndef SAMPLEREVERSEPLUGIN_H
#define SAMPLEREVERSEPLUGIN_H

#include "reverseinterface.h"

// The root object of the sample reverse plug-in. The head unit finds the
// plug-in by its interface "reversetheme/0.1", takes an instance, asks it for
// one view and deletes the instance again; the view lives on as a child of
// the car control plug-in's overlay area until reverse ends.
class SampleReversePlugin : public ReverseInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "reversetheme/0.1")
    Q_INTERFACES(ReverseInterface)
public:
    explicit SampleReversePlugin(QObject *parent = 0);

    ReverseView *createView(QWidget *parent) Q_DECL_OVERRIDE;
};

#endif // SAMPLEREVERSEPLUGIN_H
