#ifndef PAGES60_H
#define PAGES60_H

#include "rowpage.h"

// The pages of the family of protocols 60, 61 and 62, in the order of the stack.

class CarInfoItem60_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem60_1(QString const &title, QWidget *parent);
};

class CarInfoItem60_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem60_2(QString const &title, QWidget *parent);
};

class CarInfoItem60_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem60_3(QString const &title, QWidget *parent);
};

class CarInfoItem60_4 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem60_4(QString const &title, QWidget *parent);
};

class CarInfoItem60_5 : public ClickRowPage
{
    Q_OBJECT
public:
    CarInfoItem60_5(QString const &title, QWidget *parent);
};

class CarInfoItem60_6 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem60_6(QString const &title, QWidget *parent);
};

#endif // PAGES60_H
