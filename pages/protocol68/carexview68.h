#ifndef CAREXVIEW68_H
#define CAREXVIEW68_H

#include "carexviewbase.h"

// The page stack of protocol 68.
class CarExView68 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView68(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private:
    int currentIndex;
};

#endif // CAREXVIEW68_H
