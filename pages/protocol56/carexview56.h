#ifndef CAREXVIEW56_H
#define CAREXVIEW56_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 56.
// While page 3 is in front, a timer runs every 1,000 ms; it asks nothing, and
// stops on any other page.
class CarExView56 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView56(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW56_H
