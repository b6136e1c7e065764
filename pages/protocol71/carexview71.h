#ifndef CAREXVIEW71_H
#define CAREXVIEW71_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 71.
// Its timer is never started; its tick would only stop it.
class CarExView71 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView71(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW71_H
