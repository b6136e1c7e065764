#ifndef PAGES72_H
#define PAGES72_H

#include "rowpage.h"

// The pages of the family of protocol 72, in the order of the stack.

// The voice, function and vehicle pages are those that seventeen families share.
#include "shared/triopages.h"

class CarInfoItem72_1 : public VoiceFeedbackPage
{
    Q_OBJECT
public:
    CarInfoItem72_1(QString const &title, QWidget *parent) : VoiceFeedbackPage(title, parent, 72) {}
};

class CarInfoItem72_2 : public FunctionRecognitionPage
{
    Q_OBJECT
public:
    CarInfoItem72_2(QString const &title, QWidget *parent) : FunctionRecognitionPage(title, parent, 72) {}
};

class CarInfoItem72_3 : public VehicleInformationPage
{
    Q_OBJECT
public:
    CarInfoItem72_3(QString const &title, QWidget *parent) : VehicleInformationPage(title, parent, 72) {}
};

class CarInfoItem72_4 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;

protected:
    // The electric consumption by distance: one row per 5 km, made in a loop.
    QList<Row> rowTable() const;
    void initlist();
    QVariant currentValue(int row) const;
    bool hasOwnValues() const { return true; }
};

class CarInfoItem72_5 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;

protected:
    // The fuel consumption by distance, laid out as 72_4.
    QList<Row> rowTable() const;
    void initlist();
    QVariant currentValue(int row) const;
    bool hasOwnValues() const { return true; }
};

class CarInfoItem72_6 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;

protected:
    QList<Row> rowTable() const;
};

// Driving mode: the three custom states share one byte of the frame.
class CarInfoItem72_7 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

// The tyre page: its reset row opens the tyre panel.
class CarInfoItem72_8 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;

signals:
    void TirePressure();

protected:
    QList<Row> rowTable() const;
    void middlePressed(int row);
};

// Panorama: the camera steps differently in the 2D and the 3D view.
class CarInfoItem72_9 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;

protected:
    QList<Row> rowTable() const;
};

class CarInfoItem72_10 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;

protected:
    QList<Row> rowTable() const;
};

class CarInfoItem72_11 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;

protected:
    QList<Row> rowTable() const;
};

class CarInfoItem72_12 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;

protected:
    QList<Row> rowTable() const;
};

// Locks and lights: the lamp rows share one value of the frame, a bit each.
class CarInfoItem72_13 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

class CarInfoItem72_14 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

// Body information, with the choice of the car model.
class CarInfoItem72_15 : public MiddleRowPage
{
    Q_OBJECT
public:
    using MiddleRowPage::MiddleRowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

#endif // PAGES72_H
