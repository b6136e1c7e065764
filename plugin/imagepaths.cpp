#include "imagepaths.h"

#include <QByteArray>

namespace {

// The resource root, ending in a slash.
QString resourceRoot()
{
    QString path = QString::fromLocal8Bit(qgetenv("CARCONTROL_RESOURCE_ROOT"));
    if (path.isEmpty())
        path = QStringLiteral("/application/resource/carcontrol");
    if (!path.endsWith(QLatin1Char('/')))
        path += QLatin1Char('/');
    return path;
}

} // namespace

QString imagePath(ImageRoot root, QString const &name)
{
    return resourceRoot() + (root == OverlayImages ? QStringLiteral("style4/") : QStringLiteral("exStyle4/")) + name;
}

QString translationsPath()
{
    return resourceRoot() + QStringLiteral("translations");
}
