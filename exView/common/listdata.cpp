#include "listdata.h"

#include <QPixmap>

ListData::ListData(int kind, QString const &title, QVariant const &value,
                   QList<QVariant> const &options, bool adjustable, int unit, double factor)
    : kind(kind)
    , id(-1)
    , title(title)
    , text(value.toString())
    , value(value.toInt())
    , options(options)
    , adjustable(adjustable)
    , unit(unit)
    , factor(factor)
{
}

ListData::ListData(int id, int kind, QString const &title, QVariant const &value,
                   QList<QVariant> const &options, bool adjustable, int unit, double factor)
    : kind(kind)
    , id(id)
    , title(title)
    , text(value.toString())
    , value(value.toInt())
    , options(options)
    , adjustable(adjustable)
    , unit(unit)
    , factor(factor)
{
}

QPixmap const *presentPixmap(QVariant const &value)
{
    if (!value.canConvert<Pixmap>())
        return 0;
    QPixmap const *pixmap = value.value<Pixmap>().pixmap;
    if (!pixmap || pixmap->isNull())
        return 0;
    return pixmap;
}
