#ifndef PAGES96_H
#define PAGES96_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocol 96, in the order of the stack.

class CarInfoItem96_1 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem96_1(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 96) {}
};

class CarInfoItem96_2 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem96_2(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 96) {}
};

class CarInfoItem96_3 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem96_3(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 96) {}
};

class CarInfoItem96_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem96_5 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

class CarInfoItem96_6 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem96_7 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES96_H
