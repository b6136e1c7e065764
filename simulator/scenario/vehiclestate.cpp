#include "vehiclestate.h"

#include "airdata.h"
#include "canobj.h"
#include "carbodydata.h"
#include "cardoordata.h"
#include "hostsim.h"
#include "radardata.h"
#include "recordfields.h"
#include "scenario.h"
#include "simulatorhost.h"

#include <cstring>

namespace Scenario {

namespace VehicleState {

namespace {

unsigned char *bodyBytes()
{
    return reinterpret_cast<unsigned char *>(HostSim::carbodyData());
}

unsigned char *radarBytes()
{
    return reinterpret_cast<unsigned char *>(HostSim::radarData());
}

void setHostFlag(QString const &name, bool on)
{
    if (name == QLatin1String("rightDriver"))
        HostSim::setRightDriver(on);
    else if (name == QLatin1String("showReverseLine"))
        HostSim::setShowReverseLine(on);
    else if (name == QLatin1String("hadReverseLine"))
        HostSim::setHadReverseLine(on);
    else if (name == QLatin1String("disableRadar"))
        HostSim::setDisableRadar(on);
}

} // namespace

bool changes(Command const &command)
{
    switch (command.kind) {
    case Kind::Protocol: case Kind::Buf: case Kind::Buf16: case Kind::Buf32: case Kind::Text:
    case Kind::Bytes: case Kind::Entries: case Kind::Air: case Kind::AirText: case Kind::AirType:
    case Kind::Door: case Kind::Body: case Kind::Body16: case Kind::Body32: case Kind::Radar:
    case Kind::Host: case Kind::Setting: case Kind::Wallpaper:
        return true;
    default:
        return false;
    }
}

void apply(Command const &c)
{
    const int id = c.id == CurrentProtocol ? CanObj::id() : c.id;
    DataBuffer buffer = HostSim::buffer(id);
    switch (c.kind) {
    case Kind::Protocol:
        HostSim::setProtocolId(int(c.numbers.value(0)));
        break;
    case Kind::Buf:
        for (int i = 0; i < c.numbers.size(); ++i)
            buffer.setByte(c.offset + i, quint8(c.numbers.at(i)));
        break;
    case Kind::Buf16:
        for (int i = 0; i < c.numbers.size(); ++i)
            buffer.setWord(c.offset + 2 * i, quint16(c.numbers.at(i)));
        break;
    case Kind::Buf32:
        buffer.setDword(c.offset, quint32(c.numbers.value(0)));
        break;
    case Kind::Text:
        buffer.setText(c.offset, c.texts.value(0));
        break;
    case Kind::Bytes: {
        QByteArray bytes;
        for (qint64 byte : c.numbers)
            bytes.append(char(quint8(byte)));
        buffer.setBytes(c.offset, bytes);
        break;
    }
    case Kind::Entries: {
        QList<DateInfo> entries;
        for (int i = 0; i < c.numbers.size(); ++i)
            entries.append(DateInfo(quint16(c.numbers.at(i)), c.texts.value(i)));
        buffer.setEntries(c.offset, entries);
        break;
    }
    case Kind::Air:
        for (int i = 0; i < c.numbers.size(); ++i)
            RecordFields::setAirByte(*HostSim::airData(), c.offset + i, int(c.numbers.at(i)));
        break;
    case Kind::AirText:
        RecordFields::setAirText(*HostSim::airData(), c.offset, c.texts.value(0));
        break;
    case Kind::AirType:
        HostSim::airData()->airType = qint32(quint32(c.numbers.value(0)));
        break;
    case Kind::Door: {
        quint8 *door = reinterpret_cast<quint8 *>(HostSim::cardoorData());
        for (int i = 0; i < c.numbers.size(); ++i)
            door[i] = quint8(c.numbers.at(i));
        break;
    }
    case Kind::Body: case Kind::Radar: {
        unsigned char *record = c.kind == Kind::Body ? bodyBytes() : radarBytes();
        for (int i = 0; i < c.numbers.size(); ++i)
            record[c.offset + i] = quint8(c.numbers.at(i));
        break;
    }
    case Kind::Body16: {
        const quint16 value = quint16(c.numbers.value(0));
        std::memcpy(bodyBytes() + c.offset, &value, sizeof value);
        break;
    }
    case Kind::Body32: {
        const quint32 value = quint32(c.numbers.value(0));
        std::memcpy(bodyBytes() + c.offset, &value, sizeof value);
        break;
    }
    case Kind::Host:
        setHostFlag(c.name, c.numbers.value(0) != 0);
        break;
    case Kind::Setting:
        HostSim::setSetting(c.name, c.args.value(0));
        break;
    case Kind::Wallpaper:
        HostSim::setWallpaper(c.name == QLatin1String("on") ? SimulatorHost::wallpaper() : QPixmap());
        break;
    default:
        break;
    }
}

} // namespace VehicleState

} // namespace Scenario
