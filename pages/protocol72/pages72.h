#ifndef PAGES72_H
#define PAGES72_H

#include "rowpage.h"

// The pages of the family of protocol 72, in the order of the stack.

class CarInfoItem72_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem72_1(QString const &title, QWidget *parent);
};

class CarInfoItem72_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem72_2(QString const &title, QWidget *parent);
};

class CarInfoItem72_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem72_3(QString const &title, QWidget *parent);
};

class CarInfoItem72_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem72_4(QString const &title, QWidget *parent);
};

class CarInfoItem72_5 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem72_5(QString const &title, QWidget *parent);
};

class CarInfoItem72_6 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem72_6(QString const &title, QWidget *parent);
};

class CarInfoItem72_7 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem72_7(QString const &title, QWidget *parent);
};

// The tyre page: its reset row opens the tyre panel.
class CarInfoItem72_8 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem72_8(QString const &title, QWidget *parent);

signals:
    void TirePressure();

protected:
    void middlePressed(int row);
};

class CarInfoItem72_9 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem72_9(QString const &title, QWidget *parent);
};

class CarInfoItem72_10 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem72_10(QString const &title, QWidget *parent);
};

class CarInfoItem72_11 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem72_11(QString const &title, QWidget *parent);
};

class CarInfoItem72_12 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem72_12(QString const &title, QWidget *parent);
};

class CarInfoItem72_13 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem72_13(QString const &title, QWidget *parent);
};

class CarInfoItem72_14 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem72_14(QString const &title, QWidget *parent);
};

class CarInfoItem72_15 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem72_15(QString const &title, QWidget *parent);
};

#endif // PAGES72_H
