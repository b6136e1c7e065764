#ifndef PAGES82_H
#define PAGES82_H

#include "rowpage.h"

// The pages of the family of protocol 82, in the order of the stack.

class CarInfoItem82_1 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();
};

#endif // PAGES82_H
