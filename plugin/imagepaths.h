#ifndef IMAGEPATHS_H
#define IMAGEPATHS_H

#include <QString>

// The two artwork trees of the plug-in. The overlays' pictures are named
// without extension, those of the extended view with ".png".
enum ImageRoot {
    OverlayImages,   // /application/resource/carcontrol/style4/
    ExtendedImages   // /application/resource/carcontrol/exStyle4/
};

// The absolute path of a picture, name relative to its tree (it may hold
// subfolders, as in "car/car"). The environment variable
// CARCONTROL_RESOURCE_ROOT, when set, stands in for
// /application/resource/carcontrol, so that a desktop run can use artwork of
// its own.
QString imagePath(ImageRoot root, QString const &name);

// The folder of the plug-in's translations (carcontrol_<locale>.qm), beside
// the two trees: /application/resource/carcontrol/translations, under the
// same stand-in root.
QString translationsPath();

#endif // IMAGEPATHS_H
