#include "cartipicon.h"

#include "appframework.h"
#include "customimagebutton.h"
#include "datasavecontrol.h"
#include "imagepaths.h"

#include <QGridLayout>
#include <QLabel>

CarTipIcon::CarTipIcon(QWidget *parent)
    : CustomImageWidget(parent)
    , label(new QLabel(parent))
    , normalSize(-1)
    , warning(false)
{
    label->setObjectName(QStringLiteral("label"));
    label->setWordWrap(true);
    label->setStyleSheet(QStringLiteral("QLabel{color:white;font:%1px;}")
                         .arg(zorvappframework::UIManager::getMainAreaRect().height() / 23));
}

void CarTipIcon::setInfo(QString const &text, QString const &normalImage,
                         QString const &smallImage)
{
    label->setText(text);
    this->normalImage = normalImage;
    this->smallImage = smallImage;
}

void CarTipIcon::setNormalSize(bool normal)
{
    if (normalSize != -1 && normalSize == int(normal))
        return;
    normalSize = normal;
    setBackgroundImage(normal ? normalImage : smallImage, true);
}

void CarTipIcon::setWarning(bool warning)
{
    this->warning = warning;
    setVisible(warning);
    label->setVisible(warning);
}

bool CarTipIcon::isWarning() const
{
    return warning;
}

QLabel *CarTipIcon::captionLabel() const
{
    return label;
}

namespace {

CustomImageButton *carPart(QWidget *parent, char const *name, char const *normal, char const *down)
{
    CustomImageButton *button = new CustomImageButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setBackgroundImage(imagePath(OverlayImages, QLatin1String(normal)),
                               imagePath(OverlayImages, QLatin1String(down)),
                               QString(), QString(), true, 0);
    // The parts only show; a press goes through to the overlay, which any
    // press dismisses.
    button->setIgnoreMouseEvent();
    return button;
}

} // namespace

CarDoorTipIcon::CarDoorTipIcon(QWidget *parent)
    : CarTipIcon(parent)
    , carImage(0)
{
    hoodButton = carPart(this, "hoodButton", "car/f_n", "car/f_d");
    trunkButton = carPart(this, "trunkButton", "car/r_n", "car/r_d");
    frontLeftButton = carPart(this, "frontLeftButton", "car/lf_n", "car/lf_d");
    frontRightButton = carPart(this, "frontRightButton", "car/rf_n", "car/rf_d");
    rearLeftButton = carPart(this, "rearLeftButton", "car/lr_n", "car/lr_d");
    rearRightButton = carPart(this, "rearRightButton", "car/rr_n", "car/rr_d");
    carImage = new CustomImageWidget(this);
    carImage->setObjectName(QStringLiteral("carImage"));
    carImage->setBackgroundImage(imagePath(OverlayImages, QStringLiteral("car/car")), true);
    // The body lies under its doors, hood and trunk.
    carImage->lower();

    QGridLayout *layout = new QGridLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(hoodButton, 0, 0, Qt::AlignTop | Qt::AlignHCenter);
    layout->addWidget(trunkButton, 0, 0, Qt::AlignBottom | Qt::AlignHCenter);
    layout->addWidget(frontLeftButton, 0, 0, Qt::AlignTop | Qt::AlignLeft);
    layout->addWidget(frontRightButton, 0, 0, Qt::AlignTop | Qt::AlignRight);
    layout->addWidget(rearLeftButton, 0, 0, Qt::AlignBottom | Qt::AlignLeft);
    layout->addWidget(rearRightButton, 0, 0, Qt::AlignBottom | Qt::AlignRight);
    layout->addWidget(carImage, 0, 0, Qt::AlignCenter);

    setFixedSize(carImage->size());
}

void CarDoorTipIcon::setInfo(QString const &, QString const &, QString const &)
{
}

void CarDoorTipIcon::setNormalSize(bool)
{
}

void CarDoorTipIcon::setData(CardoorData const &door)
{
    cardoorData = door;
    // The head unit's setting, not the drive side, exchanges left and right.
    // The user may change it between two records.
    const bool swap = DataSaveControl::readSettingData(
                QStringLiteral("DoorLeftAndRightInterchangeSwitch"), false, QString()).toBool();

    hoodButton->setDown(door.hood != 0);
    trunkButton->setDown(door.trunk != 0);
    frontLeftButton->setDown((swap ? door.frontRightDoor : door.frontLeftDoor) != 0);
    frontRightButton->setDown((swap ? door.frontLeftDoor : door.frontRightDoor) != 0);
    rearLeftButton->setDown((swap ? door.rearRightDoor : door.rearLeftDoor) != 0);
    rearRightButton->setDown((swap ? door.rearLeftDoor : door.rearRightDoor) != 0);

    const bool anyDoor = door.frontLeftDoor || door.frontRightDoor
            || door.rearLeftDoor || door.rearRightDoor;
    const bool hood = door.hood != 0;
    const bool trunk = door.trunk != 0;
    if (anyDoor && hood)
        label->setText(tr("Doors and hood not closed"));
    else if (anyDoor && trunk)
        label->setText(tr("Doors and trunk not closed"));
    else if (anyDoor)
        label->setText(tr("Door not closed"));
    else if (hood && trunk)
        label->setText(tr("The hood and trunk are not closed"));
    else if (hood)
        label->setText(tr("The hood is not closed"));
    else if (trunk)
        label->setText(tr("trunk not closed"));
    else
        label->clear();
}
