#ifndef CARINFOITEM67_8_H
#define CARINFOITEM67_8_H

#include "rowpage.h"

// Energy consumption, read-only, with a button that resets the energy
// information.
class CarInfoItem67_8 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem67_8(QString const &title, QWidget *parent);

protected:
    QList<Row> rowTable() const;
    void middlePressed(int row);
};

#endif // CARINFOITEM67_8_H
