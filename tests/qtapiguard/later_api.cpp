// Uses of Qt API that Qt 5.3 doesn't have. Each line the guard must report
// says so in its trailing comment; no other line may be reported.
#include <QFontMetrics>
#include <QObject>
#include <QStringList>
#include <QStringView>                                          // expect: QStringView
#include <QTimer>

class Later : public QObject
{
    Q_OBJECT
public:
    enum Mode { Quiet, Loud };
    Q_ENUM(Mode)                                                // expect: Q_ENUM

    int widest(const QStringList &texts, const QFont &font)
    {
        QFontMetrics metrics(font);
        int widest = 0;
        for (const QString &text : qAsConst(texts))             // expect: qAsConst
            widest = qMax(widest, metrics.horizontalAdvance(text)); // expect: QFontMetrics::horizontalAdvance
        return widest;
    }

    void later()
    {
        QTimer::singleShot(100, this, [] {});                   // expect: QTimer::singleShot
        QTimer::singleShot(100, [] {});                         // expect: QTimer::singleShot
        QTimer::singleShot(100, this, &Later::later);           // expect: QTimer::singleShot
        const QStringView view(u"text");                        // expect: QStringView
        Q_UNUSED(view)
        QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling); // expect: Qt::AA_EnableHighDpiScaling
    }
};
