#ifndef CAREXVIEW78_H
#define CAREXVIEW78_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 78.
// Its timer is never started; its tick would only stop it.
class CarExView78 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView78(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW78_H
