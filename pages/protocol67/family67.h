#ifndef FAMILY67_H
#define FAMILY67_H

#include "frames.h"
#include "row.h"

#include <QByteArray>
#include <QList>

#include <initializer_list>

// What the pages of protocol 67 share: every frame of the family is of the
// 0xFD form with two checksum bytes, and every page numbers its rows, so
// that a row's id is its index and the pages dispatch on it.
namespace Family67 {

// FD N command payload... ck ck, zero-filled.
inline QByteArray frame(int command, std::initializer_list<int> payload)
{
    return Frames::makeFD(command, payload, 2);
}

// FD 05 84 and three bytes that nobody sets: what a read-only page's step
// sends if anything reaches it.
inline QByteArray skeleton()
{
    return Frames::exact({0xFD, 0x05, 0x84, 0x00, 0x00, 0x00});
}

// The rows with their index as id.
inline QList<Row> numbered(QList<Row> rows)
{
    for (int i = 0; i < rows.size(); ++i)
        rows[i].id(i);
    return rows;
}

// The index of code in a table of codes, or -1 (no option) when the table
// doesn't hold it.
inline int indexOf(int code, int const *codes, int count)
{
    for (int i = 0; i < count; ++i) {
        if (codes[i] == code)
            return i;
    }
    return -1;
}

// The code at index, or fallback outside the table.
inline int codeAt(int index, int const *codes, int count, int fallback)
{
    return index >= 0 && index < count ? codes[index] : fallback;
}

} // namespace Family67

#endif // FAMILY67_H
