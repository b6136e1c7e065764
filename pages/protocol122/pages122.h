#ifndef PAGES122_H
#define PAGES122_H

#include "rowpage.h"

// The pages of the family of protocol 122, in the order of the stack.

class CarInfoItem122_1 : public ClickRowPage
{
    Q_OBJECT
public:
    CarInfoItem122_1(QString const &title, QWidget *parent);
};

class CarInfoItem122_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem122_2(QString const &title, QWidget *parent);
};

class CarInfoItem122_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem122_3(QString const &title, QWidget *parent);
};

class CarInfoItem122_4 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem122_4(QString const &title, QWidget *parent);
};

class CarInfoItem122_5 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem122_5(QString const &title, QWidget *parent);
};

class CarInfoItem122_6 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem122_6(QString const &title, QWidget *parent);
};

class CarInfoItem122_7 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem122_7(QString const &title, QWidget *parent);
};

class CarInfoItem122_8 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem122_8(QString const &title, QWidget *parent);
};

#endif // PAGES122_H
