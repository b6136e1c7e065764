#ifndef PAGES56_H
#define PAGES56_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocol 56, in the order of the stack.

class CarInfoItem56_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem56_2 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem56_2(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 56) {}
};

class CarInfoItem56_3 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem56_3(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 56) {}
};

class CarInfoItem56_6 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem56_6(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 56) {}
};

#endif // PAGES56_H
