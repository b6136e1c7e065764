#ifndef PAGES37_H
#define PAGES37_H

#include "rowpage.h"

// The pages of the family of protocols 37, 38 and 39, in the order of the stack.

class CarInfoItem37_1 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

class CarInfoItem37_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem37_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem37_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem37_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem37_6 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

// Not a table of rows: the page's own widgets, the keys of the car's own panel,
// come in their place later. Until then the page is empty.
class CarInfoItem37_7 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem37_8 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

// Not a table of rows: the page's own widgets, the OnStar telephone keypad,
// come in their place later. Until then the page is empty.
class CarInfoItem37_9 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES37_H
