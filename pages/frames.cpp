#include "frames.h"

#include "canobj.h"

namespace Frames {

namespace {

QByteArray fromInts(std::initializer_list<int> bytes)
{
    QByteArray array;
    array.reserve(int(bytes.size()));
    for (std::initializer_list<int>::const_iterator it = bytes.begin(); it != bytes.end(); ++it)
        array.append(char(*it & 0xFF));
    return array;
}

} // namespace

QByteArray make2E(int command, QByteArray const &payload)
{
    QByteArray frame;
    frame.reserve(payload.size() + 4);
    frame.append(char(Family2E));
    frame.append(char(command & 0xFF));
    frame.append(char(payload.size() & 0xFF));
    frame.append(payload);
    frame.append('\0');
    return frame;
}

QByteArray make2E(int command, std::initializer_list<int> payload)
{
    return make2E(command, fromInts(payload));
}

QByteArray makeFD(int command, QByteArray const &payload, int checksumBytes)
{
    const int size = 3 + payload.size() + checksumBytes;
    QByteArray frame;
    frame.reserve(size);
    frame.append(char(FamilyFD));
    frame.append(char((size - 1) & 0xFF));
    frame.append(char(command & 0xFF));
    frame.append(payload);
    frame.append(QByteArray(checksumBytes, '\0'));
    return frame;
}

QByteArray makeFD(int command, std::initializer_list<int> payload, int checksumBytes)
{
    return makeFD(command, fromInts(payload), checksumBytes);
}

QByteArray exact(std::initializer_list<int> bytes)
{
    return fromInts(bytes);
}

QByteArray request(int group, int qualifier)
{
    return make2E(0x90, {group, qualifier});
}

QByteArray request1(int group)
{
    return make2E(0x90, {group});
}

QByteArray request3(int group)
{
    return make2E(0x90, {group, 0, 0});
}

QByteArray sealed(QByteArray frame)
{
    CanObj::autoCalculateChecksum(frame);
    return frame;
}

void send(QByteArray frame)
{
    CanObj::autoCalculateChecksum(frame);
    emit CanObj::instance()->sendDataToCan(frame);
}

} // namespace Frames
