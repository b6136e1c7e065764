#ifndef PAGES99_H
#define PAGES99_H

#include "rowpage.h"

// The pages of the family of protocols 99 and 100, in the order of the stack.

class CarInfoItem99_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem99_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES99_H
