#include "setitemsview.h"

#include "headunitkeys.h"
#include "setitem.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

SetItemsView::SetItemsView(QString const &title, QStringList const &texts,
                           QList<unsigned char> const &values, int columns, QWidget *parent)
    : SetItemBase(parent)
    , m_selected(0)
    , m_grid(new QGridLayout)
{
    const int c = qMax(columns, 1);
    setGround(QColor(30, 30, 30, 200));

    for (int i = 0; i < texts.size(); ++i) {
        SetItem *item = new SetItem(texts.at(i), i < values.size() ? values.at(i) : 0, this);
        item->setObjectName(QStringLiteral("item%1").arg(i));
        m_items.append(item);
        m_grid->addWidget(item, i / c, i % c);
        connect(item, SIGNAL(clicked()), this, SLOT(onItemClicked()));
    }
    for (int column = 0; column < c; ++column)
        m_grid->setColumnStretch(column, 1);
    const int itemRows = (texts.size() + c - 1) / c;
    m_grid->setRowStretch(itemRows, 1);
    m_grid->setHorizontalSpacing(4);
    m_grid->setVerticalSpacing(3);
    m_grid->setContentsMargins(30, 0, 20, 0);

    QVBoxLayout *inner = new QVBoxLayout;
    inner->addSpacing(6);
    inner->addLayout(m_grid);
    inner->addStretch(1);

    // The grid's rows include the stretch row behind the last choices.
    const int rows = m_grid->rowCount();
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(makeTitleLabel(title), 1);
    layout->addLayout(inner, rows - 1);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);

    const int itemHeight = m_items.isEmpty() ? lineHeight() : m_items.first()->minimumHeight();
    setMinimumHeight(rows * (itemHeight + 6));
}

bool SetItemsView::isInFocus() const
{
    return hasFocus() || getFocusItemIndex() >= 0;
}

int SetItemsView::getFocusItemIndex() const
{
    for (int i = 0; i < m_items.size(); ++i) {
        if (m_items.at(i)->hasFocus())
            return i;
    }
    return -1;
}

void SetItemsView::setValue(unsigned char value)
{
    for (int i = 0; i < m_items.size(); ++i) {
        if (m_items.at(i)->value() == value) {
            m_items.at(i)->setSelected(true);
            return;
        }
    }
}

unsigned char SetItemsView::value() const
{
    return m_selected ? m_selected->value() : 0;
}

SetItem *SetItemsView::selectedItem() const
{
    return m_selected;
}

QList<SetItem *> SetItemsView::items() const
{
    return m_items;
}

bool SetItemsView::moveFocus(int dx, int dy, int step)
{
    const int n = m_items.size();
    // An empty grid has nothing to walk: the key is the page's.
    if (n == 0)
        return false;
    const int focus = getFocusItemIndex();
    if (focus < 0) {
        m_items.first()->setFocus();
        return true;
    }
    const int c = m_grid->columnCount();
    int r = focus / c;
    int q = focus % c;
    if (dx > 0) {
        if (q < c - 1)
            ++q;
        // At the right end of a short last row the focus stays.
        if (r * c + q >= n)
            --q;
    } else if (dx < 0) {
        if (q > 0)
            --q;
    } else if (dy > 0) {
        const int lastRow = n / c - (n % c == 0 ? 1 : 0);
        if (r >= lastRow)
            return false;
        // No choice below in a short last row.
        if (q + c + r * c >= n)
            return false;
        ++r;
    } else if (dy < 0) {
        if (r == 0)
            return false;
        --r;
    }
    int target = q + c * r;
    if (step > 0) {
        ++target;
        if (target >= n)
            return false;
    } else if (step < 0) {
        --target;
        if (target < 0)
            return false;
    }
    if (target >= 0 && target < n)
        m_items.at(target)->setFocus();
    return true;
}

void SetItemsView::onItemClicked()
{
    SetItem *item = qobject_cast<SetItem *>(sender());
    if (!item)
        return;
    item->setSelected(true);
    emit valueChanged(item->value());
}

void SetItemsView::focusInEvent(QFocusEvent *event)
{
    if (!m_items.isEmpty())
        m_items.first()->setFocus();
    event->accept();
}

void SetItemsView::keyPressEvent(QKeyEvent *event)
{
    using namespace HeadUnitKeys;
    const int key = event->key();
    if (isLeft(key)) {
        moveFocus(-1, 0, 0);
        event->accept();
    } else if (isRight(key)) {
        moveFocus(1, 0, 0);
        event->accept();
    } else if (isUp(key) || isDown(key) || isNext(key) || isPrevious(key)) {
        bool used = false;
        if (isUp(key))
            used = moveFocus(0, -1, 0);
        else if (isDown(key))
            used = moveFocus(0, 1, 0);
        else if (isNext(key))
            used = moveFocus(0, 0, 1);
        else
            used = moveFocus(0, 0, -1);
        event->setAccepted(used);
    } else if (isEnter(key)) {
        const int focus = getFocusItemIndex();
        if (focus >= 0)
            emit m_items.at(focus)->clicked();
        event->accept();
    } else {
        event->ignore();
    }
}
