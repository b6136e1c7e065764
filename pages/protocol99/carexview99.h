#ifndef CAREXVIEW99_H
#define CAREXVIEW99_H

#include "carexviewbase.h"

// The page stack of protocols 99 and 100.
class CarExView99 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView99(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW99_H
