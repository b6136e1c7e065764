#ifndef CARINFOITEM28_4_H
#define CARINFOITEM28_4_H

#include "rowpage.h"

class CarInfoItem28_4 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem28_4(QString const &title, QWidget *parent);

    // Asks for the page's data groups, through sendData().
    void refreshDataFromCanbus();

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

#endif // CARINFOITEM28_4_H
