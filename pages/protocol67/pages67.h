#ifndef PAGES67_H
#define PAGES67_H

#include "rowpage.h"

// The pages of the family of protocol 67, in the order of the stack.

class CarInfoItem67_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_1(QString const &title, QWidget *parent);
};

class CarInfoItem67_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_2(QString const &title, QWidget *parent);
};

class CarInfoItem67_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_3(QString const &title, QWidget *parent);
};

class CarInfoItem67_4 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_4(QString const &title, QWidget *parent);
};

class CarInfoItem67_5 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_5(QString const &title, QWidget *parent);
};

class CarInfoItem67_6 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_6(QString const &title, QWidget *parent);
};

class CarInfoItem67_7 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_7(QString const &title, QWidget *parent);
};

class CarInfoItem67_8 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem67_8(QString const &title, QWidget *parent);
};

class CarInfoItem67_9 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_9(QString const &title, QWidget *parent);
};

class CarInfoItem67_10 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_10(QString const &title, QWidget *parent);
};

class CarInfoItem67_11 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_11(QString const &title, QWidget *parent);
};

class CarInfoItem67_12 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_12(QString const &title, QWidget *parent);
};

class CarInfoItem67_13 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem67_13(QString const &title, QWidget *parent);
};

#endif // PAGES67_H
