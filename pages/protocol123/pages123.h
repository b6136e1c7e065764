#ifndef PAGES123_H
#define PAGES123_H

#include "rowpage.h"

// The pages of the family of protocol 123, in the order of the stack.

class CarInfoItem123_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem123_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem123_3 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

#endif // PAGES123_H
