#ifndef CAREXVIEW34_H
#define CAREXVIEW34_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 34.
// While page 0 or 2 is in front, a timer asks the decoder box for the page's
// data every 10,000 ms. It goes on behind the list until another page
// comes to the front.
class CarExView34 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView34(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW34_H
