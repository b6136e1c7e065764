#ifndef PAGES102_H
#define PAGES102_H

#include "rowpage.h"

// The pages of the family of protocol 102, in the order of the stack.

class CarInfoItem102_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem102_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem102_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES102_H
