#ifndef OPTIONSITEM_H
#define OPTIONSITEM_H

#include <QModelIndex>
#include <QString>
#include <QVariant>
#include <QWidget>

class CustomImageButton;

// A row-shaped editor of one value: a title, and the value between a left
// and a right arrow. A touch on an arrow asks for a step, by the convention
// of the page table: valueChanged(index, true) for the left arrow (down),
// false for the right arrow (up). The four parts only show; the item itself
// takes the touches and finds the arrow under the finger.
class OptionsItem : public QWidget
{
    Q_OBJECT
public:
    OptionsItem(QModelIndex const &index, QString const &title, QWidget *parent);

    QString getTitle() const;
    void setTitle(QVariant const &title);
    void setValue(QVariant const &value);
    // Whether the arrows show.
    void setAdjust(bool adjust);
    QModelIndex index() const;

public slots:
    void onBtClicked();

signals:
    void valueChanged(QModelIndex index, bool leftRight);

protected:
    void mousePressEvent(QMouseEvent *event);
    void mouseReleaseEvent(QMouseEvent *event);
    void showEvent(QShowEvent *event);
    void hideEvent(QHideEvent *event);

private:
    CustomImageButton *arrowAt(QPoint const &pos) const;

    QString m_title;
    CustomImageButton *m_left;
    CustomImageButton *m_right;
    CustomImageButton *m_titleButton;
    CustomImageButton *m_valueButton;
    QModelIndex m_index;
    CustomImageButton *m_pressedArrow;
};

#endif // OPTIONSITEM_H
