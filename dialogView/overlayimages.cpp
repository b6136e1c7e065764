#include "overlayimages.h"

namespace {

int reads = 0;

} // namespace

QImage readOverlayImage(QString const &path)
{
    ++reads;
    return QImage(path);
}

int overlayImageReads()
{
    return reads;
}
