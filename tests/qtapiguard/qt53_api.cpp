// Only Qt 5.3 API, some of it under names or overloads that later releases
// extended: the guard must report nothing here.
#include <QFontMetrics>
#include <QObject>
#include <QPixmap>
#include <QStringList>
#include <QTimer>
#include <memory>

class Older : public QObject
{
    Q_OBJECT
    Q_ENUMS(Mode)
public:
    enum Mode { Quiet, Loud };

    int widest(const QStringList &texts, const QFont &font)
    {
        QFontMetrics metrics(font);
        int widest = 0;
        foreach (const QString &text, texts)
            widest = qMax(widest, metrics.width(text));
        return widest;
    }

    // A name of our own that a later Qt also gave one of its classes.
    int horizontalAdvance(const QString &text) const { return text.size(); }

public slots:
    void older()
    {
        QTimer::singleShot(100, this, SLOT(older()));
        QTimer::singleShot(100, Qt::PreciseTimer, this, SLOT(older()));
        std::unique_ptr<int> owned(new int(1));
        QPixmap picture(QSize(4, 4));
        const int advance = horizontalAdvance(QStringLiteral("text")) + *owned.get();
        // qAsConst(texts) in a comment, and "QStringView" in a string, are no uses.
        const char *text = "QStringView qAsConst(x)";
        Q_UNUSED(advance) Q_UNUSED(text) Q_UNUSED(picture)
    }
};
