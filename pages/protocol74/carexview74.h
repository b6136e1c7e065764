#ifndef CAREXVIEW74_H
#define CAREXVIEW74_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocols 74, 75, 76, 77 and 101.
// Its timer is never started; its tick would only stop it.
class CarExView74 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView74(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW74_H
