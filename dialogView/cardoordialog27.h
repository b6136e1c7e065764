#ifndef CARDOORDIALOG27_H
#define CARDOORDIALOG27_H

#include "cardoordialogbase.h"

class CarDoorTipIcon;
class CarTipIcon;
class CustomImageWidget;
class QGridLayout;

// The warning that the car is not ready to drive: a dimmed full-size layer
// with the warning panel in its centre. The panel holds one to four icons,
// each made on first need and kept: an unfastened seat belt, an automatic
// parking fault, a condensate fault, and the car with its open doors. One or
// two icons are drawn large, three or four small. Any press hides the layer;
// the next warning record brings it back.
class CardoorDialog27 : public CardoorDialogBase
{
    Q_OBJECT
public:
    explicit CardoorDialog27(QWidget *parent = 0);

    void setData(CardoorData const &door) Q_DECL_OVERRIDE;
    void setCarbodyData(CarbodyData const &body) Q_DECL_OVERRIDE;

    CarbodyData const &getCarbodyData() const;

protected:
    void paintEvent(QPaintEvent *event) Q_DECL_OVERRIDE;
    void mousePressEvent(QMouseEvent *event) Q_DECL_OVERRIDE;

private:
    void createSeatBelt();
    void createAutoParking();
    void createCondensate();
    void createCardoor();
    CarTipIcon *createIcon(char const *name, QString const &text,
                           char const *normalImage, char const *smallImage);

    // Lays out the icons that warn, count of them; 0 or less changes nothing.
    void setShowCount(int count);
    QGridLayout *grid() const;
    void placeIcon(CarTipIcon *icon, int row, int column, int rowSpan, bool captionBeside);

    CarbodyData carbodyData;
    // The panel that holds the warning icons.
    CustomImageWidget *background;
    CarTipIcon *seatBeltIcon;
    CarDoorTipIcon *cardoorIcon;
    CarTipIcon *autoParkingIcon;
    CarTipIcon *condensateIcon;
    int showCount;
};

#endif // CARDOORDIALOG27_H
