#ifndef CAREXVIEW27_H
#define CAREXVIEW27_H

#include "carexviewbase.h"

class CustomImageButton;
class CustomImageWidget;
class QImage;
class QLabel;

// The small instrument cluster of protocol 27, drawn from the body record:
// outside temperature and battery voltage on two plates, speed and engine
// speed on two dials, the road picture between them, and the distance and
// the remaining fuel below. It holds no pages; what brings it to the front
// (showIndex) is left to a subclass.
//
// A dial or plate without data is disabled; a tap on it explains that the
// car lacks the feature, any other tap clears that message. Keys and focus
// stop here.
class CarExView27 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView27(QWidget *parent = 0);
    ~CarExView27();

    // The cluster reads the body record in refresh(), not the data passed.
    void setData(QVariant const &data);
    void refresh();
    // The button whose area holds the point (in this widget's coordinates):
    // one of the six, the distance and fuel texts counting as their
    // symbols; null over free space.
    QWidget *getPressWidgetArea(QPoint const &pos) const;

protected:
    void mousePressEvent(QMouseEvent *event);
    void mouseReleaseEvent(QMouseEvent *event);
    void keyPressEvent(QKeyEvent *event);
    void focusInEvent(QFocusEvent *event);

private:
    QRect areaOf(QWidget const *widget) const;
    bool isButton(QWidget const *widget) const;

    CustomImageButton *temperatureButton;
    CustomImageButton *voltageButton;
    CustomImageButton *speedButton;
    CustomImageButton *rpmButton;
    QLabel *speedUnitLabel;
    QLabel *rpmUnitLabel;
    CustomImageWidget *carImage;
    CustomImageButton *mileageButton;
    CustomImageButton *remainButton;
    QLabel *mileageLabel;
    QLabel *mileageUnitLabel;
    QLabel *remainLabel;
    QLabel *remainUnitLabel;
    QImage *topTitleImage;
    QImage *topTitleDisabledImage;
    QImage *roundImage;
    QImage *roundDisabledImage;
    QWidget *pressedWidget;
};

#endif // CAREXVIEW27_H
