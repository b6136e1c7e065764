#ifndef PAGES103_H
#define PAGES103_H

#include "rowpage.h"

// The pages of the family of protocols 103 and 104, in the order of the stack.

class CarInfoItem103_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem103_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem103_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES103_H
