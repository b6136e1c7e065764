#ifndef PAGES74_H
#define PAGES74_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocols 74, 75, 76, 77 and 101, in the order of the stack.

class CarInfoItem74_1 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem74_1(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 74) {}
};

class CarInfoItem74_2 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem74_2(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 74) {}
};

class CarInfoItem74_3 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem74_3(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 74) {}
};

class CarInfoItem74_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem74_5 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem74_6 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem74_7 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem74_8 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

#endif // PAGES74_H
