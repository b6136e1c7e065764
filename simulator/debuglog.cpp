#include "debuglog.h"

#include <QMutex>

namespace DebugLog {

namespace {

struct Store
{
    QMutex mutex;
    QStringList lines;
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

QStringList since(int first)
{
    Store &s = store();
    QMutexLocker lock(&s.mutex);
    return s.lines.mid(first);
}

} // namespace DebugLog
