#ifndef PAGES93_H
#define PAGES93_H

#include "rowpage.h"

// The pages of the family of protocol 93, in the order of the stack.

class CarInfoItem93_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES93_H
