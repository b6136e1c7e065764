#ifndef PAGES98_H
#define PAGES98_H

#include "rowpage.h"

// The pages of the family of protocol 98, in the order of the stack.

class CarInfoItem98_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem98_1(QString const &title, QWidget *parent);
};

class CarInfoItem98_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem98_2(QString const &title, QWidget *parent);
};

class CarInfoItem98_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem98_3(QString const &title, QWidget *parent);
};

#endif // PAGES98_H
