#include "cardoordialog27.h"

#include "cartipicon.h"
#include "customimagewidget.h"
#include "imagepaths.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

CardoorDialog27::CardoorDialog27(QWidget *parent)
    : CardoorDialogBase(parent)
    , background(0)
    , seatBeltIcon(0)
    , cardoorIcon(0)
    , autoParkingIcon(0)
    , condensateIcon(0)
    , showCount(0)
{
    if (parent)
        setFixedSize(parent->size());

    background = new CustomImageWidget(this);
    background->setObjectName(QStringLiteral("background"));
    background->setBackgroundImage(imagePath(OverlayImages, QStringLiteral("cardoor_bg")), true);
    QGridLayout *icons = new QGridLayout(background);
    const int margin = height() / 25;
    icons->setContentsMargins(margin, margin, margin, margin);
    icons->setHorizontalSpacing(0);

    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(background, 0, Qt::AlignCenter);
}

void CardoorDialog27::setData(CardoorData const &door)
{
    CardoorDialogBase::setData(door);
    createCardoor();
    cardoorIcon->setWarning(door.isWarningState());
    cardoorIcon->setData(door);
    const int count = (door.isWarningState() ? 1 : 0)
            + (carbodyData.condensateFault >= 1 ? 1 : 0)
            + (carbodyData.seatBelt >= 1 ? 1 : 0)
            + (carbodyData.autoParkingFault >= 1 ? 1 : 0);
    setShowCount(count);
}

// A body byte of 1 or more shows its icon here, while only a byte of 1 is a
// warning that brings the overlay up.
void CardoorDialog27::setCarbodyData(CarbodyData const &body)
{
    carbodyData = body;
    int count = cardoorData.isWarningState() ? 1 : 0;

    if (body.seatBelt >= 1) {
        ++count;
        createSeatBelt();
        seatBeltIcon->setWarning(true);
    } else if (seatBeltIcon) {
        seatBeltIcon->setWarning(false);
    }
    if (body.condensateFault >= 1) {
        ++count;
        createCondensate();
        condensateIcon->setWarning(true);
    } else if (condensateIcon) {
        condensateIcon->setWarning(false);
    }
    if (body.autoParkingFault >= 1) {
        ++count;
        createAutoParking();
        autoParkingIcon->setWarning(true);
    } else if (autoParkingIcon) {
        autoParkingIcon->setWarning(false);
    }
    setShowCount(count);
}

CarbodyData const &CardoorDialog27::getCarbodyData() const
{
    return carbodyData;
}

CarTipIcon *CardoorDialog27::createIcon(char const *name, QString const &text,
                                        char const *normalImage, char const *smallImage)
{
    CarTipIcon *icon = new CarTipIcon(background);
    icon->setObjectName(QLatin1String(name));
    icon->setInfo(text, imagePath(OverlayImages, QLatin1String(normalImage)),
                  imagePath(OverlayImages, QLatin1String(smallImage)));
    return icon;
}

void CardoorDialog27::createSeatBelt()
{
    if (!seatBeltIcon)
        seatBeltIcon = createIcon("seatBeltIcon", tr("Seatbelt not fastened"),
                                  "seat_belt", "seat_belt_m");
}

void CardoorDialog27::createAutoParking()
{
    if (!autoParkingIcon)
        autoParkingIcon = createIcon("autoParkingIcon", tr("Auto Parking Abnormal"),
                                     "automatic_parking", "automatic_parking_m");
}

void CardoorDialog27::createCondensate()
{
    if (!condensateIcon)
        condensateIcon = createIcon("condensateIcon", tr("Abnormal condensate"),
                                    "condensate", "condensate_m");
}

void CardoorDialog27::createCardoor()
{
    if (cardoorIcon)
        return;
    cardoorIcon = new CarDoorTipIcon(background);
    cardoorIcon->setObjectName(QStringLiteral("cardoorIcon"));
}

QGridLayout *CardoorDialog27::grid() const
{
    return static_cast<QGridLayout *>(background->layout());
}

// The icon centred in its cells; its caption in the next row, at the top, or
// in the next column, at the left, over the same rows.
void CardoorDialog27::placeIcon(CarTipIcon *icon, int row, int column, int rowSpan,
                                bool captionBeside)
{
    if (!icon)
        return;
    QGridLayout *icons = grid();
    QLabel *caption = icon->captionLabel();
    icons->removeWidget(icon);
    icons->removeWidget(caption);
    icons->addWidget(icon, row, column, rowSpan, 1, Qt::AlignCenter);
    if (captionBeside)
        icons->addWidget(caption, row, column + 1, rowSpan, 1, Qt::AlignLeft | Qt::AlignVCenter);
    else
        icons->addWidget(caption, row + rowSpan, column, 1, 1, Qt::AlignTop | Qt::AlignHCenter);
}

// Four warnings stand in fixed places: the three body icons down the left
// with their captions beside them, the car on the right. Fewer fill the
// columns in the order seat belt, automatic parking, condensate, car.
void CardoorDialog27::setShowCount(int count)
{
    if (count <= 0)
        return;
    const bool normal = count < 3;
    CarTipIcon *const bodyIcons[] = {seatBeltIcon, autoParkingIcon, condensateIcon};
    for (int i = 0; i < 3; ++i) {
        if (bodyIcons[i] && bodyIcons[i]->isWarning())
            bodyIcons[i]->setNormalSize(normal);
    }

    QGridLayout *icons = grid();
    int stretches[3] = {1, 0, 0};
    if (count == 4) {
        placeIcon(seatBeltIcon, 0, 0, 2, true);
        placeIcon(autoParkingIcon, 2, 0, 2, true);
        placeIcon(condensateIcon, 4, 0, 2, true);
        placeIcon(cardoorIcon, 0, 2, 5, false);
        stretches[0] = 3;
        stretches[1] = 4;
        stretches[2] = 5;
    } else {
        QList<CarTipIcon *> shown;
        CarTipIcon *const all[] = {seatBeltIcon, autoParkingIcon, condensateIcon, cardoorIcon};
        for (int i = 0; i < 4; ++i) {
            if (all[i] && all[i]->isWarning())
                shown.append(all[i]);
        }
        // The count and the icons' warnings are kept in step by the callers;
        // a missing icon leaves its place empty.
        CarTipIcon *first = shown.value(0);
        CarTipIcon *second = shown.value(1);
        CarTipIcon *third = shown.value(2);
        if (count == 1) {
            placeIcon(first, 0, 0, 5, false);
        } else if (count == 2) {
            placeIcon(first, 0, 0, 5, false);
            placeIcon(second, 0, 1, 5, false);
            stretches[1] = 1;
        } else {
            placeIcon(first, 0, 0, 2, false);
            placeIcon(second, 3, 0, 2, false);
            placeIcon(third, 0, 1, third == cardoorIcon ? 5 : 2, false);
            stretches[1] = 1;
        }
    }
    for (int column = 0; column < 3; ++column)
        icons->setColumnStretch(column, stretches[column]);
    for (int row = 0; row < 6; ++row)
        icons->setRowStretch(row, 1);
    icons->update();
    showCount = count;
}

// Dims what lies below.
void CardoorDialog27::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.fillRect(rect(), QColor(0, 0, 0, 100));
    painter.end();
}

// Any press hides the overlay; nothing is kept of it.
void CardoorDialog27::mousePressEvent(QMouseEvent *)
{
    hide();
}
