#include "customimagebutton.h"

#include "hostimages.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>

class CustomImageButtonPrivate
{
public:
    enum State { Normal, Down, Focused, Disabled, StateCount };

    // Pictures loaded from files are kept here; the pointers below refer to
    // them or to pictures that the caller keeps.
    QImage owned[StateCount];
    QImage const *images[StateCount] = {nullptr, nullptr, nullptr, nullptr};

    QString text;
    int alignment = Qt::AlignCenter;
    QColor color = Qt::white;
    float size = 0.4f;
    bool bold = false;
    QMargins margins;
    bool down = false;

    QImage const *image(State state) const
    {
        QImage const *wanted = images[state];
        if (wanted && !wanted->isNull())
            return wanted;
        return images[Normal];
    }
};

CustomImageButton::CustomImageButton(QWidget *parent)
    : CustomButtonBase(parent)
    , d(new CustomImageButtonPrivate)
{
}

CustomImageButton::~CustomImageButton()
{
    delete d;
}

void CustomImageButton::setBackgroundImage(QString const &normal, QString const &down,
                                           QString const &focused, QString const &disabled,
                                           bool fitToImage, int)
{
    QString const paths[] = {normal, down, focused, disabled};
    for (int state = 0; state < CustomImageButtonPrivate::StateCount; ++state)
        d->owned[state] = HostSim::loadImage(paths[state]);
    setConstBackgroundImage(&d->owned[0], &d->owned[1], &d->owned[2], &d->owned[3], fitToImage);
}

void CustomImageButton::setConstBackgroundImage(QImage const *normal, QImage const *down,
                                                QImage const *focused, QImage const *disabled,
                                                bool fitToImage)
{
    d->images[CustomImageButtonPrivate::Normal] = normal;
    d->images[CustomImageButtonPrivate::Down] = down;
    d->images[CustomImageButtonPrivate::Focused] = focused;
    d->images[CustomImageButtonPrivate::Disabled] = disabled;
    if (fitToImage && normal && !normal->isNull())
        setFixedSize(normal->size());
    update();
}

void CustomImageButton::setText(QString const &text, int alignment, QColor const &color, float size,
                                bool bold)
{
    d->text = text;
    d->alignment = alignment;
    d->color = color;
    d->size = size;
    d->bold = bold;
    update();
}

QString CustomImageButton::text() const
{
    return d->text;
}

void CustomImageButton::setTextMargins(int left, int top, int right, int bottom)
{
    d->margins = QMargins(left, top, right, bottom);
    update();
}

void CustomImageButton::setDown(bool down)
{
    if (d->down == down)
        return;
    d->down = down;
    update();
}

bool CustomImageButton::isDown() const
{
    return d->down;
}

void CustomImageButton::setIgnoreMouseEvent()
{
    setIgnoresMouse(true);
}

void CustomImageButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintBackgroundAndForeground(painter);
    paintText(painter);
}

void CustomImageButton::paintBackgroundAndForeground(QPainter &painter)
{
    typedef CustomImageButtonPrivate P;
    P::State state = P::Normal;
    if (!isEnabled())
        state = P::Disabled;
    else if (d->down || isPressed())
        state = P::Down;
    else if (hasFocus())
        state = P::Focused;
    QImage const *image = d->image(state);
    if (!image || image->isNull())
        return;
    // A picture of the button's size is drawn as it is; any other is centred.
    const QPoint origin((width() - image->width()) / 2, (height() - image->height()) / 2);
    painter.drawImage(origin, *image);
}

void CustomImageButton::paintText(QPainter &painter)
{
    if (d->text.isEmpty())
        return;
    const QRect area = rect().marginsRemoved(d->margins);
    QFont font = painter.font();
    font.setFamily(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(qMax(1, qRound(height() * d->size)));
    font.setBold(d->bold);
    // The size is a share of the button's height; a text that this makes
    // taller or wider than the area within the margins is drawn smaller,
    // so that it stays on the button's picture.
    for (;;) {
        const QRect needed = QFontMetrics(font).boundingRect(area, int(d->alignment), d->text);
        if (font.pixelSize() <= 1 || (needed.width() <= area.width() && needed.height() <= area.height()))
            break;
        font.setPixelSize(font.pixelSize() - 1);
    }
    painter.setFont(font);
    painter.setPen(d->color);
    painter.drawText(area, d->alignment, d->text);
}

void CustomImageButton::mousePressEvent(QMouseEvent *event)
{
    CustomButtonBase::mousePressEvent(event);
}

void CustomImageButton::mouseMoveEvent(QMouseEvent *event)
{
    CustomButtonBase::mouseMoveEvent(event);
}

void CustomImageButton::mouseReleaseEvent(QMouseEvent *event)
{
    CustomButtonBase::mouseReleaseEvent(event);
}

void CustomImageButton::keyPressEvent(QKeyEvent *event)
{
    CustomButtonBase::keyPressEvent(event);
}

void CustomImageButton::keyReleaseEvent(QKeyEvent *event)
{
    CustomButtonBase::keyReleaseEvent(event);
}
