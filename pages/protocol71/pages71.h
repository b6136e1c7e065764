#ifndef PAGES71_H
#define PAGES71_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocol 71, in the order of the stack.

class CarInfoItem71_1 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem71_1(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 71) {}
};

class CarInfoItem71_2 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem71_2(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 71) {}
};

class CarInfoItem71_3 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem71_3(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 71) {}
};

class CarInfoItem71_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

#endif // PAGES71_H
