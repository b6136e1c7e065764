#ifndef FRAMESPLITTER_H
#define FRAMESPLITTER_H

// Cuts the bytes that come back from a decoder box into frames, by the
// framing of the two families:
//
//   2E command L payload(L) checksum          L + 4 bytes
//   FD N command payload checksum             N + 1 bytes (N at least 3)
//
// Each frame's checksum is checked by the host's own rule
// (CanObj::autoCalculateChecksum, under the selected protocol). A frame whose
// checksum doesn't agree is still a frame, and is cut as one. Bytes that
// start no frame are kept together and handed on as noise, never dropped.
// What the splitter holds back is bounded: at most one frame begun and
// MaxNoise bytes of noise, however long the stream.

#include <QByteArray>
#include <QList>

class FrameSplitter
{
public:
    enum Kind { Frame, BadChecksum, Noise };

    struct Piece
    {
        Kind kind = Noise;
        QByteArray bytes;
    };

    // A run of noise is handed on at this size at the latest.
    static constexpr int MaxNoise = 256;

    // The pieces that the bytes complete, in order.
    QList<Piece> feed(QByteArray const &bytes);
    // Everything held back, as noise: a frame begun and never finished.
    QList<Piece> flush();
    // How many bytes are held back.
    int pending() const;

    // A frame's command byte (byte 1 in 0x2E frames, byte 2 in 0xFD ones);
    // -1 for bytes that are no frame.
    static int command(QByteArray const &frame);
    // The payload: the bytes between the command (or the length after it)
    // and the checksum slot, under the selected protocol.
    static QByteArray payload(QByteArray const &frame);
    // The size of an 0xFD or 0x2E frame's checksum slot: two bytes for 0xFD
    // frames on protocol 67, one elsewhere.
    static int checksumBytes(QByteArray const &frame, int protocolId);
    // The checksum slot holds what the host's rule puts there.
    static bool checksumAgrees(QByteArray const &frame);

private:
    void takeNoise(QList<Piece> *pieces);

    QByteArray m_bytes;
    QByteArray m_noise;
};

#endif // FRAMESPLITTER_H
