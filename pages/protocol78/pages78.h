#ifndef PAGES78_H
#define PAGES78_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocol 78, in the order of the stack.

class CarInfoItem78_1 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem78_1(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 78) {}
};

class CarInfoItem78_2 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem78_2(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 78) {}
};

class CarInfoItem78_3 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem78_3(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 78) {}
};

class CarInfoItem78_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem78_5 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

#endif // PAGES78_H
