#include "listmodel.h"

ListModel::ListModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

ListModel::~ListModel()
{
}

int ListModel::rowCount(QModelIndex const &parent) const
{
    return parent.isValid() ? 0 : getDataRowCount();
}

int ListModel::columnCount(QModelIndex const &parent) const
{
    return parent.isValid() ? 0 : getDataColumnCount();
}

QVariant ListModel::data(QModelIndex const &, int) const
{
    return QVariant();
}

int ListModel::getDataRowCount() const
{
    return 0;
}

int ListModel::getDataColumnCount() const
{
    return 1;
}
