#include "imagepaths.h"

#include <QByteArray>

QString imagePath(ImageRoot root, QString const &name)
{
    QString path = QString::fromLocal8Bit(qgetenv("CARCONTROL_RESOURCE_ROOT"));
    if (path.isEmpty())
        path = QStringLiteral("/application/resource/carcontrol");
    if (!path.endsWith(QLatin1Char('/')))
        path += QLatin1Char('/');
    path += root == OverlayImages ? QStringLiteral("style4/") : QStringLiteral("exStyle4/");
    return path + name;
}
