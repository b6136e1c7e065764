#ifndef CARINFOITEM67_6_H
#define CARINFOITEM67_6_H

#include "rowpage.h"

// Charging amounts and power consumption: the two battery percentages are
// the page's settings.
class CarInfoItem67_6 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_6(QString const &title, QWidget *parent);

protected:
    QList<Row> rowTable() const;
};

#endif // CARINFOITEM67_6_H
