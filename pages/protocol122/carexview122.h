#ifndef CAREXVIEW122_H
#define CAREXVIEW122_H

#include "carexviewbase.h"

// The page stack of protocol 122.
class CarExView122 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView122(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW122_H
