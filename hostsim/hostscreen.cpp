#include "hostscreen.h"

#include "datetimectrl.h"
#include "hostsim.h"

#include <QChildEvent>
#include <algorithm>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QTimerEvent>

namespace {

// How long a message stays on the screen.
constexpr int MessageMs = 3000;

} // namespace

UiLevel::UiLevel(int level, QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("uiLevel%1").arg(level));
    hide();
}

void UiLevel::childEvent(QChildEvent *event)
{
    if (event->added() && event->child()->isWidgetType())
        event->child()->installEventFilter(this);
    else if (event->removed())
        updateVisibility();
    QWidget::childEvent(event);
}

bool UiLevel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent)
        updateVisibility();
    return QWidget::eventFilter(watched, event);
}

void UiLevel::updateVisibility()
{
    const auto children = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    const bool any = std::any_of(children.begin(), children.end(),
                                 [](QWidget *child) { return !child->isHidden(); });
    if (any != isVisibleTo(parentWidget()))
        setVisible(any);
}

HostScreen::HostScreen(QSize const &size)
{
    setObjectName(QStringLiteral("hostScreen"));
    setWindowTitle(tr("Head unit"));
    setFixedSize(size);
    for (int i = 0; i < 4; ++i) {
        m_levels[i] = new UiLevel(i, this);
        m_levels[i]->setGeometry(rect());
    }
    m_message = new QLabel(this);
    m_message->setObjectName(QStringLiteral("hostMessage"));
    m_message->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setWordWrap(true);
    m_message->setStyleSheet(QStringLiteral(
        "QLabel{background-color:rgba(20,20,20,220);color:white;font:24px;"
        "border:2px solid rgb(0,160,230);border-radius:12px;padding:16px;}"));
    m_message->hide();
    m_clockTimer = startTimer(1000, Qt::CoarseTimer);
}

QWidget *HostScreen::level(int level) const
{
    return m_levels[qBound(0, level, 3)];
}

void HostScreen::showMessage(QString const &text)
{
    m_message->setText(text);
    const int w = width() / 2;
    m_message->setFixedWidth(w);
    m_message->adjustSize();
    m_message->move((width() - w) / 2, (height() - m_message->height()) / 2);
    m_message->raise();
    m_message->show();
    if (m_messageTimer)
        killTimer(m_messageTimer);
    m_messageTimer = startTimer(MessageMs);
}

void HostScreen::hideMessage()
{
    if (m_messageTimer)
        killTimer(m_messageTimer);
    m_messageTimer = 0;
    m_message->hide();
}

bool HostScreen::messageShowing() const
{
    return m_message->isVisibleTo(const_cast<HostScreen *>(this));
}

void HostScreen::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_messageTimer)
        hideMessage();
    else if (event->timerId() == m_clockTimer)
        update(0, 0, width(), HostSim::systemBarHeight());
    else
        QWidget::timerEvent(event);
}

void HostScreen::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int barHeight = HostSim::systemBarHeight();

    // The home screen under all views.
    QLinearGradient home(0, barHeight, 0, height());
    home.setColorAt(0, QColor(18, 32, 48));
    home.setColorAt(1, QColor(4, 8, 14));
    painter.fillRect(rect(), home);
    painter.setPen(QColor(90, 110, 130));
    QFont font = painter.font();
    font.setPixelSize(height() / 12);
    painter.setFont(font);
    painter.drawText(rect().adjusted(0, barHeight, 0, 0), Qt::AlignCenter, tr("Home"));

    // The system bar with the head unit's clock.
    painter.fillRect(0, 0, width(), barHeight, QColor(0, 0, 0));
    painter.setPen(QColor(0, 160, 230));
    painter.drawLine(0, barHeight - 1, width(), barHeight - 1);
    int year, month, day, hour, minute, second;
    DateTimeCtrl::getInstance()->getCurrentDateTime(year, month, day, hour, minute, second);
    font.setPixelSize(barHeight / 2);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(0, 0, width() - barHeight / 2, barHeight),
                     Qt::AlignRight | Qt::AlignVCenter,
                     QStringLiteral("%1:%2").arg(hour, 2, 10, QLatin1Char('0'))
                                            .arg(minute, 2, 10, QLatin1Char('0')));
    painter.drawText(QRect(barHeight / 2, 0, width(), barHeight),
                     Qt::AlignLeft | Qt::AlignVCenter, tr("Head unit"));
}
