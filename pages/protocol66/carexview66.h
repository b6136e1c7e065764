#ifndef CAREXVIEW66_H
#define CAREXVIEW66_H

#include "carexviewbase.h"

// The page stack of protocol 66.
class CarExView66 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView66(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW66_H
