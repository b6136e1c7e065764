#ifndef CAREXVIEW32_H
#define CAREXVIEW32_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocols 32 and 54.
// While page 5 is in front, a timer asks the decoder box for the page's
// data every 1,000 ms. It goes on behind the list until another page
// comes to the front.
class CarExView32 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView32(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW32_H
