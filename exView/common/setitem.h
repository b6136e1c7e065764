#ifndef SETITEM_H
#define SETITEM_H

#include <QLabel>

// One choice of a SetItemsView: a text and the value it stands for. It
// paints a frame, white while it has the focus, and a blue fill while it is
// its view's selected choice; the two are independent.
class SetItem : public QLabel
{
    Q_OBJECT
public:
    SetItem(QString const &text, unsigned char value, QWidget *parent = 0);

    unsigned char value() const;
    // Makes this choice the selected one of its view, or clears the view's
    // selection, whichever choice held it. Without a view, nothing.
    void setSelected(bool selected);

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event);
    void mouseReleaseEvent(QMouseEvent *event);
    void focusInEvent(QFocusEvent *event);
    void focusOutEvent(QFocusEvent *event);

private:
    unsigned char m_value;
};

#endif // SETITEM_H
