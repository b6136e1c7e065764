#ifndef PAGES30_H
#define PAGES30_H

#include "rowpage.h"

// The pages of the family of protocols 30, 50 and 51, in the order of the
// stack. All of them read the buffer of the selected protocol id.

// Tyre pressures from the climate record, the tyre system's states and two
// hybrid texts. Read-only.
class CarInfoItem30_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

// Which energy paths of the hybrid drive are active, and the battery level.
// Read-only.
class CarInfoItem30_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
};

// The vehicle settings. The decoder box doesn't report the panorama, compass
// and model rows, so the page keeps them in the buffer itself; every step
// shows at once, after its frame went out. The model selection is saved in
// the head unit's store.
class CarInfoItem30_3 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
    void middlePressed(int row);
};

// The amplifier: every step goes out as 2E 84 02 sub value; the rows move
// when the car answers.
class CarInfoItem30_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
};

// The body settings: every step goes out as 2E 83 02 sub value; the rows
// move when the car answers.
class CarInfoItem30_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
};

// Fuel consumption of the current trip and the last five. Read-only.
class CarInfoItem30_6 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

// Trip texts and the electric back door. Read-only.
class CarInfoItem30_7 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

// Fuel consumption minute by minute, the last fifteen. Read-only.
class CarInfoItem30_8 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

// Disc changer, ceiling screen, radio and player. Only the ceiling screen's
// power and lock can be set; the rows move when the car answers.
class CarInfoItem30_9 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
    void initlist();
    QVariant currentValue(int row) const;
    bool hasOwnValues() const { return true; }
};

#endif // PAGES30_H
