#ifndef CAREXVIEW96_H
#define CAREXVIEW96_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 96.
// Its timer is never started; its tick would only stop it.
class CarExView96 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView96(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW96_H
