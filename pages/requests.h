#ifndef REQUESTS_H
#define REQUESTS_H

#include <QByteArray>
#include <QList>

#include <initializer_list>

class QTimer;

// What the page stacks ask of the decoder box when a page comes to the
// front, and while it stays there. A family writes its requests as a table
// of page index -> frames; the builders below make the frames of that table
// in the decoder box's request forms, checksum slots left empty.
namespace Requests {

typedef QList<QByteArray> FrameList;

// 2E 90 01 group: one frame per group.
FrameList r1(std::initializer_list<int> groups);
// 2E 90 02 group 00: one frame per group.
FrameList r2(std::initializer_list<int> groups);
// 2E 90 02 group qualifier: one frame per qualifier.
FrameList r2q(int group, std::initializer_list<int> qualifiers);
// 2E 90 02 group q for q from first to last.
FrameList r2Series(int group, int first, int last);
// 2E 90 03 group 00 00: one frame per group.
FrameList r3(std::initializer_list<int> groups);
// FD 04 8F code: one frame per code, the request of the families that
// speak 0xFD with one checksum byte.
FrameList fd8F(std::initializer_list<int> codes);

// The groups of the voice, function and vehicle pages that many families
// share: the voice state (2E 90 02 7D EF), the function list (2E 90 02 7E 00)
// and the seventeen parts of the vehicle information (2E 90 02 7D 00 to
// 2E 90 02 7D 10).
FrameList voice();
FrameList function();
FrameList vehicle();

// Seals and sends each frame, in order, straight to the decoder box.
void send(FrameList const &frames);

// One line of a family's table: the frames of one page.
struct Entry
{
    int index;
    FrameList frames;
};

// A family's requests by page index. A page that the table doesn't list
// sends the frames given as otherwise: nothing in most families, a frame
// of code 00 in those that always end in one request.
class Table
{
public:
    Table(std::initializer_list<Entry> entries, FrameList const &otherwise = FrameList());

    bool lists(int index) const;
    FrameList frames(int index) const;
    void send(int index) const;

private:
    QList<Entry> m_entries;
    FrameList m_otherwise;
};

// The timer rule of showIndex(): stops the timer, and starts it anew with
// the interval if index is one of pages.
void restartOn(QTimer *timer, int index, std::initializer_list<int> pages, int interval);
// A tick of a family's timer: on a page that the table lists its frames go
// out (a listed page may have none); on any other page the timer stops.
void countdown(QTimer *timer, Table const &table, int index);
// The tick of the families whose timer nothing starts: it runs on through
// page 5 and stops on any other page, and sends nothing.
void idleCountdown(QTimer *timer, int index);

// The tick of families 29 and 34: the parking data on page 0, the body
// information on page 2, nothing on page 1.
Table const &parkingAndBodyPolling();

} // namespace Requests

#endif // REQUESTS_H
