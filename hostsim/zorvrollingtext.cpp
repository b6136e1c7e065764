#include "zorvrollingtext.h"

#include <QBasicTimer>
#include <QPainter>
#include <QTimerEvent>

// A text that doesn't fit runs from right to left, one pixel a step, and
// comes round again after a gap.
class ZorvRollingTextPrivate
{
public:
    static const int StepInterval = 30;

    QString text;
    QColor color = Qt::white;
    int fontSize = 24;
    int offset = 0;
    QBasicTimer timer;

    // Starts the run when the text doesn't fit a shown label, stops it
    // otherwise.
    void refresh(QWidget *label)
    {
        const bool rolls = label->isVisible()
            && QFontMetrics(font()).horizontalAdvance(text) > label->width();
        if (rolls && !timer.isActive()) {
            timer.start(StepInterval, label);
        } else if (!rolls) {
            timer.stop();
            offset = 0;
        }
        label->update();
    }

    QFont font() const
    {
        QFont f(QStringLiteral("DejaVu Sans"));
        f.setPixelSize(fontSize);
        return f;
    }
};

ZorvRollingText::ZorvRollingText(QWidget *parent)
    : QWidget(parent)
    , d(new ZorvRollingTextPrivate)
{
}

ZorvRollingText::~ZorvRollingText()
{
    delete d;
}

void ZorvRollingText::setFontSize(int pixels)
{
    d->fontSize = pixels;
    d->refresh(this);
}

void ZorvRollingText::setTextColor(QColor const &color)
{
    d->color = color;
    update();
}

void ZorvRollingText::setText(QString text)
{
    if (d->text == text)
        return;
    d->text = text;
    d->offset = 0;
    d->refresh(this);
}

QString ZorvRollingText::text() const
{
    return d->text;
}

void ZorvRollingText::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(d->font());
    painter.setPen(d->color);
    const int textWidth = QFontMetrics(d->font()).horizontalAdvance(d->text);
    if (!d->timer.isActive()) {
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, d->text);
        return;
    }
    const int period = textWidth + width() / 3;
    for (int x = -d->offset; x < width(); x += period)
        painter.drawText(QRect(x, 0, textWidth, height()), Qt::AlignLeft | Qt::AlignVCenter, d->text);
}

void ZorvRollingText::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != d->timer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    const int period = QFontMetrics(d->font()).horizontalAdvance(d->text) + width() / 3;
    d->offset = period > 0 ? (d->offset + 1) % period : 0;
    update();
}

void ZorvRollingText::resizeEvent(QResizeEvent *)
{
    d->refresh(this);
}

void ZorvRollingText::showEvent(QShowEvent *)
{
    d->refresh(this);
}

void ZorvRollingText::hideEvent(QHideEvent *)
{
    d->timer.stop();
}
