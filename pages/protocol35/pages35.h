#ifndef PAGES35_H
#define PAGES35_H

#include "rowpage.h"

// The pages of the family of protocol 35, in the order of the stack.

class CarInfoItem35_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem35_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES35_H
