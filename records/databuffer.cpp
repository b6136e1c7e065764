#include "databuffer.h"

#include <QHash>
#include <new>
#include <string.h>

quint16 DataBuffer::word(int offset) const
{
    quint16 value;
    memcpy(&value, m_base + offset, sizeof(value));
    return value;
}

void DataBuffer::setWord(int offset, quint16 value)
{
    memcpy(m_base + offset, &value, sizeof(value));
}

quint32 DataBuffer::dword(int offset) const
{
    quint32 value;
    memcpy(&value, m_base + offset, sizeof(value));
    return value;
}

void DataBuffer::setDword(int offset, quint32 value)
{
    memcpy(m_base + offset, &value, sizeof(value));
}

#if Q_PROCESSOR_WORDSIZE == 4

// The objects lie in the buffer. A field that the module never constructed
// is all zeros; it reads as empty instead of being used as an object.

namespace {

bool constructed(unsigned char const *field)
{
    return field[0] || field[1] || field[2] || field[3];
}

template <typename T>
T fieldValue(unsigned char *field)
{
    return constructed(field) ? *reinterpret_cast<T *>(field) : T();
}

template <typename T>
void setFieldValue(unsigned char *field, T const &value)
{
    if (constructed(field))
        *reinterpret_cast<T *>(field) = value;
    else
        new (field) T(value);
}

} // namespace

#else

// The field holds a handle into one of these stores. Handles are issued from
// one counter, so a handle names one field kind only, and a field keeps its
// handle once it has one: rewriting a value allocates nothing.

namespace {

quint32 nextHandle = 0;

template <typename T>
QHash<quint32, T> &store()
{
    static QHash<quint32, T> values;
    return values;
}

template <typename T>
T fieldValue(unsigned char const *field)
{
    quint32 handle;
    memcpy(&handle, field, sizeof(handle));
    return store<T>().value(handle);
}

template <typename T>
void setFieldValue(unsigned char *field, T const &value)
{
    quint32 handle;
    memcpy(&handle, field, sizeof(handle));
    QHash<quint32, T> &values = store<T>();
    if (!handle || !values.contains(handle)) {
        handle = ++nextHandle;
        memcpy(field, &handle, sizeof(handle));
    }
    values.insert(handle, value);
}

} // namespace

#endif

QString DataBuffer::text(int offset) const
{
    return fieldValue<QString>(m_base + offset);
}

void DataBuffer::setText(int offset, QString const &value)
{
    setFieldValue(m_base + offset, value);
}

QByteArray DataBuffer::bytes(int offset) const
{
    return fieldValue<QByteArray>(m_base + offset);
}

void DataBuffer::setBytes(int offset, QByteArray const &value)
{
    setFieldValue(m_base + offset, value);
}

QList<DateInfo> DataBuffer::entries(int offset) const
{
    return fieldValue<QList<DateInfo> >(m_base + offset);
}

void DataBuffer::setEntries(int offset, QList<DateInfo> const &value)
{
    setFieldValue(m_base + offset, value);
}
