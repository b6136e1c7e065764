#ifndef FRAMELOG_H
#define FRAMELOG_H

// The traffic between the plug-in and the decoder box, as bus loggers keep
// it: every frame the plug-in sent (TX), decoded from the catalogue, and
// every answer of the box (RX: the buffer bytes it wrote and the
// dataChanged() it emitted). The log is saved as plain text, one frame a
// line, so that text tools and diffs work on it:
//
//   # protocol 28
//       12.345 TX 2E A8 02 01 0A 22  # 28_2 "Treble" -> 1 (raw 10)
//       12.396 RX 28:106 0A  # dataChanged()
//
// A time in seconds since the simulator started, the direction, the bytes
// in hex; for RX, each run of bytes after the buffer and the decimal offset
// it starts at (PROTOCOL:OFFSET). What follows # is for people: the frame's
// meaning, and the protocol the frames after it were sent under.
//
// With a real decoder box linked, what it sends back is logged as it came,
// cut into frames (FrameSplitter): RX and the frame's bytes, RX-BAD for a
// frame whose checksum doesn't agree, RX-NOISE for bytes that start no
// frame:
//
//       12.401 RX 2E 41 02 01 0A B1  # box: command 41
//       12.455 RX-BAD 2E 41 02 01 0A 00  # box: command 41, bad checksum
//       12.460 RX-NOISE 13 37  # box: noise
//
// How the head unit's CAN-bus module turns such reports into the data
// buffers is its own, so they stay frames: logged, saved and replayed,
// never written into a buffer. A saved log replays: its TX frames to the
// box, its reports of a real box as if it sent them again.

#include "decoderbox.h"
#include "framesplitter.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

class SimulatorHost;

class FrameLog : public QObject
{
    Q_OBJECT
public:
    enum Direction { Tx, Rx };

    struct Entry
    {
        qint64 ms = 0;
        Direction direction = Tx;
        // The protocol selected when the frame went out.
        int protocolId = 0;
        // TX: the frame's bytes; RX: the frame answered, where known (a
        // file doesn't keep it).
        QByteArray frame;
        // RX: what the answer wrote.
        QList<DecoderBox::WrittenByte> written;
        // TX: what the frame means (DecoderBox::describe); RX: what the box
        // signalled.
        QString meaning;
        // RX from a real box: the frame (or noise) it sent is in frame, and
        // written stays empty.
        bool fromBox = false;
        FrameSplitter::Kind piece = FrameSplitter::Frame;
    };

    // An entry for what a real box sent.
    static Entry boxEntry(qint64 ms, FrameSplitter::Piece const &piece);
    // "TX", "RX", "RX-BAD", "RX-NOISE".
    static QString directionText(Entry const &entry);

    // What the log keeps of a long run: the newest entries.
    static constexpr int MaxEntries = 100000;

    explicit FrameLog(QObject *parent = nullptr);

    // Logs what the host's plug-in sends and what its box answers from now on.
    void attach(SimulatorHost &host);

    QList<Entry> const &entries() const;
    void append(Entry const &entry);
    void clear();

    // An entry as a line of the file, without the line's end; and back.
    static QString line(Entry const &entry);
    // The bytes of a line: a frame in hex, or the runs that an answer wrote.
    static QString bytesText(Entry const &entry);
    // Seconds with milliseconds: "12.345".
    static QString timeText(qint64 ms);
    // False, with the reason in *error, for a line that isn't a TX or RX
    // line; protocolId is the protocol of the last "# protocol N" line.
    static bool parseLine(QString const &text, int protocolId, Entry *entry, QString *error);
    // The whole log as the file holds it.
    static QString text(QList<Entry> const &entries);
    // Reads a log: false, with "FILE:LINE: reason" in *error, at the first
    // line that is neither a frame, a comment nor empty.
    static bool parse(QString const &file, QString const &text, QList<Entry> *entries, QString *error);

    bool save(QString const &file, QString *error) const;
    static bool load(QString const &file, QList<Entry> *entries, QString *error);

    // A saved log as if it happened again: its TX frames to the box that
    // hears them (the real one while linked, else the simulated one, which
    // answers each after its delay); a real box's reports as if it sent
    // them now. False, with the reason in *error, for a log that can't be
    // read, holds nothing to replay, or has TX frames that no box hears;
    // nothing is replayed then.
    static bool replay(SimulatorHost &host, QString const &file, QString *error);

signals:
    void appended(FrameLog::Entry const &entry);
    void cleared();

private:
    QList<Entry> m_entries;
};

#endif // FRAMELOG_H
