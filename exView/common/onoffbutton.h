#ifndef ONOFFBUTTON_H
#define ONOFFBUTTON_H

#include <QPixmap>
#include <QString>
#include <QToolButton>

// The switch of an on/off line: a picture for each of on and off, with and
// without focus. Enter clicks it like a finger; what a click means is the
// owner's business, the button's state changes only through setOnOff().
class OnOffButton : public QToolButton
{
    Q_OBJECT
public:
    explicit OnOffButton(QWidget *parent = 0);

    bool onOff() const;
    void setOnOff(bool on);
    // Shows the picture of the present state and focus.
    void refreshOnOffState();
    // The pictures by absolute path. The icon takes the size of the first
    // one when it loads. Leaves the switch off.
    void setImage(QString const &on, QString const &onFocused, QString const &off,
                  QString const &offFocused);

protected:
    void focusInEvent(QFocusEvent *event);
    void focusOutEvent(QFocusEvent *event);
    void keyPressEvent(QKeyEvent *event);

private:
    enum Picture { On, Off, OnFocused, OffFocused, PictureCount };
    QPixmap const &picture(Picture which);

    bool m_on;
    QString m_paths[PictureCount];
    QPixmap m_pictures[PictureCount];
    bool m_loaded[PictureCount];
    int m_shown;
};

#endif // ONOFFBUTTON_H
