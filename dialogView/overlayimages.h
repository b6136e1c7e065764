#ifndef OVERLAYIMAGES_H
#define OVERLAYIMAGES_H

#include <QImage>
#include <QString>

// Every picture file that the overlays read themselves goes through here.
// The widgets keep what they read, so a state shown again costs no file
// access; overlayImageReads() counts the reads since the process started, so
// that this can be checked. A missing file gives a null image.
QImage readOverlayImage(QString const &path);
int overlayImageReads();

#endif // OVERLAYIMAGES_H
