#ifndef PAGES32_H
#define PAGES32_H

#include "rowpage.h"

// The pages of the family of protocols 32 and 54, in the order of the stack.

class CarInfoItem32_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem32_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem32_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem32_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem32_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem32_6 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES32_H
