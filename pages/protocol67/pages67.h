#ifndef PAGES67_H
#define PAGES67_H

#include "rowpage.h"

// The pages of the family of protocol 67, in the order of the stack.

// The voice, function and vehicle pages are those that seventeen families share.
#include "shared/triopages.h"

class CarInfoItem67_1 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem67_1(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 67) {}
};

class CarInfoItem67_2 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem67_2(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 67) {}
};

class CarInfoItem67_3 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem67_3(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 67) {}
};

// The pages of the family's own, each in its files.
#include "carinfoitem67_4.h"
#include "carinfoitem67_5.h"
#include "carinfoitem67_6.h"
#include "carinfoitem67_7.h"
#include "carinfoitem67_8.h"
#include "carinfoitem67_9.h"
#include "carinfoitem67_10.h"
#include "carinfoitem67_11.h"
#include "carinfoitem67_12.h"
#include "carinfoitem67_13.h"

#endif // PAGES67_H
