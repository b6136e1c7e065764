#ifndef CAREXVIEW79_H
#define CAREXVIEW79_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 79.
// Its timer is never started; its tick would only stop it.
class CarExView79 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView79(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW79_H
