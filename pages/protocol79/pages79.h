#ifndef PAGES79_H
#define PAGES79_H

#include "rowpage.h"

// The pages of the family of protocol 79, in the order of the stack.

class CarInfoItem79_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem79_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem79_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem79_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem79_5 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem79_6 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem79_7 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

#endif // PAGES79_H
