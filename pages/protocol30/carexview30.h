#ifndef CAREXVIEW30_H
#define CAREXVIEW30_H

#include "carexviewbase.h"

// The page stack of protocols 30, 50 and 51.
class CarExView30 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView30(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW30_H
