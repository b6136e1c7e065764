#ifndef CARINFOITEM67_11_H
#define CARINFOITEM67_11_H

#include "rowpage.h"

// The panoramic camera's views and parking aids.
class CarInfoItem67_11 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_11(QString const &title, QWidget *parent);

protected:
    QList<Row> rowTable() const;
};

#endif // CARINFOITEM67_11_H
