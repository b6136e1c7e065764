#include "rowpage.h"

#include "canobj.h"
#include "databuffer.h"
#include "frames.h"
#include "listdelegate2.h"
#include "listmodel1.h"
#include "tableview.h"

#include <QCoreApplication>
#include <QHash>
#include <QPair>
#include <QHeaderView>
#include <QStringList>
#include <QVBoxLayout>

RowPage::RowPage(QString const &title, QWidget *parent)
    : CarInfoItem(title, parent)
    , view(0)
    , model(0)
    , m_road(SendToCan)
    , m_showsStepAtOnce(false)
    , m_bufferId(0)
    , m_buffer(0)
{
}

QList<Row> RowPage::rowTable() const
{
    return QList<Row>();
}

bool RowPage::tableFollowsBuffer() const
{
    return false;
}

QList<Row> RowPage::tableForList() const
{
    if (tableFollowsBuffer())
        return rowTable();
    // A page's table is the same for every object of its class on the same
    // protocol: built on the first visit, shared (not copied) afterwards.
    typedef QPair<const QMetaObject *, int> TableKey;
    static QHash<TableKey, QList<Row> > tables;
    const TableKey key(metaObject(), bufferId());
    QHash<TableKey, QList<Row> >::const_iterator found = tables.constFind(key);
    if (found != tables.constEnd())
        return found.value();
    return tables.insert(key, rowTable()).value();
}

int RowPage::bufferId() const
{
    return CanObj::id();
}

DataBuffer RowPage::buffer() const
{
    const int id = bufferId();
    if (!m_buffer || id != m_bufferId) {
        m_buffer = CanObj::instance()->getDataPointerById(id);
        m_bufferId = id;
    }
    return DataBuffer(m_buffer);
}

Row const &RowPage::rowSpec(int row) const
{
    return m_rows.at(row);
}

void RowPage::createView()
{
    if (view) {
        ondataChanged();
        return;
    }
    initlist();

    view = new TableView(this);
    model = new ListModel1(view);
    model->setListData(list);
    // The rows' height before the rows: each row then has it from the
    // start, and the table paints once on its first display.
    view->verticalHeader()->setDefaultSectionSize(rowHeight);
    view->setModel(model);
    view->setItemDelegate(new ListDelegate2(this));

    QVBoxLayout *layout = new QVBoxLayout;
    layout->addWidget(view, 0);
    layout->setContentsMargins(margin, 0, margin, 0);
    setLayout(layout);

    connect(model, SIGNAL(modelReset()), this, SLOT(onModelReset()));
    connect(view, SIGNAL(itemBtClicked(QModelIndex,bool)), this, SLOT(onValueChanged(QModelIndex,bool)));
    if (const char *slot = middleSlot())
        connect(view, SIGNAL(itemBtMiddle(QModelIndex)), this, slot);
}

void RowPage::initlist()
{
    m_rows = tableForList();
    planRefresh();
    const DataBuffer data = buffer();
    const char *context = metaObject()->className();
    for (int i = 0; i < m_rows.size(); ++i) {
        Row const &row = m_rows.at(i);
        QList<QVariant> options = row.options();
        for (int o = 0; o < options.size(); ++o) {
            if (options.at(o).type() == QVariant::String)
                options[o] = QCoreApplication::translate(context, options.at(o).toString().toUtf8().constData());
        }
        const QString title = QCoreApplication::translate(context, row.title());
        const QVariant value = currentValue(i);
        if (row.hasId())
            list.append(ListData(row.rowId(), row.kind(), title, value, options, row.isAdjustable(),
                                 row.unitCode(data), row.displayFactor()));
        else
            list.append(ListData(row.kind(), title, value, options, row.isAdjustable(), row.unitCode(data),
                                 row.displayFactor()));
    }
}

QVariant RowPage::currentValue(int row) const
{
    return m_rows.at(row).value(buffer());
}

bool RowPage::hasOwnValues() const
{
    return false;
}

void RowPage::planRefresh()
{
    m_refreshPlan.fill(0, m_rows.size());
    const bool ownValues = hasOwnValues();
    for (int i = 0; i < m_rows.size(); ++i) {
        Row const &row = m_rows.at(i);
        if (!ownValues && row.hasIntValue())
            m_refreshPlan[i] |= NumberRow;
        if (row.followsUnit())
            m_refreshPlan[i] |= UnitRow;
    }
}

void RowPage::ondataChanged()
{
    if (!model)
        return;
    const DataBuffer data = buffer();
    QList<ListData> const &shown = model->getListData();
    const int rows = qMin(shown.size(), m_rows.size());
    for (int i = 0; i < rows; ++i) {
        const int mark = m_refreshPlan.at(i);
        // Most rows are numbers in bytes: compared as ints, only a row that
        // changed goes through the model.
        if (mark & NumberRow) {
            const int value = m_rows.at(i).intValue(data);
            if (shown.at(i).value != value)
                model->setData(model->index(i, 0), value, ValueRole);
        } else {
            updateRow(i, currentValue(i));
        }
        // A row that follows the car's unit switches its template.
        if (mark & UnitRow) {
            const int unit = m_rows.at(i).unitCode(data);
            if (shown.at(i).unit != unit)
                model->setData(model->index(i, 0), unit, UnitRole);
        }
    }
}

void RowPage::updateRow(int row, QVariant const &value)
{
    ListData const &shown = model->getListData().at(row);
    const bool same = shown.kind == TextKind ? shown.text == value.toString() : shown.value == value.toInt();
    if (!same)
        model->setData(model->index(row, 0), value, ValueRole);
}

void RowPage::onModelReset()
{
}

void RowPage::onValueChanged(QModelIndex index, bool leftRight)
{
    const int row = index.row();
    if (row < 0 || row >= m_rows.size())
        return;
    Row const &entry = m_rows.at(row);
    const int current = entry.startsStepFromBuffer() ? currentValue(row).toInt() : index.data(ValueRole).toInt();
    const QList<QVariant> options = list.at(row).options;
    const int value = entry.step(current, leftRight, options, buffer());
    // A text has no number to step: shown at once, it empties.
    if ((m_showsStepAtOnce || entry.showsStepImmediately()) && !entry.sendsDirection())
        model->setData(index, entry.kind() == TextKind ? QVariant(QString()) : QVariant(value), ValueRole);
    valueStepped(row, value);
}

int RowPage::rowKey(int row) const
{
    return m_rows.at(row).hasId() ? list.at(row).id : row;
}

void RowPage::valueStepped(int row, int value)
{
    Row const &entry = m_rows.at(row);
    QByteArray frame;
    if (entry.sendsGroup()) {
        // The group goes out as the buffer holds it with the new value in
        // place; the row itself moves when the car answers.
        DataBuffer data = buffer();
        entry.store(data, value);
        frame = entry.groupFrameFor(data, rowKey(row));
    } else {
        frame = entry.frameFor(rowKey(row), value);
    }
    if (!frame.isEmpty())
        sendFrame(frame);
}

void RowPage::middlePressed(int)
{
}

const char *RowPage::middleSlot() const
{
    return 0;
}

void RowPage::setSendRoad(SendRoad road)
{
    m_road = road;
}

void RowPage::setShowsStepAtOnce(bool atOnce)
{
    m_showsStepAtOnce = atOnce;
}

void RowPage::sendFrame(QByteArray const &frame)
{
    if (m_road == SendThroughSignal)
        emit sendData(Frames::sealed(frame));
    else
        Frames::send(frame);
}

void MiddleRowPage::onItemBtMiddle(QModelIndex index)
{
    middlePressed(index.row());
}

const char *MiddleRowPage::middleSlot() const
{
    return SLOT(onItemBtMiddle(QModelIndex));
}

void ClickRowPage::Onclicke(QModelIndex index)
{
    middlePressed(index.row());
}

const char *ClickRowPage::middleSlot() const
{
    return SLOT(Onclicke(QModelIndex));
}
