// Untrusted input on every page of every vehicle: the decoder box's bytes
// come over a serial line, and a driver taps anywhere. Random data buffers
// (bytes, long and empty texts, byte arrays and disc lists), random records,
// taps at random places, the head unit's keys, data changes, the way back,
// and a protocol switch under an open view. Nothing may crash, and under the
// sanitizer build nothing may read or write where it shouldn't.
//
// The seed is fixed, so a failure repeats. CARCONTROL_FUZZ_ROUNDS sets how
// many actions each protocol gets (the sanitizer run raises it);
// CARCONTROL_FUZZ_SEED picks another seed.

#include "appframework.h"
#include "carinfoitem.h"
#include "canobj.h"
#include "catalogue.h"
#include "databuffer.h"
#include "dialogview.h"
#include "exview.h"
#include "hostsim.h"
#include "recordfields.h"

#include <QPointer>
#include <QRandomGenerator>
#include <QtTest>

#include <climits>
#include <cstring>

namespace {

// The head unit's keys, both families, and a few that nothing uses.
const int keys[] = {
    0x1100041, 0x1400009, 0x110003F, 0x140000A, 0x1100040, 0x140000B, 0x110003D, 0x140000C,
    0x110003E, 0x140000D, 0x110004D, 0x110004E, 0x110002A, 0x140000F, Qt::Key_Escape, Qt::Key_A, 0,
};

// Offsets that the random data covers: far beyond what any page reads.
const int FuzzedBytes = 4096;

int envInt(const char *name, int fallback)
{
    bool ok = false;
    const int value = qEnvironmentVariableIntValue(name, &ok);
    return ok && value > 0 ? value : fallback;
}

class Fuzzer
{
public:
    explicit Fuzzer(quint32 seed) : rng(seed) {}

    int below(int n) { return n > 0 ? int(rng.bounded(quint32(n))) : 0; }
    bool chance(int percent) { return below(100) < percent; }

    QString randomText()
    {
        static const int lengths[] = {0, 1, 7, 40, 300, 5000};
        QString text;
        const int n = lengths[below(int(sizeof lengths / sizeof lengths[0]))];
        text.reserve(n);
        for (int i = 0; i < n; ++i)
            text.append(QChar(ushort(chance(80) ? 0x20 + below(0x5F) : 1 + below(0xFFFD))));
        return text;
    }

    QByteArray randomBytes()
    {
        static const int lengths[] = {0, 1, 3, 16, 64, 1024};
        QByteArray bytes(lengths[below(int(sizeof lengths / sizeof lengths[0]))], Qt::Uninitialized);
        for (char &c : bytes)
            c = char(below(256));
        return bytes;
    }

    QList<DateInfo> randomEntries()
    {
        QList<DateInfo> entries;
        const int n = chance(30) ? 0 : below(chance(10) ? 400 : 12);
        for (int i = 0; i < n; ++i) {
            DateInfo entry;
            entry.number = quint16(chance(20) ? 0xFFFF : below(0x10000));
            entry.name = randomText();
            entries << entry;
        }
        return entries;
    }

    // Every byte random, then field values at random places: a page that
    // reads a text, byte-array or list field finds one of any size, or none.
    void fillBuffer(int id)
    {
        DataBuffer buffer(CanObj::instance()->getDataPointerById(id));
        for (int i = 0; i < FuzzedBytes; ++i)
            buffer.setByte(i, quint8(below(256)));
        // Lay fields on most four-byte places of one random alignment.
        const int align = below(4);
        for (int offset = align; offset + 4 <= FuzzedBytes; offset += 4) {
            switch (below(8)) {
            case 0: buffer.setText(offset, randomText()); break;
            case 1: buffer.setBytes(offset, randomBytes()); break;
            case 2: buffer.setEntries(offset, randomEntries()); break;
            default: break;
            }
        }
    }

    void changeSomeBytes(int id)
    {
        DataBuffer buffer(CanObj::instance()->getDataPointerById(id));
        const int n = 1 + below(chance(10) ? 400 : 8);
        for (int i = 0; i < n; ++i)
            buffer.setByte(below(FuzzedBytes), quint8(chance(30) ? (chance(50) ? 0 : 0xFF) : below(256)));
    }

    // Every byte of every record, not only 0 and 1.
    void fillRecords()
    {
        AirData &air = *HostSim::airData();
        for (int offset = 0; offset < 150; ++offset) {
            if (RecordFields::isAirByte(offset))
                RecordFields::setAirByte(air, offset, below(256));
            else if (RecordFields::isAirText(offset))
                RecordFields::setAirText(air, offset, randomText());
        }
        air.airType = qint32(rng.generate());
        air.raw = randomBytes();
        randomize(HostSim::cardoorData(), sizeof(CardoorData));
        randomize(HostSim::carbodyData(), RecordFields::CarbodyBytes);
        randomize(HostSim::radarData(), RecordFields::RadarBytes);
    }

    // A tap at a random place of a visible widget under root: press and
    // release at the same place, or a drag to another.
    void tapSomewhere(QWidget *root)
    {
        if (!root->isVisible())
            return;
        const QPoint at(below(root->width()), below(root->height()));
        QWidget *target = root->childAt(at);
        if (!target)
            target = root;
        const QPoint local = target->mapFrom(root, at);
        if (chance(85)) {
            QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, local);
        } else {
            QPointer<QWidget> guard(target);
            QTest::mousePress(target, Qt::LeftButton, Qt::NoModifier, local);
            if (guard)
                QTest::mouseMove(target, local + QPoint(below(200) - 100, below(200) - 100));
            if (guard)
                QTest::mouseRelease(target, Qt::LeftButton, Qt::NoModifier,
                                    local + QPoint(below(200) - 100, below(200) - 100));
        }
    }

    void pressKey(QWidget *root)
    {
        const int key = keys[below(int(sizeof keys / sizeof keys[0]))];
        QWidget *target = QApplication::focusWidget();
        if (!target || !root->isAncestorOf(target))
            target = root;
        QPointer<QWidget> guard(target);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(target, &press);
        if (guard) {
            QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
            QApplication::sendEvent(target, &release);
        }
    }

private:
    void randomize(void *record, size_t size)
    {
        unsigned char *bytes = static_cast<unsigned char *>(record);
        for (size_t i = 0; i < size; ++i)
            bytes[i] = quint8(below(256));
    }

    QRandomGenerator rng;
};

QWidget *extendedViewParent()
{
    return zorvappframework::UIManager::getUIHerarchy(zorvappframework::UIHerarchyLevel1);
}

} // namespace

class TestFuzz : public QObject
{
    Q_OBJECT

private:
    int rounds = 0;
    quint32 seed = 0;
    int actions = 0;
    // The pages that came to the front, by protocol and class: what the run
    // really reached.
    QSet<QString> pagesSeen;

    // One protocol: random data, then rounds of random actions on a view
    // that is made anew whenever an action left it.
    void run(int id, Fuzzer &fuzz)
    {
        HostSim::reset();
        HostSim::setProtocolId(id);
        fuzz.fillBuffer(id);
        fuzz.fillRecords();
        HostSim::screen()->show();

        QPointer<ExView> view;
        DialogView overlays(zorvappframework::UIManager::getUIHerarchy(zorvappframework::UIHerarchyLevel0));
        overlays.setProtocolId(id);
        for (int round = 0; round < rounds; ++round) {
            if (!view) {
                view = new ExView(extendedViewParent());
                view->show();
            }
            switch (fuzz.below(10)) {
            case 0:
            case 1:
            case 2:
            case 3:
                fuzz.tapSomewhere(view);
                break;
            case 4:
            case 5:
                fuzz.pressKey(view);
                break;
            case 6:
                fuzz.changeSomeBytes(id);
                HostSim::notifyDataChanged();
                break;
            case 7:
                if (fuzz.chance(30))
                    fuzz.fillBuffer(id);
                fuzz.fillRecords();
                view->refresh();
                overlays.onAirConditionerDataChanged();
                overlays.onCardoorDataChanged();
                overlays.onCarbodyDataChanged();
                overlays.setReverse(fuzz.chance(30));
                overlays.onRadarDataChanged();
                overlays.onTrajectoryDataChanged(fuzz.below(256) - 128, fuzz.below(256), fuzz.chance(50));
                if (overlays.isVisible())
                    fuzz.tapSomewhere(&overlays);
                break;
            case 8:
                // Timers: the pages' deferred refresh and the stacks' polling.
                QTest::qWait(fuzz.chance(10) ? 120 : 1);
                break;
            default:
                // The way back: the head unit's back key.
                fuzz.pressKey(view);
                {
                    QKeyEvent back(QEvent::KeyPress, 0x110002A, Qt::NoModifier);
                    if (view)
                        QApplication::sendEvent(view, &back);
                }
                break;
            }
            ++actions;
            if (view) {
                for (CarInfoItem *page : view->findChildren<CarInfoItem *>()) {
                    if (page->isVisible())
                        pagesSeen.insert(QStringLiteral("%1 %2").arg(id).arg(page->metaObject()->className()));
                }
            }
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        delete view;
    }

private slots:
    void initTestCase()
    {
        rounds = envInt("CARCONTROL_FUZZ_ROUNDS", 60);
        seed = quint32(envInt("CARCONTROL_FUZZ_SEED", 20261123));
    }

    // Every id of the catalogue, and ids that no family serves.
    void everyProtocol_data()
    {
        QTest::addColumn<int>("id");
        for (int id : Catalogue::protocolIds())
            QTest::newRow(qPrintable(QString::number(id))) << id;
        for (int id : {0, -1, 27, 255, 100000, INT_MIN})
            QTest::newRow(qPrintable(QStringLiteral("outside %1").arg(id))) << id;
    }
    void everyProtocol()
    {
        QFETCH(int, id);
        Fuzzer fuzz(seed ^ quint32(id));
        run(id, fuzz);
    }

    // The selected vehicle changes while a page is open: the open view keeps
    // its family and must live with whatever the new selection's data is.
    void protocolSwitchUnderOpenView()
    {
        Fuzzer fuzz(seed);
        const QList<int> ids = Catalogue::protocolIds();
        for (int n = 0; n < 3 * ids.size() / 2; ++n) {
            const int from = ids.at(fuzz.below(ids.size()));
            HostSim::reset();
            HostSim::setProtocolId(from);
            fuzz.fillBuffer(from);
            HostSim::screen()->show();
            QPointer<ExView> view = new ExView(extendedViewParent());
            view->show();
            for (int i = 0; i < 4 && view; ++i)
                fuzz.tapSomewhere(view);
            const int to = fuzz.chance(20) ? 0 : ids.at(fuzz.below(ids.size()));
            HostSim::setProtocolId(to);
            if (to > 0)
                fuzz.fillBuffer(to);
            for (int i = 0; i < 8 && view; ++i) {
                HostSim::notifyDataChanged();
                fuzz.tapSomewhere(view);
                if (view)
                    fuzz.pressKey(view);
            }
            delete view;
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    void cleanupTestCase()
    {
        qInfo("fuzz: %d actions, %d pages reached, seed %u", actions, int(pagesSeen.size()), seed);
    }
};

QTEST_MAIN(TestFuzz)
#include "tst_fuzz.moc"
