#ifndef HOSTIMAGES_H
#define HOSTIMAGES_H

#include <QImage>
#include <QString>

namespace HostSim {

// Reads a picture file for a host widget, counting the reads (see
// imageFileReads()). An empty path gives a null image without a read.
QImage loadImage(QString const &path);

} // namespace HostSim

#endif // HOSTIMAGES_H
