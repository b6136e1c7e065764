#ifndef TIREPRESSURE_H
#define TIREPRESSURE_H

#include <QWidget>

class CustomImageButton;
class QLabel;

// The tyre panel: a picture of the tyres, a hint and a "Reset" button that
// tells the car that the pressures are right. It shows no measured values.
class TirePressure : public QWidget
{
    Q_OBJECT
public:
    explicit TirePressure(QWidget *parent = 0);

signals:
    // The reset button was pressed.
    void ClickedSlots();

private:
    QLabel *label;
    CustomImageButton *resetButton;
    CustomImageButton *tireButton;
};

#endif // TIREPRESSURE_H
