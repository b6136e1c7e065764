#ifndef CAREXVIEW81_H
#define CAREXVIEW81_H

#include "carexviewbase.h"

// The page stack of protocols 81 and 85.
class CarExView81 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView81(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW81_H
