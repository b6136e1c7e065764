#ifndef PAGES64_H
#define PAGES64_H

#include "rowpage.h"

// The pages of the family of protocol 64, in the order of the stack.

class CarInfoItem64_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

// The voice, function and vehicle pages are those that seventeen families share.
#include "shared/triopages.h"

class CarInfoItem64_2 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem64_2(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 64) {}
};

class CarInfoItem64_3 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem64_3(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 64) {}
};

class CarInfoItem64_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;
};

// The tyre page: its reset row opens the tyre panel.
class CarInfoItem64_5 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;

signals:
    void TirePressure();

protected:
    void middlePressed(int row);
};

class CarInfoItem64_6 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem64_6(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 64) {}
};

class CarInfoItem64_7 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

class CarInfoItem64_8 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
};

#endif // PAGES64_H
