#include "airconditionertipview.h"

#include "imagepaths.h"
#include "overlayimages.h"

#include <QLabel>
#include <QPalette>
#include <QPixmap>
#include <QVBoxLayout>

AirConditionerTipView::AirConditionerTipView(QWidget *parent)
    : QWidget(parent)
    , firstLabel(0)
    , secondLabel(0)
    , timer(this)
{
    const QImage plate = readOverlayImage(imagePath(OverlayImages, QStringLiteral("tip_bg")));
    QPalette palette = this->palette();
    palette.setBrush(QPalette::All, QPalette::Window, QBrush(plate));
    setPalette(palette);
    setAutoFillBackground(true);
    if (!plate.isNull())
        setFixedSize(plate.size());

    timer.setObjectName(QStringLiteral("timer"));
    timer.setSingleShot(true);
    timer.setInterval(2000);
    connect(&timer, SIGNAL(timeout()), this, SLOT(onTimerout()));

    firstLabel = new QLabel(this);
    firstLabel->setObjectName(QStringLiteral("firstLabel"));
    secondLabel = new QLabel(this);
    secondLabel->setObjectName(QStringLiteral("secondLabel"));
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(firstLabel, 1, Qt::AlignCenter);
    layout->addWidget(secondLabel, 1, Qt::AlignCenter);
}

void AirConditionerTipView::showTipData(QString const &first, QString const &second)
{
    firstLabel->clear();
    secondLabel->clear();
    firstLabel->setPixmap(QPixmap::fromImage(readOverlayImage(first)));
    secondLabel->setPixmap(QPixmap::fromImage(readOverlayImage(second)));
    timer.start();
    show();
}

void AirConditionerTipView::showEvent(QShowEvent *event)
{
    if (!timer.isActive())
        timer.start();
    QWidget::showEvent(event);
}

void AirConditionerTipView::hideEvent(QHideEvent *event)
{
    if (timer.isActive())
        timer.stop();
    QWidget::hideEvent(event);
}

void AirConditionerTipView::onTimerout()
{
    hide();
}
