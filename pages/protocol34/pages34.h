#ifndef PAGES34_H
#define PAGES34_H

#include "rowpage.h"

// The pages of the family of protocol 34, in the order of the stack.

class CarInfoItem34_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem34_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem34_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES34_H
