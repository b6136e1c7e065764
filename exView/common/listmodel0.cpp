#include "listmodel0.h"

#include "listdata.h"

#include <QColor>

ListModel0::ListModel0(QObject *parent)
    : ListModel(parent)
{
}

ListModel0::~ListModel0()
{
}

void ListModel0::setListData(QList<QString> const &list)
{
    beginResetModel();
    titles.clear();
    titles = list;
    endResetModel();
}

int ListModel0::getDataRowCount() const
{
    return titles.size();
}

int ListModel0::getIndexByModelIndex(QModelIndex const &index) const
{
    if (!index.isValid())
        return -1;
    const int i = index.row() * getDataColumnCount() + index.column();
    if (i < 0 || i >= titles.size())
        return -1;
    return i;
}

QModelIndex ListModel0::getModelIndexByIndex(int i) const
{
    const int columns = getDataColumnCount();
    if (columns < 1)
        return QModelIndex();
    return index(i / columns, i % columns);
}

QVariant ListModel0::data(QModelIndex const &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return ListModel::data(index, role);
    const int i = getIndexByModelIndex(index);
    if (i < 0)
        return ListModel::data(index, role);

    // The host list's painter draws an entry's display text.
    if (role == Qt::DisplayRole)
        return titles.at(i);
    if (role < EnabledRole || role > HostValue392Role)
        return ListModel::data(index, role);

    switch (role) {
    case EnabledRole:
        return true;
    case EntryTextRole:
    case EntryText2Role:
        return titles.at(i);
    case HostColor364Role:
    case HostColor366Role:
        return QColor(27, 30, 36, 255);
    case HostColor365Role:
        return QColor(50, 50, 50, 150);
    case TextColorRole:
    case SelectedTextColorRole:
        return QColor(Qt::white);
    case TitleFontSizeRole:
        return 26;
    case ValueFontSizeRole:
        return 20;
    case HostValue382Role:
        return -1;
    case RightIconMarginRole:
    case TextXRole:
    case HostValue391Role:
    case HostValue392Role:
        return 0;
    case HostColor389Role:
        return QColor(180, 180, 180, 180);
    case SeparatorRole:
        return 0x1000000;
    default:
        return ListModel::data(index, role);
    }
}
