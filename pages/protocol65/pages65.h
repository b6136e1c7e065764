#ifndef PAGES65_H
#define PAGES65_H

#include "rowpage.h"

// The pages of the family of protocol 65, in the order of the stack.

class CarInfoItem65_1 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem65_1(QString const &title, QWidget *parent);
};

class CarInfoItem65_2 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem65_2(QString const &title, QWidget *parent);
};

class CarInfoItem65_3 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem65_3(QString const &title, QWidget *parent);
};

class CarInfoItem65_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem65_4(QString const &title, QWidget *parent);
};

class CarInfoItem65_5 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem65_5(QString const &title, QWidget *parent);
};

class CarInfoItem65_6 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem65_6(QString const &title, QWidget *parent);
};

class CarInfoItem65_7 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem65_7(QString const &title, QWidget *parent);
};

class CarInfoItem65_8 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem65_8(QString const &title, QWidget *parent);
};

class CarInfoItem65_9 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem65_9(QString const &title, QWidget *parent);
};

class CarInfoItem65_10 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem65_10(QString const &title, QWidget *parent);
};

class CarInfoItem65_11 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem65_11(QString const &title, QWidget *parent);
};

class CarInfoItem65_12 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem65_12(QString const &title, QWidget *parent);
};

class CarInfoItem65_13 : public MiddleRowPage
{
    Q_OBJECT
public:
    CarInfoItem65_13(QString const &title, QWidget *parent);
};

class CarInfoItem65_14 : public RowPage
{
    Q_OBJECT
public:
    CarInfoItem65_14(QString const &title, QWidget *parent);

public slots:
    // Part of the page's interface; the view isn't connected to it.
    void onItemBtMiddle(QModelIndex index);
};

#endif // PAGES65_H
