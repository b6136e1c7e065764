#include "thememanager.h"

#include "hoststate.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>

namespace {

const char ReverseInterface[] = "reversetheme/0.1";

// The first plug-in of the reverse interface in the plug-in directory.
QString findReversePlugin()
{
    const QString directory = qEnvironmentVariable("CARCONTROL_PLUGIN_DIR");
    if (directory.isEmpty())
        return QString();
    const QDir dir(directory);
    const auto files = dir.entryList(QDir::Files);
    for (const QString &file : files) {
        QPluginLoader loader(dir.filePath(file));
        if (loader.metaData().value(QStringLiteral("IID")).toString()
                == QLatin1String(ReverseInterface))
            return loader.fileName();
    }
    return QString();
}

} // namespace

namespace HostSim {

void setReversePluginFile(QString const &file)
{
    services().reversePluginFile = file;
    services().reverseLoader.reset();
}

} // namespace HostSim

ThemeBase::ThemeBase() = default;

QObject *ThemeBase::getThemeInstance()
{
    HostSim::ServiceState &host = HostSim::services();
    if (!host.reverseLoader) {
        QString file = host.reversePluginFile;
        if (file.isEmpty())
            file = findReversePlugin();
        if (file.isEmpty())
            return nullptr;
        // Qt's loader looks for a relative name in its library paths.
        host.reverseLoader.reset(new QPluginLoader(QFileInfo(file).absoluteFilePath()));
    }
    // The loader keeps the library loaded; the instance it hands out belongs
    // to the caller, and once deleted the next call makes a new one.
    QObject *instance = host.reverseLoader->instance();
    if (!instance)
        qWarning("reverse plug-in %s: %s", qPrintable(host.reverseLoader->fileName()),
                 qPrintable(host.reverseLoader->errorString()));
    return instance;
}

ThemeManager::ThemeManager() = default;

ThemeManager *ThemeManager::getInstance()
{
    static ThemeManager manager;
    return &manager;
}

ThemeBase *ThemeManager::getReverseManager()
{
    static ThemeBase reverse;
    return &reverse;
}
