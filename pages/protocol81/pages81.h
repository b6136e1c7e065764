#ifndef PAGES81_H
#define PAGES81_H

#include "rowpage.h"

// The pages of the family of protocols 81 and 85, in the order of the stack.

class CarInfoItem81_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();
};

#endif // PAGES81_H
