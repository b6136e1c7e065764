#ifndef PAGES80_H
#define PAGES80_H

#include "rowpage.h"

// The pages of the family of protocol 80, in the order of the stack.

class CarInfoItem80_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();
};

class CarInfoItem80_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();
};

#endif // PAGES80_H
