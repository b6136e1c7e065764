#ifndef CARINFOITEM28_8_H
#define CARINFOITEM28_8_H

#include "rowpage.h"

// Electric management: a step writes the buffer and sends its whole group.
class CarInfoItem28_8 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem28_8(QString const &title, QWidget *parent);

    // Asks for the page's data groups, through sendData().
    void refreshDataFromCanbus();

protected:
    QList<Row> rowTable() const;
    void initlist();
    void valueStepped(int row, int value);
};

#endif // CARINFOITEM28_8_H
