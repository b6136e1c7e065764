#ifndef PAGES45_H
#define PAGES45_H

#include "rowpage.h"

// The pages of the family of protocols 45, 46, 47 and 55, in the order of the stack.

class CarInfoItem45_1 : public ClickRowPage
{
    Q_OBJECT
public:
    CarInfoItem45_1(QString const &title, QWidget *parent);
};

class CarInfoItem45_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem45_2(QString const &title, QWidget *parent);
};

class CarInfoItem45_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem45_3(QString const &title, QWidget *parent);
};

class CarInfoItem45_4 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem45_4(QString const &title, QWidget *parent);
};

#endif // PAGES45_H
