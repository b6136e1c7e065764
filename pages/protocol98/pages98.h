#ifndef PAGES98_H
#define PAGES98_H

#include "rowpage.h"

// The pages of the family of protocol 98, in the order of the stack.

class CarInfoItem98_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem98_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem98_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES98_H
