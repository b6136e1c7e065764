#include "hostimages.h"

#include "hostsim.h"

namespace {

int fileReads = 0;
QStringList unreadFiles;

} // namespace

namespace HostSim {

QImage loadImage(QString const &path)
{
    if (path.isEmpty())
        return QImage();
    ++fileReads;
    QImage image(path);
    if (image.isNull() && !unreadFiles.contains(path))
        unreadFiles.append(path);
    return image;
}

int imageFileReads()
{
    return fileReads;
}

QStringList unreadImageFiles()
{
    return unreadFiles;
}

void resetImageFileReads()
{
    fileReads = 0;
    unreadFiles.clear();
}

} // namespace HostSim
