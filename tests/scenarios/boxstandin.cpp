// A stand-in for a decoder box on a serial port, for the scenarios that
// link one: it opens a pseudo-terminal, runs the command it is given with
// the terminal's other end in the environment variable CARCONTROL_BOX, and
// answers every frame that comes in with the same frame, as a box that
// acknowledges what it was told. Bytes that make no frame it leaves alone.
// Its exit status is the command's.
//
//   boxstandin COMMAND [ARGS...]

#include "framesplitter.h"

#include <QCoreApplication>
#include <QProcess>
#include <QSocketNotifier>

#include <cstdio>
#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QStringList args = app.arguments().mid(1);
    if (args.isEmpty()) {
        std::fprintf(stderr, "usage: boxstandin COMMAND [ARGS...]\n");
        return 2;
    }
    int master = -1, slave = -1;
    char name[256] = {};
    if (openpty(&master, &slave, name, nullptr, nullptr) != 0) {
        std::perror("boxstandin: openpty");
        return 2;
    }
    // The box's side passes bytes as they are.
    termios raw;
    tcgetattr(master, &raw);
    cfmakeraw(&raw);
    tcsetattr(master, TCSANOW, &raw);
    fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);

    FrameSplitter splitter;
    QSocketNotifier incoming(master, QSocketNotifier::Read);
    QObject::connect(&incoming, &QSocketNotifier::activated, [&] {
        char buffer[512];
        const ssize_t n = ::read(master, buffer, sizeof buffer);
        // The simulator closed its end: nothing to answer until it opens
        // it again.
        if (n <= 0)
            return;
        for (FrameSplitter::Piece const &piece : splitter.feed(QByteArray(buffer, int(n)))) {
            if (piece.kind == FrameSplitter::Frame && ::write(master, piece.bytes.constData(), piece.bytes.size()) < 0)
                std::perror("boxstandin: write");
        }
    });

    QProcess command;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CARCONTROL_BOX"), QString::fromLocal8Bit(name));
    command.setProcessEnvironment(environment);
    command.setProcessChannelMode(QProcess::ForwardedChannels);
    command.setInputChannelMode(QProcess::ForwardedInputChannel);
    QObject::connect(&command, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
                     [&](int code, QProcess::ExitStatus status) { app.exit(status == QProcess::NormalExit ? code : 2); });
    QObject::connect(&command, &QProcess::errorOccurred, [&](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            std::fprintf(stderr, "boxstandin: can't start %s\n", qPrintable(args.first()));
            app.exit(2);
        }
    });
    const QString program = args.takeFirst();
    command.start(program, args);
    const int status = app.exec();
    ::close(slave);
    ::close(master);
    return status;
}
