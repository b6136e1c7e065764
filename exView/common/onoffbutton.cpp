#include "onoffbutton.h"

#include "headunitkeys.h"

#include <QIcon>
#include <QKeyEvent>

OnOffButton::OnOffButton(QWidget *parent)
    : QToolButton(parent)
    , m_on(true)
    , m_shown(-1)
{
    for (int i = 0; i < PictureCount; ++i)
        m_loaded[i] = false;
    setFocusPolicy(Qt::StrongFocus);
    setStyleSheet(QStringLiteral("QToolButton{border:0px solid transparent;}"));
}

bool OnOffButton::onOff() const
{
    return m_on;
}

void OnOffButton::setOnOff(bool on)
{
    if (on == m_on)
        return;
    m_on = on;
    refreshOnOffState();
}

QPixmap const &OnOffButton::picture(Picture which)
{
    if (!m_loaded[which]) {
        m_pictures[which] = m_paths[which].isEmpty() ? QPixmap() : QPixmap(m_paths[which]);
        m_loaded[which] = true;
    }
    return m_pictures[which];
}

void OnOffButton::refreshOnOffState()
{
    const bool focused = hasFocus();
    const Picture which = m_on ? (focused ? OnFocused : On) : (focused ? OffFocused : Off);
    if (which == m_shown)
        return;
    m_shown = which;
    setIcon(QIcon(picture(which)));
}

void OnOffButton::setImage(QString const &on, QString const &onFocused, QString const &off,
                           QString const &offFocused)
{
    m_paths[On] = on;
    m_paths[OnFocused] = onFocused;
    m_paths[Off] = off;
    m_paths[OffFocused] = offFocused;
    for (int i = 0; i < PictureCount; ++i)
        m_loaded[i] = false;
    m_shown = -1;
    QPixmap const &first = picture(On);
    if (!first.isNull())
        setIconSize(first.size());
    // The switch is off after new pictures; when it was off already, the
    // new off picture is shown all the same.
    if (m_on)
        setOnOff(false);
    else
        refreshOnOffState();
}

void OnOffButton::focusInEvent(QFocusEvent *event)
{
    QToolButton::focusInEvent(event);
    refreshOnOffState();
}

void OnOffButton::focusOutEvent(QFocusEvent *event)
{
    QToolButton::focusOutEvent(event);
    refreshOnOffState();
}

void OnOffButton::keyPressEvent(QKeyEvent *event)
{
    if (HeadUnitKeys::isEnter(event->key())) {
        emit clicked(true);
        event->accept();
        return;
    }
    event->ignore();
}
