#ifndef PAGES60_H
#define PAGES60_H

#include "rowpage.h"

// The pages of the family of protocols 60, 61 and 62, in the order of the stack.

class CarInfoItem60_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem60_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem60_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem60_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem60_5 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

class CarInfoItem60_6 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES60_H
