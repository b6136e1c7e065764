#ifndef CARINFOITEM67_4_H
#define CARINFOITEM67_4_H

#include "rowpage.h"

// The amplifier: a step goes into the buffer first, the frame is built from
// the buffer, and the row shows the new value at once.
class CarInfoItem67_4 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_4(QString const &title, QWidget *parent);

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

#endif // CARINFOITEM67_4_H
