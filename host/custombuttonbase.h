#ifndef CUSTOMBUTTONBASE_H
#define CUSTOMBUTTONBASE_H

#include <QWidget>

class CustomButtonBasePrivate;

// Base of the head unit's picture buttons. A press and release inside the
// button is a click. With long press enabled, holding the button for the
// given time emits longPressed() and the release gives no click; with press
// hold repeat, pressed() is emitted again every interval while held.
class CustomButtonBase : public QWidget
{
    Q_OBJECT
public:
    explicit CustomButtonBase(QWidget *parent = 0);
    ~CustomButtonBase();

    void setEnableLongPressed(bool enable, int milliseconds);
    void setEmitPressedSignalOnPressHold(int milliseconds);

    // True between a press and its release.
    bool isPressed() const;

signals:
    void clicked();
    void pressed();
    void released();
    void longPressed();

protected:
    void timerEvent(QTimerEvent *event);
    void mousePressEvent(QMouseEvent *event);
    void mouseMoveEvent(QMouseEvent *event);
    void mouseReleaseEvent(QMouseEvent *event);
    void keyPressEvent(QKeyEvent *event);
    void keyReleaseEvent(QKeyEvent *event);

    // Whether mouse events reach the button at all.
    bool ignoresMouse() const;
    void setIgnoresMouse(bool ignore);

private:
    friend class CustomButtonBasePrivate;
    CustomButtonBasePrivate *const d;
};

#endif // CUSTOMBUTTONBASE_H
