#ifndef PAGES31_H
#define PAGES31_H

#include "rowpage.h"

// The pages of the family of protocols 31 and 53, in the order of the stack.

class CarInfoItem31_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem31_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

// The tyre page: its reset row opens the tyre panel.
class CarInfoItem31_3 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;

signals:
    void TirePressure();

protected:
    void middlePressed(int row);
};

class CarInfoItem31_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem31_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem31_6 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES31_H
