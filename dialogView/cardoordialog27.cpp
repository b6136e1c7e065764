#include "cardoordialog27.h"

#include "customimagewidget.h"
#include "imagepaths.h"

#include <QGridLayout>
#include <QPainter>
#include <QVBoxLayout>

CardoorDialog27::CardoorDialog27(QWidget *parent)
    : CardoorDialogBase(parent)
    , background(0)
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
}

void CardoorDialog27::setCarbodyData(CarbodyData const &body)
{
    carbodyData = body;
}

CarbodyData const &CardoorDialog27::getCarbodyData() const
{
    return carbodyData;
}

// Dims what lies below.
void CardoorDialog27::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.fillRect(rect(), QColor(0, 0, 0, 100));
    painter.end();
}

void CardoorDialog27::mousePressEvent(QMouseEvent *)
{
    hide();
}
