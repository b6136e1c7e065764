// What the tests of protocol 28's pages share: frames written as in the
// protocol's tables, and one page of the family's stack on a window.

#ifndef TST_PROTOCOL28_H
#define TST_PROTOCOL28_H

#include "pagetest.h"

namespace P28 {

const int Protocol = 28;

inline DataBuffer buffer()
{
    return HostSim::buffer(Protocol);
}

// "2E C6 02 45 04 ck": the checksum slot filled by the decoder box's rule,
// 0xFF XOR the low byte of the sum of bytes 1 to size - 2.
inline QByteArray frame(QString const &text)
{
    QByteArray bytes;
    for (QString const &token : text.split(' ', Qt::SkipEmptyParts))
        bytes.append(token == "ck" ? '\0' : char(token.toInt(nullptr, 16)));
    unsigned sum = 0;
    for (int i = 1; i < bytes.size() - 1; ++i)
        sum += quint8(bytes.at(i));
    bytes[bytes.size() - 1] = char(0xFF ^ (sum & 0xFF));
    return bytes;
}

// 2E C6 02 sub value ck, the common setting frame.
inline QByteArray setting(int sub, int value)
{
    return frame(QString("2E C6 02 %1 %2 ck").arg(sub, 2, 16, QChar('0')).arg(value & 0xFF, 2, 16, QChar('0')));
}

using PageTest::hex;
using PageTest::tap;
using PageTest::Zone;
using PageTest::LeftArrow;
using PageTest::RightArrow;
using PageTest::Middle;

// One page of protocol 28's stack, in front and built.
class Page : public PageTest::Page
{
public:
    explicit Page(int index) : PageTest::Page(Protocol, index) {}
};

} // namespace P28

#endif // TST_PROTOCOL28_H
