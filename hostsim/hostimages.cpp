#include "hostimages.h"

#include "hostsim.h"

namespace {

int fileReads = 0;

} // namespace

namespace HostSim {

QImage loadImage(QString const &path)
{
    if (path.isEmpty())
        return QImage();
    ++fileReads;
    return QImage(path);
}

int imageFileReads()
{
    return fileReads;
}

void resetImageFileReads()
{
    fileReads = 0;
}

} // namespace HostSim
