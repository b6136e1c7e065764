#ifndef PAGES48_H
#define PAGES48_H

#include "rowpage.h"

// The pages of the family of protocol 48, Ford cars with SYNC, in the order
// of the stack. Every frame of this family ends in a checksum slot.

// Parking assist, the drive states and the language of the car.
class CarInfoItem48_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
};

// Radio and CD: steps go out as commands, not as values.
class CarInfoItem48_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
};

// What the SYNC system shows: read-only.
class CarInfoItem48_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

// Seat massage: the adjustment rows send a direction.
class CarInfoItem48_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
};

// The amplifier; its last row resets it from the middle strip.
class CarInfoItem48_5 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;

protected:
    QList<Row> rowTable() const;
    void middlePressed(int row);
};

// Air quality, energy and the ambient light, whose colour and brightness
// go out together.
class CarInfoItem48_6 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;
    bool tableFollowsBuffer() const;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

// The car's setting items.
class CarInfoItem48_7 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
    void initlist();
};

// Body settings and the trip read-outs.
class CarInfoItem48_8 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
};

// Tyre pressures, temperatures and alarms: read-only.
class CarInfoItem48_9 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

// SYNC's source and the car's model, configuration and compass; the
// adjustable rows move at once and write the buffer themselves.
class CarInfoItem48_10 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

#endif // PAGES48_H
