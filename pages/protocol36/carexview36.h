#ifndef CAREXVIEW36_H
#define CAREXVIEW36_H

#include "carexviewbase.h"

// The page stack of protocol 36.
class CarExView36 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView36(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW36_H
