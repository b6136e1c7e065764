#ifndef CARINFOITEM28_5_H
#define CARINFOITEM28_5_H

#include "rowpage.h"

// The energy display, with thirty rows of energy recovery history after
// the table's rows.
class CarInfoItem28_5 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem28_5(QString const &title, QWidget *parent);

    // Asks for the page's data groups, through sendData().
    void refreshDataFromCanbus();
    // Follows the energy history as well as the table's rows.
    void ondataChanged();

protected:
    QList<Row> rowTable() const;
    void initlist();
    void valueStepped(int row, int value);
};

#endif // CARINFOITEM28_5_H
