#ifndef CAREXVIEW28_H
#define CAREXVIEW28_H

#include "carexviewbase.h"

// The page stack of protocol 28.
// The pages ask for their data themselves, a moment after they come to the
// front, and send their frames through the stack.
class CarExView28 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView28(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW28_H
