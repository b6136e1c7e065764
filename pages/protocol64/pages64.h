#ifndef PAGES64_H
#define PAGES64_H

#include "rowpage.h"

// The pages of the family of protocol 64, in the order of the stack.

class CarInfoItem64_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    // Charging and energy: the charging times go out as one group.
    QList<Row> rowTable() const;
    QVariant currentValue(int row) const;
    bool hasOwnValues() const { return true; }
    void valueStepped(int row, int value);
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

protected:
    // The vehicle settings, one-based in the buffer; the first row restores
    // the car's settings.
    QList<Row> rowTable() const;
    void middlePressed(int row);
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
    QList<Row> rowTable() const;
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

protected:
    // Automatic parking, with the choice of the car model.
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

// Panorama: the video switches carry the stored parking track mode.
class CarInfoItem64_8 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

#endif // PAGES64_H
