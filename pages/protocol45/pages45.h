#ifndef PAGES45_H
#define PAGES45_H

#include "rowpage.h"

// The pages of the family of protocols 45, 46, 47 and 55, in the order of the stack.

class CarInfoItem45_1 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

class CarInfoItem45_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem45_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem45_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES45_H
