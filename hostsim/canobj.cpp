#include "canobj.h"

#include "canbusmodule.h"
#include "hoststate.h"

#include <cstdlib>
#include <cstring>

namespace HostSim {

VehicleState::~VehicleState()
{
    for (unsigned char *buffer : qAsConst(buffers))
        std::free(buffer);
}

VehicleState &vehicle()
{
    static VehicleState state;
    return state;
}

void setProtocolId(int id) { vehicle().protocolId = id; }

DataBuffer buffer(int id) { return DataBuffer(CanObj::instance()->getDataPointerById(id)); }
int bufferSize() { return BufferSize; }

AirData *airData() { return &vehicle().air; }
CardoorData *cardoorData() { return &vehicle().door; }
CarbodyData *carbodyData() { return &vehicle().body; }
RadarData *radarData() { return &vehicle().radar; }

void setRecordAvailable(Record record, bool available)
{
    vehicle().recordAvailable[record] = available;
}

void setRightDriver(bool right) { vehicle().rightDriver = right; }
void setShowReverseLine(bool show) { vehicle().showReverseLine = show; }
void setHadReverseLine(bool had) { vehicle().hadReverseLine = had; }
void setDisableRadar(bool disable) { vehicle().disableRadar = disable; }

QObject *canbusSignals()
{
    static CanbusSignals *object = new CanbusSignals;
    return object;
}

void notifyDataChanged()
{
    emit static_cast<CanbusSignals *>(canbusSignals())->dataChanged();
}

QList<QByteArray> sentFrames() { return vehicle().frames; }
void clearSentFrames() { vehicle().frames.clear(); }

} // namespace HostSim

using HostSim::vehicle;

CanObj::CanObj(QObject *parent)
    : QObject(parent)
{
    // The host's record of what went to the decoder box: every emission of
    // the signal, also those that reach it from another signal. A frame
    // without bytes puts nothing on the bus.
    connect(this, &CanObj::sendDataToCan, this, [](QByteArray const &frame) {
        if (!frame.isEmpty())
            HostSim::keepRecord(vehicle().frames, frame);
    });
}

CanObj *CanObj::instance()
{
    static CanObj *object = new CanObj;
    return object;
}

int CanObj::id()
{
    return vehicle().protocolId;
}

unsigned char *CanObj::getDataPointerById(int id)
{
    unsigned char *&buffer = vehicle().buffers[id];
    if (!buffer)
        buffer = static_cast<unsigned char *>(std::calloc(HostSim::BufferSize, 1));
    return buffer;
}

QVariant CanObj::getDataById(int id) const
{
    return QVariant(id);
}

AirData const *CanObj::getAirData() const
{
    return vehicle().recordAvailable[HostSim::AirRecord] ? &vehicle().air : nullptr;
}

CardoorData const *CanObj::getCardoorData() const
{
    return vehicle().recordAvailable[HostSim::CardoorRecord] ? &vehicle().door : nullptr;
}

CarbodyData const *CanObj::getCarbodyData() const
{
    return vehicle().recordAvailable[HostSim::CarbodyRecord] ? &vehicle().body : nullptr;
}

RadarData const *CanObj::getRadarData() const
{
    return vehicle().recordAvailable[HostSim::RadarRecord] ? &vehicle().radar : nullptr;
}

bool CanObj::isRightDriver() const { return vehicle().rightDriver; }
bool CanObj::isShowReverseLine() const { return vehicle().showReverseLine; }
bool CanObj::hadReverseLine() const { return vehicle().hadReverseLine; }
bool CanObj::disableRadar() const { return vehicle().disableRadar; }

// The decoder box's checksums, as the desktop host computes them:
//  - 0x2E frames: the last byte is 0xFF XOR the low byte of the sum of bytes
//    1 to size-2;
//  - 0xFD frames on protocol 67: the last two bytes are the 16-bit sum of
//    bytes 1 to size-3, high byte first;
//  - other 0xFD frames: the last byte is the low byte of the sum of bytes 1
//    to size-2.
// Frames shorter than three bytes, or with another header, stay as they are.
void CanObj::autoCalculateChecksum(QByteArray &frame)
{
    const int size = frame.size();
    if (size < 3)
        return;
    auto sum = [&frame](int first, int last) {
        unsigned total = 0;
        for (int i = first; i <= last; ++i)
            total += quint8(frame.at(i));
        return total;
    };
    const quint8 header = quint8(frame.at(0));
    if (header == 0x2E) {
        frame[size - 1] = char(0xFF ^ (sum(1, size - 2) & 0xFF));
    } else if (header == 0xFD && id() == 67) {
        const unsigned total = sum(1, size - 3) & 0xFFFF;
        frame[size - 2] = char(total >> 8);
        frame[size - 1] = char(total & 0xFF);
    } else if (header == 0xFD) {
        frame[size - 1] = char(sum(1, size - 2) & 0xFF);
    }
}
