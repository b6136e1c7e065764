#ifndef PAGES88_H
#define PAGES88_H

#include "rowpage.h"

// The pages of the family of protocols 88, 89, 90, 91 and 92, in the order of the stack.

class CarInfoItem88_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();
};

class CarInfoItem88_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem88_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem88_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem88_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem88_6 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem88_7 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem88_8 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES88_H
