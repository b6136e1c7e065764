#ifndef CAREXVIEW86_H
#define CAREXVIEW86_H

#include "carexviewbase.h"

// The page stack of protocol 86.
class CarExView86 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView86(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW86_H
