#include "setitembase.h"

#include "appframework.h"

#include <QLabel>

SetItemBase::SetItemBase(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

int SetItemBase::lineHeight()
{
    return zorvappframework::UIManager::getSystemViewRect().height() / 17;
}

QLabel *SetItemBase::makeTitleLabel(QString const &title)
{
    QLabel *label = new QLabel(title, this);
    label->setObjectName(QStringLiteral("titleLabel"));
    label->setStyleSheet(QStringLiteral(
        "QLabel{background-color:rgb(25,25,25);color:white;font:18px;padding-left:8px;padding-right:8px;}"));
    return label;
}

void SetItemBase::setGround(QColor const &colour)
{
    QPalette p = palette();
    p.setColor(QPalette::Window, colour);
    setPalette(p);
    setAutoFillBackground(true);
}
