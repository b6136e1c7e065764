#ifndef PAGES123_H
#define PAGES123_H

#include "rowpage.h"

// The pages of the family of protocol 123, in the order of the stack.

class CarInfoItem123_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem123_1(QString const &title, QWidget *parent);
};

class CarInfoItem123_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem123_2(QString const &title, QWidget *parent);
};

class CarInfoItem123_3 : public ClickRowPage
{
    Q_OBJECT
public:
    CarInfoItem123_3(QString const &title, QWidget *parent);
};

#endif // PAGES123_H
