#ifndef STATUSBARMODEWIDGET27_H
#define STATUSBARMODEWIDGET27_H

#include <QList>
#include <QWidget>

class CustomImageButton;

// The title bar of the climate panel, as high as the system bar: a back
// button and the title. While the bar or its button has the keyboard, the
// head unit's arrow and enter keys mark the button and press it.
class StatusBarModeWidget27 : public QWidget
{
    Q_OBJECT
public:
    explicit StatusBarModeWidget27(QWidget *parent = 0);

    // Moves the mark by step along focusButtons. The first key marks the
    // first button; answers false when the mark can't move that way.
    bool moveFocus(int step);

signals:
    void backClicked();

protected:
    void keyPressEvent(QKeyEvent *event) Q_DECL_OVERRIDE;
    void keyReleaseEvent(QKeyEvent *event) Q_DECL_OVERRIDE;

private:
    CustomImageButton *backButton;
    // The buttons that the keys walk through, in order.
    QList<CustomImageButton *> focusButtons;
    // Whether the last key press was used; its release is swallowed then.
    bool keyHandled;
};

#endif // STATUSBARMODEWIDGET27_H
