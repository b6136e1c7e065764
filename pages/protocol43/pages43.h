#ifndef PAGES43_H
#define PAGES43_H

#include "rowpage.h"

// The pages of the family of protocols 43 and 44, in the order of the stack.

class CarInfoItem43_1 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

class CarInfoItem43_2 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

class CarInfoItem43_3 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

#endif // PAGES43_H
