#ifndef PAGES78_H
#define PAGES78_H

#include "rowpage.h"

// The pages of the family of protocol 78, in the order of the stack.

class CarInfoItem78_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem78_1(QString const &title, QWidget *parent);
};

class CarInfoItem78_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem78_2(QString const &title, QWidget *parent);
};

class CarInfoItem78_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem78_3(QString const &title, QWidget *parent);
};

class CarInfoItem78_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem78_4(QString const &title, QWidget *parent);
};

class CarInfoItem78_5 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem78_5(QString const &title, QWidget *parent);
};

#endif // PAGES78_H
