#include "listdialog.h"

#include "canobj.h"
#include "cdbutton.h"
#include "databuffer.h"
#include "frames.h"
#include "headunitkeys.h"
#include "listdelegate0.h"
#include "listmodel0.h"
#include "listview.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace {

// Where the CAN-bus module keeps the disc's list in the current protocol's
// data buffer: the number of entries on the disc, and those fetched so far.
const int TotalOffset = 56;
const int EntriesOffset = 68;

// 2E C7 05 11 a a b b: play entry a (b zero), or fetch entries a to b.
const int DiscCommand = 0xC7;
const int ListCommand = 0x11;
// One press of "Download" asks for this many entries at most.
const int EntriesPerFetch = 15;

unsigned char *currentBuffer()
{
    return CanObj::instance()->getDataPointerById(CanObj::id());
}

int entriesOnDisc()
{
    unsigned char *data = currentBuffer();
    return data ? DataBuffer(data).word(TotalOffset) : 0;
}

QList<DateInfo> entriesFetched()
{
    unsigned char *data = currentBuffer();
    return data ? DataBuffer(data).entries(EntriesOffset) : QList<DateInfo>();
}

void sendListFrame(int first, int second)
{
    Frames::send(Frames::make2E(DiscCommand, {ListCommand, first >> 8, first & 0xFF, second >> 8, second & 0xFF}));
}

} // namespace

ListDialog::ListDialog(QWidget *parent)
    : QWidget(parent)
    , m_list(0)
    , m_model(0)
    , m_button(0)
{
    setFocusPolicy(Qt::StrongFocus);

    m_list = new ListView(this);
    m_list->setObjectName(QStringLiteral("entryList"));
    m_model = new ListModel0(m_list);
    m_list->setModel(m_model);
    m_list->setItemDelegate(new ListDelegate0(m_list));
    m_list->verticalHeader()->setDefaultSectionSize(81);
    m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setSnapToRow(false);
    m_list->setScrollOutOfViewport(false);

    m_button = new CDButton(this);
    m_button->setObjectName(QStringLiteral("downloadButton"));
    m_button->setText(tr("Download"), 0.3);
    m_button->setBackgroundColor(QColor(131, 139, 131, 255), QColor(184, 135, 11, 255), QColor(92, 92, 92, 255));

    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 7);
    layout->addWidget(m_button, 1);

    connect(m_list, SIGNAL(clicked(QModelIndex)), this, SLOT(onItemClicked(QModelIndex)));
    connect(m_button, SIGNAL(clicked()), this, SLOT(onClicke()));
}

void ListDialog::setListInfo(QList<DateInfo> list)
{
    m_texts.clear();
    m_button->setProhibit(list.size() < entriesOnDisc());
    for (int i = 0; i < list.size(); ++i)
        m_texts.append(QStringLiteral("%1  ").arg(list.at(i).number) + list.at(i).name);
    m_model->setListData(m_texts);
}

QList<QString> ListDialog::entryTexts() const
{
    return m_texts;
}

void ListDialog::onItemClicked(QModelIndex index)
{
    const QList<DateInfo> entries = entriesFetched();
    const int row = index.row();
    if (row < 0 || row >= entries.size())
        return;
    sendListFrame(entries.at(row).number, 0);
}

void ListDialog::onClicke()
{
    if (sender() != m_button)
        return;
    const int shown = m_texts.size();
    const QList<DateInfo> entries = entriesFetched();
    // The last entry shown is where the next fetch starts; a list that
    // shrank below what is shown starts over.
    const int start = shown >= 1 && shown <= entries.size() ? entries.at(shown - 1).number : 0;
    const int total = entriesOnDisc();
    if (total <= start)
        return;
    sendListFrame(start, qMin(shown + EntriesPerFetch, total));
}

void ListDialog::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    event->accept();
}

void ListDialog::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void ListDialog::keyPressEvent(QKeyEvent *event)
{
    if (!HeadUnitKeys::isBack(event->key()))
        return;
    close();
    deleteLater();
    event->accept();
}

void ListDialog::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
}
