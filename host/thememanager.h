#ifndef THEMEMANAGER_H
#define THEMEMANAGER_H

class QObject;

// One kind of theme plug-in of the head unit.
class ThemeBase
{
public:
    // A new instance of the loaded plug-in's root object, or null when no
    // plug-in of this kind is present. The caller owns and deletes it.
    QObject *getThemeInstance();

private:
    ThemeBase();
    friend class ThemeManager;
};

class ThemeManager
{
public:
    static ThemeManager *getInstance();

    // The manager of the reverse plug-in ("reversetheme/0.1"); never null.
    ThemeBase *getReverseManager();

private:
    ThemeManager();
};

#endif // THEMEMANAGER_H
