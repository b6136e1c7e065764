#ifndef CAREXVIEW37_H
#define CAREXVIEW37_H

#include "carexviewbase.h"

// The page stack of protocols 37, 38 and 39.
class CarExView37 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView37(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW37_H
