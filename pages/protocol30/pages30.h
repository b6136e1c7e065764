#ifndef PAGES30_H
#define PAGES30_H

#include "rowpage.h"

// The pages of the family of protocols 30, 50 and 51, in the order of the stack.

class CarInfoItem30_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem30_1(QString const &title, QWidget *parent);
};

class CarInfoItem30_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem30_2(QString const &title, QWidget *parent);
};

class CarInfoItem30_3 : public ClickRowPage
{
    Q_OBJECT
public:
    CarInfoItem30_3(QString const &title, QWidget *parent);
};

class CarInfoItem30_4 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem30_4(QString const &title, QWidget *parent);
};

class CarInfoItem30_5 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem30_5(QString const &title, QWidget *parent);
};

class CarInfoItem30_6 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem30_6(QString const &title, QWidget *parent);
};

class CarInfoItem30_7 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem30_7(QString const &title, QWidget *parent);
};

class CarInfoItem30_8 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem30_8(QString const &title, QWidget *parent);
};

class CarInfoItem30_9 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem30_9(QString const &title, QWidget *parent);
};

#endif // PAGES30_H
