#ifndef CUSTOMIMAGEBUTTON_H
#define CUSTOMIMAGEBUTTON_H

#include "custombuttonbase.h"

#include <QColor>
#include <QString>

class CustomImageButtonPrivate;
class QImage;
class QPainter;

// A button painted from up to four pictures: normal, down (pressed or
// latched down), focused and disabled. The down picture follows the latched
// state of setDown() and a finger on the button. A text may lie over the
// pictures.
class CustomImageButton : public CustomButtonBase
{
    Q_OBJECT
public:
    explicit CustomImageButton(QWidget *parent = 0);
    ~CustomImageButton();

    // Loads the pictures from files; an empty path means no picture for that
    // state. With fitToImage the button takes the size of the normal picture.
    void setBackgroundImage(QString const &normal, QString const &down,
                            QString const &focused, QString const &disabled,
                            bool fitToImage, int);
    // The same with pictures that the caller keeps alive.
    void setConstBackgroundImage(QImage const *normal, QImage const *down,
                                 QImage const *focused, QImage const *disabled,
                                 bool fitToImage);

    // alignment is a Qt::Alignment value; size is the text height as a share
    // of the button's height.
    void setText(QString const &text, int alignment, QColor const &color,
                 float size, bool bold);
    QString text() const;
    void setTextMargins(int left, int top, int right, int bottom);

    void setDown(bool down);
    bool isDown() const;

    // From now on the button only shows: touches pass through to what lies
    // under it.
    void setIgnoreMouseEvent();

protected:
    void paintEvent(QPaintEvent *event);
    virtual void paintBackgroundAndForeground(QPainter &painter);
    virtual void paintText(QPainter &painter);
    void mousePressEvent(QMouseEvent *event);
    void mouseMoveEvent(QMouseEvent *event);
    void mouseReleaseEvent(QMouseEvent *event);
    void keyPressEvent(QKeyEvent *event);
    void keyReleaseEvent(QKeyEvent *event);

private:
    friend class CustomImageButtonPrivate;
    CustomImageButtonPrivate *const d;
};

#endif // CUSTOMIMAGEBUTTON_H
