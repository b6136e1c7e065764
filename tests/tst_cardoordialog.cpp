// The door and body overlay driven by records: the car's parts and caption,
// the left and right exchange, the icons' places for one to four warnings,
// large and small pictures made once, dismissal by any press; and the
// overlay brought up through the plug-in's root.

#include "buttonitem27.h"
#include "cardoordialog27.h"
#include "cartipicon.h"
#include "customimagebutton.h"
#include "hostsim.h"
#include "imagepaths.h"
#include "overlayimages.h"
#include "pluginroot.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

int imageReads() { return HostSim::imageFileReads() + overlayImageReads(); }
QSize pictureSize(QString const &name) { return QImage(imagePath(OverlayImages, name)).size(); }

// The six door bytes as a string: front left, front right, rear left, rear
// right, trunk, hood.
CardoorData doors(char const *bytes)
{
    CardoorData door;
    quint8 *fields[] = {&door.frontLeftDoor, &door.frontRightDoor, &door.rearLeftDoor,
                        &door.rearRightDoor, &door.trunk, &door.hood};
    for (int i = 0; i < 6; ++i)
        *fields[i] = quint8(bytes[i] - '0');
    return door;
}

CarbodyData body(int seatBelt, int autoParking, int condensate)
{
    CarbodyData record;
    record.seatBelt = seatBelt;
    record.autoParkingFault = autoParking;
    record.condensateFault = condensate;
    return record;
}

} // namespace

Q_DECLARE_METATYPE(CarbodyData)

class TestCardoorDialog : public QObject
{
    Q_OBJECT

    QTemporaryDir storage;
    std::unique_ptr<QWidget> host;
    CardoorDialog27 *dialog = nullptr;

    CarTipIcon *icon(char const *name) const { return dialog->findChild<CarTipIcon *>(name); }
    QGridLayout *grid() const
    {
        return static_cast<QGridLayout *>(dialog->findChild<QWidget *>("background")->layout());
    }
    // "row column rowSpan columnSpan alignment" of a widget in the grid.
    QString place(QWidget *widget) const
    {
        int row, column, rowSpan, columnSpan;
        const int index = grid()->indexOf(widget);
        grid()->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
        return QString("%1 %2 %3 %4 %5").arg(row).arg(column).arg(rowSpan).arg(columnSpan)
                .arg(int(grid()->itemAt(index)->alignment()), 0, 16);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(storage.isValid());
        HostSim::setStorageDirectory(storage.path());
        HostSim::screen()->show();
    }
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(28);
        HostSim::setSetting("DoorLeftAndRightInterchangeSwitch", false);
        host.reset(new QWidget(PluginRoot::level(0)));
        host->resize(zorvappframework::UIManager::getMainAreaRect().size());
        host->show();
        dialog = new CardoorDialog27(host.get());
        dialog->show();
    }
    void cleanup() { host.reset(); }

    void captions_data()
    {
        QTest::addColumn<QString>("door");
        QTest::addColumn<QString>("caption");
        QTest::newRow("door, hood, trunk") << "001011" << "Doors and hood not closed";
        QTest::newRow("door, hood") << "100001" << "Doors and hood not closed";
        QTest::newRow("door, trunk") << "010010" << "Doors and trunk not closed";
        QTest::newRow("doors") << "111300" << "Door not closed";
        QTest::newRow("hood, trunk") << "000011" << "The hood and trunk are not closed";
        QTest::newRow("hood") << "000002" << "The hood is not closed";
        QTest::newRow("trunk") << "000010" << "trunk not closed";
        QTest::newRow("all closed") << "000000" << "";
    }
    // The car icon's caption names what stands open; icon and caption show
    // while something does.
    void captions()
    {
        QFETCH(QString, door);
        QFETCH(QString, caption);
        dialog->setData(doors("100000"));
        dialog->setData(doors(qPrintable(door)));
        CarTipIcon *car = icon("cardoorIcon");
        QCOMPARE(car->captionLabel()->text(), caption);
        QCOMPARE(car->isVisible(), !caption.isEmpty());
        QCOMPARE(car->captionLabel()->isVisible(), !caption.isEmpty());
        QCOMPARE(car->size(), pictureSize("car/car"));
    }

    // Each byte opens one part; the head unit's setting, read anew with every
    // record, exchanges left and right. The drive side doesn't.
    void doorParts()
    {
        const char *parts[][3] = {
            {"100000", "frontLeftButton", "frontRightButton"}, {"010000", "frontRightButton", "frontLeftButton"},
            {"001000", "rearLeftButton", "rearRightButton"}, {"000100", "rearRightButton", "rearLeftButton"},
            {"000010", "trunkButton", "trunkButton"}, {"000001", "hoodButton", "hoodButton"}};
        for (bool exchange : {false, true}) {
            dialog->setRightDriver(!exchange);
            for (const auto &part : parts) {
                dialog->setData(doors("111111"));
                HostSim::setSetting("DoorLeftAndRightInterchangeSwitch", exchange);
                dialog->setData(doors(part[0]));
                QStringList down;
                for (auto *button : icon("cardoorIcon")->findChildren<CustomImageButton *>()) {
                    if (button->isDown())
                        down << button->objectName();
                }
                QCOMPARE(down, QStringList{part[exchange ? 2 : 1]});
            }
        }
    }

    void places_data()
    {
        QTest::addColumn<QString>("door");
        QTest::addColumn<CarbodyData>("body");
        QTest::addColumn<QStringList>("places"); // of each shown icon: name, icon, caption
        QTest::addColumn<QString>("stretches");
        QTest::addColumn<bool>("large");
        // Alignments: 84 centred, 24 under the icon, 81 beside it.
        QTest::newRow("hood") << "000001" << body(-1, -1, -1)
            << QStringList{"cardoorIcon", "0 0 5 1 84", "5 0 1 1 24"} << "1 0 0" << true;
        QTest::newRow("seat belt and condensate") << "000000" << body(1, 0, 1)
            << QStringList{"seatBeltIcon", "0 0 5 1 84", "5 0 1 1 24", "condensateIcon", "0 1 5 1 84", "5 1 1 1 24"}
            << "1 1 0" << true;
        QTest::newRow("seat belt, parking, door") << "000001" << body(1, 2, -1)
            << QStringList{"seatBeltIcon", "0 0 2 1 84", "2 0 1 1 24", "autoParkingIcon", "3 0 2 1 84",
                           "5 0 1 1 24", "cardoorIcon", "0 1 5 1 84", "5 1 1 1 24"}
            << "1 1 0" << false;
        QTest::newRow("three body warnings") << "000000" << body(1, 1, 1)
            << QStringList{"seatBeltIcon", "0 0 2 1 84", "2 0 1 1 24", "autoParkingIcon", "3 0 2 1 84",
                           "5 0 1 1 24", "condensateIcon", "0 1 2 1 84", "2 1 1 1 24"}
            << "1 1 0" << false;
        QTest::newRow("four") << "100000" << body(1, 1, 1)
            << QStringList{"seatBeltIcon", "0 0 2 1 84", "0 1 2 1 81", "autoParkingIcon", "2 0 2 1 84",
                           "2 1 2 1 81", "condensateIcon", "4 0 2 1 84", "4 1 2 1 81",
                           "cardoorIcon", "0 2 5 1 84", "5 2 1 1 24"}
            << "3 4 5" << false;
    }
    // One or two icons large, three or four small, in the order seat belt,
    // automatic parking, condensate, car; whichever record comes last. A
    // body byte above 1 shows its icon too.
    void places()
    {
        QFETCH(QString, door);
        QFETCH(CarbodyData, body);
        QFETCH(QStringList, places);
        QFETCH(QString, stretches);
        QFETCH(bool, large);
        for (bool bodyLast : {false, true}) {
            init();
            if (!bodyLast)
                dialog->setCarbodyData(body);
            dialog->setData(doors(qPrintable(door)));
            if (bodyLast)
                dialog->setCarbodyData(body);
            QStringList found;
            for (const char *name : {"seatBeltIcon", "autoParkingIcon", "condensateIcon", "cardoorIcon"}) {
                if (icon(name) && icon(name)->isVisible())
                    found << name << place(icon(name)) << place(icon(name)->captionLabel());
            }
            QCOMPARE(found, places);
            QCOMPARE(QString("%1 %2 %3").arg(grid()->columnStretch(0)).arg(grid()->columnStretch(1))
                     .arg(grid()->columnStretch(2)), stretches);
            QCOMPARE(grid()->rowStretch(0) + grid()->rowStretch(5), 2);
            if (CarTipIcon *seatBelt = icon("seatBeltIcon"))
                QCOMPARE(seatBelt->size(), pictureSize(large ? "seat_belt" : "seat_belt_m"));
        }
    }

    // Icons come on first need and stay; the same size reads no picture
    // again; with nothing to warn of they keep their places, hidden.
    void iconsAreKept()
    {
        dialog->setData(doors("000000"));
        dialog->setCarbodyData(body(1, -1, 1));
        QPointer<CarTipIcon> seatBelt = icon("seatBeltIcon");
        const QString place = this->place(seatBelt);
        const int reads = imageReads();
        dialog->setCarbodyData(body(1, -1, 1));
        dialog->setData(doors("000000"));
        dialog->setCarbodyData(body(0, -1, 0));
        QVERIFY(seatBelt && !seatBelt->isVisible() && !seatBelt->captionLabel()->isVisible());
        QCOMPARE(this->place(seatBelt), place);
        QVERIFY(!icon("autoParkingIcon"));
        dialog->setCarbodyData(body(1, -1, 1));
        QVERIFY(icon("seatBeltIcon") == seatBelt && seatBelt->isVisible());
        QCOMPARE(imageReads(), reads);
        dialog->setData(doors("000001"));
        QCOMPARE(imageReads() - reads, 2); // the small seat belt and condensate pictures
    }

    // Any press hides the overlay, on the dimmed area or on the car's parts.
    void anyPressHides()
    {
        dialog->setData(doors("100000"));
        QTest::mouseClick(dialog, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
        QVERIFY(dialog->isHidden());
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(HostSim::screen()));
        QWidget *part = icon("cardoorIcon")->findChild<QWidget *>("frontLeftButton");
        const QPoint onPart = part->mapTo(HostSim::screen(), part->rect().center());
        QTest::mouseClick(HostSim::screen()->windowHandle(), Qt::LeftButton, Qt::NoModifier, onPart);
        QVERIFY(dialog->isHidden());
    }

    void buttonItem()
    {
        for (bool horizontal : {true, false}) {
            ButtonItem27 item;
            item.setImage(imagePath(OverlayImages, "ac"), imagePath(OverlayImages, "ac_d"), "A/C", horizontal, 20);
            QCOMPARE(qobject_cast<QBoxLayout *>(item.layout())->direction(),
                     horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
            QCOMPARE(item.findChild<QLabel *>("label")->text(), QString("A/C"));
            auto *button = item.findChild<CustomImageButton *>("button");
            QCOMPARE(button->size(), pictureSize("ac"));
            item.setImageDown(true);
            QVERIFY(button->isDown());
        }
    }

    // As on the head unit: a door record and a body record bring up the
    // overlay with its icons and captions over a dimmed screen.
    void throughTheRoot()
    {
        host.reset();
        QVERIFY2(PluginRoot::loader().load(), qPrintable(PluginRoot::loader().errorString()));
        const QImage before = HostSim::screen()->grab().toImage();
        *HostSim::cardoorData() = doors("010001");
        PluginRoot::root()->onCardoorDataChanged();
        HostSim::carbodyData()->seatBelt = 1;
        PluginRoot::root()->onCarbodyDataChanged();

        QWidget *overlay = PluginRoot::overlay("carDoorView");
        QVERIFY(overlay && overlay->isVisible());
        QStringList captions;
        for (QLabel *label : overlay->findChildren<QLabel *>("label"))
            captions << label->text();
        QCOMPARE(captions, (QStringList{"Doors and hood not closed", "Seatbelt not fastened"}));
        QVERIFY(overlay->findChild<CustomImageButton *>("frontRightButton")->isDown());
        QVERIFY(overlay->findChild<CustomImageButton *>("hoodButton")->isDown());
        const QPoint corner = overlay->mapTo(HostSim::screen(), QPoint(2, 2));
        QVERIFY(qGray(HostSim::screen()->grab().toImage().pixel(corner)) < qGray(before.pixel(corner)));
        PluginRoot::restart();
    }
};

QTEST_MAIN(TestCardoorDialog)
#include "tst_cardoordialog.moc"
