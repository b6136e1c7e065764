#ifndef BUTTONITEM27_H
#define BUTTONITEM27_H

#include <QWidget>

class CustomImageButton;
class QLabel;

// A picture button with its caption beside or under it, in the style of the
// door and body overlay.
class ButtonItem27 : public QWidget
{
    Q_OBJECT
public:
    explicit ButtonItem27(QWidget *parent = 0);

    // The pictures by path, the caption and its font size in pixels; the
    // caption lies beside the button with horizontal, under it otherwise.
    // Meant to be called once.
    void setImage(QString const &normal, QString const &down, QString const &text,
                  bool horizontal, int fontSize);
    void setImageDown(bool down);

private:
    CustomImageButton *button;
    QLabel *label;
};

#endif // BUTTONITEM27_H
