#ifndef TOOLBUTTON_H
#define TOOLBUTTON_H

#include <QToolButton>

// A tool button for the keys: enter clicks it, every other key passes on to
// the parent.
class ToolButton : public QToolButton
{
    Q_OBJECT
public:
    explicit ToolButton(QWidget *parent = 0);

protected:
    void keyPressEvent(QKeyEvent *event);
};

#endif // TOOLBUTTON_H
