#ifndef PAGES68_H
#define PAGES68_H

#include "rowpage.h"

// The pages of the family of protocol 68, in the order of the stack.

class CarInfoItem68_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem68_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem68_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES68_H
