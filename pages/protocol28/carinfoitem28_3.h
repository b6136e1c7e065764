#ifndef CARINFOITEM28_3_H
#define CARINFOITEM28_3_H

#include "rowpage.h"

class CarInfoItem28_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem28_3(QString const &title, QWidget *parent);

    // Asks for the page's data groups, through sendData().
    void refreshDataFromCanbus();
};

#endif // CARINFOITEM28_3_H
