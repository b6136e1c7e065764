#ifndef PAGES122_H
#define PAGES122_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocol 122, in the order of the stack.

class CarInfoItem122_1 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

class CarInfoItem122_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem122_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem122_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem122_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem122_6 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem122_6(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 122) {}
};

class CarInfoItem122_7 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem122_7(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 122) {}
};

class CarInfoItem122_8 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem122_8(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 122) {}
};

#endif // PAGES122_H
