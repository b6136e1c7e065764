#include "samplereverseview.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPolygonF>

#include <string.h>

namespace {

// The three arcs of a radar zone, from the car outward.
enum { RingCount = 3 };

// The arc that a distance lights: 0 next to the car for the nearest third of
// the scale, 2 for the farthest; -1 when the sensor sees nothing. Distances
// beyond the scale count as far. A scale of 0 would make no sense and is
// taken as the radar record's usual 10.
int ringFor(quint8 distance, quint8 scale)
{
    if (distance == 0)
        return -1;
    const int fullScale = scale ? scale : 10;
    const int clamped = qMin<int>(distance, fullScale);
    return qMin(RingCount - 1, (clamped - 1) * RingCount / fullScale);
}

QColor ringColor(int ring)
{
    switch (ring) {
    case 0:
        return QColor(230, 40, 40);
    case 1:
        return QColor(245, 150, 30);
    default:
        return QColor(60, 200, 90);
    }
}

// The colour of a zone's arc that is not lit.
const QColor idleRing(64, 68, 78);

// The guide lines: near, middle and far band.
QColor bandColor(int band)
{
    switch (band) {
    case 0:
        return QColor(230, 40, 40);
    case 1:
        return QColor(240, 210, 40);
    default:
        return QColor(60, 200, 90);
    }
}

} // namespace

SampleReverseView::SampleReverseView(QWidget *parent)
    : ReverseView(parent)
    , m_initialized(false)
    , m_signalPresent(false)
    , m_rightDriver(false)
    , m_radarEnabled(true)
    , m_radarScale(10)
    , m_hasTrajectory(false)
    , m_trajectoryRange(0)
    , m_trajectoryValue(0)
{
    memset(m_radarValues, 0, sizeof(m_radarValues));
}

void SampleReverseView::init()
{
    // The view paints every pixel of itself.
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_initialized = true;
    emit stateChanged();
}

void SampleReverseView::setReverseSignalState(bool hadSig)
{
    m_signalPresent = hadSig;
    update();
    emit stateChanged();
}

// The sample draws the same picture for both drive sides.
void SampleReverseView::setRightDriver(bool right)
{
    m_rightDriver = right;
    emit stateChanged();
}

void SampleReverseView::setRadarEnabled(bool enabled)
{
    m_radarEnabled = enabled;
    update();
    emit stateChanged();
}

void SampleReverseView::setRadarScale(quint8 scale)
{
    m_radarScale = scale;
    emit stateChanged();
}

void SampleReverseView::setRadarValues(quint8 const &value0, quint8 const &value1,
                                       quint8 const &value2, quint8 const &value3,
                                       quint8 const &value4, quint8 const &value5,
                                       quint8 const &value6, quint8 const &value7)
{
    const quint8 values[SensorCount] = {
        value0, value1, value2, value3, value4, value5, value6, value7
    };
    memcpy(m_radarValues, values, sizeof(m_radarValues));
    update(radarArea());
    emit stateChanged();
}

void SampleReverseView::setTrajectoryRange(int range)
{
    m_trajectoryRange = range;
    emit stateChanged();
}

void SampleReverseView::setTrajectoryValue(int value)
{
    m_trajectoryValue = value;
    m_hasTrajectory = true;
    update();
    emit stateChanged();
}

bool SampleReverseView::needShow()
{
    return !isHidden();
}

bool SampleReverseView::isInitialized() const { return m_initialized; }
bool SampleReverseView::signalPresent() const { return m_signalPresent; }
bool SampleReverseView::rightDriver() const { return m_rightDriver; }
bool SampleReverseView::radarEnabled() const { return m_radarEnabled; }
int SampleReverseView::radarScale() const { return m_radarScale; }
int SampleReverseView::trajectoryRange() const { return m_trajectoryRange; }
int SampleReverseView::trajectoryValue() const { return m_trajectoryValue; }

QVariantList SampleReverseView::radarValues() const
{
    QVariantList values;
    for (int i = 0; i < SensorCount; ++i)
        values.append(int(m_radarValues[i]));
    return values;
}

// The right quarter of the view, while the radar is enabled.
QRect SampleReverseView::radarArea() const
{
    if (!m_radarEnabled)
        return QRect();
    const int panelWidth = width() / 4;
    return QRect(width() - panelWidth, 0, panelWidth, height());
}

void SampleReverseView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const QRect radar = radarArea();
    QRect camera = rect();
    if (!radar.isEmpty())
        camera.setRight(radar.left() - 1);

    paintCamera(painter, camera);
    if (m_hasTrajectory)
        paintGuideLines(painter, camera);
    if (!radar.isEmpty())
        paintRadar(painter, radar);
}

// Where a real plug-in shows the camera's picture.
void SampleReverseView::paintCamera(QPainter &painter, QRect const &area)
{
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, QColor(38, 44, 56));
    gradient.setColorAt(1, QColor(6, 8, 12));
    painter.fillRect(area, gradient);

    QFont text = font();
    text.setPixelSize(qMax(12, area.height() / 18));
    painter.setFont(text);
    painter.setPen(QColor(200, 205, 215));
    const QRect caption(area.left(), area.top(), area.width(), area.height() / 3);
    painter.drawText(caption, Qt::AlignCenter,
                     m_signalPresent ? tr("Camera connected") : tr("No camera signal"));
}

// Two lines from the bottom of the picture toward the horizon, in a near,
// middle and far band, bent to the side the wheels are turned. The steering
// value runs from -range (full left) to range (full right).
void SampleReverseView::paintGuideLines(QPainter &painter, QRect const &area)
{
    const qreal bend = m_trajectoryRange > 0
            ? qBound(qreal(-1), qreal(m_trajectoryValue) / m_trajectoryRange, qreal(1)) : qreal(0);
    const qreal bottom = area.bottom() - area.height() * 0.04;
    const qreal top = area.top() + area.height() * 0.42;
    const qreal centre = area.center().x();
    const qreal nearHalf = area.width() * 0.32;
    const qreal farHalf = area.width() * 0.12;
    const qreal sway = area.width() * 0.22;

    // The point of one line at depth t, 0 at the bottom and 1 at the far
    // end; side is -1 for the left line and 1 for the right.
    struct Line {
        qreal bottom, top, centre, nearHalf, farHalf, sway, bend;
        QPointF at(int side, qreal t) const
        {
            const qreal half = nearHalf + (farHalf - nearHalf) * t;
            return QPointF(centre + side * half + bend * sway * t * t,
                           bottom + (top - bottom) * t);
        }
    };
    const Line line = { bottom, top, centre, nearHalf, farHalf, sway, bend };

    const int steps = 8;
    for (int band = 0; band < 3; ++band) {
        QPen pen(bandColor(band), qMax(2, area.width() / 160));
        pen.setCapStyle(Qt::FlatCap);
        painter.setPen(pen);
        for (int side = -1; side <= 1; side += 2) {
            QPolygonF points;
            for (int i = 0; i <= steps; ++i)
                points << line.at(side, (band + qreal(i) / steps) / 3);
            painter.drawPolyline(points);
        }
        // The mark at the far end of the band.
        const qreal t = (band + 1) / 3.0;
        const QPointF left = line.at(-1, t);
        const QPointF right = line.at(1, t);
        const qreal tick = (right.x() - left.x()) * 0.15;
        painter.drawLine(left, left + QPointF(tick, 0));
        painter.drawLine(right, right - QPointF(tick, 0));
    }
}

// The car from above, front up, with four zones behind it and four in front.
void SampleReverseView::paintRadar(QPainter &painter, QRect const &area)
{
    painter.fillRect(area, QColor(14, 16, 20));

    const QPointF centre = QRectF(area).center();
    const qreal carWidth = area.width() * 0.22;
    const qreal carLength = area.height() * 0.34;
    const QRectF car(centre.x() - carWidth / 2, centre.y() - carLength / 2, carWidth, carLength);

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(110, 116, 130));
    painter.drawRoundedRect(car, carWidth * 0.25, carWidth * 0.25);
    painter.setBrush(QColor(40, 44, 52));
    painter.drawRect(QRectF(car.left() + carWidth * 0.15, car.top() + carLength * 0.2,
                            carWidth * 0.7, carLength * 0.15));
    painter.setBrush(Qt::NoBrush);

    const qreal ringWidth = qMin(area.height() * 0.06, area.width() * 0.11);
    const qreal gap = carWidth * 0.55;
    const int zoneSpan = 35;
    for (int sensor = 0; sensor < SensorCount; ++sensor) {
        // Behind the car the zones run from 200 to 340 degrees, in front
        // from 160 down to 20, both from the car's left to its right.
        const bool rear = sensor < RearSensors;
        const int index = sensor % RearSensors;
        const int start = rear ? 200 + zoneSpan * index : 160 - zoneSpan * (index + 1);
        const QPointF origin(centre.x(), rear ? car.bottom() : car.top());
        const int lit = ringFor(m_radarValues[sensor], m_radarScale);
        for (int ring = 0; ring < RingCount; ++ring) {
            const qreal radius = gap + ringWidth * (ring + 0.5);
            QPen pen(ring == lit ? ringColor(ring) : idleRing, ringWidth * 0.8);
            pen.setCapStyle(Qt::FlatCap);
            painter.setPen(pen);
            const QRectF circle(origin.x() - radius, origin.y() - radius, 2 * radius, 2 * radius);
            painter.drawArc(circle, (start + 1) * 16, (zoneSpan - 2) * 16);
        }
    }
}
