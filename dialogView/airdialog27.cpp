#include "airdialog27.h"

#include "basecontrol.h"

#include <QKeyEvent>
#include <QPainter>

AirDialog27::AirDialog27(QWidget *parent)
    : AirDialogBase(parent)
{
    hideDelay = 15000;
}

void AirDialog27::setData(AirData const &record)
{
    resetHideTimer();
    AirDialogBase::setData(record);
}

// Touches on the panel's free area end here and do nothing.
void AirDialog27::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void AirDialog27::mouseReleaseEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

void AirDialog27::mouseMoveEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

// The head unit's back and close keys hide the panel; every other key goes on
// to the coordinator and the host.
void AirDialog27::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case 0x0110002A:
    case 0x0110002C:
    case 0x01200026:
    case 0x0140000F:
        if (isVisible()) {
            event->accept();
            hide();
            return;
        }
        break;
    default:
        break;
    }
    event->ignore();
}

// The panel lies on the user's wallpaper. A head unit without one gets the
// plain dark backdrop of the plug-in's screens.
void AirDialog27::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    QPixmap const *wallpaper = BaseControl::getInstance()->getBackgroundPixmap();
    if (wallpaper && !wallpaper->isNull())
        painter.drawPixmap(0, 0, *wallpaper);
    else
        painter.fillRect(rect(), QColor(27, 30, 36));
    event->accept();
}
