#ifndef LISTMODEL1_H
#define LISTMODEL1_H

#include "listdata.h"

#include <QStringListModel>

class ListView;
class QPixmap;

// The model of a page's table: one row per ListData, one column. It turns a
// row into what the painter and the page read by role (ListRole): the raw
// value, the value as shown, the arrows and the value backdrop. All unit
// texts and number formats of the pages are made here, in DisplayValueRole.
// The model is a child of the view that it serves, whose width places the
// row's right half.
class ListModel1 : public QStringListModel
{
    Q_OBJECT
public:
    explicit ListModel1(ListView *view);
    ~ListModel1();

    QList<ListData> const &getListData() const;
    // The x at which the right half of a row begins: half the view's width.
    int leftBtX() const;

    int rowCount(QModelIndex const &parent = QModelIndex()) const;
    int columnCount(QModelIndex const &parent = QModelIndex()) const;
    QModelIndex sibling(int row, int column, QModelIndex const &index) const;

    // Replaces all rows; the model resets.
    void setListData(QList<ListData> const &list);

    QVariant data(QModelIndex const &index, int role) const;
    QMap<int, QVariant> itemData(QModelIndex const &index) const;
    // Takes ValueRole (the text of a TextKind row, the value of all others)
    // and UnitRole; other roles go to the base and change nothing.
    bool setData(QModelIndex const &index, QVariant const &value, int role = Qt::EditRole);

private:
    bool hasRow(QModelIndex const &index) const;
    static QVariant displayValue(ListData const &row);

    QList<ListData> rows;
    QPixmap *lastPixmap;
    QPixmap *lastDisabledPixmap;
    QPixmap *nextPixmap;
    QPixmap *nextDisabledPixmap;
    QPixmap *valueBackdropPixmap;
    ListView *view;
};

#endif // LISTMODEL1_H
