#ifndef ZORVROLLINGTEXT_H
#define ZORVROLLINGTEXT_H

#include <QColor>
#include <QString>
#include <QWidget>

class ZorvRollingTextPrivate;

// A one-line label. A text wider than the label scrolls through it; a text
// that fits stands still.
class ZorvRollingText : public QWidget
{
    Q_OBJECT
public:
    explicit ZorvRollingText(QWidget *parent = 0);
    ~ZorvRollingText();

    void setFontSize(int pixels);
    void setTextColor(QColor const &color);
    void setText(QString text);
    QString text() const;

protected:
    void paintEvent(QPaintEvent *event);
    void timerEvent(QTimerEvent *event);
    void resizeEvent(QResizeEvent *event);
    void showEvent(QShowEvent *event);
    void hideEvent(QHideEvent *event);

private:
    friend class ZorvRollingTextPrivate;
    ZorvRollingTextPrivate *const d;
};

#endif // ZORVROLLINGTEXT_H
