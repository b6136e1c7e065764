#ifndef CAREXVIEW48_H
#define CAREXVIEW48_H

#include "carexviewbase.h"

// The page stack of protocol 48.
class CarExView48 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView48(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW48_H
