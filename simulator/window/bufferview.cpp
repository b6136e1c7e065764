#include "bufferview.h"

#include "canobj.h"
#include "hostsim.h"
#include "hoststate.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QHeaderView>
#include <QLabel>
#include <QStyle>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr int BytesPerRow = 16;
// How often the view looks for changes that the plug-in made.
constexpr int RefreshMs = 500;

} // namespace

BufferModel::BufferModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

unsigned char *BufferModel::buffer() const
{
    return HostSim::buffer(CanObj::id()).data();
}

int BufferModel::rowCount(QModelIndex const &parent) const
{
    return parent.isValid() ? 0 : HostSim::BufferSize / BytesPerRow;
}

int BufferModel::columnCount(QModelIndex const &parent) const
{
    return parent.isValid() ? 0 : BytesPerRow;
}

QVariant BufferModel::data(QModelIndex const &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const int offset = index.row() * BytesPerRow + index.column();
    const quint8 byte = buffer()[offset];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return QStringLiteral("%1").arg(byte, 2, 16, QLatin1Char('0')).toUpper();
    case Qt::ToolTipRole:
        return tr("offset %1: %2").arg(offset).arg(byte);
    case Qt::ForegroundRole:
        return byte ? QVariant() : QVariant(QColor(150, 150, 150));
    case Qt::TextAlignmentRole:
        return Qt::AlignCenter;
    default:
        return QVariant();
    }
}

bool BufferModel::setData(QModelIndex const &index, QVariant const &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    QString text = value.toString().trimmed();
    if (text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        text.remove(0, 2);
    bool ok = false;
    const int byte = text.toInt(&ok, 16);
    if (!ok || byte < 0 || byte > 255 || text.size() > 2)
        return false;
    buffer()[index.row() * BytesPerRow + index.column()] = quint8(byte);
    emit dataChanged(index, index);
    HostSim::notifyDataChanged();
    return true;
}

Qt::ItemFlags BufferModel::flags(QModelIndex const &index) const
{
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

QVariant BufferModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QVariant();
    if (orientation == Qt::Horizontal)
        return QStringLiteral("%1").arg(section, 0, 16).toUpper();
    return QString::number(section * BytesPerRow);
}

void BufferModel::refresh()
{
    emit dataChanged(index(0, 0), index(rowCount() - 1, BytesPerRow - 1));
}

BufferView::BufferView(QWidget *parent)
    : QWidget(parent)
    , m_model(new BufferModel(this))
    , m_table(new QTableView(this))
    , m_title(new QLabel(this))
{
    m_table->setObjectName(QStringLiteral("bufferTable"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(m_title);
    layout->addWidget(m_table);
    m_table->setModel(m_model);
    // Sixteen columns as narrow as two hex digits, so that a row fits beside
    // the screen.
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_table->setFont(fixed);
    const int textMargin = 2 * (m_table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_table) + 1);
    const int cellWidth = QFontMetrics(fixed).horizontalAdvance(QStringLiteral("00")) + textMargin;
    m_table->setTextElideMode(Qt::ElideNone);
    m_table->horizontalHeader()->setMinimumSectionSize(cellWidth);
    m_table->horizontalHeader()->setDefaultSectionSize(cellWidth);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                             | QAbstractItemView::AnyKeyPressed);
    m_title->setWordWrap(true);
    startTimer(RefreshMs);
}

void BufferView::timerEvent(QTimerEvent *)
{
    m_title->setText(tr("Data buffer of protocol %1 (decimal offsets at the left). "
                        "A byte typed in notifies dataChanged().").arg(CanObj::id()));
    if (isVisible())
        m_model->refresh();
}
