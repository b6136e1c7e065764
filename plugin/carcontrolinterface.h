#ifndef CARCONTROLINTERFACE_H
#define CARCONTROLINTERFACE_H

#include <QObject>
#include <QString>
#include <QVariant>

// What the head unit's framework sees of the plug-in: it takes the root
// object, casts it to this interface by the identifier "cantheme/0.1" and
// from then on calls it with the reverse state and every vehicle event.
//
// The framework calls these operations through the virtual table, so their
// order and signatures are fixed: new operations may only be added after the
// last one. The slots are also connected by name, so their parameter names
// are part of the interface too.
class CarControlInterface : public QObject
{
    Q_OBJECT
public:
    explicit CarControlInterface(QObject *parent = 0);
    ~CarControlInterface();

    // The number of the vehicle protocol chosen in the factory settings.
    virtual void setProtocolId(int id) = 0;
    // The car went into reverse, or out of it.
    virtual void setReverse(bool on) = 0;
    // Whether the reversing camera delivers a picture.
    virtual void setReverseSignalState(bool state) = 0;
    virtual void setRightDriver(bool const &right) = 0;
    // The framework's general-purpose setter.
    virtual void setOtherProperty(QString const &key, QVariant value) = 0;
    // Fresh data for the extended view's current page.
    virtual void setData(QVariant const &data) = 0;
    // Bring up the overlays, the extended view, or the extended view on the
    // framework's dialog level.
    virtual void showDialogView() = 0;
    virtual void showExView() = 0;
    virtual void showExViewDialogView() = 0;
    // Put the overlays back on top of their level.
    virtual void showUiRaise();

public slots:
    virtual void onAirConditionerVisibleChanged(bool visible) = 0;
    virtual void onAirConditionerDataChanged() = 0;
    virtual void onCardoorDataChanged() = 0;
    virtual void onCarbodyDataChanged();
    virtual void onRadarDataChanged() = 0;
    virtual void onRadarDataChanged(QVariant data);
    virtual void onTrajectoryDataChanged(int value, int range, bool visible) = 0;
};

Q_DECLARE_INTERFACE(CarControlInterface, "cantheme/0.1")

#endif // CARCONTROLINTERFACE_H
