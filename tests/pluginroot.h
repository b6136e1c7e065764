#ifndef PLUGINROOT_H
#define PLUGINROOT_H

// The car control plug-in loaded as the head unit's framework loads it: by
// file from the plug-in directory, its root cast to the interface by the
// identifier "cantheme/0.1". Its views are found on the host's UI levels.

#include "appframework.h"
#include "carcontrolinterface.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>
#include <QWidget>

namespace PluginRoot {

inline QString directory() { return qEnvironmentVariable("CARCONTROL_PLUGIN_DIR"); }
inline QString file() { return QDir(directory()).filePath("libcarcontrol.so"); }

inline QPluginLoader &loader()
{
    static QPluginLoader pluginLoader(file());
    return pluginLoader;
}

inline CarControlInterface *root()
{
    return qobject_cast<CarControlInterface *>(loader().instance());
}

// Runs the deletions that views asked for.
inline void flushDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Ends the root and every view it made; the next root() is a fresh one.
inline void restart()
{
    delete loader().instance();
    flushDeletes();
}

inline QWidget *level(int level)
{
    return zorvappframework::UIManager::getUIHerarchy(zorvappframework::UIHerarchy(level));
}

inline QWidget *child(QWidget *parent, char const *name)
{
    return parent ? parent->findChild<QWidget *>(QLatin1String(name), Qt::FindDirectChildrenOnly)
                  : nullptr;
}

// A top-level view on a level, or a child of the overlay coordinator.
inline QWidget *view(int onLevel, char const *name) { return child(level(onLevel), name); }
inline QWidget *dialogView() { return view(0, "dialogView"); }
inline QWidget *overlay(char const *name) { return child(dialogView(), name); }

// Shown, as far as the widget itself decides.
inline bool shown(QWidget *widget) { return widget && !widget->isHidden(); }

} // namespace PluginRoot

#endif // PLUGINROOT_H
