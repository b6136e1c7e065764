#ifndef AIRCONDITIONERTIPVIEW_H
#define AIRCONDITIONERTIPVIEW_H

#include <QTimer>
#include <QWidget>

class QLabel;

// A short-lived tip of two pictures on a plate. It lasts 2 seconds from the
// last showTipData().
class AirConditionerTipView : public QWidget
{
    Q_OBJECT
public:
    explicit AirConditionerTipView(QWidget *parent = 0);

    // The two pictures, by path; shows the tip and starts its time anew.
    void showTipData(QString const &first, QString const &second);

protected:
    void showEvent(QShowEvent *event) Q_DECL_OVERRIDE;
    void hideEvent(QHideEvent *event) Q_DECL_OVERRIDE;

private slots:
    void onTimerout();

private:
    QLabel *firstLabel;
    QLabel *secondLabel;
    QTimer timer;
};

#endif // AIRCONDITIONERTIPVIEW_H
