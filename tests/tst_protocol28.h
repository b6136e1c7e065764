// What the tests of protocol 28's pages share: its buffer, its setting
// frame, and its pages on a window (pagetests.h).

#ifndef TST_PROTOCOL28_H
#define TST_PROTOCOL28_H

#include "pagetests.h"

namespace P28 {

const int Protocol = 28;

inline DataBuffer buffer()
{
    return HostSim::buffer(Protocol);
}

using PageTests::frame;
using PageTests::hex;
using PageTests::Zone;
using PageTests::LeftArrow;
using PageTests::RightArrow;
using PageTests::Middle;
using PageTests::tap;

// 2E C6 02 sub value ck, the common setting frame.
inline QByteArray setting(int sub, int value)
{
    return frame(QString("2E C6 02 %1 %2 ck").arg(sub, 2, 16, QChar('0')).arg(value & 0xFF, 2, 16, QChar('0')));
}

// One page of the family's stack, in front and built.
class Page : public PageTests::Page
{
public:
    explicit Page(int index) : PageTests::Page(Protocol, index) {}
};

} // namespace P28

#endif // TST_PROTOCOL28_H
