#ifndef CAREXVIEW98_H
#define CAREXVIEW98_H

#include "carexviewbase.h"

// The page stack of protocol 98.
class CarExView98 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView98(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW98_H
