#ifndef PAGES102_H
#define PAGES102_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocol 102, in the order of the stack.

class CarInfoItem102_1 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem102_1(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 102) {}
};

class CarInfoItem102_2 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem102_2(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 102) {}
};

class CarInfoItem102_3 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem102_3(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 102) {}
};

#endif // PAGES102_H
