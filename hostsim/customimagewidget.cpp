#include "customimagewidget.h"

#include "hostimages.h"

#include <QImage>
#include <QPainter>

class CustomImageWidgetPrivate
{
public:
    QImage owned;
    QImage const *image = nullptr;
};

CustomImageWidget::CustomImageWidget(QWidget *parent)
    : QWidget(parent)
    , d(new CustomImageWidgetPrivate)
{
}

CustomImageWidget::~CustomImageWidget()
{
    delete d;
}

void CustomImageWidget::setBackgroundImage(QString const &path, bool fitToImage)
{
    d->owned = HostSim::loadImage(path);
    setConstBackgroundImage(&d->owned, fitToImage);
}

void CustomImageWidget::setConstBackgroundImage(QImage const *image, bool fitToImage)
{
    d->image = image;
    if (fitToImage && image && !image->isNull())
        setFixedSize(image->size());
    update();
}

void CustomImageWidget::paintEvent(QPaintEvent *)
{
    if (!d->image || d->image->isNull())
        return;
    QPainter painter(this);
    painter.drawImage(0, 0, *d->image);
}
