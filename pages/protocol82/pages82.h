#ifndef PAGES82_H
#define PAGES82_H

#include "rowpage.h"

// The pages of the family of protocol 82, in the order of the stack.

class CarInfoItem82_1 : public ClickRowPage
{
    Q_OBJECT
public:
    CarInfoItem82_1(QString const &title, QWidget *parent);

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();
};

#endif // PAGES82_H
