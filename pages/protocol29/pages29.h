#ifndef PAGES29_H
#define PAGES29_H

#include "rowpage.h"

// The pages of the family of protocol 29, in the order of the stack.

class CarInfoItem29_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem29_1(QString const &title, QWidget *parent);
};

class CarInfoItem29_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem29_2(QString const &title, QWidget *parent);
};

class CarInfoItem29_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem29_3(QString const &title, QWidget *parent);
};

#endif // PAGES29_H
