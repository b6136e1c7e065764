#ifndef PAGES105_H
#define PAGES105_H

#include "rowpage.h"

// The pages of the family of protocol 105, in the order of the stack.

class CarInfoItem105_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem105_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem105_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem105_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem105_5 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem105_6 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem105_7 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem105_8 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem105_9 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

#endif // PAGES105_H
