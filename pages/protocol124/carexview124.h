#ifndef CAREXVIEW124_H
#define CAREXVIEW124_H

#include "carexviewbase.h"

// The page stack of protocol 124.
class CarExView124 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView124(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW124_H
