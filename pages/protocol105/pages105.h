#ifndef PAGES105_H
#define PAGES105_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocol 105, in the order of the stack.

class CarInfoItem105_1 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem105_1(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 105) {}
};

class CarInfoItem105_2 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem105_2(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 105) {}
};

class CarInfoItem105_3 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem105_3(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 105) {}
};

class CarInfoItem105_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem105_5 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem105_6 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem105_7 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem105_8 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem105_9 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

#endif // PAGES105_H
