#ifndef PAGES99_H
#define PAGES99_H

#include "rowpage.h"

// The pages of the family of protocols 99 and 100, in the order of the stack.

class CarInfoItem99_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem99_2(QString const &title, QWidget *parent);
};

class CarInfoItem99_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem99_1(QString const &title, QWidget *parent);
};

#endif // PAGES99_H
