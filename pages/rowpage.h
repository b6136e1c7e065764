#ifndef ROWPAGE_H
#define ROWPAGE_H

#include "carinfoitem.h"
#include "listdata.h"
#include "row.h"

#include <QList>
#include <QModelIndex>
#include <QVector>

class DataBuffer;
class ListModel1;
class TableView;

// The common page: a table of rows over the protocol's data buffer. The
// page's class gives its rows (rowTable()) and, where it has them, its own
// rules; this class builds the view on first display, follows the buffer,
// and turns a step on a row into a frame to the decoder box.
class RowPage : public CarInfoItem
{
    Q_OBJECT
public:
    RowPage(QString const &title, QWidget *parent);

    void createView();
    void ondataChanged();

    // The rows of the table as the first display built them (none before),
    // and the protocol whose buffer the page reads: for tools that list
    // what the pages show and send.
    QList<Row> const &rows() const { return m_rows; }
    int dataBufferId() const { return bufferId(); }
    // The table as the buffer makes it now, without building the list: for
    // tools that list what any car could show.
    QList<Row> currentRowTable() const { return rowTable(); }
    // Whether the table changes with the buffer (options that follow the
    // car's model, say): such a table is built anew for each list; other
    // pages build theirs once per class and protocol and share it.
    virtual bool tableFollowsBuffer() const;

public slots:
    void onModelReset();
    // leftRight is true for the left arrow (a step down).
    void onValueChanged(QModelIndex index, bool leftRight);

protected:
    // How frames leave the page: straight to the CAN bus, or through the
    // page's sendData() signal, which the stack passes on.
    enum SendRoad { SendToCan, SendThroughSignal };

    // The rows, in the order on screen. A page without a table has no rows.
    virtual QList<Row> rowTable() const;
    // The protocol whose buffer the page reads: the selected one, unless a
    // page reads a fixed family's buffer.
    virtual int bufferId() const;

    // Builds list from the table and the buffer. A page with rows of its own
    // making appends them here.
    virtual void initlist();
    // The value of row i now, as initlist() reads it. A page that overrides
    // it answers true from hasOwnValues(); the refresh of other pages reads
    // the numbers of their rows straight from the buffer.
    virtual QVariant currentValue(int row) const;
    virtual bool hasOwnValues() const;
    // A step on row landed on value: the default builds the row's frame and
    // sends it; a row that sends its group writes the value into the buffer
    // first and packs the frame from there. Pages with other needs override it.
    virtual void valueStepped(int row, int value);
    // A press on the middle of a row; the middle-strip slots lead here.
    virtual void middlePressed(int row);
    // The slot that the view's itemBtMiddle() reaches, or null for none.
    virtual const char *middleSlot() const;

    void setSendRoad(SendRoad road);
    // When set, a step writes the stepped value into the row at once,
    // before the frame goes out, instead of waiting for the car's answer.
    // Rows that send a direction never move by themselves.
    void setShowsStepAtOnce(bool atOnce);

    // Sends a frame by the page's road.
    void sendFrame(QByteArray const &frame);
    DataBuffer buffer() const;
    // The row of the table at this index.
    Row const &rowSpec(int row) const;
    // The key by which a row's frame is chosen: its id or its index.
    int rowKey(int row) const;
    // Writes value into row i of the model (role 396) if it differs.
    void updateRow(int row, QVariant const &value);

    TableView *view;
    ListModel1 *model;
    QList<ListData> list;

private:
    // Sorts the rows for the refresh, once per table.
    void planRefresh();
    // The table for initlist(): the class's shared one, or a new one.
    QList<Row> tableForList() const;

    QList<Row> m_rows;
    // The refresh's plan, a mark per row: NumberRow for a number from a
    // byte or a 16-bit value, compared as ints (other rows are read through
    // currentValue()); UnitRow for a row that follows the car's unit.
    enum RefreshMark { NumberRow = 1, UnitRow = 2 };
    QVector<quint8> m_refreshPlan;
    SendRoad m_road;
    bool m_showsStepAtOnce;
    // The buffer of m_bufferId: the module keeps each protocol's buffer at
    // one address for as long as it runs, so a page looks it up once per id
    // instead of once per row.
    mutable int m_bufferId;
    mutable unsigned char *m_buffer;
};

// Pages whose rows are buttons in their middle strip, under the two slot
// names that the pages use.
class MiddleRowPage : public RowPage
{
    Q_OBJECT
public:
    MiddleRowPage(QString const &title, QWidget *parent) : RowPage(title, parent) {}

public slots:
    void onItemBtMiddle(QModelIndex index);

protected:
    const char *middleSlot() const;
};

class ClickRowPage : public RowPage
{
    Q_OBJECT
public:
    ClickRowPage(QString const &title, QWidget *parent) : RowPage(title, parent) {}

public slots:
    void Onclicke(QModelIndex index);

protected:
    const char *middleSlot() const;
};

#endif // ROWPAGE_H
