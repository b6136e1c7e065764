#ifndef PAGES87_H
#define PAGES87_H

#include "rowpage.h"

// The pages of the family of protocol 87, in the order of the stack. Their
// frames are of the 0xFD family with one checksum byte; rows carry ids and
// frames are chosen by id.

// The amplifier: one frame for the whole page, packed from the buffer.
class CarInfoItem87_1 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();

protected:
    QList<Row> rowTable() const;
};

// The trip computer: text rows, and the settings that go out in one flag frame.
class CarInfoItem87_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();

protected:
    QList<Row> rowTable() const;
};

// The body settings; the car model and its configuration are also saved for the head unit.
class CarInfoItem87_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();

protected:
    QList<Row> rowTable() const;
    // Saves the car model and the configuration before the frame goes out.
    void valueStepped(int row, int value);
};

// The climate preset: the switch, the days and the time in one frame.
class CarInfoItem87_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();

protected:
    QList<Row> rowTable() const;
};

// The car's status and its settings, one sub-command per row.
class CarInfoItem87_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();

protected:
    QList<Row> rowTable() const;
};

// The memory speeds, sent as one frame for the whole page.
class CarInfoItem87_6 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();

protected:
    QList<Row> rowTable() const;
};

// The cruising speeds and the speed limits, each sent as a group of six.
class CarInfoItem87_7 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();

protected:
    QList<Row> rowTable() const;
};

// Further settings, one sub-command per row.
class CarInfoItem87_8 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();

protected:
    QList<Row> rowTable() const;
};

// The hybrid energy flow, read-only.
class CarInfoItem87_9 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();

protected:
    QList<Row> rowTable() const;
};

// The hybrid statistics and the grids of its graphs, read-only.
class CarInfoItem87_10 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();

protected:
    QList<Row> rowTable() const;
};

// The charging time and the energy reserve.
class CarInfoItem87_11 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

signals:
    // Part of the page's interface; nothing listens to it.
    void TirePressure();

protected:
    QList<Row> rowTable() const;
};

#endif // PAGES87_H
