#ifndef PAGES65_H
#define PAGES65_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocol 65, in the order of the stack.

class CarInfoItem65_1 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem65_1(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 65) {}
};

class CarInfoItem65_2 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem65_2(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 65) {}
};

class CarInfoItem65_3 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem65_3(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 65) {}
};

class CarInfoItem65_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem65_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem65_6 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem65_7 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem65_8 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem65_9 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem65_10 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem65_11 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem65_12 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem65_13 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem65_14 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

public slots:
    // Part of the page's interface; the view isn't connected to it.
    void onItemBtMiddle(QModelIndex index);
};

#endif // PAGES65_H
