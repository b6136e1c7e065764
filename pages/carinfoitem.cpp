#include "carinfoitem.h"

#include "appframework.h"

#include <QTimer>

CarInfoItem::CarInfoItem(QString const &title, QWidget *parent)
    : QWidget(parent)
    , title(title)
    , margin(0)
    , rowHeight(81)
{
    const QRect systemBar = zorvappframework::UIManager::getSystemBarRect(0, 0);
    margin = (systemBar.bottom() - systemBar.top() + 1) / 2;
}

bool CarInfoItem::doBackEvent()
{
    return false;
}

void CarInfoItem::ondataChanged()
{
}

void CarInfoItem::refreshDataFromCanbus()
{
}

void CarInfoItem::refreshLater()
{
    QTimer::singleShot(100, this, SLOT(refreshDataFromCanbus()));
}

QString CarInfoItem::getTitle() const
{
    return title;
}
