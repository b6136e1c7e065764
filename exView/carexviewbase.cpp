#include "carexviewbase.h"

#include "carinfoitem.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

CarExViewBase::CarExViewBase(QWidget *parent)
    : QStackedWidget(parent)
{
}

void CarExViewBase::refresh()
{
}

QList<QString> CarExViewBase::getDatalist()
{
    QList<QString> titles;
    for (int index = 0; index < count(); ++index) {
        if (CarInfoItem *page = qobject_cast<CarInfoItem *>(widget(index)))
            titles.append(page->getTitle());
    }
    return titles;
}

void CarExViewBase::addPages(PageEntry const *entries, int count)
{
    const char *context = metaObject()->className();
    for (int i = 0; i < count; ++i)
        addWidget(entries[i].create(QCoreApplication::translate(context, entries[i].title), this));
}

void CarExViewBase::raisePage(int index)
{
    setCurrentIndex(index);
    if (CarInfoItem *page = currentPage())
        page->createView();
}

CarInfoItem *CarExViewBase::currentPage() const
{
    return qobject_cast<CarInfoItem *>(currentWidget());
}

void CarExViewBase::forwardPageFrames()
{
    for (int index = 0; index < count(); ++index)
        connect(widget(index), SIGNAL(sendData(QByteArray)), this, SIGNAL(sendData(QByteArray)));
}

void CarExViewBase::focusInEvent(QFocusEvent *event)
{
    event->accept();
}

void CarExViewBase::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
}

void CarExViewBase::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}
