#ifndef CAREXVIEW105_H
#define CAREXVIEW105_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 105.
// Its timer is never started; its tick would only stop it.
class CarExView105 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView105(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW105_H
