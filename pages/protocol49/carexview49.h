#ifndef CAREXVIEW49_H
#define CAREXVIEW49_H

#include "carexviewbase.h"

// The page stack of protocol 49.
class CarExView49 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView49(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW49_H
