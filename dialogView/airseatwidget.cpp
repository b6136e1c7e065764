#include "airseatwidget.h"

#include "overlayimages.h"

#include <QImage>

AirSeatWidget::AirSeatWidget(QWidget *parent)
    : CustomImageWidget(parent)
    , mirror(false)
{
    for (int i = 0; i < StateCount; ++i) {
        images[i] = 0;
        mirroredImages[i] = 0;
    }
}

AirSeatWidget::~AirSeatWidget()
{
    for (int i = 0; i < StateCount; ++i) {
        delete images[i];
        delete mirroredImages[i];
    }
}

void AirSeatWidget::setImages(QString const &state0, QString const &state1,
                              QString const &state2, QString const &state3)
{
    imagePaths[0] = state0;
    imagePaths[1] = state1;
    imagePaths[2] = state2;
    imagePaths[3] = state3;
}

void AirSeatWidget::setMirror(bool mirror)
{
    this->mirror = mirror;
}

void AirSeatWidget::setState(int state)
{
    if (state < 0 || state >= StateCount)
        return;
    if (!images[state])
        images[state] = new QImage(readOverlayImage(imagePaths[state]));
    QImage *image = images[state];
    if (mirror) {
        if (!mirroredImages[state])
            mirroredImages[state] = new QImage(images[state]->mirrored(true, false));
        image = mirroredImages[state];
    }
    setConstBackgroundImage(image, true);
}
