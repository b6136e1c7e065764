#ifndef PAGES36_H
#define PAGES36_H

#include "rowpage.h"

// The pages of the family of protocol 36, in the order of the stack.

class CarInfoItem36_1 : public ClickRowPage
{
    Q_OBJECT
public:
    CarInfoItem36_1(QString const &title, QWidget *parent);
};

class CarInfoItem36_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem36_2(QString const &title, QWidget *parent);
};

#endif // PAGES36_H
