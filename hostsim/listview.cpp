#include "listview.h"

#include <QBasicTimer>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>

#include <cstdlib>

// Touch scrolling: the finger drags the content; past an end the content is
// pulled on by half the finger's way (shown by shifting the viewport), and on
// release it springs back and, when asked, comes to rest on a row boundary.
class ListViewPrivate
{
public:
    explicit ListViewPrivate(ListView *view) : q(view) {}

    static const int DragThreshold = 12;
    static const int AnimationInterval = 16;

    void setOverscroll(int pixels)
    {
        overscroll = pixels;
        q->setViewportMargins(0, qMax(0, pixels), 0, qMax(0, -pixels));
    }

    // The scroll position that a finger at y asks for, and the pull past an
    // end that remains.
    void dragTo(int y)
    {
        QScrollBar *bar = q->verticalScrollBar();
        const int wanted = pressValue - (y - pressY);
        const int clamped = qBound(bar->minimum(), wanted, bar->maximum());
        bar->setValue(clamped);
        setOverscroll(scrollOutOfViewport ? (clamped - wanted) / 2 : 0);
    }

    int snapTarget() const
    {
        QScrollBar *bar = q->verticalScrollBar();
        const int row = q->model() && q->model()->rowCount(q->rootIndex()) > 0 ? q->rowHeight(0) : 0;
        if (!snapToRow || row <= 0)
            return bar->value();
        const int snapped = (bar->value() + row / 2) / row * row;
        return qBound(bar->minimum(), snapped, bar->maximum());
    }

    void settle()
    {
        settleTarget = snapTarget();
        if (overscroll != 0 || settleTarget != q->verticalScrollBar()->value())
            animation.start(AnimationInterval, q);
    }

    // One step of the spring back: the pull and the distance to the rest
    // position shrink by a half each step.
    void settleStep()
    {
        QScrollBar *bar = q->verticalScrollBar();
        setOverscroll(overscroll / 2);
        const int gap = settleTarget - bar->value();
        bar->setValue(bar->value() + (std::abs(gap) > 1 ? gap / 2 : gap));
        if (overscroll == 0 && bar->value() == settleTarget)
            animation.stop();
    }

    void stop()
    {
        animation.stop();
        setOverscroll(0);
    }

    ListView *q;
    bool pressed = false;
    bool moved = false;
    int pressY = 0;
    int pressValue = 0;
    int overscroll = 0;
    int settleTarget = 0;
    bool snapToRow = true;
    bool scrollOutOfViewport = true;
    QBasicTimer animation;
};

ListView::ListView(QWidget *parent)
    : QTableView(parent)
    , d(new ListViewPrivate(this))
{
    horizontalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->hide();
    setShowGrid(false);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAutoScroll(false);
    setStyleSheet(QStringLiteral("QTableView { background: transparent; }"));
    viewport()->setAutoFillBackground(false);
}

ListView::~ListView()
{
    delete d;
}

bool ListView::canMoved() const
{
    return d->moved;
}

void ListView::setSnapToRow(bool snap)
{
    d->snapToRow = snap;
}

void ListView::setScrollOutOfViewport(bool allow)
{
    d->scrollOutOfViewport = allow;
}

void ListView::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == d->animation.timerId())
        d->settleStep();
    else
        QTableView::timerEvent(event);
}

void ListView::mousePressEvent(QMouseEvent *event)
{
    d->stop();
    d->pressed = event->button() == Qt::LeftButton;
    d->moved = false;
    d->pressY = event->pos().y();
    d->pressValue = verticalScrollBar()->value();
    QTableView::mousePressEvent(event);
}

void ListView::mouseMoveEvent(QMouseEvent *event)
{
    if (!d->pressed)
        return;
    if (!d->moved && std::abs(event->pos().y() - d->pressY) < ListViewPrivate::DragThreshold)
        return;
    d->moved = true;
    d->dragTo(event->pos().y());
}

void ListView::mouseReleaseEvent(QMouseEvent *event)
{
    const bool wasPressed = d->pressed;
    d->pressed = false;
    if (d->moved) {
        // A scroll: the base never sees the release, so no click follows.
        d->settle();
        return;
    }
    if (wasPressed)
        QTableView::mouseReleaseEvent(event);
}

void ListView::keyPressEvent(QKeyEvent *event)
{
    QTableView::keyPressEvent(event);
}

void ListView::keyReleaseEvent(QKeyEvent *event)
{
    QTableView::keyReleaseEvent(event);
}

void ListView::showEvent(QShowEvent *event)
{
    QTableView::showEvent(event);
}

void ListView::hideEvent(QHideEvent *event)
{
    d->stop();
    d->pressed = false;
    QTableView::hideEvent(event);
}

void ListView::currentChanged(QModelIndex const &current, QModelIndex const &previous)
{
    QTableView::currentChanged(current, previous);
    if (current.isValid() && !d->pressed)
        scrollTo(current);
}

void ListView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
}
