#ifndef CARINFOITEM28_6_H
#define CARINFOITEM28_6_H

#include "rowpage.h"

// The tyre page: its reset row opens the tyre panel.
class CarInfoItem28_6 : public ClickRowPage
{
    Q_OBJECT
public:
    CarInfoItem28_6(QString const &title, QWidget *parent);

    // Asks for the page's data groups, through sendData().
    void refreshDataFromCanbus();

signals:
    void TirePressure();

protected:
    QList<Row> rowTable() const;
    void middlePressed(int row);
};

#endif // CARINFOITEM28_6_H
