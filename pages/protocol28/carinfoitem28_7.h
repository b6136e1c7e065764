#ifndef CARINFOITEM28_7_H
#define CARINFOITEM28_7_H

#include "rowpage.h"

class CarInfoItem28_7 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem28_7(QString const &title, QWidget *parent);

    // Asks for the page's data groups, through sendData().
    void refreshDataFromCanbus();

protected:
    QList<Row> rowTable() const;
};

#endif // CARINFOITEM28_7_H
