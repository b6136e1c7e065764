#ifndef SETPAGEWIDGET_H
#define SETPAGEWIDGET_H

#include <QList>
#include <QWidget>

class SetItemBase;

// A settings page made for the keys and the knob: a column of lines (see
// SetItemBase), focus on one of them. A key that the line in focus can't
// use comes here: up and down move the focus to the line before or after.
// Up stops quietly at the first line; down at the last line passes on, so
// that the focus can leave the page.
//
// A page derived from this one builds its lines, lays them out and lists
// them in m_lines from top to bottom.
class SetPageWidget : public QWidget
{
    Q_OBJECT
public:
    explicit SetPageWidget(QWidget *parent = 0);

    // The first line of the list that has the focus, or null.
    SetItemBase *getFocusWidget() const;

protected:
    void focusInEvent(QFocusEvent *event);
    void keyPressEvent(QKeyEvent *event);

    QList<SetItemBase *> m_lines;
};

#endif // SETPAGEWIDGET_H
