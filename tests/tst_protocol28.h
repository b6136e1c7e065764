// What the tests of protocol 28's pages share: the protocol's buffer, its
// common setting frame, and its pages on a window and in the extended view (exviewtests.h).

#ifndef TST_PROTOCOL28_H
#define TST_PROTOCOL28_H

#include "exviewtests.h"

namespace P28 {

const int Protocol = 28;

inline DataBuffer buffer()
{
    return HostSim::buffer(Protocol);
}

using PageTest::ExtendedView;
using PageTest::frame;
using PageTest::frames;
using PageTest::hex;
using PageTest::hexOf;
using PageTest::sent;
using PageTest::Zone;
using PageTest::LeftArrow;
using PageTest::RightArrow;
using PageTest::Middle;
using PageTest::tap;

// 2E C6 02 sub value ck, the common setting frame.
inline QByteArray setting(int sub, int value)
{
    return frame(QString("2E C6 02 %1 %2 ck").arg(sub, 2, 16, QChar('0')).arg(value & 0xFF, 2, 16, QChar('0')));
}

// One page of protocol 28's stack.
typedef PageTest::FamilyPage<Protocol> Page;

} // namespace P28

#endif // TST_PROTOCOL28_H
