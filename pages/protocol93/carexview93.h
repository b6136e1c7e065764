#ifndef CAREXVIEW93_H
#define CAREXVIEW93_H

#include "carexviewbase.h"

// The page stack of protocol 93.
class CarExView93 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView93(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW93_H
