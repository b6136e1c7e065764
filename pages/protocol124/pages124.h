#ifndef PAGES124_H
#define PAGES124_H

#include "rowpage.h"

// The pages of the family of protocol 124, in the order of the stack.

class CarInfoItem124_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem124_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

// Not a table of rows: the page's own widgets, the remote control of the disc unit,
// come in their place later. Until then the page is empty.
class CarInfoItem124_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES124_H
