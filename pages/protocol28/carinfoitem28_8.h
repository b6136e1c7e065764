#ifndef CARINFOITEM28_8_H
#define CARINFOITEM28_8_H

#include "rowpage.h"

class CarInfoItem28_8 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem28_8(QString const &title, QWidget *parent);

    // Asks for the page's data groups, through sendData().
    void refreshDataFromCanbus();
};

#endif // CARINFOITEM28_8_H
