#ifndef CAREXVIEW29_H
#define CAREXVIEW29_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocol 29.
// While page 0 or 2 is in front, a timer asks the decoder box for the page's
// data every 1,000 ms. It goes on behind the list until another page
// comes to the front.
class CarExView29 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView29(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW29_H
