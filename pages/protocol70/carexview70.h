#ifndef CAREXVIEW70_H
#define CAREXVIEW70_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 70.
// Its timer is never started; its tick would only stop it.
class CarExView70 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView70(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW70_H
