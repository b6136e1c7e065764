#ifndef PAGES70_H
#define PAGES70_H

#include "rowpage.h"

// The pages of the family of protocol 70, in the order of the stack.

class CarInfoItem70_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem70_1(QString const &title, QWidget *parent);
};

class CarInfoItem70_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem70_2(QString const &title, QWidget *parent);
};

class CarInfoItem70_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem70_3(QString const &title, QWidget *parent);
};

class CarInfoItem70_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem70_4(QString const &title, QWidget *parent);
};

class CarInfoItem70_5 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem70_5(QString const &title, QWidget *parent);
};

#endif // PAGES70_H
