#ifndef SETITEMBASE_H
#define SETITEMBASE_H

#include <QWidget>

class QLabel;

// One line of a key-driven settings page (see SetPageWidget): an on/off
// switch, a slider or a grid of choices. A line that can't use a key
// ignores it, so that it reaches the page, which then moves the focus on.
class SetItemBase : public QWidget
{
    Q_OBJECT
public:
    explicit SetItemBase(QWidget *parent = 0);

    // Whether the line itself or one of its parts has the focus.
    virtual bool isInFocus() const = 0;

    // The least height of a line and of a choice: a seventeenth of the
    // system view's height.
    static int lineHeight();

protected:
    // The title at the line's left (objectName "titleLabel").
    QLabel *makeTitleLabel(QString const &title);
    // The line's ground, for all colour groups, filled automatically.
    void setGround(QColor const &colour);
};

#endif // SETITEMBASE_H
