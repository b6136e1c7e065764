#include "seatheatingtipview.h"

#include "imagepaths.h"
#include "overlayimages.h"

#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QVariant>

#include <cstring>

namespace {

const char HotCool[] = "hot-cool";
const char Value[] = "v";

enum { NoIcon = -1, HeatIcon = 0, CoolIcon = 1 };
enum { DotUnset = -1, DotOff = 0, DotOn = 1 };

QImage seatImage(bool cool)
{
    return readOverlayImage(imagePath(OverlayImages, cool ? QStringLiteral("seat_cool")
                                                          : QStringLiteral("seat_heat")));
}

} // namespace

SeatItemView::SeatItemView(QWidget *parent)
    : QWidget(parent)
    , iconLabel(0)
    , onImage(0)
    , offImage(0)
    , mirror(false)
{
    setProperty(Value, -1);
    QGridLayout *layout = new QGridLayout(this);
    iconLabel = new QLabel(this);
    iconLabel->setObjectName(QStringLiteral("iconLabel"));
    layout->addWidget(iconLabel, 1, 0, 1, 3, Qt::AlignCenter);
    for (int i = 0; i < 3; ++i) {
        QLabel *dot = new QLabel(this);
        dot->setObjectName(QStringLiteral("valueLabels"));
        dot->setProperty(Value, DotUnset);
        valueLabels.append(dot);
        layout->addWidget(dot, 2, i, Qt::AlignBottom | Qt::AlignHCenter);
    }
    layout->setRowStretch(0, 1);
    layout->setRowStretch(1, 2);
    layout->setRowStretch(2, 1);
    for (int column = 0; column < 3; ++column)
        layout->setColumnStretch(column, 1);
    layout->setVerticalSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
}

void SeatItemView::setIcon(QImage const &image)
{
    iconLabel->setPixmap(QPixmap::fromImage(mirror ? image.mirrored(true, false) : image));
    if (!image.isNull())
        setFixedHeight(image.height() * 2);
}

void SeatItemView::setValue(signed char value)
{
    for (int i = 0; i < valueLabels.size(); ++i) {
        QLabel *dot = valueLabels.at(i);
        const int shown = dot->property(Value).toInt();
        if (value > i) {
            if (shown != DotOn && onImage) {
                dot->setPixmap(QPixmap::fromImage(*onImage));
                dot->setProperty(Value, DotOn);
            }
        } else if (shown != DotOff && offImage) {
            dot->setPixmap(QPixmap::fromImage(*offImage));
            dot->setProperty(Value, DotOff);
        }
    }
    setProperty(Value, int(value));
}

signed char SeatItemView::value() const
{
    return static_cast<signed char>(property(Value).toInt());
}

void SeatItemView::setValueIamge(QImage const *on, QImage const *off)
{
    onImage = on;
    offImage = off;
    setValue(0);
}

void SeatItemView::setMirror()
{
    mirror = true;
}

bool SeatItemView::isMirror() const
{
    return mirror;
}

SeatHeatingTipView::SeatHeatingTipView(QWidget *parent)
    : QWidget(parent)
    , item(0)
    , valueOnImage(0)
    , valueOffImage(0)
{
    item = new SeatItemView(this);
    item->setObjectName(QStringLiteral("item"));
    item->setProperty(HotCool, int(NoIcon));
    valueOnImage = new QImage(readOverlayImage(imagePath(OverlayImages, QStringLiteral("value_item_on"))));
    valueOffImage = new QImage(readOverlayImage(imagePath(OverlayImages, QStringLiteral("value_item_off"))));
    item->setValueIamge(valueOnImage, valueOffImage);
    item->setIcon(seatImage(false));
    // Every press lands on the tile itself.
    item->setAttribute(Qt::WA_TransparentForMouseEvents);

    QGridLayout *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(item, 0, 0, Qt::AlignCenter);
}

SeatHeatingTipView::~SeatHeatingTipView()
{
    // The item refers to the dot pictures: it goes first.
    delete item;
    delete valueOnImage;
    delete valueOffImage;
}

// Only what differs from the item's properties is drawn anew; the seat
// picture is read again on each change between heat and cool.
void SeatHeatingTipView::setData(SeatHeatingData const &record)
{
    const int shown = item->property(HotCool).toInt();
    int value = item->isMirror() ? record.rightSeat : record.leftSeat;
    if (value < 0) {
        if (shown != CoolIcon) {
            item->setIcon(seatImage(true));
            item->setProperty(HotCool, int(CoolIcon));
        }
        value = -value;
    } else if (shown != HeatIcon) {
        item->setIcon(seatImage(false));
        item->setProperty(HotCool, int(HeatIcon));
    }
    item->setValue(static_cast<signed char>(value));
    data.hasSeatHeating = record.hasSeatHeating;
    data.leftSeat = record.leftSeat;
    data.rightSeat = record.rightSeat;
    memcpy(data.stored, record.stored, sizeof(data.stored));
}

SeatHeatingData SeatHeatingTipView::getData() const
{
    return data;
}

void SeatHeatingTipView::setMirror()
{
    item->setMirror();
}

void SeatHeatingTipView::mouseReleaseEvent(QMouseEvent *event)
{
    if (rect().contains(event->localPos().toPoint()))
        emit clicked();
}
