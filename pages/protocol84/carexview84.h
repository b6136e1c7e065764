#ifndef CAREXVIEW84_H
#define CAREXVIEW84_H

#include "carexviewbase.h"

// The page stack of protocol 84.
class CarExView84 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView84(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW84_H
