#ifndef DECODERBOX_H
#define DECODERBOX_H

// The decoder box of the simulated car. It knows the frames of every page
// from the exported catalogue (tools/catalogue) and answers them as the box
// and the car do on the bench: a setting frame, some time later, becomes the
// new value in the data buffer and the "canbus" module's dataChanged(); a
// request frame becomes dataChanged() alone. A frame with a wrong checksum,
// of a form the catalogue doesn't know, empty or too short, is logged and
// never answered. The box knows nothing of the plug-in beyond the frames
// it is given.

#include <QByteArray>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class DecoderBox : public QObject
{
    Q_OBJECT
public:
    static constexpr int DefaultDelayMs = 50;

    // A byte that an answer wrote: the protocol whose buffer it is, its
    // offset, and the value the byte holds afterwards.
    struct WrittenByte
    {
        int bufferId;
        int offset;
        quint8 value;
    };

    explicit DecoderBox(QObject *parent = nullptr);

    // Reads an exported catalogue. False, with the reason in *error, for a
    // missing or malformed file, or an entry whose offset, mask or value
    // doesn't fit the buffer (named by family, page and row); the box then
    // knows no frames and stays off.
    bool load(QString const &file, QString *error);
    bool load(QJsonObject const &catalogue, QString *error);
    bool isLoaded() const;

    // Off, the box lets every frame pass unanswered and logs nothing. It
    // can't be switched on without a catalogue.
    void setEnabled(bool enabled);
    bool isEnabled() const;
    // The time from a frame to its answer.
    void setDelay(int ms);
    int delay() const;

    // The adjustable rows of the catalogue, and how many of them the box
    // answers.
    int adjustableRows() const;
    int answeredRows() const;

    // The demo data of a protocol: for every row where the catalogue has
    // one, the bytes that make it show a valid value, written into the
    // buffer. False for a protocol the catalogue doesn't know.
    bool writeSamples(int protocolId) const;

    // The titles of a protocol's pages as the catalogue has them, and how
    // many rows its pages hold in all (0 for a family whose pages draw
    // their own widgets or hold no rows). Empty and 0 for a protocol the
    // catalogue doesn't know.
    QStringList pageTitles(int protocolId) const;
    int rowCount(int protocolId) const;
    // Every page of the protocol's family opens empty: the catalogue gives
    // them titles and no rows, and none draws widgets of its own.
    bool hasOnlyEmptyPages(int protocolId) const;
    // The page (from 0) of the protocol's family has no rows and draws no
    // widgets of its own.
    bool isEmptyPage(int protocolId, int page) const;
    // A protocol's family as a person knows it: the titles of its first
    // pages, "Amplifier, Vehicle settings, ..."; empty for a protocol the
    // catalogue doesn't know.
    QString familyName(int protocolId) const;
    // What a frame means to the box under the protocol: the page, the row's
    // title and the value that the frame sets, as the row shows it and raw
    // (28_2 "Treble" -> -1 (raw 8)), a
    // request, or "unknown frame" with the reason the box refuses it. Where
    // the catalogue knows the frame but the box doesn't answer it, ", no
    // answer" follows. Works with the box off too.
    QString describe(QByteArray const &frame, int protocolId) const;
    // Whether the box is writing an answer now: the dataChanged() that is
    // being emitted comes from the box, not from whoever plays the car.
    bool isAnswering() const;
    // The offsets of the text fields that the protocol's pages show, in the
    // protocol's own buffer.
    QList<int> textOffsets(int protocolId) const;

public slots:
    // A frame to the decoder box: checked, and answered if the box knows it.
    void receive(QByteArray const &frame);

signals:
    void enabledChanged(bool enabled);
    // A frame the box couldn't answer: "no answer: 2E ... (reason)".
    void unanswered(QString const &line);
    // The box wrote an answer into the buffer and signalled it; written
    // holds the bytes in the order written (none for a request).
    void answered(QByteArray const &frame, QList<DecoderBox::WrittenByte> const &written);

private:
    struct Write
    {
        int offset;
        quint8 mask;
        quint8 value;
    };
    // A value for the demo screens: bytes, or a text at an offset.
    struct Sample
    {
        int bufferId;  // 0: the selected protocol's buffer
        QList<Write> writes;
        int textOffset;
        QString text;
    };
    // One frame the box knows: its bytes without the checksum, the bits
    // that must match, and what the car reports on it.
    struct Answer
    {
        QByteArray bytes;
        QByteArray care;
        QList<Write> writes;
        int bufferId;  // 0: the selected protocol's buffer
        // Where the frame comes from: "28_2", the row's title, the value.
        QString page;
        QString title;
        int value;
        // What the row shows for the value ("3", "ASL ON"); empty where the
        // catalogue doesn't say.
        QString shown;
        // The box answers the frame (the page shows what it writes).
        bool shows;
    };
    struct Family
    {
        QList<int> ids;
        QList<Answer> answers;
        // Answers by their first three bytes.
        QHash<QByteArray, QList<int>> byPrefix;
        QList<Sample> samples;
        QStringList titles;
        int rows = 0;
        QList<bool> emptyPages;
        // Text fields of the family's own buffer.
        QList<int> textOffsets;
    };

    // One family of the catalogue into m_families; false, with the entry
    // and the reason in *error, for a value out of range.
    bool readFamily(QJsonObject const &family, QString *error);
    static bool readWrites(QJsonArray const &array, QList<Write> *writes, QString *error);
    // The steps of the family whose frame is bytes, answered or not.
    QList<Answer> matches(Family const &family, QByteArray const &bytes) const;
    // Why the box refuses the frame under the protocol, or empty; *found
    // gets the steps that match.
    QString check(QByteArray const &frame, int protocolId, QList<Answer> *found) const;
    void answer(QByteArray const &frame, QList<Answer> const &answers);

    QList<Family> m_families;
    QHash<int, int> m_familyOfId;
    int m_adjustable = 0;
    int m_answered = 0;
    bool m_enabled = false;
    bool m_answering = false;
    int m_delay = DefaultDelayMs;
};

Q_DECLARE_METATYPE(DecoderBox::WrittenByte)
Q_DECLARE_METATYPE(QList<DecoderBox::WrittenByte>)

#endif // DECODERBOX_H
