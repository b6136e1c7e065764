#include "debuglog.h"

#include <QMutex>

namespace DebugLog {

namespace {

struct Store
{
    QMutex mutex;
    QStringList lines;
    // Messages dropped from the front: the index of lines.first().
    qint64 dropped = 0;
    bool echo = false;
    QtMessageHandler previous = nullptr;
};

Store &store()
{
    static Store instance;
    return instance;
}

void keep(QtMsgType type, QMessageLogContext const &context, QString const &message)
{
    Store &s = store();
    bool echo;
    {
        QMutexLocker lock(&s.mutex);
        s.lines.append(message);
        // Dropped in chunks, so that a long run doesn't shift the list on
        // every line.
        if (s.lines.size() > MaxLines + MaxLines / 4) {
            const int excess = s.lines.size() - MaxLines;
            s.lines.erase(s.lines.begin(), s.lines.begin() + excess);
            s.dropped += excess;
        }
        echo = s.echo;
    }
    if ((echo || (type != QtDebugMsg && type != QtInfoMsg)) && s.previous)
        s.previous(type, context, message);
}

} // namespace

void capture(bool echo)
{
    Store &s = store();
    {
        QMutexLocker lock(&s.mutex);
        s.echo = echo;
    }
    QtMessageHandler previous = qInstallMessageHandler(keep);
    if (previous != keep)
        s.previous = previous;
}

QStringList lines()
{
    Store &s = store();
    QMutexLocker lock(&s.mutex);
    return s.lines;
}

QStringList since(qint64 first)
{
    Store &s = store();
    QMutexLocker lock(&s.mutex);
    return s.lines.mid(int(qMax<qint64>(0, first - s.dropped)));
}

qint64 end()
{
    Store &s = store();
    QMutexLocker lock(&s.mutex);
    return s.dropped + s.lines.size();
}

} // namespace DebugLog
