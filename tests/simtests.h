#ifndef SIMTESTS_H
#define SIMTESTS_H

// What the simulator's tests share: a host with the built plug-in and the
// build's catalogue (CATALOGUE_FILE, given by the test's build), the
// catalogue's families, and the window's widgets found and clicked.

#include "eventpump.h"
#include "simulatorhost.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QWidget>
#include <QtTest>

namespace SimTest {

// Loads the built plug-in and the build's catalogue; false, with the reason
// in *error, when either can't be loaded.
inline bool loadHost(SimulatorHost &host, QString *error)
{
    return host.load(SimulatorHost::defaultPluginFile(), error) && host.loadCatalogue(CATALOGUE_FILE, error);
}

// The catalogue's families, as its file lists them; empty when it can't be read.
inline QJsonArray catalogueFamilies()
{
    QFile file(CATALOGUE_FILE);
    if (!file.open(QIODevice::ReadOnly))
        return QJsonArray();
    return QJsonDocument::fromJson(file.readAll()).object().value("families").toArray();
}

// The widget of that class under root whose text is text, or null.
template <typename T>
T *withText(QWidget *root, QString const &text)
{
    const auto widgets = root->findChildren<T *>();
    for (T *widget : widgets) {
        if (widget->text() == text)
            return widget;
    }
    return nullptr;
}

// A click at point of widget (its centre when point is null), and what it
// set off run to its end.
inline void click(QWidget *widget, QPoint const &point = QPoint())
{
    QVERIFY(widget);
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, point.isNull() ? widget->rect().center() : point);
    EventPump::settle();
}

} // namespace SimTest

#endif // SIMTESTS_H
