#ifndef CAREXVIEW40_H
#define CAREXVIEW40_H

#include "carexviewbase.h"

// The page stack of protocol 40.
class CarExView40 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView40(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW40_H
