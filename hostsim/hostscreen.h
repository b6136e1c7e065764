#ifndef HOSTSCREEN_H
#define HOSTSCREEN_H

#include <QWidget>

class QLabel;

// The widget of one UI level: it covers the screen and is shown while one of
// its children is shown, so that an empty level never takes a touch from
// the levels under it.
class UiLevel : public QWidget
{
    Q_OBJECT
public:
    explicit UiLevel(int level, QWidget *parent);

protected:
    void childEvent(QChildEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void updateVisibility();
};

// The head unit's screen: the home screen's backdrop, the system bar with a
// clock, the four UI levels, and a transient message on top of all.
class HostScreen : public QWidget
{
    Q_OBJECT
public:
    explicit HostScreen(QSize const &size);

    QWidget *level(int level) const;
    void showMessage(QString const &text);
    void hideMessage();
    bool messageShowing() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    UiLevel *m_levels[4];
    QLabel *m_message;
    int m_messageTimer = 0;
    int m_clockTimer = 0;
};

#endif // HOSTSCREEN_H
