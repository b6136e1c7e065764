#ifndef CAREXVIEW43_H
#define CAREXVIEW43_H

#include "carexviewbase.h"

// The page stack of protocols 43 and 44.
class CarExView43 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView43(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW43_H
