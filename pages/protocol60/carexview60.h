#ifndef CAREXVIEW60_H
#define CAREXVIEW60_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocols 60, 61 and 62.
// While page 0 or 2 is in front, a timer asks the decoder box for the page's
// data every 1,500 ms. It goes on behind the list until another page
// comes to the front.
class CarExView60 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView60(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

private slots:
    void onCountdown();

private:
    QTimer *timer;
    int currentIndex;
};

#endif // CAREXVIEW60_H
