#include "basebar.h"

#include "appframework.h"
#include "hostsim.h"

#include <QFont>
#include <QHBoxLayout>
#include <QList>
#include <QPainter>
#include <QToolButton>

// The bar's look: a dark strip with a thin accent line at its bottom, the
// back button at the left, the title in the middle and the home button at
// the right.
class BaseBarPrivate
{
public:
    explicit BaseBarPrivate(BaseBar *bar);

    QToolButton *makeButton(QString const &id, QString const &glyph);

    BaseBar *q;
    QString title;
    QToolButton *back;
    QToolButton *home;
};

namespace {

// The living bars in the order of their creation; a bar leaves the list
// when it is destroyed.
QList<BaseBar *> &createdBars()
{
    static QList<BaseBar *> bars;
    return bars;
}

BaseBar *lastLivingBar()
{
    QList<BaseBar *> const &bars = createdBars();
    return bars.isEmpty() ? 0 : bars.last();
}

} // namespace

BaseBarPrivate::BaseBarPrivate(BaseBar *bar)
    : q(bar)
    , back(makeButton(QStringLiteral("back"), QStringLiteral("\u2039")))
    , home(makeButton(QStringLiteral("home"), QStringLiteral("\u2302")))
{
    QHBoxLayout *layout = new QHBoxLayout(q);
    layout->setContentsMargins(12, 6, 12, 8);
    layout->addWidget(back);
    layout->addStretch(1);
    layout->addWidget(home);
}

QToolButton *BaseBarPrivate::makeButton(QString const &id, QString const &glyph)
{
    QToolButton *button = new QToolButton(q);
    button->setObjectName(id);
    button->setText(glyph);
    button->setFixedSize(72, 54);
    button->setFocusPolicy(Qt::NoFocus);
    button->setStyleSheet(QStringLiteral(
        "QToolButton { color: rgb(230,235,240); background: transparent; border: none;"
        " font: 36px 'DejaVu Sans'; }"
        "QToolButton:pressed { background: rgba(0,160,255,90); border-radius: 8px; }"));
    BaseBar *bar = q;
    QObject::connect(button, &QToolButton::clicked, bar, [bar, id] { emit bar->btnClickedSig(id); });
    return button;
}

BaseBar::BaseBar(QWidget *parent)
    : QWidget(parent)
    , d(new BaseBarPrivate(this))
{
    setObjectName(QStringLiteral("baseBar"));
    createdBars().append(this);
}

BaseBar::~BaseBar()
{
    createdBars().removeOne(this);
    delete d;
}

void BaseBar::reservedBar1() {}
void BaseBar::reservedBar2() {}
void BaseBar::reservedBar3() {}
void BaseBar::reservedBar4() {}
void BaseBar::reservedBar5() {}
void BaseBar::reservedBar6() {}
void BaseBar::reservedBar7() {}
void BaseBar::reservedBar8() {}
void BaseBar::reservedBar9() {}
void BaseBar::reservedBar10() {}
void BaseBar::reservedBar11() {}
void BaseBar::reservedBar12() {}
void BaseBar::reservedBar13() {}
void BaseBar::reservedBar14() {}
void BaseBar::reservedBar15() {}
void BaseBar::reservedBar16() {}
void BaseBar::reservedBar17() {}
void BaseBar::reservedBar18() {}
void BaseBar::reservedBar19() {}
void BaseBar::reservedBar20() {}
void BaseBar::reservedBar21() {}

void BaseBar::setTitle(QString const &title)
{
    if (d->title == title)
        return;
    d->title = title;
    update();
}

QString BaseBar::title() const
{
    return d->title;
}

void BaseBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(18, 22, 30));
    painter.fillRect(QRect(0, height() - 2, width(), 2), QColor(0, 160, 255));

    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(qMax(12, height() * 2 / 5));
    painter.setFont(font);
    painter.setPen(QColor(240, 240, 240));
    const int side = d->back->width() + 24;
    const QRect titleRect(side, 0, width() - 2 * side, height() - 2);
    painter.drawText(titleRect, Qt::AlignCenter,
                     painter.fontMetrics().elidedText(d->title, Qt::ElideRight, titleRect.width()));
}

void BaseBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    update();
}

BaseBar *BaseBarManager::createBaseBar(QWidget *parent, QString const &title, bool const &,
                                       bool const &, QString const &)
{
    BaseBar *bar = new BaseBar(parent);
    bar->setTitle(title);
    const int width = parent ? parent->width() : zorvappframework::UIManager::getMainAreaRect().width();
    bar->setGeometry(0, 0, width, HostSim::baseBarHeight());
    bar->show();
    return bar;
}

void BaseBarManager::emitBarBackSignal(BaseBar *bar)
{
    if (!bar)
        bar = lastLivingBar();
    if (bar)
        emit bar->btnClickedSig(QStringLiteral("back"));
}

namespace HostSim {

void pressBarButton(BaseBar *bar, QString const &id)
{
    if (!bar)
        return;
    if (QToolButton *button = bar->findChild<QToolButton *>(id, Qt::FindDirectChildrenOnly))
        button->click();
    else
        emit bar->btnClickedSig(id);
}

BaseBar *lastBaseBar()
{
    return lastLivingBar();
}

} // namespace HostSim
