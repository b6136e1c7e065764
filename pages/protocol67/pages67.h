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

class CarInfoItem67_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem67_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem67_6 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem67_7 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem67_8 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem67_9 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem67_10 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem67_11 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem67_12 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem67_13 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES67_H
