#include "mirrorbutton.h"

#include "overlayimages.h"

#include <QImage>

MirrorButton::MirrorButton(QWidget *parent)
    : CustomImageButton(parent)
    , mirror(false)
    , normalImage(0)
    , downImage(0)
    , mirroredNormalImage(0)
    , mirroredDownImage(0)
{
}

MirrorButton::~MirrorButton()
{
    delete normalImage;
    delete downImage;
    delete mirroredNormalImage;
    delete mirroredDownImage;
}

void MirrorButton::setButtonBackgroundImage(QString const &normal, QString const &down)
{
    normalPath = normal;
    downPath = down;
    delete normalImage;
    delete downImage;
    delete mirroredNormalImage;
    delete mirroredDownImage;
    mirroredNormalImage = 0;
    mirroredDownImage = 0;
    normalImage = new QImage(readOverlayImage(normalPath));
    downImage = new QImage(readOverlayImage(downPath));
    showImages();
}

void MirrorButton::setMirror(bool mirror)
{
    if (mirror == this->mirror)
        return;
    this->mirror = mirror;
    showImages();
}

void MirrorButton::showImages()
{
    if (!mirror) {
        setConstBackgroundImage(normalImage, downImage, 0, 0, true);
        return;
    }
    if (!mirroredNormalImage) {
        mirroredNormalImage = new QImage(normalImage ? normalImage->mirrored(true, false) : QImage());
        mirroredDownImage = new QImage(downImage ? downImage->mirrored(true, false) : QImage());
    }
    setConstBackgroundImage(mirroredNormalImage, mirroredDownImage, 0, 0, true);
}
