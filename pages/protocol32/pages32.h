#ifndef PAGES32_H
#define PAGES32_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocols 32 and 54, in the order of the stack.

class CarInfoItem32_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem32_2 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem32_2(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 32) {}
};

class CarInfoItem32_3 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem32_3(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 32) {}
};

class CarInfoItem32_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem32_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem32_6 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem32_6(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 32) {}
};

#endif // PAGES32_H
