#ifndef SAMPLEREVERSEVIEW_H
#define SAMPLEREVERSEVIEW_H

#include "reverseinterface.h"

#include <QVariantList>

class QPainter;

// The picture of the sample reverse plug-in. A real plug-in shows the camera
// here; this one has none and paints a placeholder, with the parking radar
// and the guide lines it is given drawn over it:
//
//  - the camera area: a dark gradient with the camera's state in words, and
//    the guide lines once a steering value has arrived, bent by it;
//  - the radar panel on the right, while the radar is enabled: the car from
//    above with four zones behind it and four in front. A zone lights one of
//    three arcs: red next to the car for a near obstacle, orange further
//    out, green furthest out; a zone that sees nothing stays grey.
//
// What the view was given can be read back through its properties.
class SampleReverseView : public ReverseView
{
    Q_OBJECT
    Q_PROPERTY(bool initialized READ isInitialized NOTIFY stateChanged)
    Q_PROPERTY(bool signalPresent READ signalPresent NOTIFY stateChanged)
    Q_PROPERTY(bool rightDriver READ rightDriver NOTIFY stateChanged)
    Q_PROPERTY(bool radarEnabled READ radarEnabled NOTIFY stateChanged)
    Q_PROPERTY(int radarScale READ radarScale NOTIFY stateChanged)
    Q_PROPERTY(QVariantList radarValues READ radarValues NOTIFY stateChanged)
    Q_PROPERTY(int trajectoryRange READ trajectoryRange NOTIFY stateChanged)
    Q_PROPERTY(int trajectoryValue READ trajectoryValue NOTIFY stateChanged)
public:
    // The radar record's eight distances, in its order: four sensors behind
    // the car, then four in front, each group from left to right.
    enum { SensorCount = 8, RearSensors = 4 };

    explicit SampleReverseView(QWidget *parent = 0);

    void init() Q_DECL_OVERRIDE;
    void setReverseSignalState(bool hadSig) Q_DECL_OVERRIDE;
    void setRightDriver(bool right) Q_DECL_OVERRIDE;
    void setRadarEnabled(bool enabled) Q_DECL_OVERRIDE;
    void setRadarScale(quint8 scale) Q_DECL_OVERRIDE;
    void setRadarValues(quint8 const &value0, quint8 const &value1,
                        quint8 const &value2, quint8 const &value3,
                        quint8 const &value4, quint8 const &value5,
                        quint8 const &value6, quint8 const &value7) Q_DECL_OVERRIDE;
    void setTrajectoryRange(int range) Q_DECL_OVERRIDE;
    void setTrajectoryValue(int value) Q_DECL_OVERRIDE;
    // The view wants to be seen from the moment it is shown until it is
    // hidden, also while its parent is still hidden.
    bool needShow() Q_DECL_OVERRIDE;

    bool isInitialized() const;
    bool signalPresent() const;
    bool rightDriver() const;
    bool radarEnabled() const;
    int radarScale() const;
    QVariantList radarValues() const;
    int trajectoryRange() const;
    int trajectoryValue() const;

signals:
    // Any of the properties above has a new value.
    void stateChanged();

protected:
    void paintEvent(QPaintEvent *event) Q_DECL_OVERRIDE;

private:
    QRect radarArea() const;
    void paintCamera(QPainter &painter, QRect const &area);
    void paintGuideLines(QPainter &painter, QRect const &area);
    void paintRadar(QPainter &painter, QRect const &area);

    bool m_initialized;
    bool m_signalPresent;
    bool m_rightDriver;
    bool m_radarEnabled;
    quint8 m_radarScale;
    quint8 m_radarValues[SensorCount];
    bool m_hasTrajectory;
    int m_trajectoryRange;
    int m_trajectoryValue;
};

#endif // SAMPLEREVERSEVIEW_H
