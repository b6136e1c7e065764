#include "airwindwidget.h"

#include "customimagebutton.h"
#include "customimagewidget.h"
#include "imagepaths.h"
#include "overlayimages.h"

#include <QHBoxLayout>
#include <QImage>

namespace {

const int LevelCount = 8;

QString levelPath(int level)
{
    return imagePath(OverlayImages, QStringLiteral("wind_%1").arg(level));
}

} // namespace

AirWindWidget::AirWindWidget(QWidget *parent)
    : QWidget(parent)
    , subButton(0)
    , addButton(0)
    , levelImage(0)
{
    levelImages.append(new QImage(readOverlayImage(levelPath(0))));
    for (int level = 1; level < LevelCount; ++level)
        levelImages.append(0);

    subButton = new CustomImageButton(this);
    subButton->setObjectName(QStringLiteral("subButton"));
    subButton->setBackgroundImage(imagePath(OverlayImages, QStringLiteral("small_wind_icon")),
                                  QString(), QString(), QString(), true, 0);
    subButton->setFixedSize(80, 80);

    addButton = new CustomImageButton(this);
    addButton->setObjectName(QStringLiteral("addButton"));
    addButton->setBackgroundImage(imagePath(OverlayImages, QStringLiteral("gale_icon")),
                                  QString(), QString(), QString(), true, 0);
    addButton->setFixedSize(80, 80);

    levelImage = new CustomImageWidget(this);
    levelImage->setObjectName(QStringLiteral("levelImage"));
    levelImage->setConstBackgroundImage(levelImages.first(), true);

    connect(subButton, SIGNAL(clicked()), this, SIGNAL(windSub()));
    connect(addButton, SIGNAL(clicked()), this, SIGNAL(windAdd()));

    QHBoxLayout *layout = new QHBoxLayout(this);
    layout->addWidget(subButton, 0);
    layout->addWidget(levelImage, 1);
    layout->addWidget(addButton, 0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(levelImage->width() / 8);
}

AirWindWidget::~AirWindWidget()
{
    qDeleteAll(levelImages);
}

void AirWindWidget::setWindSpeed(int level)
{
    if (level < 0 || level >= levelImages.size())
        return;
    QImage *image = levelImages.at(level);
    if (!image) {
        image = new QImage(readOverlayImage(levelPath(level)));
        levelImages[level] = image;
    }
    levelImage->setConstBackgroundImage(image, false);
}
