#ifndef CAREXVIEW94_H
#define CAREXVIEW94_H

#include "carexviewbase.h"

// The page stack of protocols 94 and 95.
class CarExView94 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView94(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW94_H
