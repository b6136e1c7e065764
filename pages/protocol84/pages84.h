#ifndef PAGES84_H
#define PAGES84_H

#include "rowpage.h"

// The pages of the family of protocol 84, in the order of the stack.

class CarInfoItem84_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();
};

#endif // PAGES84_H
