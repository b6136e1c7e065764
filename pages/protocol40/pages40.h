#ifndef PAGES40_H
#define PAGES40_H

#include "rowpage.h"

// The pages of the family of protocol 40, in the order of the stack.

class CarInfoItem40_1 : public ClickRowPage
{
    Q_OBJECT
public:
    CarInfoItem40_1(QString const &title, QWidget *parent);
};

class CarInfoItem40_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem40_2(QString const &title, QWidget *parent);
};

#endif // PAGES40_H
