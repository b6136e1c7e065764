#ifndef CARINFOITEM28_3_H
#define CARINFOITEM28_3_H

#include "rowpage.h"

// The car's own settings menu: one byte and one setting frame per row,
// the step shown at once and sent through the stack.
class CarInfoItem28_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem28_3(QString const &title, QWidget *parent);

    // Asks for the page's data groups, through sendData().
    void refreshDataFromCanbus();

protected:
    QList<Row> rowTable() const;
    void initlist();
    void valueStepped(int row, int value);
};

#endif // CARINFOITEM28_3_H
