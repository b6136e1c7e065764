#ifndef PAGES94_H
#define PAGES94_H

#include "rowpage.h"

// The pages of the family of protocols 94 and 95, in the order of the stack.

class CarInfoItem94_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES94_H
