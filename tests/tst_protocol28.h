// What the tests of protocol 28's pages share: frames written as in the
// protocol's tables, and one page of the family's stack (pagetesting.h).

#ifndef TST_PROTOCOL28_H
#define TST_PROTOCOL28_H

#include "pagetesting.h"

namespace P28 {

using PageTesting::hex;
using PageTesting::LeftArrow;
using PageTesting::Middle;
using PageTesting::RightArrow;
using PageTesting::tap;
using PageTesting::Zone;

const int Protocol = 28;

inline DataBuffer buffer()
{
    return HostSim::buffer(Protocol);
}

// "2E C6 02 45 04 ck", the checksum filled by the decoder box's rule.
inline QByteArray frame(QString const &text)
{
    return PageTesting::frame2E(text);
}

// 2E C6 02 sub value ck, the common setting frame.
inline QByteArray setting(int sub, int value)
{
    return frame(QString("2E C6 02 %1 %2 ck").arg(sub, 2, 16, QChar('0')).arg(value & 0xFF, 2, 16, QChar('0')));
}

// One page of the family's stack, in front and built.
class Page : public PageTesting::Page
{
public:
    explicit Page(int index) : PageTesting::Page(Protocol, index) {}
};

} // namespace P28

#endif // TST_PROTOCOL28_H
