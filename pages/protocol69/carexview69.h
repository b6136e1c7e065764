#ifndef CAREXVIEW69_H
#define CAREXVIEW69_H

#include "carexviewbase.h"

// The page stack of protocol 69.
class CarExView69 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView69(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private:
    int currentIndex;
};

#endif // CAREXVIEW69_H
