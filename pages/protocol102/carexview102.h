#ifndef CAREXVIEW102_H
#define CAREXVIEW102_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 102.
// Its timer is never started; its tick would only stop it.
class CarExView102 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView102(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW102_H
