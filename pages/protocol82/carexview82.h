#ifndef CAREXVIEW82_H
#define CAREXVIEW82_H

#include "carexviewbase.h"

// The page stack of protocol 82.
class CarExView82 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView82(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW82_H
