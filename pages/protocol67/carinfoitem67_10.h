#ifndef CARINFOITEM67_10_H
#define CARINFOITEM67_10_H

#include "rowpage.h"

// The vehicle setup: every row is a setting, sent as FD 06 83 sub value.
class CarInfoItem67_10 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_10(QString const &title, QWidget *parent);

protected:
    QList<Row> rowTable() const;
};

#endif // CARINFOITEM67_10_H
