#ifndef CATALOGUEEXPORT_H
#define CATALOGUEEXPORT_H

// The catalogue as data: every page family with its protocol ids and pages,
// every row with what it shows and where its value lies, and for every
// adjustable row, every value it can step to with the frame that the step
// sends and the buffer bytes with which the car would report that value.
//
// The pages are built and stepped for real on the desktop host's buffers: a
// step is a call of the page's own onValueChanged(), the frame is what the
// page sent, and the bytes that show a value are found by the row's own
// rules and then checked by the page's own ondataChanged(). So the export
// holds what the pages do, also where a page builds frames by its own code.

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

class CarInfoItem;

namespace CatalogueExport {

// How many steps of one row are followed at most, so that a wide range
// (a 16-bit value) stays cheap; a row cut there isn't counted as answered.
const int MaxSteps = 4096;

// One page, built on the host's buffer of protocol protocolId (which must be
// the selected protocol): its title, class and rows. otherIds are further
// protocol ids of its family, to tell a page that reads a fixed family's
// buffer.
QJsonObject exportPage(CarInfoItem *page, int protocolId, QList<int> const &otherIds = QList<int>());

// Every family of the catalogue, its ids and pages, with the figures:
// "adjustable" rows and those of them "answered" (every value they step to
// has a frame that carries it and bytes that show it).
QJsonObject exportCatalogue();

// The adjustable rows of a page or catalogue, and how many are answered.
struct Coverage
{
    int answered = 0;
    int adjustable = 0;
};
Coverage coverageOfPage(QJsonObject const &page);

// A readable reference of an exported catalogue, in Markdown.
QString reference(QJsonObject const &catalogue);

} // namespace CatalogueExport

#endif // CATALOGUEEXPORT_H
