#ifndef GALLERY_H
#define GALLERY_H

// The gallery: every page of every page family, opened on the simulated
// head unit with demo data from the exported catalogue (every row showing a
// valid value), saved as one PNG per page, with an index.html contact sheet
// grouped by family.

#include "scenariorunner.h"

#include <QList>
#include <QString>

class SimulatorHost;

namespace Gallery {

// Writes the pictures of the given families (all of them when empty) and
// index.html into directory. The host's decoder box must have its
// catalogue. On failure the result holds the line that failed.
Scenario::Result write(SimulatorHost &host, QString const &directory, QList<int> const &families = QList<int>());

} // namespace Gallery

#endif // GALLERY_H
