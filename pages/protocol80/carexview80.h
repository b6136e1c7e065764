#ifndef CAREXVIEW80_H
#define CAREXVIEW80_H

#include "carexviewbase.h"

// The page stack of protocol 80.
class CarExView80 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView80(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW80_H
