// Page rows and the two list models: the value texts of every row kind, the
// roles that the painters and pages read, and how pages change a row.

#include "listdata.h"
#include "listmodel0.h"
#include "listmodel1.h"
#include "tableview.h"

#include <QColor>
#include <QPixmap>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString Celsius = QString::fromUtf8("\u2103");
const QString Fahrenheit = QString::fromUtf8("\u2109");

QVariantList opts(std::initializer_list<QVariant> entries)
{
    return QVariantList(entries);
}

} // namespace

class TestToolkitModels : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir artwork;

    // A model with the given rows, served by its own view.
    struct Table
    {
        explicit Table(QList<ListData> const &rows = QList<ListData>())
            : model(new ListModel1(&view))
        {
            view.resize(800, 400);
            model->setListData(rows);
        }
        QVariant at(int row, int role) const { return model->index(row, 0).data(role); }

        TableView view;
        ListModel1 *model;
    };

private slots:
    void initTestCase()
    {
        QVERIFY(artwork.isValid());
        QDir(artwork.path()).mkpath("exStyle4");
        const char *names[] = {"last.png", "last_d.png", "next.png", "next_d.png", "data_by.png"};
        for (char const *name : names) {
            QImage image(40, 40, QImage::Format_ARGB32);
            image.fill(Qt::red);
            QVERIFY(image.save(artwork.filePath(QString("exStyle4/") + name), "PNG"));
        }
        qputenv("CARCONTROL_RESOURCE_ROOT", artwork.path().toLocal8Bit());
    }

    void rowsKeepBothConstructorOrders()
    {
        const ListData byPosition(TemperatureKind, "Cabin", QVariant("12"), opts({0, 40}), true, 1, 0.5);
        QCOMPARE(byPosition.kind, int(TemperatureKind));
        QCOMPARE(byPosition.title, QString("Cabin"));
        QCOMPARE(byPosition.value, 12);
        QCOMPARE(byPosition.text, QString("12"));
        QCOMPARE(byPosition.options, opts({0, 40}));
        QVERIFY(byPosition.adjustable);
        QCOMPARE(byPosition.unit, 1);
        QCOMPARE(byPosition.factor, 0.5);

        // With an id, the id comes first and the kind second.
        const ListData byId(7, SpeedKind, "Limit", 30, opts({0, 200}), false, 0, 1.0);
        QCOMPARE(byId.id, 7);
        QCOMPARE(byId.kind, int(SpeedKind));
        QCOMPARE(byId.value, 30);
        QCOMPARE(byId.text, QString("30"));
        QVERIFY(!byId.adjustable);

        const ListData copy(byId);
        QCOMPARE(copy.id, 7);
        QCOMPARE(copy.kind, int(SpeedKind));
        QCOMPARE(copy.title, QString("Limit"));
        QCOMPARE(copy.options, byId.options);
    }

    void valueTexts_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QVariantList>("options");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("unit");
        QTest::addColumn<double>("factor");
        QTest::addColumn<QString>("shown");

        // Choices: the value indexes the texts; whatever the car reports
        // outside them shows nothing.
        const QVariantList languages = opts({"English", "Deutsch", "Fran\u00e7ais"});
        QTest::newRow("choice") << 0 << languages << QVariant(1) << 0 << 1.0 << "Deutsch";
        QTest::newRow("choice last") << 0 << languages << QVariant(2) << 0 << 1.0 << QString::fromUtf8("Fran\u00e7ais");
        QTest::newRow("choice past end") << 0 << languages << QVariant(3) << 0 << 1.0 << "";
        QTest::newRow("choice byte 15") << 0 << languages << QVariant(15) << 0 << 1.0 << "";
        QTest::newRow("choice negative") << 0 << languages << QVariant(-1) << 0 << 1.0 << "";
        QTest::newRow("choice no options") << 0 << QVariantList() << QVariant(0) << 0 << 1.0 << "";

        QTest::newRow("percent") << 1 << opts({0, 100}) << QVariant(50) << 0 << 1.0 << "50.0%";
        QTest::newRow("percent negative") << 1 << opts({-10, 10}) << QVariant(3) << 0 << 0.5 << "-3.5%";
        QTest::newRow("percent unit ignored") << 1 << opts({0, 100}) << QVariant(5) << 3 << 1.0 << "5.0%";
        QTest::newRow("percent no options") << 1 << QVariantList() << QVariant(5) << 0 << 1.0 << "";

        // Temperatures subtract their zero point.
        QTest::newRow("temperature zero") << 2 << opts({0, 40, 194}) << QVariant(40) << 0 << 1.0 << "0.0" + Celsius;
        QTest::newRow("temperature below") << 2 << opts({0, 40, 194}) << QVariant(0) << 0 << 1.0 << "-40.0" + Celsius;
        QTest::newRow("temperature two") << 2 << opts({0, 60}) << QVariant(37) << 1 << 0.5 << "18.5" + Fahrenheit;
        QTest::newRow("temperature unit 2") << 2 << opts({0, 60}) << QVariant(37) << 2 << 1.0 << "";
        QTest::newRow("temperature one option") << 2 << opts({0}) << QVariant(37) << 0 << 1.0 << "";
        QTest::newRow("temperature four options") << 2 << opts({0, 40, 194, 1}) << QVariant(37) << 0 << 1.0 << "";

        QTest::newRow("volts") << 3 << QVariantList() << QVariant(125) << 0 << 0.1 << "12.5V";
        QTest::newRow("volts whole") << 3 << QVariantList() << QVariant(12) << 0 << 1.0 << "12V";
        QTest::newRow("volts large") << 3 << QVariantList() << QVariant(1234567) << 0 << 1.0 << "1.23457e+06V";
        QTest::newRow("energy") << 3 << QVariantList() << QVariant(1234) << 1 << 0.1 << "123.4kWh";
        QTest::newRow("electric unit 2") << 3 << QVariantList() << QVariant(1) << 2 << 1.0 << "";

        QTest::newRow("pressure") << 4 << QVariantList() << QVariant(250) << 0 << 1.0 << "250Kap";
        QTest::newRow("pressure scaled") << 4 << QVariantList() << QVariant(25) << 7 << 0.1 << "2.5Kap";

        // Plain numbers subtract their zero point as well.
        QTest::newRow("number two") << 5 << opts({-5, 5}) << QVariant(2) << 0 << 1.0 << "-3";
        QTest::newRow("number three") << 5 << opts({0, 9, 18}) << QVariant(3) << 0 << 0.5 << "-3";
        QTest::newRow("number four") << 5 << opts({0, 9, 18, 1}) << QVariant(3) << 0 << 1.0 << "";
        QTest::newRow("number none") << 5 << QVariantList() << QVariant(3) << 0 << 1.0 << "";
        const QVariantList balance = opts({0, 9, 18, "L", "R"});
        QTest::newRow("balance left") << 5 << balance << QVariant(7) << 0 << 1.0 << "L2";
        QTest::newRow("balance centre") << 5 << balance << QVariant(9) << 0 << 1.0 << "0";
        QTest::newRow("balance right") << 5 << balance << QVariant(11) << 0 << 1.0 << "R2";
        QTest::newRow("balance scaled") << 5 << balance << QVariant(12) << 0 << 0.5 << "R1.5";
        // The distance from the zero point is a signed byte.
        QTest::newRow("balance byte wraps") << 5 << opts({0, 0, 255, "L", "R"}) << QVariant(200) << 0 << 1.0 << "L56";
        // -128 has no magnitude in a signed byte: it stays -128.
        QTest::newRow("balance byte -128") << 5 << opts({0, 0, 255, "L", "R"}) << QVariant(128) << 0 << 1.0 << "L-128";

        QTest::newRow("engine") << 6 << opts({0, 8000}) << QVariant(3000) << 0 << 1.0 << "3000.0RPM";
        QTest::newRow("engine offset") << 6 << opts({500, 8000}) << QVariant(10) << 0 << 10.0 << "5100.0RPM";
        QTest::newRow("engine no options") << 6 << QVariantList() << QVariant(3000) << 0 << 1.0 << "";

        // Speeds add the second entry, which the tables give negative.
        QTest::newRow("speed addend") << 7 << opts({0, -10, 20}) << QVariant(12) << 0 << 1.0 << "2.0km/h";
        QTest::newRow("speed two") << 7 << opts({10, 200}) << QVariant(5) << 1 << 1.0 << "15.0mph";
        QTest::newRow("speed offset") << 7 << opts({0, 0, 100, 0.5}) << QVariant(10) << 0 << 2.0 << "20.5km/h";
        QTest::newRow("speed unit 2") << 7 << opts({0, 200}) << QVariant(5) << 2 << 1.0 << "";
        QTest::newRow("speed one option") << 7 << opts({0}) << QVariant(5) << 0 << 1.0 << "";
        QTest::newRow("speed five options") << 7 << opts({0, 0, 9, 0, 0}) << QVariant(5) << 0 << 1.0 << "";

        QTest::newRow("distance") << 8 << QVariantList() << QVariant(1234) << 0 << 0.1 << "123.4km";
        QTest::newRow("distance miles") << 8 << QVariantList() << QVariant(1234) << 1 << 0.1 << "123.4mi";
        QTest::newRow("consumption") << 8 << QVariantList() << QVariant(85) << 2 << 0.1 << "8.5L/100km";
        QTest::newRow("distance unit 3") << 8 << QVariantList() << QVariant(85) << 3 << 0.1 << "";

        // Unscaled: the factor has no effect.
        QTest::newRow("unscaled volts") << 9 << QVariantList() << QVariant(150) << 0 << 0.1 << "150.0V";
        QTest::newRow("unscaled litres") << 9 << QVariantList() << QVariant(-45) << 1 << 2.0 << "-45.0L";
        QTest::newRow("unscaled unit 2") << 9 << QVariantList() << QVariant(150) << 2 << 1.0 << "";

        QTest::newRow("text") << 10 << QVariantList() << QVariant("LSVAB4180") << 5 << 1.0 << "LSVAB4180";
        QTest::newRow("text empty") << 10 << QVariantList() << QVariant(QString()) << 0 << 1.0 << "";

        QTest::newRow("seconds") << 11 << opts({0, 60}) << QVariant(30) << 0 << 1.0 << "30s";
        QTest::newRow("minutes") << 11 << QVariantList() << QVariant(15) << 1 << 0.5 << "7.5Minute";
        QTest::newRow("hours") << 11 << QVariantList() << QVariant(2) << 2 << 1.0 << "2.0Hour";
        QTest::newRow("time span unit 3") << 11 << QVariantList() << QVariant(2) << 3 << 1.0 << "";

        const QVariantList halfHours = opts({390, 30, 0, 11});
        QTest::newRow("time") << 12 << halfHours << QVariant(3) << 0 << 1.0 << "08:00";
        QTest::newRow("time first") << 12 << halfHours << QVariant(0) << 0 << 1.0 << "06:30";
        QTest::newRow("time last") << 12 << halfHours << QVariant(11) << 0 << 1.0 << "12:00";
        QTest::newRow("time above") << 12 << halfHours << QVariant(12) << 0 << 1.0 << "--:--";
        QTest::newRow("time below") << 12 << halfHours << QVariant(-1) << 0 << 1.0 << "--:--";
        QTest::newRow("time three options") << 12 << opts({390, 30, 0}) << QVariant(3) << 0 << 1.0 << "--:--";
        QTest::newRow("time no options") << 12 << QVariantList() << QVariant(0) << 0 << 1.0 << "--:--";

        // Mixed scale: the suffix follows the number; some values have texts.
        const QVariantList limiter = opts({0, 0, 21, 25, "km/h", 0, "Off"});
        QTest::newRow("mixed text") << 13 << limiter << QVariant(0) << 0 << 5.0 << "Off";
        QTest::newRow("mixed number") << 13 << limiter << QVariant(1) << 0 << 5.0 << "30.0km/h";
        QTest::newRow("mixed plain") << 13 << opts({0, 0, 100, 0, "%"}) << QVariant(40) << 0 << 1.0 << "40.0%";
        QTest::newRow("mixed adds second") << 13 << opts({0, -10, 50, 0, "km/h"}) << QVariant(20) << 0 << 1.0 << "10.0km/h";
        QTest::newRow("mixed four options") << 13 << opts({0, 0, 100, 0}) << QVariant(40) << 0 << 1.0 << "";
        const QVariantList texts = opts({0, 0, 10, 0, "s", 2, "A", "B"});
        QTest::newRow("mixed before texts") << 13 << texts << QVariant(1) << 0 << 1.0 << "1.0s";
        QTest::newRow("mixed first text") << 13 << texts << QVariant(2) << 0 << 1.0 << "A";
        QTest::newRow("mixed second text") << 13 << texts << QVariant(3) << 0 << 1.0 << "B";
        QTest::newRow("mixed after texts") << 13 << texts << QVariant(4) << 0 << 1.0 << "4.0s";
        QTest::newRow("mixed text start too far") << 13 << opts({0, 0, 10, 0, "x", 9, "A"}) << QVariant(9) << 0 << 1.0 << "9.0x";
        QTest::newRow("mixed text start negative") << 13 << opts({0, 0, 10, 0, "x", -1, "A"}) << QVariant(0) << 0 << 1.0 << "0.0x";

        QTest::newRow("kind 14") << 14 << opts({0, 100}) << QVariant(5) << 0 << 1.0 << "";
        QTest::newRow("kind -1") << -1 << opts({0, 100}) << QVariant(5) << 0 << 1.0 << "";
    }

    void valueTexts()
    {
        QFETCH(int, kind);
        QFETCH(QVariantList, options);
        QFETCH(QVariant, value);
        QFETCH(int, unit);
        QFETCH(double, factor);
        QFETCH(QString, shown);

        Table table(QList<ListData>() << ListData(kind, "Row", value, options, true, unit, factor));
        QCOMPARE(table.at(0, DisplayValueRole).toString(), shown);
    }

    void rolesDescribeTheRow()
    {
        Table table(QList<ListData>()
                    << ListData(4, ChoiceKind, "Mode", 1, opts({"Eco", 7}), false, 2, 0.25)
                    << ListData(9, ChoiceKind, "Mode", 1, opts({"Eco", 7}), true, 0, 1.0));
        ListModel1 *model = table.model;
        QCOMPARE(model->rowCount(), 2);
        QCOMPARE(model->rowCount(model->index(0, 0)), 2);
        QCOMPARE(model->columnCount(), 1);
        QVERIFY(!model->index(0, 1).isValid());
        QVERIFY(!model->index(2, 0).isValid());
        QCOMPARE(model->index(0, 0).sibling(1, 0), model->index(1, 0));

        QCOMPARE(table.at(0, TitleFontSizeRole), QVariant(26));
        QCOMPARE(table.at(0, ValueFontSizeRole), QVariant(20));
        QCOMPARE(table.at(0, SeparatorRole), QVariant(0x1000000));
        QCOMPARE(table.at(0, TitleRole), QVariant("Mode"));
        QCOMPARE(table.at(0, ValueRole), QVariant(1));
        // A choice is the option itself, of whatever type it has.
        QCOMPARE(table.at(0, DisplayValueRole), QVariant(7));
        QCOMPARE(table.at(0, OptionsRole).toStringList(), QStringList() << "Eco" << "7");
        QCOMPARE(table.at(0, AdjustableRole), QVariant(false));
        QCOMPARE(table.at(1, AdjustableRole), QVariant(true));
        QCOMPARE(table.at(0, UnitRole), QVariant(2));
        QCOMPARE(table.at(0, FactorRole), QVariant(0.25));
        QCOMPARE(table.at(0, IdRole), QVariant(4));
        QCOMPARE(table.at(1, IdRole), QVariant(9));

        // The middle follows the view's current width.
        QCOMPARE(table.at(0, LeftButtonXRole), QVariant(400));
        table.view.resize(801, 400);
        QCOMPARE(model->leftBtX(), 400);
        QCOMPARE(table.at(1, LeftButtonXRole), QVariant(400));
        table.view.resize(640, 400);
        QCOMPARE(table.at(1, LeftButtonXRole), QVariant(320));

        // Five pictures, each its own, and each model with its own set.
        QList<QPixmap const *> pictures;
        for (int role : {LeftArrowRole, LeftArrowDisabledRole, RightArrowRole, RightArrowDisabledRole,
                         ValueBackdropRole}) {
            QPixmap const *picture = presentPixmap(table.at(0, role));
            QVERIFY2(picture, qPrintable(QString::number(role)));
            QCOMPARE(picture->size(), QSize(40, 40));
            QVERIFY(!pictures.contains(picture));
            pictures << picture;
        }
        Table other;
        other.model->setListData(model->getListData());
        QVERIFY(!pictures.contains(presentPixmap(other.at(0, LeftArrowRole))));

        // Everything else is unanswered.
        for (int role : {int(EnabledRole), 377, 380, 383, 385, 389, 391, 394, 409, int(Qt::DisplayRole)})
            QVERIFY2(!table.at(0, role).isValid(), qPrintable(QString::number(role)));
        QVERIFY(model->itemData(model->index(1, 0)).isEmpty()); // the base's string list is empty
        QVERIFY(!model->data(QModelIndex(), TitleRole).isValid());
        QVERIFY(!model->data(model->index(5, 0), TitleRole).isValid());
        QVERIFY(!presentPixmap(QVariant(5)));
        QVERIFY(!presentPixmap(QVariant::fromValue(Pixmap())));
        QPixmap empty;
        QVERIFY(!presentPixmap(QVariant::fromValue(Pixmap(&empty))));
        QVERIFY(QMetaType::type("Pixmap") != QMetaType::UnknownType);
    }

    void pagesChangeRowsThroughTheModel()
    {
        QList<ListData> page;
        page << ListData(SpeedKind, "Limit", 12, opts({0, -10, 20}), true, 0, 1.0)
             << ListData(TextKind, "Code", QVariant("42"), QVariantList(), false, 0, 1.0);
        Table table;
        QSignalSpy reset(table.model, &QAbstractItemModel::modelReset);
        table.model->setListData(page);
        QCOMPARE(reset.count(), 1);
        QSignalSpy changed(table.model, &QAbstractItemModel::dataChanged);

        QVERIFY(table.model->setData(table.model->index(0, 0), 15, ValueRole));
        QCOMPARE(table.at(0, ValueRole), QVariant(15));
        QCOMPARE(table.at(0, DisplayValueRole).toString(), QString("5.0km/h"));
        QCOMPARE(table.model->getListData().at(0).text, QString("12")); // stale
        QCOMPARE(page.at(0).value, 12); // the page's own list stays as built
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toModelIndex(), table.model->index(0, 0));
        QCOMPARE(changed.at(0).at(1).toModelIndex(), table.model->index(0, 0));

        // The car switched to miles: the value stays.
        QVERIFY(table.model->setData(table.model->index(0, 0), 1, UnitRole));
        QCOMPARE(table.at(0, DisplayValueRole).toString(), QString("5.0mph"));
        QCOMPARE(table.at(0, ValueRole), QVariant(15));

        // A text row takes the text; its number stays.
        QVERIFY(table.model->setData(table.model->index(1, 0), QVariant("XYZ"), ValueRole));
        QCOMPARE(table.at(1, DisplayValueRole).toString(), QString("XYZ"));
        QCOMPARE(table.at(1, ValueRole), QVariant(42));

        // Unchanged values are signalled all the same.
        QVERIFY(table.model->setData(table.model->index(1, 0), QVariant("XYZ"), ValueRole));
        QCOMPARE(changed.count(), 4);

        // Other roles and other rows change nothing.
        QVERIFY(!table.model->setData(table.model->index(0, 0), QVariant("9"), DisplayValueRole));
        QVERIFY(!table.model->setData(table.model->index(0, 0), 3, Qt::EditRole));
        QVERIFY(!table.model->setData(table.model->index(2, 0), 3, ValueRole));
        QVERIFY(!table.model->setData(QModelIndex(), 3, ValueRole));
        QCOMPARE(changed.count(), 4);
        QCOMPARE(table.at(0, ValueRole), QVariant(15));
        QCOMPARE(table.model->stringList(), QStringList());
    }

    void titleListModel()
    {
        ListModel0 model;
        QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
        model.setListData(QList<QString>() << "Amplifier" << "Lights" << "Doors");
        QCOMPARE(reset.count(), 1);
        QCOMPARE(model.getDataRowCount(), 3);
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.columnCount(), 1);

        const QModelIndex lights = model.index(1, 0);
        QCOMPARE(model.getIndexByModelIndex(lights), 1);
        QCOMPARE(model.getIndexByModelIndex(QModelIndex()), -1);
        QCOMPARE(model.getModelIndexByIndex(2), model.index(2, 0));
        QVERIFY(!model.getModelIndexByIndex(3).isValid());

        QCOMPARE(lights.data(EnabledRole), QVariant(true));
        QCOMPARE(lights.data(EntryTextRole), QVariant("Lights"));
        QCOMPARE(lights.data(EntryText2Role), QVariant("Lights"));
        QCOMPARE(lights.data(Qt::DisplayRole), QVariant("Lights"));
        QCOMPARE(lights.data(HostColor364Role).value<QColor>(), QColor(27, 30, 36, 255));
        QCOMPARE(lights.data(HostColor366Role).value<QColor>(), QColor(27, 30, 36, 255));
        QCOMPARE(lights.data(HostColor365Role).value<QColor>(), QColor(50, 50, 50, 150));
        QCOMPARE(lights.data(TextColorRole).value<QColor>(), QColor(Qt::white));
        QCOMPARE(lights.data(SelectedTextColorRole).value<QColor>(), QColor(Qt::white));
        QCOMPARE(lights.data(HostColor389Role).value<QColor>(), QColor(180, 180, 180, 180));
        QCOMPARE(lights.data(TitleFontSizeRole), QVariant(26));
        QCOMPARE(lights.data(ValueFontSizeRole), QVariant(20));
        QCOMPARE(lights.data(HostValue382Role), QVariant(-1));
        for (int role : {RightIconMarginRole, TextXRole, HostValue391Role, HostValue392Role})
            QCOMPARE(lights.data(role), QVariant(0));
        QCOMPARE(lights.data(SeparatorRole), QVariant(0x1000000));
        for (int role : {355, 358, 369, 370, 383, 393, int(TitleRole)})
            QVERIFY2(!lights.data(role).isValid(), qPrintable(QString::number(role)));
        QVERIFY(!model.data(model.index(3, 0), EnabledRole).isValid());
    }
};

QTEST_MAIN(TestToolkitModels)
#include "tst_toolkit_models.moc"
