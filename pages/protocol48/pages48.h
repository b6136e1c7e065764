#ifndef PAGES48_H
#define PAGES48_H

#include "rowpage.h"

// The pages of the family of protocol 48, in the order of the stack.

class CarInfoItem48_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem48_1(QString const &title, QWidget *parent);
};

class CarInfoItem48_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem48_2(QString const &title, QWidget *parent);
};

class CarInfoItem48_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem48_3(QString const &title, QWidget *parent);
};

class CarInfoItem48_4 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem48_4(QString const &title, QWidget *parent);
};

class CarInfoItem48_5 : public ClickRowPage
{
    Q_OBJECT
public:
    CarInfoItem48_5(QString const &title, QWidget *parent);
};

class CarInfoItem48_6 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem48_6(QString const &title, QWidget *parent);
};

class CarInfoItem48_7 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem48_7(QString const &title, QWidget *parent);
};

class CarInfoItem48_8 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem48_8(QString const &title, QWidget *parent);
};

class CarInfoItem48_9 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem48_9(QString const &title, QWidget *parent);
};

class CarInfoItem48_10 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem48_10(QString const &title, QWidget *parent);
};

#endif // PAGES48_H
