#ifndef PAGES70_H
#define PAGES70_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocol 70, in the order of the stack.

class CarInfoItem70_1 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem70_1(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 70) {}
};

class CarInfoItem70_2 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem70_2(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 70) {}
};

class CarInfoItem70_3 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem70_3(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 70) {}
};

class CarInfoItem70_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem70_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES70_H
