#ifndef SLIDERVIEWIMTE_H
#define SLIDERVIEWIMTE_H

#include <QRect>
#include <QWidget>

// A painted position bar: a dark groove, a white fill up to the value and a
// round knob. While sliding is allowed, a finger sets the value: the moves
// report valueChanged(), the release reports released() with the value
// where the finger left it. Without sliding it only shows.
class SliderViewImte : public QWidget
{
    Q_OBJECT
public:
    explicit SliderViewImte(QWidget *parent = 0);

    void setSlideState(bool slide);
    bool slideState() const;
    // Clips the value into the new range, without repaint or signal.
    void setRange(int lowest, int highest);
    // Clipped into the range; emits nothing.
    void setValue(int value);
    void getRange(int &lowest, int &highest) const;
    int getValue() const;
    // The value that a finger at x stands for. The finger's scale keeps a
    // margin of a twentieth of the groove at both ends of the widget.
    int getValueByPos(int x);
    // The groove, as the last resize laid it out.
    QRect grooveRect() const;

signals:
    void valueChanged(int value);
    void released(int value);

protected:
    void resizeEvent(QResizeEvent *event);
    void paintEvent(QPaintEvent *event);
    void mousePressEvent(QMouseEvent *event);
    void mouseMoveEvent(QMouseEvent *event);
    void mouseReleaseEvent(QMouseEvent *event);

private:
    int clipped(int value) const;

    int m_lowest;
    int m_highest;
    int m_value;
    bool m_slide;
    int m_lastX;
    QRect m_groove;
};

#endif // SLIDERVIEWIMTE_H
