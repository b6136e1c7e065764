#ifndef CARINFOITEM28_5_H
#define CARINFOITEM28_5_H

#include "rowpage.h"

class CarInfoItem28_5 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem28_5(QString const &title, QWidget *parent);

    // Asks for the page's data groups, through sendData().
    void refreshDataFromCanbus();
};

#endif // CARINFOITEM28_5_H
