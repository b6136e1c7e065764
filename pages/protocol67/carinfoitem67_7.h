#ifndef CARINFOITEM67_7_H
#define CARINFOITEM67_7_H

#include "rowpage.h"

// Energy use and the energy flow: read-only.
class CarInfoItem67_7 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_7(QString const &title, QWidget *parent);

protected:
    QList<Row> rowTable() const;
    // No arrow reaches it; the page keeps the bare frame.
    void valueStepped(int row, int value);
};

#endif // CARINFOITEM67_7_H
