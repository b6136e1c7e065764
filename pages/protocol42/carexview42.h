#ifndef CAREXVIEW42_H
#define CAREXVIEW42_H

#include "carexviewbase.h"

// The page stack of protocol 42.
class CarExView42 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView42(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW42_H
