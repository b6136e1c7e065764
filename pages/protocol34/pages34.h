#ifndef PAGES34_H
#define PAGES34_H

#include "rowpage.h"

// The pages of the family of protocol 34, in the order of the stack.

class CarInfoItem34_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem34_1(QString const &title, QWidget *parent);
};

class CarInfoItem34_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem34_2(QString const &title, QWidget *parent);
};

class CarInfoItem34_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem34_3(QString const &title, QWidget *parent);
};

#endif // PAGES34_H
