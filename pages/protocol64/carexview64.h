#ifndef CAREXVIEW64_H
#define CAREXVIEW64_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 64.
// Its timer is never started; its tick would only stop it.
class CarExView64 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView64(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW64_H
