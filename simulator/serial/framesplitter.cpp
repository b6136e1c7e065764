#include "framesplitter.h"

#include "canobj.h"

namespace {

// The size of the frame that starts at data[at]: 0 when more bytes are
// needed to tell, -1 when the byte starts no frame.
int frameSize(QByteArray const &data, int at)
{
    const int available = data.size() - at;
    switch (quint8(data.at(at))) {
    case 0x2E:
        return available < 3 ? 0 : quint8(data.at(at + 2)) + 4;
    case 0xFD: {
        if (available < 2)
            return 0;
        // The length counts itself, the command and the checksum at least.
        const int length = quint8(data.at(at + 1));
        return length < 3 ? -1 : length + 1;
    }
    default:
        return -1;
    }
}

} // namespace

QList<FrameSplitter::Piece> FrameSplitter::feed(QByteArray const &bytes)
{
    m_bytes.append(bytes);
    QList<Piece> pieces;
    int at = 0;
    while (at < m_bytes.size()) {
        const int size = frameSize(m_bytes, at);
        if (size < 0) {
            m_noise.append(m_bytes.at(at++));
            if (m_noise.size() >= MaxNoise)
                takeNoise(&pieces);
            continue;
        }
        // What came before a frame's start is complete.
        takeNoise(&pieces);
        if (size == 0 || m_bytes.size() - at < size)
            break;
        Piece piece;
        piece.bytes = m_bytes.mid(at, size);
        piece.kind = checksumAgrees(piece.bytes) ? Frame : BadChecksum;
        pieces.append(piece);
        at += size;
    }
    m_bytes.remove(0, at);
    return pieces;
}

QList<FrameSplitter::Piece> FrameSplitter::flush()
{
    m_noise.append(m_bytes);
    m_bytes.clear();
    QList<Piece> pieces;
    takeNoise(&pieces);
    return pieces;
}

int FrameSplitter::pending() const
{
    return m_bytes.size() + m_noise.size();
}

int FrameSplitter::command(QByteArray const &frame)
{
    if (frame.size() < 4)
        return -1;
    switch (quint8(frame.at(0))) {
    case 0x2E:
        return quint8(frame.at(1));
    case 0xFD:
        return quint8(frame.at(2));
    default:
        return -1;
    }
}

QByteArray FrameSplitter::payload(QByteArray const &frame)
{
    if (command(frame) < 0)
        return QByteArray();
    return frame.mid(3, frame.size() - 3 - checksumBytes(frame, CanObj::id()));
}

int FrameSplitter::checksumBytes(QByteArray const &frame, int protocolId)
{
    return !frame.isEmpty() && quint8(frame.at(0)) == 0xFD && protocolId == 67 ? 2 : 1;
}

bool FrameSplitter::checksumAgrees(QByteArray const &frame)
{
    QByteArray sealed = frame;
    CanObj::autoCalculateChecksum(sealed);
    return sealed == frame;
}

void FrameSplitter::takeNoise(QList<Piece> *pieces)
{
    if (m_noise.isEmpty())
        return;
    Piece piece;
    piece.bytes = m_noise;
    pieces->append(piece);
    m_noise.clear();
}
