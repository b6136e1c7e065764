#ifndef CAREXVIEW72_H
#define CAREXVIEW72_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 72.
// Its timer is never started; its tick would only stop it.
class CarExView72 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView72(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW72_H
