#ifndef CDBUTTON_H
#define CDBUTTON_H

#include <QColor>
#include <QString>
#include <QWidget>

// A flat push button: a rounded rectangle in one of three colours (normal,
// pressed, not usable) with a centred, wrapped text in black. Every touch
// clicks audibly; a release inside the button clicks it only while it is
// usable.
class CDButton : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
public:
    explicit CDButton(QWidget *parent = 0);

    void setBackgroundColor(QColor const &normal, QColor const &pressed, QColor const &notUsable);
    // scale is the text's height as a share of the button's.
    void setText(QString const &text, double const &scale);
    // Mind the word: true makes the button usable, false blocks it.
    void setProhibit(bool usable);

    QString text() const;
    double textScale() const;
    bool isUsable() const;
    bool isPressed() const;

signals:
    void clicked();
    void textChanged();

protected:
    void paintEvent(QPaintEvent *event);
    void mousePressEvent(QMouseEvent *event);
    void mouseReleaseEvent(QMouseEvent *event);

private:
    bool m_usable;
    bool m_pressed;
    QColor m_normal;
    QColor m_pressedColor;
    QColor m_notUsable;
    QString m_text;
    double m_scale;
};

#endif // CDBUTTON_H
