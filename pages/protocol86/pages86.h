#ifndef PAGES86_H
#define PAGES86_H

#include "rowpage.h"

// The pages of the family of protocol 86, in the order of the stack.

class CarInfoItem86_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();
};

class CarInfoItem86_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();
};

#endif // PAGES86_H
