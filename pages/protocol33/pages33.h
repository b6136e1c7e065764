#ifndef PAGES33_H
#define PAGES33_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocols 33 and 57, in the order of the stack.

class CarInfoItem33_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem33_2 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem33_2(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 33) {}
};

class CarInfoItem33_3 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem33_3(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 33) {}
};

class CarInfoItem33_4 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

class CarInfoItem33_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem33_6 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem33_6(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 33) {}
};

class CarInfoItem33_7 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

class CarInfoItem33_8 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem33_9 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;
};

#endif // PAGES33_H
