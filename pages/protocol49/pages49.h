#ifndef PAGES49_H
#define PAGES49_H

#include "rowpage.h"

// The pages of the family of protocol 49, in the order of the stack.

class CarInfoItem49_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem49_1(QString const &title, QWidget *parent);
};

class CarInfoItem49_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem49_2(QString const &title, QWidget *parent);
};

class CarInfoItem49_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem49_3(QString const &title, QWidget *parent);
};

class CarInfoItem49_4 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem49_4(QString const &title, QWidget *parent);
};

class CarInfoItem49_5 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem49_5(QString const &title, QWidget *parent);
};

class CarInfoItem49_6 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem49_6(QString const &title, QWidget *parent);
};

class CarInfoItem49_7 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem49_7(QString const &title, QWidget *parent);
};

#endif // PAGES49_H
