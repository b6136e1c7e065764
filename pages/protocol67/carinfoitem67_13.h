#ifndef CARINFOITEM67_13_H
#define CARINFOITEM67_13_H

#include "rowpage.h"

// Basic body information, with the car's model, which the head unit keeps.
class CarInfoItem67_13 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_13(QString const &title, QWidget *parent);

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

#endif // CARINFOITEM67_13_H
