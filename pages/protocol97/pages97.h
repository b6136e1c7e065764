#ifndef PAGES97_H
#define PAGES97_H

#include "rowpage.h"
#include "shared/triopages.h"

// The pages of the family of protocol 97, in the order of the stack.

class CarInfoItem97_1 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem97_1(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 97) {}
};

class CarInfoItem97_2 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem97_2(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 97) {}
};

class CarInfoItem97_3 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem97_3(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 97) {}
};

class CarInfoItem97_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem97_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem97_6 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

class CarInfoItem97_7 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

#endif // PAGES97_H
