#ifndef CARINFOITEM67_9_H
#define CARINFOITEM67_9_H

#include "rowpage.h"

// Charging appointments, timed charging and the charging current: each
// setting is written into the buffer and goes out with its group.
class CarInfoItem67_9 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_9(QString const &title, QWidget *parent);

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

#endif // CARINFOITEM67_9_H
