#ifndef DATABUFFER_H
#define DATABUFFER_H

#include "dateinfo.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QtGlobal>

// The one way to read and write a protocol's data buffer, the block that
// CanObj::getDataPointerById hands out. Offsets are byte offsets into it.
// 16- and 32-bit values are in host order and may lie at any offset.
//
// Text, byte-array and list fields take four bytes. On the head unit's 32-bit
// build those four bytes are the QString, QByteArray or QList object itself,
// constructed there by the CAN-bus module. A 64-bit desktop can't put an
// eight-byte object in four bytes, so there the field holds a handle into a
// store kept beside the buffers; a field of zeros, or a handle that isn't of
// the field's kind, reads as empty. Whoever writes a buffer (the desktop host
// included) goes through this class, so both builds see the same values.
class DataBuffer
{
public:
    explicit DataBuffer(unsigned char *base) : m_base(base) {}

    unsigned char *data() const { return m_base; }

    quint8 byte(int offset) const { return m_base[offset]; }
    qint8 signedByte(int offset) const { return qint8(m_base[offset]); }
    void setByte(int offset, quint8 value) { m_base[offset] = value; }

    quint16 word(int offset) const;
    qint16 signedWord(int offset) const { return qint16(word(offset)); }
    void setWord(int offset, quint16 value);

    quint32 dword(int offset) const;
    qint32 signedDword(int offset) const { return qint32(dword(offset)); }
    void setDword(int offset, quint32 value);

    QString text(int offset) const;
    void setText(int offset, QString const &value);

    QByteArray bytes(int offset) const;
    void setBytes(int offset, QByteArray const &value);

    QList<DateInfo> entries(int offset) const;
    void setEntries(int offset, QList<DateInfo> const &value);

private:
    unsigned char *m_base;
};

#endif // DATABUFFER_H
