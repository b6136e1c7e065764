#ifndef CARINFOITEM67_12_H
#define CARINFOITEM67_12_H

#include "rowpage.h"

// The tyres: pressures and temperatures from the tyre record inside the
// climate record, the sensor states from the protocol's buffer. Read-only.
class CarInfoItem67_12 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_12(QString const &title, QWidget *parent);

protected:
    QList<Row> rowTable() const;
    // No arrow reaches it; the page keeps the bare frame.
    void valueStepped(int row, int value);
};

#endif // CARINFOITEM67_12_H
