#include "eventpump.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

namespace EventPump {

void settle()
{
    // A round can post more: a deleted view updates its level, a shown page
    // lays itself out, a deletion posts the deletion of what it owned.
    constexpr int Rounds = 4;
    for (int round = 0; round < Rounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    }
}

void wait(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
    settle();
}

} // namespace EventPump
