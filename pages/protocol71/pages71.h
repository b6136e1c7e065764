#ifndef PAGES71_H
#define PAGES71_H

#include "rowpage.h"

// The pages of the family of protocol 71, in the order of the stack.

class CarInfoItem71_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem71_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem71_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem71_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

#endif // PAGES71_H
