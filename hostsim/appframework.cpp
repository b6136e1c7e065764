#include "appframework.h"

#include "canbusmodule.h"
#include "hostscreen.h"
#include "hoststate.h"

#include <QPointer>

namespace HostSim {

namespace {

QSize &screenSizeSetting()
{
    static QSize size(1024, 600);
    return size;
}

HostScreen *hostScreen()
{
    static QPointer<HostScreen> screen;
    if (!screen)
        screen = new HostScreen(screenSizeSetting());
    return screen;
}

} // namespace

QWidget *screen() { return hostScreen(); }
void setScreenSize(QSize const &size) { screenSizeSetting() = size; }
QSize screenSize() { return screenSizeSetting(); }
int systemBarHeight() { return 60; }
int baseBarHeight() { return 70; }

void showHostMessage(QString const &text) { hostScreen()->showMessage(text); }
void hideHostMessage() { hostScreen()->hideMessage(); }
bool messageShowing() { return hostScreen()->messageShowing(); }

QStringList openedActivities() { return services().activities; }

} // namespace HostSim

namespace zorvappframework {

QWidget *UIManager::getUIHerarchy(UIHerarchy level)
{
    return HostSim::hostScreen()->level(level);
}

QRect UIManager::getMainAreaRect()
{
    const QSize size = HostSim::screenSize();
    const int bar = HostSim::systemBarHeight();
    return QRect(0, bar, size.width(), size.height() - bar);
}

QRect UIManager::getSystemViewRect()
{
    const QRect main = getMainAreaRect();
    const int bar = HostSim::baseBarHeight();
    return QRect(0, bar, main.width(), main.height() - bar);
}

QRect UIManager::getSystemBarRect(int, int)
{
    return QRect(0, 0, HostSim::screenSize().width(), HostSim::systemBarHeight());
}

void Module::reservedModule1() {}
void Module::reservedModule2() {}
void Module::reservedModule3() {}
void Module::reservedModule4() {}
void Module::reservedModule5() {}
void Module::reservedModule6() {}
void Module::reservedModule7() {}
void Module::reservedModule8() {}
void Module::reservedModule9() {}
void Module::reservedModule10() {}
void Module::reservedModule11() {}
void Module::reservedModule12() {}
void Module::reservedModule13() {}
void Module::reservedModule14() {}
void Module::reservedModule15() {}
void Module::reservedModule16() {}
QObject *Module::signalObject() { return nullptr; }
Module::~Module() = default;

QSharedPointer<ModuleManager> ModuleManager::self()
{
    static QSharedPointer<ModuleManager> manager(new ModuleManager);
    return manager;
}

void ModuleManager::reservedManager1() {}
void ModuleManager::reservedManager2() {}
void ModuleManager::reservedManager3() {}
void ModuleManager::reservedManager4() {}
void ModuleManager::reservedManager5() {}
void ModuleManager::reservedManager6() {}
void ModuleManager::reservedManager7() {}
void ModuleManager::reservedManager8() {}
void ModuleManager::reservedManager9() {}
void ModuleManager::reservedManager10() {}
void ModuleManager::reservedManager11() {}
void ModuleManager::reservedManager12() {}

QSharedPointer<Module> ModuleManager::module(QString const &name)
{
    static QSharedPointer<Module> canbus(new CanbusModule);
    if (name == QLatin1String("canbus"))
        return canbus;
    return QSharedPointer<Module>();
}

ModuleManager::~ModuleManager() = default;

QSharedPointer<ActivityManager> ActivityManager::self()
{
    static QSharedPointer<ActivityManager> manager(new ActivityManager);
    return manager;
}

void ActivityManager::reservedActivity1() {}
void ActivityManager::reservedActivity2() {}

void ActivityManager::openActivity(QString const &name, int)
{
    HostSim::keepRecord(HostSim::services().activities, name);
}

ActivityManager::~ActivityManager() = default;

} // namespace zorvappframework
