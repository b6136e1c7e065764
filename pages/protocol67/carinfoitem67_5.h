#ifndef CARINFOITEM67_5_H
#define CARINFOITEM67_5_H

#include "rowpage.h"

// The drive modes: the mode settings go out as one group from the buffer,
// the drive mode reset alone.
class CarInfoItem67_5 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_5(QString const &title, QWidget *parent);

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

#endif // CARINFOITEM67_5_H
