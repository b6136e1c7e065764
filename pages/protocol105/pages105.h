#ifndef PAGES105_H
#define PAGES105_H

#include "rowpage.h"

// The pages of the family of protocol 105, in the order of the stack.

class CarInfoItem105_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem105_1(QString const &title, QWidget *parent);
};

class CarInfoItem105_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem105_2(QString const &title, QWidget *parent);
};

class CarInfoItem105_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem105_3(QString const &title, QWidget *parent);
};

class CarInfoItem105_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem105_4(QString const &title, QWidget *parent);
};

class CarInfoItem105_5 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem105_5(QString const &title, QWidget *parent);
};

class CarInfoItem105_6 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem105_6(QString const &title, QWidget *parent);
};

class CarInfoItem105_7 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem105_7(QString const &title, QWidget *parent);
};

class CarInfoItem105_8 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem105_8(QString const &title, QWidget *parent);
};

class CarInfoItem105_9 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem105_9(QString const &title, QWidget *parent);
};

#endif // PAGES105_H
