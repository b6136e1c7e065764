#ifndef FAMILY87_H
#define FAMILY87_H

#include "databuffer.h"
#include "frames.h"

#include <QByteArray>

// What the pages of protocol 87 share: the packing of switch bytes into
// flag bits, the common setting frame, and tables from row ids or option
// indexes to the codes that go out.
namespace Family87 {

// A switch's bit in a packed byte. Any non-zero byte sets it, so that a
// stray value can't spill into its neighbours' bits.
inline int bit(DataBuffer const &data, int offset, int weight)
{
    return data.byte(offset) ? weight : 0;
}

// FD 05 80 sub value: the setting frame of the car status pages.
inline QByteArray setting(int sub, int value)
{
    return Frames::makeFD(0x80, {sub, value});
}

// One line of a table from a key (a row id or an option index) to a code.
struct Code
{
    int key;
    int code;
};

// The code of key in table, or otherwise where the table has no line for it.
template <int N>
int codeOf(Code const (&table)[N], int key, int otherwise)
{
    for (int i = 0; i < N; ++i) {
        if (table[i].key == key)
            return table[i].code;
    }
    return otherwise;
}

} // namespace Family87

#endif // FAMILY87_H
