#ifndef PAGES78_H
#define PAGES78_H

#include "rowpage.h"

// The pages of the family of protocol 78, in the order of the stack.

class CarInfoItem78_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem78_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem78_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem78_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem78_5 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

#endif // PAGES78_H
