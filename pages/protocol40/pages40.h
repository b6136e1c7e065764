#ifndef PAGES40_H
#define PAGES40_H

#include "rowpage.h"

// The pages of the family of protocol 40, in the order of the stack.

class CarInfoItem40_1 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

class CarInfoItem40_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES40_H
