#ifndef PAGES29_H
#define PAGES29_H

#include "rowpage.h"

// The pages of the family of protocol 29, in the order of the stack.

class CarInfoItem29_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem29_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem29_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES29_H
