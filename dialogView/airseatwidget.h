#ifndef AIRSEATWIDGET_H
#define AIRSEATWIDGET_H

#include "customimagewidget.h"

class QImage;

// The seat picture of the climate panel with the arrows of where the air
// goes: state 0 none, 1 to the feet, 2 to the upper body, 3 both. Each
// picture, and its mirrored variant, is made on first use and kept.
class AirSeatWidget : public CustomImageWidget
{
    Q_OBJECT
public:
    explicit AirSeatWidget(QWidget *parent = 0);
    ~AirSeatWidget();

    // The pictures of the states 0 to 3, by path.
    void setImages(QString const &state0, QString const &state1,
                   QString const &state2, QString const &state3);
    // Takes effect with the next setState().
    void setMirror(bool mirror);
    // Any state other than 0 to 3 changes nothing.
    void setState(int state);

private:
    enum { StateCount = 4 };

    QImage *images[StateCount];
    QImage *mirroredImages[StateCount];
    QString imagePaths[StateCount];
    bool mirror;
};

#endif // AIRSEATWIDGET_H
