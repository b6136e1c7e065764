#ifndef PAGES32_H
#define PAGES32_H

#include "rowpage.h"

// The pages of the family of protocols 32 and 54, in the order of the stack.

class CarInfoItem32_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem32_1(QString const &title, QWidget *parent);
};

class CarInfoItem32_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem32_2(QString const &title, QWidget *parent);
};

class CarInfoItem32_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem32_3(QString const &title, QWidget *parent);
};

class CarInfoItem32_4 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem32_4(QString const &title, QWidget *parent);
};

class CarInfoItem32_5 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem32_5(QString const &title, QWidget *parent);
};

class CarInfoItem32_6 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem32_6(QString const &title, QWidget *parent);
};

#endif // PAGES32_H
