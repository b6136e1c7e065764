#ifndef REVERSEINTERFACE_H
#define REVERSEINTERFACE_H

// The seam to the reverse plug-in ("reversetheme/0.1"), the second plug-in
// of the head unit that draws the picture shown while the car reverses:
// camera, parking radar and guide lines. This header is all that the two
// plug-ins share; it holds no code that needs linking.
//
// Both classes are called across the plug-in boundary through their virtual
// tables, so the order of their virtual operations is a contract: new
// operations go after the last one, and the reserved places stay where they
// are.

#include <QObject>
#include <QWidget>
#include <QtGlobal>

// The view that the reverse plug-in hands out. It lies over the whole of the
// overlay area while the car reverses. Its visibility is driven through
// QWidget::setVisible(); needShow() tells whether it wants to be seen.
class ReverseView : public QWidget
{
public:
    explicit ReverseView(QWidget *parent = 0)
        : QWidget(parent)
    {
    }

    // Called once, after the view has been made and before it is shown.
    virtual void init() = 0;
    // Reserved for the plug-in; never called.
    virtual void reservedView2() {}
    // Whether the camera delivers a picture.
    virtual void setReverseSignalState(bool hadSig) = 0;
    // The drive side, given again before every delivery of data.
    virtual void setRightDriver(bool right) = 0;
    // Reserved for the plug-in; never called.
    virtual void reservedView5() {}
    // Whether the car's radar is to be shown at all; called once, after the
    // view has been made.
    virtual void setRadarEnabled(bool enabled) = 0;
    // The scale of the distances, given before each setRadarValues().
    virtual void setRadarScale(quint8 scale) = 0;
    // The eight displayed distances of the radar record, in its order. A
    // distance of 0 means that the sensor sees nothing.
    virtual void setRadarValues(quint8 const &value0, quint8 const &value1,
                                quint8 const &value2, quint8 const &value3,
                                quint8 const &value4, quint8 const &value5,
                                quint8 const &value6, quint8 const &value7) = 0;
    // The steering range of the guide lines, given before each value.
    virtual void setTrajectoryRange(int range) = 0;
    // The steering value of the guide lines, within the last range.
    virtual void setTrajectoryValue(int value) = 0;
    // Reserved for the plug-in; never called.
    virtual void reservedView11() {}
    // Whether the view wants to be seen; the overlay area stays up while it
    // does.
    virtual bool needShow() = 0;
};

// The root object of the reverse plug-in. The caller takes one instance, asks
// it for a view and deletes it straight away: the view outlives it.
class ReverseInterface : public QObject
{
public:
    explicit ReverseInterface(QObject *parent = 0)
        : QObject(parent)
    {
    }

    // A new view, child of parent.
    virtual ReverseView *createView(QWidget *parent) = 0;
};

#define ReverseInterface_iid "reversetheme/0.1"

Q_DECLARE_INTERFACE(ReverseInterface, ReverseInterface_iid)

#endif // REVERSEINTERFACE_H
