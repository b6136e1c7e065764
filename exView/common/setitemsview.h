#ifndef SETITEMSVIEW_H
#define SETITEMSVIEW_H

#include "setitembase.h"

#include <QList>
#include <QStringList>

class QGridLayout;
class SetItem;

// A settings line with a title over a grid of choices, one of which may be
// selected. The arrows walk the focus inside the grid; up from the first
// row, down from the last and the knob beyond either end pass on to the
// page. A tap or enter on a choice selects it and reports its value.
class SetItemsView : public SetItemBase
{
    Q_OBJECT
public:
    // The choices' texts and values pair by index; a choice without a value
    // stands for 0. Fewer than one column is taken as one.
    SetItemsView(QString const &title, QStringList const &texts, QList<unsigned char> const &values,
                 int columns, QWidget *parent = 0);

    bool isInFocus() const;
    // The index of the choice with the focus, -1 if none has it.
    int getFocusItemIndex() const;
    // Selects the first choice with this value; without one the selection
    // stays as it was. Reports nothing.
    void setValue(unsigned char value);
    // The selected choice's value, 0 without a selection.
    unsigned char value() const;
    // The selected choice, or null.
    SetItem *selectedItem() const;
    QList<SetItem *> items() const;
    // Moves the focus by columns (dx), rows (dy) or one choice in reading
    // order (step). Answers whether the move was the grid's to make; false
    // when it would leave the grid upwards, downwards or past either end.
    bool moveFocus(int dx, int dy, int step);

public slots:
    void onItemClicked();

signals:
    void valueChanged(unsigned char value);

protected:
    void focusInEvent(QFocusEvent *event);
    void keyPressEvent(QKeyEvent *event);

private:
    friend class SetItem;

    SetItem *m_selected;
    QList<SetItem *> m_items;
    QGridLayout *m_grid;
};

#endif // SETITEMSVIEW_H
