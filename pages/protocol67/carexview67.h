#ifndef CAREXVIEW67_H
#define CAREXVIEW67_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 67.
// Its timer is never started; its tick would only stop it.
class CarExView67 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView67(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW67_H
