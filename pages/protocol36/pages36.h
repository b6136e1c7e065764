#ifndef PAGES36_H
#define PAGES36_H

#include "rowpage.h"

// The pages of the family of protocol 36, in the order of the stack.

class CarInfoItem36_1 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

class CarInfoItem36_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES36_H
