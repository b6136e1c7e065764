#ifndef CAREXVIEW35_H
#define CAREXVIEW35_H

#include "carexviewbase.h"

// The page stack of protocol 35.
class CarExView35 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView35(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW35_H
