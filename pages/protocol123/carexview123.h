#ifndef CAREXVIEW123_H
#define CAREXVIEW123_H

#include "carexviewbase.h"

// The page stack of protocol 123.
class CarExView123 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView123(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW123_H
