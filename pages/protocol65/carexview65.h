#ifndef CAREXVIEW65_H
#define CAREXVIEW65_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 65.
// Its timer is never started; its tick would only stop it.
class CarExView65 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView65(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW65_H
