#ifndef LISTMODEL_H
#define LISTMODEL_H

#include <QAbstractListModel>

// Base of the head unit's list models. The row and column counts come from
// the two virtual operations that this class adds, in this order.
class ListModel : public QAbstractListModel
{
    Q_OBJECT
public:
    explicit ListModel(QObject *parent = 0);
    ~ListModel();

    int rowCount(QModelIndex const &parent = QModelIndex()) const;
    int columnCount(QModelIndex const &parent = QModelIndex()) const;
    QVariant data(QModelIndex const &index, int role) const;

    virtual int getDataRowCount() const;
    virtual int getDataColumnCount() const;
};

#endif // LISTMODEL_H
