#ifndef CARDOORDIALOG27_H
#define CARDOORDIALOG27_H

#include "cardoordialogbase.h"

class CustomImageWidget;

// The warning that the car is not ready to drive: a dimmed full-size layer
// with the warning panel in its centre. Any press hides it; the next warning
// record brings it back.
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
    CarbodyData carbodyData;
    // The panel that holds the warning icons.
    CustomImageWidget *background;
};

#endif // CARDOORDIALOG27_H
