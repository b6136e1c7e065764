#ifndef PAGES68_H
#define PAGES68_H

#include "rowpage.h"

// The pages of the family of protocol 68, in the order of the stack.

class CarInfoItem68_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem68_1(QString const &title, QWidget *parent);
};

class CarInfoItem68_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem68_2(QString const &title, QWidget *parent);
};

class CarInfoItem68_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem68_3(QString const &title, QWidget *parent);
};

#endif // PAGES68_H
