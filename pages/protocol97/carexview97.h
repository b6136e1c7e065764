#ifndef CAREXVIEW97_H
#define CAREXVIEW97_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 97.
// Its timer is never started; its tick would only stop it.
class CarExView97 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView97(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW97_H
