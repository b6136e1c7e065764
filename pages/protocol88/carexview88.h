#ifndef CAREXVIEW88_H
#define CAREXVIEW88_H

#include "carexviewbase.h"

// The page stack of protocols 88, 89, 90, 91 and 92.
class CarExView88 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView88(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW88_H
