#ifndef CAREXVIEW31_H
#define CAREXVIEW31_H

#include "carexviewbase.h"

class QTimer;

// The page stack of protocols 31 and 53.
// While page 1 is in front and the stack is shown, a timer asks the decoder
// box for its data every second.
class CarExView31 : public CarExViewBase
{
    Q_OBJECT
public:
    explicit CarExView31(QWidget *parent = 0);

    void showIndex(int index);
    void setData(QVariant const &data);

protected:
    void hideEvent(QHideEvent *event);

private slots:
    void onCountdown();

private:
    QTimer *timer;
};

#endif // CAREXVIEW31_H
