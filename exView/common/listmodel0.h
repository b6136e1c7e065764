#ifndef LISTMODEL0_H
#define LISTMODEL0_H

#include "listmodel.h"

#include <QList>
#include <QString>

// The model of a plain list of titles, such as the extended view's list of
// pages: one entry per title, in the host list's roles (ListRole, from
// EnabledRole to HostValue392Role).
class ListModel0 : public ListModel
{
    Q_OBJECT
public:
    explicit ListModel0(QObject *parent = 0);
    ~ListModel0();

    // Replaces all titles; the model resets.
    void setListData(QList<QString> const &list);

    int getDataRowCount() const;
    // The position of an index in the title list, row by row; -1 when the
    // index is invalid or holds no title.
    int getIndexByModelIndex(QModelIndex const &index) const;
    QModelIndex getModelIndexByIndex(int i) const;

    QVariant data(QModelIndex const &index, int role) const;

private:
    QList<QString> titles;
};

#endif // LISTMODEL0_H
