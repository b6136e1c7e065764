// The catalogue of vehicles: which protocol ids have a page stack, and which
// pages each stack holds, with their classes, titles and middle-strip forms.

#include "carexviewbase.h"
#include "carinfoitem.h"
#include "catalogue.h"
#include "hostsim.h"

#include <QMetaMethod>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <set>
#include <vector>

namespace {

struct PageSpec
{
    const char *page; // "28_1" stands for CarInfoItem28_1
    const char *title;
};

struct FamilySpec
{
    int family;
    std::vector<int> ids;
    std::vector<PageSpec> pages;
};

// The families, their ids and their pages in list order, titles as the
// list shows them.
const std::vector<FamilySpec> &families()
{
    static const std::vector<FamilySpec> table = {
        {28, {28}, {
            {"28_1", "Parking assist status"},
            {"28_2", "Amplifier status"},
            {"28_3", "Body information"},
            {"28_4", "Driving data"},
            {"28_5", "Electronic Sisplay"},
            {"28_6", "Tire pressure information"},
            {"28_7", "Car condition check"},
            {"28_8", "Electric management status"},
        }},
        {29, {29}, {
            {"29_1", "Parking assist status"},
            {"29_2", "Amplifier status"},
            {"29_3", "Body information"},
        }},
        {30, {30, 50, 51}, {
            {"30_1", "Tire pressure information"},
            {"30_2", "Hybrid information"},
            {"30_3", "Vehicle setting status"},
            {"30_4", "Amplifier information"},
            {"30_5", "Body setting status"},
            {"30_6", "Historical fuel consumption information"},
            {"30_7", "Mileage information"},
            {"30_8", "Fuel consumption in the past 15 minutes"},
            {"30_9", "Multimedia information"},
        }},
        {31, {31, 53}, {
            {"31_1", "Parking assist status"},
            {"31_2", "Fuel consumption and mileage information"},
            {"31_3", "Power flow information"},
            {"31_4", "Original car radio data"},
            {"31_5", "Backlight adjustment information"},
            {"31_6", "Vehicle setting status"},
        }},
        {32, {32, 54}, {
            {"32_1", "Multimedia information"},
            {"32_2", "Voice control feedback"},
            {"32_3", "Function recognition"},
            {"32_4", "Vehicle setting information"},
            {"32_5", "Amplifier information"},
            {"32_6", "Vehicle Information"},
        }},
        {33, {33, 57}, {
            {"33_1", "Compass information"},
            {"33_2", "Voice control feedback"},
            {"33_3", "Function recognition"},
            {"33_4", "Original car settings"},
            {"33_5", "New energy display information"},
            {"33_6", "Vehicle Information"},
            {"33_7", "New energy setting information"},
            {"33_8", "Intelligent perception system information"},
            {"33_9", "Vehicle control information"},
        }},
        {34, {34}, {
            {"34_1", "Parking assist status"},
            {"34_2", "Amplifier status"},
            {"34_3", "Body information"},
        }},
        {35, {35}, {
            {"35_1", "Vehicle setting information"},
            {"35_2", "Mileage information"},
        }},
        {36, {36}, {
            {"36_1", "Parking assist status"},
            {"36_2", "Fuel consumption and mileage information"},
        }},
        {37, {37, 38, 39}, {
            {"37_1", "Automatic parking information"},
            {"37_2", "Hybrid information"},
            {"37_3", "Body air conditioning settings"},
            {"37_4", "Body control setting information 2"},
            {"37_5", "Body control setting information"},
            {"37_6", "Body air conditioning control information"},
            {"37_7", "Simulate the key information of the original car panel"},
            {"37_8", "Tire pressure information"},
            {"37_9", "OnStar Information"},
        }},
        {40, {40}, {
            {"40_1", "Body information"},
            {"40_2", "Amplifier information"},
        }},
        {42, {42}, {
            {"42_1", "Vehicle settings"},
        }},
        {43, {43, 44}, {
            {"43_1", "Body information"},
            {"43_2", "Panorama and Auxiliary"},
            {"43_3", "Body setting status"},
        }},
        {45, {45, 46, 47, 55}, {
            {"45_1", "Vehicle Information"},
            {"45_2", "Vehicle Information 1"},
            {"45_3", "Setting item information"},
            {"45_4", "Setting item display"},
        }},
        {48, {48}, {
            {"48_1", "Parking assist status"},
            {"48_2", "Multimedia information"},
            {"48_3", "SYNC information"},
            {"48_4", "Seat massage"},
            {"48_5", "Power amplifier status"},
            {"48_6", "Smart Xinfeng"},
            {"48_7", "Set item status"},
            {"48_8", "Basic Information"},
            {"48_9", "Tire pressure information"},
            {"48_10", "SYNC command"},
        }},
        {49, {49}, {
            {"49_1", "Parking assist status"},
            {"49_2", "Setting item status"},
            {"49_3", "Setting item setting 1"},
            {"49_4", "Setting item setting 2"},
            {"49_5", "Panorama information"},
            {"49_6", "PM2.5 data"},
            {"49_7", "Tire pressure information"},
        }},
        {56, {56}, {
            {"56_1", "Body information"},
            {"56_2", "Voice control feedback"},
            {"56_3", "Function recognition"},
            {"56_6", "Vehicle Information"},
        }},
        {60, {60, 61, 62}, {
            {"60_1", "Body information"},
            {"60_2", "Original car setting information"},
            {"60_3", "Original vehicle vehicle information 2"},
            {"60_4", "Amplifier information"},
            {"60_5", "CD status information"},
            {"60_6", "Panorama information"},
        }},
        {64, {64}, {
            {"64_1", "Energy management setup information"},
            {"64_2", "Voice control feedback"},
            {"64_3", "Function recognition"},
            {"64_4", "vehicle setup information"},
            {"64_5", "Tire pressure warning message"},
            {"64_6", "Vehicle Information"},
            {"64_7", "automatic parking status"},
            {"64_8", "Panoramic information"},
        }},
        {65, {65}, {
            {"65_1", "Voice control feedback"},
            {"65_2", "Function recognition"},
            {"65_3", "Vehicle Information"},
            {"65_4", "Security Settings Status Information"},
            {"65_5", "Original car radio status information"},
            {"65_6", "Original car amplifier settings"},
            {"65_7", "CD/DVD media information"},
            {"65_8", "i-stop information"},
            {"65_9", "fuel information"},
            {"65_10", "set item status"},
            {"65_11", "driving display"},
            {"65_12", "Maintenance information"},
            {"65_13", "Basic Information"},
            {"65_14", "Tire pressure display"},
        }},
        {66, {66}, {
            {"66_1", "Basic Information"},
        }},
        {67, {67}, {
            {"67_1", "Voice control feedback"},
            {"67_2", "Function recognition"},
            {"67_3", "Vehicle Information"},
            {"67_4", "Amplifier Information"},
            {"67_5", "New energy setting information 5"},
            {"67_6", "New energy setting information 4"},
            {"67_7", "New energy setting information 3"},
            {"67_8", "New energy setting information 2"},
            {"67_9", "New energy setting information 1"},
            {"67_10", "vehicle setup command"},
            {"67_11", "Panoramic image status"},
            {"67_12", "Tire pressure information"},
            {"67_13", "Basic body information"},
        }},
        {68, {68}, {
            {"68_1", "vehicle settings"},
            {"68_2", "Setting item status information"},
            {"68_3", "Set item status 2 information"},
        }},
        {69, {69}, {
            {"69_1", "vehicle settings"},
            {"69_2", "Tire pressure information"},
            {"69_3", "Original car setting item information feedback"},
            {"69_4", "360 panoramic information feedback"},
            {"69_5", "energy information"},
            {"69_6", "Original car setting item information 2"},
            {"69_7", "Dashcam settings"},
            {"69_8", "voice control"},
        }},
        {70, {70}, {
            {"70_1", "Voice control feedback"},
            {"70_2", "Function recognition"},
            {"70_3", "Vehicle Information"},
            {"70_4", "set item status"},
            {"70_5", "Tire pressure display"},
        }},
        {71, {71}, {
            {"71_1", "Voice control feedback"},
            {"71_2", "Function recognition"},
            {"71_3", "Vehicle Information"},
            {"71_4", "body information"},
        }},
        {72, {72}, {
            {"72_1", "Voice control feedback"},
            {"72_2", "Function recognition"},
            {"72_3", "Vehicle Information"},
            {"72_4", "List of potentials"},
            {"72_5", "Oil Potential List"},
            {"72_6", "energy management"},
            {"72_7", "driving mode"},
            {"72_8", "Tire pressure information"},
            {"72_9", "Panoramic information"},
            {"72_10", "Warning message"},
            {"72_11", "Vehicle Setup Information 3"},
            {"72_12", "Vehicle Setup Information 2"},
            {"72_13", "Vehicle Setup Information"},
            {"72_14", "Vehicle Setup Information 4"},
            {"72_15", "body information"},
        }},
        {74, {74, 75, 76, 77, 101}, {
            {"74_1", "Voice control feedback"},
            {"74_2", "Function recognition"},
            {"74_3", "Vehicle Information"},
            {"74_4", "body information"},
            {"74_5", "Original car information"},
            {"74_6", "The status of the original car setting item is returned"},
            {"74_7", "original car fault information"},
            {"74_8", "Car health examination"},
        }},
        {78, {78}, {
            {"78_1", "Voice control feedback"},
            {"78_2", "Function recognition"},
            {"78_3", "Vehicle Information"},
            {"78_4", "body information"},
            {"78_5", "vehicle settings"},
        }},
        {79, {79}, {
            {"79_1", "Voice control feedback"},
            {"79_2", "Function recognition"},
            {"79_3", "Vehicle Information"},
            {"79_4", "body information"},
            {"79_5", "Original car setup information"},
            {"79_6", "energy information"},
            {"79_7", "energy efficient driving"},
        }},
        {80, {80}, {
            {"80_1", "AVM set feedback status"},
            {"80_2", "body information"},
        }},
        {81, {81, 85}, {
            {"81_1", "body information"},
        }},
        {82, {82}, {
            {"82_1", "body information"},
        }},
        {84, {84}, {
            {"84_1", "body information"},
        }},
        {86, {86}, {
            {"86_1", "Amplifier Information"},
            {"86_2", "Trip computer information"},
        }},
        {87, {87}, {
            {"87_1", "Amplifier Information"},
            {"87_2", "Trip computer information"},
            {"87_3", "body information"},
            {"87_4", "Air conditioner preset state"},
            {"87_5", "car status"},
            {"87_6", "Memory speed value"},
            {"87_7", "Cruising speed, speed limit"},
            {"87_8", "set item status 2"},
            {"87_9", "Hybrid information-energy flow"},
            {"87_10", "Hybrid information-statistics"},
            {"87_11", "Hybrid information-charging and battery storage"},
        }},
        {88, {88, 89, 90, 91, 92}, {
            {"88_1", "body information"},
            {"88_2", "Rear seat air conditioner information"},
            {"88_3", "Vehicle Control Information 1"},
            {"88_4", "CD status information"},
            {"88_5", "Vehicle Control Information 3"},
            {"88_6", "Amplifier status"},
            {"88_7", "performance control system"},
            {"88_8", "Hybrid information"},
        }},
        {93, {93}, {
            {"93_1", "body information"},
        }},
        {94, {94, 95}, {
            {"94_1", "body information"},
        }},
        {96, {96}, {
            {"96_1", "Voice control feedback"},
            {"96_2", "Function recognition"},
            {"96_3", "Vehicle Information"},
            {"96_4", "body information"},
            {"96_5", "Amplifier Information"},
            {"96_6", "fuel consumption information"},
            {"96_7", "Setting item information"},
        }},
        {97, {97}, {
            {"97_1", "Voice control feedback"},
            {"97_2", "Function recognition"},
            {"97_3", "Vehicle Information"},
            {"97_4", "body information"},
            {"97_5", "Tire pressure information"},
            {"97_6", "Fuel consumption and mileage information"},
            {"97_7", "set item status"},
        }},
        {98, {98}, {
            {"98_1", "body information"},
            {"98_2", "Setting item information"},
            {"98_3", "Trip information"},
        }},
        {99, {99, 100}, {
            {"99_2", "body information"},
            {"99_1", "Panorama state"},
        }},
        {102, {102}, {
            {"102_1", "Voice control feedback"},
            {"102_2", "Function recognition"},
            {"102_3", "Vehicle Information"},
        }},
        {103, {103, 104}, {
            {"103_1", "body information"},
            {"103_2", "Tire pressure monitoring"},
            {"103_3", "Amplifier Information"},
        }},
        {105, {105}, {
            {"105_1", "Voice control feedback"},
            {"105_2", "Function recognition"},
            {"105_3", "Vehicle Information"},
            {"105_4", "On-board computer information"},
            {"105_5", "Vehicle Setup Information 2"},
            {"105_6", "Vehicle Setup Information 1"},
            {"105_7", "Vehicle Setup Information"},
            {"105_8", "Tire pressure information"},
            {"105_9", "body information"},
        }},
        {122, {122}, {
            {"122_1", "Vehicle Information"},
            {"122_2", "Vehicle Information 1"},
            {"122_3", "Setting item information"},
            {"122_4", "Setting item display"},
            {"122_5", "Body Information"},
            {"122_6", "Voice control feedback"},
            {"122_7", "Function recognition"},
            {"122_8", "Vehicle Information"},
        }},
        {123, {123}, {
            {"123_1", "Basic information"},
            {"123_2", "Original car power release state"},
            {"123_3", "Vehicle driving fuel consumption information"},
        }},
        {124, {124}, {
            {"124_1", "Basic information"},
            {"124_2", "Vehicle settings information"},
            {"124_3", "CD/DVD status"},
        }},
    };
    return table;
}

QString pageClass(const char *page) { return QStringLiteral("CarInfoItem") + QLatin1String(page); }

std::set<QString> pageSet(std::initializer_list<const char *> pages)
{
    std::set<QString> set;
    for (const char *page : pages)
        set.insert(pageClass(page));
    return set;
}

std::set<QString> pageRange(int family, int first, int last)
{
    std::set<QString> set;
    for (int m = first; m <= last; ++m)
        set.insert(QStringLiteral("CarInfoItem%1_%2").arg(family).arg(m));
    return set;
}

std::set<QString> operator+(std::set<QString> a, std::set<QString> const &b)
{
    a.insert(b.begin(), b.end());
    return a;
}

} // namespace

class TestCatalogue : public QObject
{
    Q_OBJECT

private:
    QWidget *window = nullptr;

    std::unique_ptr<CarExViewBase> stackFor(int id)
    {
        HostSim::setProtocolId(id);
        return std::unique_ptr<CarExViewBase>(createPageStack(id, window));
    }

private slots:
    void init()
    {
        HostSim::reset();
        window = new QWidget;
    }

    void cleanup()
    {
        delete window;
        window = nullptr;
    }

    void protocolIds()
    {
        QList<int> expected;
        for (FamilySpec const &family : families())
            for (int id : family.ids)
                expected.append(id);
        std::sort(expected.begin(), expected.end());

        QCOMPARE(Catalogue::protocolIds(), expected);
        QCOMPARE(expected.size(), 74);
    }

    void stacks_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<int>("familyIndex");
        for (int f = 0; f < int(families().size()); ++f) {
            for (int id : families()[f].ids)
                QTest::newRow(qPrintable(QString::number(id))) << id << f;
        }
    }

    void stacks()
    {
        QFETCH(int, id);
        QFETCH(int, familyIndex);
        FamilySpec const &family = families()[familyIndex];

        QCOMPARE(Catalogue::familyOf(id), family.family);
        std::unique_ptr<CarExViewBase> stack = stackFor(id);
        QVERIFY(stack);
        QCOMPARE(QString(stack->metaObject()->className()), QStringLiteral("CarExView%1").arg(family.family));
        QCOMPARE(stack->parentWidget(), window);
        QCOMPARE(stack->count(), int(family.pages.size()));

        QList<QString> titles;
        for (int i = 0; i < stack->count(); ++i) {
            CarInfoItem *page = qobject_cast<CarInfoItem *>(stack->widget(i));
            QVERIFY(page);
            QCOMPARE(QString(page->metaObject()->className()), pageClass(family.pages[i].page));
            QCOMPARE(page->getTitle(), QString(family.pages[i].title));
            QCOMPARE(page->parentWidget(), stack.get());
            titles.append(family.pages[i].title);
        }
        QCOMPARE(stack->getDatalist(), titles);
    }

    void pagesInAll()
    {
        int pages = 0;
        std::set<QString> classes;
        for (FamilySpec const &family : families()) {
            std::unique_ptr<CarExViewBase> stack = stackFor(family.ids.front());
            pages += stack->count();
            for (int i = 0; i < stack->count(); ++i)
                classes.insert(stack->widget(i)->metaObject()->className());
        }
        QCOMPARE(int(families().size()), 49);
        QCOMPARE(pages, 261);
        QCOMPARE(int(classes.size()), 261);
    }

    void idsWithoutStack()
    {
        const QList<int> served = Catalogue::protocolIds();
        for (int id = -3; id <= 130; ++id) {
            if (served.contains(id))
                continue;
            QVERIFY2(!stackFor(id), qPrintable(QString::number(id)));
            QCOMPARE(Catalogue::familyOf(id), 0);
        }
        for (int id : {0, 27, 41, 52, 58, 59, 63, 73, 83, 106, 121, 125, -1})
            QVERIFY(!served.contains(id));
    }

    void sharedAndOddlyOrderedFamilies()
    {
        // Three ids, one list: only the pages tell the ids apart.
        const QList<QString> titles30 = stackFor(30)->getDatalist();
        QCOMPARE(stackFor(50)->getDatalist(), titles30);
        QCOMPARE(stackFor(51)->getDatalist(), titles30);

        std::unique_ptr<CarExViewBase> stack99 = stackFor(100);
        QCOMPARE(QString(stack99->widget(0)->metaObject()->className()), QString("CarInfoItem99_2"));
        QCOMPARE(QString(stack99->widget(1)->metaObject()->className()), QString("CarInfoItem99_1"));

        std::unique_ptr<CarExViewBase> stack56 = stackFor(56);
        QCOMPARE(stack56->count(), 4);
        QCOMPARE(QString(stack56->widget(3)->metaObject()->className()), QString("CarInfoItem56_6"));

        const QList<QString> titles122 = stackFor(122)->getDatalist();
        QCOMPARE(titles122.at(0), QString("Vehicle Information"));
        QCOMPARE(titles122.at(7), QString("Vehicle Information"));
        QCOMPARE(titles122.count("Vehicle Information"), 2);

        QCOMPARE(stackFor(28)->getDatalist().at(4), QString("Electronic Sisplay"));
    }

    void pageInterfaces()
    {
        const std::set<QString> onItemBtMiddle = pageSet({"64_4", "64_5", "65_4", "65_11", "65_13", "67_8", "70_4",
                                                          "71_4", "78_4", "78_5", "96_4", "97_6", "97_7"})
            + pageRange(72, 4, 15) + pageRange(74, 4, 8) + pageRange(79, 4, 7) + pageRange(105, 4, 9);
        const std::set<QString> onclicke = pageSet({"28_6", "30_3", "31_3", "33_4", "33_7", "33_9", "36_1", "37_1",
                                                    "40_1", "42_1", "43_1", "43_2", "43_3", "45_1", "48_5", "60_5",
                                                    "82_1", "96_5", "122_1", "123_3"});
        const std::set<QString> tirePressure = pageSet({"28_6", "31_3", "42_1", "64_5", "72_8", "66_1", "80_1",
                                                        "80_2", "81_1", "82_1", "84_1", "86_1", "86_2", "88_1"})
            + pageRange(87, 1, 11);
        QCOMPARE(int(onItemBtMiddle.size()), 40);
        const std::set<QString> ownWidgets = pageSet({"124_3"});

        int plain = 0;
        for (FamilySpec const &family : families()) {
            std::unique_ptr<CarExViewBase> stack = stackFor(family.ids.front());
            for (int i = 0; i < stack->count(); ++i) {
                QWidget *page = stack->widget(i);
                const QMetaObject *meta = page->metaObject();
                const QString name = meta->className();
                // Pages built of their own widgets are pages, but no tables.
                QVERIFY2(page->inherits(ownWidgets.count(name) ? "CarInfoItem" : "RowPage"), qPrintable(name));
                QCOMPARE(page->inherits("RowPage"), ownWidgets.count(name) == 0);
                QCOMPARE(page->inherits("MiddleRowPage"), onItemBtMiddle.count(name) == 1);
                QCOMPARE(page->inherits("ClickRowPage"), onclicke.count(name) == 1);
                if (tirePressure.count(name))
                    QVERIFY2(meta->indexOfSignal("TirePressure()") >= 0, qPrintable(name));
                if (!page->inherits("MiddleRowPage") && !page->inherits("ClickRowPage") && name != "CarInfoItem69_7")
                    ++plain;
            }
        }
        // The plain pages and the three of their own widgets.
        QCOMPARE(plain, 197 + 3);

        std::unique_ptr<CarExViewBase> stack69 = stackFor(69);
        const QMetaObject *page69_7 = stack69->widget(6)->metaObject();
        QVERIFY(page69_7->indexOfSlot("OnitemBtMiddle(QModelIndex)") >= 0);
        const QMetaMethod slot69 = page69_7->method(page69_7->indexOfSlot("OnitemBtMiddle(QModelIndex)"));
        QCOMPARE(slot69.parameterNames(), QList<QByteArray>() << "index");

        std::unique_ptr<CarExViewBase> stack65 = stackFor(65);
        QVERIFY(stack65->widget(13)->metaObject()->indexOfSlot("onItemBtMiddle(QModelIndex)") >= 0);

        std::unique_ptr<CarExViewBase> stack28 = stackFor(28);
        QVERIFY(stack28->widget(1)->metaObject()->indexOfSlot("onLeftBtClicked(QModelIndex)") >= 0);
        QVERIFY(stack28->widget(1)->metaObject()->indexOfSlot("onRightBtClicked(QModelIndex)") >= 0);
    }
};

QTEST_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
