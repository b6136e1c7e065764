#ifndef PAGES69_H
#define PAGES69_H

#include "rowpage.h"

// The pages of the family of protocol 69, in the order of the stack.

class CarInfoItem69_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem69_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem69_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem69_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem69_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem69_6 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem69_7 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

public slots:
    // This page's name for the press on the middle of a row.
    void OnitemBtMiddle(QModelIndex index);

protected:
    const char *middleSlot() const;
};

class CarInfoItem69_8 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES69_H
