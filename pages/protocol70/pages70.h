#ifndef PAGES70_H
#define PAGES70_H

#include "rowpage.h"

// The pages of the family of protocol 70, in the order of the stack.

class CarInfoItem70_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem70_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem70_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem70_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem70_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES70_H
