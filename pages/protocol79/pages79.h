#ifndef PAGES79_H
#define PAGES79_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocol 79, in the order of the stack.

class CarInfoItem79_1 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem79_1(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 79) {}
};

class CarInfoItem79_2 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem79_2(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 79) {}
};

class CarInfoItem79_3 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem79_3(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 79) {}
};

class CarInfoItem79_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem79_5 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem79_6 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem79_7 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

#endif // PAGES79_H
