#ifndef PAGES66_H
#define PAGES66_H

#include "rowpage.h"

// The pages of the family of protocol 66, in the order of the stack.

class CarInfoItem66_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();
};

#endif // PAGES66_H
