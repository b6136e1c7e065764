#ifndef CAREXVIEW87_H
#define CAREXVIEW87_H

#include "carexviewbase.h"

// The page stack of protocol 87.
class CarExView87 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView87(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW87_H
