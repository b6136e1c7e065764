#ifndef CAREXVIEW45_H
#define CAREXVIEW45_H

#include "carexviewbase.h"

// The page stack of protocols 45, 46, 47 and 55.
class CarExView45 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView45(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW45_H
