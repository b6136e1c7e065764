#ifndef SEATHEATINGTIPVIEW_H
#define SEATHEATINGTIPVIEW_H

#include "airdata.h"

#include <QList>
#include <QWidget>

class QImage;
class QLabel;

// The drawing of a seat tile: the seat with heat or cool waves and under it
// three level dots. What a picture shows is kept in dynamic properties (the
// item's "hot-cool" and "v", each dot's "v"), so a repeated state sets no
// picture again.
class SeatItemView : public QWidget
{
    Q_OBJECT
public:
    explicit SeatItemView(QWidget *parent = 0);

    // Shown mirrored left to right once setMirror() was called. The item is
    // made twice as high as the picture.
    void setIcon(QImage const &image);
    // Lights the dots below value; a value above 3 lights all three.
    void setValue(signed char value);
    signed char value() const;
    // The dot pictures, kept by the caller; all dots go off.
    void setValueIamge(QImage const *on, QImage const *off);
    // For the right seat; there is no way back.
    void setMirror();
    bool isMirror() const;

private:
    QLabel *iconLabel;
    QList<QLabel *> valueLabels;
    QImage const *onImage;
    QImage const *offImage;
    bool mirror;
};

// One seat's heating or cooling state as a tile; a press on it is a command
// to the car, which the climate panel sends on clicked(). The left tile reads
// the left seat's value, the mirrored right tile the right seat's.
class SeatHeatingTipView : public QWidget
{
    Q_OBJECT
public:
    explicit SeatHeatingTipView(QWidget *parent = 0);
    ~SeatHeatingTipView();

    void setData(SeatHeatingData const &record);
    SeatHeatingData getData() const;
    // Makes this the right seat's tile; to be called once, at creation.
    void setMirror();

signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent *event) Q_DECL_OVERRIDE;

private:
    SeatHeatingData data;
    SeatItemView *item;
    QImage *valueOnImage;
    QImage *valueOffImage;
};

#endif // SEATHEATINGTIPVIEW_H
