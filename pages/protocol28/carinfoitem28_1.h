#ifndef CARINFOITEM28_1_H
#define CARINFOITEM28_1_H

#include "rowpage.h"

class CarInfoItem28_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem28_1(QString const &title, QWidget *parent);

    // Asks for the page's data groups, through sendData().
    void refreshDataFromCanbus();

protected:
    QList<Row> rowTable() const;
};

#endif // CARINFOITEM28_1_H
