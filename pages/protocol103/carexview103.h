#ifndef CAREXVIEW103_H
#define CAREXVIEW103_H

#include "carexviewbase.h"

// The page stack of protocols 103 and 104.
class CarExView103 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView103(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);
};

#endif // CAREXVIEW103_H
