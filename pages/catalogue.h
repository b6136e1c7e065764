#ifndef CATALOGUE_H
#define CATALOGUE_H

#include <QList>

class CarExViewBase;
class QWidget;

// The page stack of the vehicle protocol protocolId, with parent as its
// parent, or null for an id that no page family serves (below 1, the gaps
// between the families, and anything outside 28 to 124).
CarExViewBase *createPageStack(int protocolId, QWidget *parent);

// What the catalogue offers, for those that let the user pick a protocol.
namespace Catalogue {

// Every protocol id that has a page family, in ascending order.
QList<int> protocolIds();
// The number of the page family that serves protocolId (the N of its stack
// CarExView<N>), or 0 for none.
int familyOf(int protocolId);

} // namespace Catalogue

#endif // CATALOGUE_H
