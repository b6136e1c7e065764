#ifndef APPFRAMEWORK_H
#define APPFRAMEWORK_H

#include <QObject>
#include <QRect>
#include <QSharedPointer>
#include <QString>

class QWidget;

// The head unit's application framework.
//
// Virtual positions. The framework's classes are called through their virtual
// tables, so where an operation's place in the table is fixed, the classes
// below keep it with reserved virtual operations. Places are counted among
// the virtual operations that the class itself declares, from 1, in
// declaration order; the destructor is declared last so that it doesn't
// shift them.
namespace zorvappframework {

// The UI levels on which top-level views lie, lowest first.
enum UIHerarchy {
    UIHerarchyLevel0 = 0,
    UIHerarchyLevel1 = 1,
    UIHerarchyLevel2 = 2,
    UIHerarchyLevel3 = 3
};

class UIManager
{
public:
    // The parent widget of the views of that level.
    static QWidget *getUIHerarchy(UIHerarchy level);
    // The screen without the system bar, in the coordinates of a level's
    // widget.
    static QRect getMainAreaRect();
    // The area under a view's base bar in which its content lies, in the
    // coordinates of a view placed on the main area.
    static QRect getSystemViewRect();
    // The system bar at the top of the screen; the arguments are unused.
    static QRect getSystemBarRect(int, int);
};

// A module of the framework. signalObject() is the seventeenth virtual
// operation.
class Module
{
public:
    virtual void reservedModule1();
    virtual void reservedModule2();
    virtual void reservedModule3();
    virtual void reservedModule4();
    virtual void reservedModule5();
    virtual void reservedModule6();
    virtual void reservedModule7();
    virtual void reservedModule8();
    virtual void reservedModule9();
    virtual void reservedModule10();
    virtual void reservedModule11();
    virtual void reservedModule12();
    virtual void reservedModule13();
    virtual void reservedModule14();
    virtual void reservedModule15();
    virtual void reservedModule16();
    // The object that carries the module's signals; valid while the module
    // lives.
    virtual QObject *signalObject();
    virtual ~Module();
};

// module() is the thirteenth virtual operation.
class ModuleManager
{
public:
    static QSharedPointer<ModuleManager> self();

    virtual void reservedManager1();
    virtual void reservedManager2();
    virtual void reservedManager3();
    virtual void reservedManager4();
    virtual void reservedManager5();
    virtual void reservedManager6();
    virtual void reservedManager7();
    virtual void reservedManager8();
    virtual void reservedManager9();
    virtual void reservedManager10();
    virtual void reservedManager11();
    virtual void reservedManager12();
    // The module of that name, null if there is none.
    virtual QSharedPointer<Module> module(QString const &name);
    virtual ~ModuleManager();
};

// openActivity() is the third virtual operation.
class ActivityManager
{
public:
    static QSharedPointer<ActivityManager> self();

    virtual void reservedActivity1();
    virtual void reservedActivity2();
    virtual void openActivity(QString const &name, int);
    virtual ~ActivityManager();
};

} // namespace zorvappframework

#endif // APPFRAMEWORK_H
