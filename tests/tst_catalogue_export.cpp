// The catalogue as data: a page's rows with their sources, and for every
// adjustable row every value it steps to, with the frame the page really
// sent and the bytes with which the car reports that value.

#include "canobj.h"
#include "carexviewbase.h"
#include "catalogue.h"
#include "catalogueexport.h"
#include "frames.h"
#include "hostsim.h"
#include "rowpage.h"

#include <QtTest>

#include <memory>

namespace {

const int Protocol = 30;

// The group: two settings packed in byte 40 and sent together.
QByteArray packed(DataBuffer const &buffer, int)
{
    return Frames::make2E(0x84, {buffer.byte(40), 0});
}

// One row of each sort the export must handle.
class FixturePage : public RowPage
{
    Q_OBJECT
public:
    explicit FixturePage(QWidget *parent) : RowPage(QStringLiteral("Fixture"), parent) {}

protected:
    QList<Row> rowTable() const override
    {
        return QList<Row>()
            << Row::of(NumberKind, "Level", {0, 3}).at(20).adjustable().command(0xC6, 0x01)
            << Row::choice("Colour", {"white", "green", "blue"}).at(21).showCodes({0, 4, 5}).sendCodes({0, 4, 5})
                   .adjustable().command(0xC6, 0x02)
            << Row::choice("Low bits", {"off", "on"}).at(40, 0x03).adjustable().group(packed)
            << Row::choice("High bits", {"off", "on"}).at(40, 0x03, 4).adjustable().group(packed)
            << Row::of(NumberKind, "Seat", {0, 5}).at(22).adjustable().direction(1, 2).command(0xC6, 0x03)
            << Row::of(NumberKind, "Outside", {0, 40}).at(23)
            << Row::text("Name").textAt(24);
    }
};

QJsonObject row(QJsonObject const &page, int index)
{
    return page.value("rows").toArray().at(index).toObject();
}

// The steps of a row as "value: frame -> writes".
QStringList steps(QJsonObject const &row)
{
    QStringList texts;
    for (QJsonValue const &value : row.value("steps").toArray()) {
        const QJsonObject step = value.toObject();
        QStringList writes;
        for (QJsonValue const &w : step.value("writes").toArray()) {
            const QJsonArray write = w.toArray();
            writes << QStringLiteral("%1/%2=%3").arg(write.at(0).toInt()).arg(write.at(1).toInt(), 0, 16)
                          .arg(write.at(2).toInt(), 0, 16);
        }
        texts << QStringLiteral("%1: %2 -> %3").arg(step.value("value").toInt())
                     .arg(step.value("frame").toString(), writes.join(QLatin1Char(' ')));
    }
    return texts;
}

class Stack
{
public:
    explicit Stack(int protocol)
    {
        HostSim::reset();
        HostSim::setProtocolId(protocol);
        stack.reset(createPageStack(protocol, &window));
        QObject::connect(stack.get(), SIGNAL(sendData(QByteArray)), CanObj::instance(),
                         SIGNAL(sendDataToCan(QByteArray)));
    }
    QJsonObject page(int index)
    {
        return CatalogueExport::exportPage(qobject_cast<CarInfoItem *>(stack->widget(index)), CanObj::id());
    }

    QWidget window;
    std::unique_ptr<CarExViewBase> stack;
};

} // namespace

class TestCatalogueExport : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(Protocol);
    }

    void fixturePage()
    {
        QWidget window;
        FixturePage *page = new FixturePage(&window);
        const QJsonObject json = CatalogueExport::exportPage(page, Protocol);
        QCOMPARE(json.value("class").toString(), QStringLiteral("FixturePage"));
        QCOMPARE(json.value("rows").toArray().size(), 7);

        const QJsonObject level = row(json, 0);
        QCOMPARE(level.value("source").toObject(),
                 (QJsonObject{{"type", "byte"}, {"offset", 20}, {"mask", 255}, {"shift", 0}}));
        QCOMPARE(steps(level), (QStringList{"0: 2E C6 02 01 00 ck -> 20/ff=0", "1: 2E C6 02 01 01 ck -> 20/ff=1",
                                            "2: 2E C6 02 01 02 ck -> 20/ff=2", "3: 2E C6 02 01 03 ck -> 20/ff=3"}));
        QVERIFY(level.value("answered").toBool());

        // Codes both ways: the option goes out as its code, and the car
        // reports that code back.
        QCOMPARE(steps(row(json, 1)), (QStringList{"0: 2E C6 02 02 00 ck -> 21/ff=0", "1: 2E C6 02 02 04 ck -> 21/ff=4",
                                                   "2: 2E C6 02 02 05 ck -> 21/ff=5"}));

        // Group rows: the frame carries the whole byte, the other row's bits
        // copied from the buffer; the answer writes the row's own bits.
        QCOMPARE(steps(row(json, 2)), (QStringList{"0: 2E 84 02 00 00 ck -> 40/3=0", "1: 2E 84 02 01 00 ck -> 40/3=1"}));
        QCOMPARE(row(json, 2).value("steps").toArray().at(1).toObject().value("care").toString(),
                 QStringLiteral("FF FF FF 03 FF"));
        QCOMPARE(steps(row(json, 3)).at(1), QStringLiteral("1: 2E 84 02 10 00 ck -> 40/30=10"));
        QCOMPARE(row(json, 3).value("steps").toArray().at(1).toObject().value("care").toString(),
                 QStringLiteral("FF FF FF 30 FF"));
        QVERIFY(row(json, 2).value("answered").toBool());
        QVERIFY(row(json, 3).value("answered").toBool());

        // A direction row's frame carries no value: never answered.
        const QJsonObject seat = row(json, 4);
        QVERIFY(seat.value("direction").toBool());
        QVERIFY(!seat.value("answered").toBool());
        QCOMPARE(steps(seat), (QStringList{"1: 2E C6 02 03 01 ck -> ", "2: 2E C6 02 03 02 ck -> "}));

        // Read-only rows carry a sample value for the demo screens.
        const QJsonObject outside = row(json, 5);
        QVERIFY(!outside.contains("steps"));
        QCOMPARE(outside.value("sample").toObject().value("value").toInt(), 20);
        QCOMPARE(row(json, 6).value("source").toObject().value("type").toString(), QStringLiteral("text"));

        const CatalogueExport::Coverage coverage = CatalogueExport::coverageOfPage(json);
        QCOMPARE(coverage.adjustable, 5);
        QCOMPARE(coverage.answered, 4);
    }

    void amplifierOfProtocol28()
    {
        Stack stack(28);
        const QJsonObject json = stack.page(1);
        QCOMPARE(json.value("title").toString(), QStringLiteral("Amplifier status"));
        const QJsonObject treble = row(json, 1);
        QCOMPARE(treble.value("title").toString(), QStringLiteral("Treble"));
        const QStringList treble19 = steps(treble);
        QCOMPARE(treble19.size(), 19);
        QCOMPARE(treble19.at(10), QStringLiteral("10: 2E A8 02 01 0A ck -> 106/ff=a"));
        QVERIFY(treble.value("answered").toBool());
        QCOMPARE(CatalogueExport::coverageOfPage(json).answered, 7);
    }

    void mappedRowsOfProtocol28Settings()
    {
        Stack stack(28);
        const QJsonObject json = stack.page(2);
        // Meter mode: "customize" goes out as the code of "view 1" and comes
        // back as 255, so the frame doesn't carry the value.
        const QStringList meter = steps(row(json, 110));
        QCOMPARE(meter.at(0), QStringLiteral("0: 2E C6 02 E9 02 ck -> 227/ff=2"));
        QCOMPARE(meter.at(1), QStringLiteral("1: 2E C6 02 E9 03 ck -> 227/ff=3"));
        QCOMPARE(meter.at(4), QStringLiteral("4: 2E C6 02 E9 03 ck -> 227/ff=ff"));
        QVERIFY(!row(json, 110).value("answered").toBool());
        // Language: the first fourteen options are their own codes, the
        // others have codes of their own.
        const QJsonObject language = row(json, 114);
        const QStringList languages = steps(language);
        QCOMPARE(languages.at(13), QStringLiteral("13: 2E C6 02 00 0D ck -> 230/ff=d"));
        QCOMPARE(languages.at(14), QStringLiteral("14: 2E C6 02 00 10 ck -> 230/ff=10"));
        QVERIFY(language.value("answered").toBool());
    }

    void groupFramePage()
    {
        // Protocol 87's memory speeds: one frame for the whole group.
        Stack stack(87);
        const QJsonObject json = stack.page(5);
        const QJsonObject memory = row(json, 0);
        QCOMPARE(memory.value("steps").toArray().at(0).toObject().value("frame").toString(),
                 QStringLiteral("FD 09 88 00 ?? ?? ?? ?? ?? ck"));
        QVERIFY(memory.value("answered").toBool());
    }

    void wholeCatalogue()
    {
        const QJsonObject catalogue = CatalogueExport::exportCatalogue();
        const QJsonArray families = catalogue.value("families").toArray();
        QCOMPARE(families.size(), 49);
        int pages = 0, answered = 0, adjustable = 0;
        for (QJsonValue const &f : families) {
            const QJsonObject family = f.toObject();
            pages += family.value("pages").toArray().size();
            answered += family.value("answered").toInt();
            adjustable += family.value("adjustable").toInt();
        }
        QCOMPARE(pages, 261);
        QCOMPARE(catalogue.value("answered").toInt(), answered);
        QCOMPARE(catalogue.value("adjustable").toInt(), adjustable);
        QVERIFY(answered * 10 > adjustable * 9);

        const QString reference = CatalogueExport::reference(catalogue);
        QVERIFY(reference.contains(QStringLiteral("## Family 124")));
        QVERIFY(reference.contains(QStringLiteral("| 1 | Treble | number | 106 | 19 | `2E A8 02 01 00 ck` | yes |")));
        QVERIFY(reference.contains(QStringLiteral("A page of its own widgets.")));
        QVERIFY(reference.contains(QStringLiteral("0 choice, 1 percent, 2 temperature,")));
        // Rows named as the screen shows them: 72_4 numbers its titles.
        QVERIFY(reference.contains(QStringLiteral("| 1 | 5km ordinate | text |")));
        QVERIFY(!reference.contains(QStringLiteral("| km ordinate |")));

        // The pages and families that the catalogue gives titles but no
        // rows are counted and named, over all and at each family.
        QVERIFY(reference.contains(QStringLiteral("133 of the 261 pages have no rows")));
        QVERIFY(reference.contains(QStringLiteral("26 families (41 protocol ids) have no page with rows")));
        const int empty = 26;
        QCOMPARE(reference.count(QStringLiteral("Its pages have no rows: each opens empty.")), empty);
    }
};

QTEST_MAIN(TestCatalogueExport)
#include "tst_catalogue_export.moc"
