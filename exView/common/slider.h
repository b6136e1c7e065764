#ifndef SLIDER_H
#define SLIDER_H

#include <QString>
#include <QWidget>

class QImage;

// A horizontal slider painted from pictures: a groove and a handle (with a
// second handle for focus). A finger sets the value where it lies. With the
// keys, enter switches adjusting on and off; while adjusting, the arrows and
// the knob step the value by one, otherwise they pass on to the parent so
// that the focus can move on. Values are bytes of the decoder box: a step is
// taken modulo 256.
class Slider : public QWidget
{
    Q_OBJECT
public:
    explicit Slider(QWidget *parent = 0);
    ~Slider();

    // The groove, the handle and the handle with focus, by absolute path. A
    // groove picture fixes the slider's size to its own. Meant to be called
    // once.
    void setImage(QString const &groove, QString const &handle, QString const &focusedHandle);
    // The value isn't clipped into a new range.
    void setRange(int lowest, int highest);
    // Emits valueChanged() when the value changed and emitSignal is true.
    void setValue(int value, bool emitSignal);
    int getValue() const;
    int lowest() const;
    int highest() const;
    // True between an enter that started adjusting and the next enter or
    // loss of focus.
    bool isAdjusting() const;
    // The value that a finger at pos stands for.
    int convertPosToValue(QPoint const &pos) const;

signals:
    void valueChanged(int value);

protected:
    void paintEvent(QPaintEvent *event);
    void mousePressEvent(QMouseEvent *event);
    void mouseMoveEvent(QMouseEvent *event);
    void mouseReleaseEvent(QMouseEvent *event);
    void focusOutEvent(QFocusEvent *event);
    void keyPressEvent(QKeyEvent *event);

private:
    QImage const *handleImage() const;
    void step(bool down);

    int m_lowest;
    int m_highest;
    int m_value;
    QImage *m_groove;
    QImage *m_handle;
    QImage *m_focusedHandle;
    bool m_adjusting;
};

#endif // SLIDER_H
