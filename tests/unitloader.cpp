// The head unit's GUI process in small: it links the desktop host, which
// stands in for the unit's libraries, and nothing of the plug-in. It loads
// the plug-in by file from a plug-in directory as the unit's framework does,
// checks its interface, makes the root, shows the climate overlay and opens
// a page of protocol 28 in Chinese, with the pictures and translations of a
// resource tree.
//
//   unitloader PLUGIN_DIR RESOURCE_ROOT
//
// Prints what it saw; exit status 1 and a line that says what failed, for a
// plug-in that doesn't load with Qt's own reason.

#include "appframework.h"
#include "carcontrolinterface.h"
#include "hostsim.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QJsonObject>
#include <QLocale>
#include <QPluginLoader>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>
#include <QTranslator>

#include <cstdio>

namespace {

int fail(QString const &message)
{
    std::fprintf(stderr, "unitloader: FAILED: %s\n", qPrintable(message));
    return 1;
}

QWidget *child(QWidget *parent, char const *name)
{
    return parent ? parent->findChild<QWidget *>(QLatin1String(name)) : nullptr;
}

QWidget *level(int level)
{
    return zorvappframework::UIManager::getUIHerarchy(zorvappframework::UIHerarchy(level));
}

// The row of a list whose text is the given one, or -1.
int rowOf(QAbstractItemModel *model, QString const &text)
{
    for (int row = 0; model && row < model->rowCount(); ++row) {
        if (model->index(row, 0).data(Qt::DisplayRole).toString() == text)
            return row;
    }
    return -1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: unitloader PLUGIN_DIR RESOURCE_ROOT\n");
        return 2;
    }
    const QString resources = QString::fromLocal8Bit(argv[2]);
    // The plug-in reads its pictures and translations under this root, and
    // follows the unit's locale.
    qputenv("CARCONTROL_RESOURCE_ROOT", argv[2]);
    QLocale::setDefault(QLocale(QStringLiteral("zh_CN")));
    QApplication app(argc, argv);
    HostSim::screen()->show();

    QPluginLoader loader(QDir(QString::fromLocal8Bit(argv[1])).absoluteFilePath(QStringLiteral("libcarcontrol.so")));
    const QString iid = loader.metaData().value(QStringLiteral("IID")).toString();
    if (iid != QLatin1String("cantheme/0.1"))
        return fail(QStringLiteral("%1: interface \"%2\", not \"cantheme/0.1\" (%3)")
                        .arg(loader.fileName(), iid, loader.errorString()));
    CarControlInterface *root = qobject_cast<CarControlInterface *>(loader.instance());
    if (!root)
        return fail(QStringLiteral("%1: %2").arg(loader.fileName(), loader.errorString()));
    const int built = loader.metaData().value(QStringLiteral("version")).toInt();
    std::printf("loaded %s, built with Qt %d.%d\n", qPrintable(loader.fileName()), built >> 16, (built >> 8) & 0xff);

    HostSim::setProtocolId(28);
    HostSim::resetImageFileReads();
    root->setOtherProperty(QStringLiteral("ShowAirconditioner"), true);
    QWidget *air = child(child(level(0), "dialogView"), "airView");
    if (!air || !air->isVisible())
        return fail(QStringLiteral("the climate overlay didn't show"));
    if (HostSim::imageFileReads() == 0 || !HostSim::unreadImageFiles().isEmpty())
        return fail(QStringLiteral("the overlay's pictures: %1 read, missing: %2")
                        .arg(HostSim::imageFileReads())
                        .arg(HostSim::unreadImageFiles().join(QLatin1Char(' '))));
    std::printf("climate overlay shown, %d pictures read\n", HostSim::imageFileReads());

    // The page titles come translated by the plug-in's own translation.
    QTranslator chinese;
    if (!chinese.load(QDir(resources).filePath(QStringLiteral("translations/carcontrol_zh_CN.qm"))))
        return fail(QStringLiteral("no Chinese translation under %1").arg(resources));
    const QString title = chinese.translate("CarExView28", "Amplifier status");
    if (title.isEmpty())
        return fail(QStringLiteral("the Chinese translation has no \"Amplifier status\""));
    root->showExView();
    QWidget *extended = child(level(1), "exView");
    QAbstractItemView *list = qobject_cast<QAbstractItemView *>(child(extended, "listView"));
    const int row = rowOf(list ? list->model() : nullptr, title);
    if (row < 0)
        return fail(QStringLiteral("no page \"%1\" in the extended view").arg(title));
    const QModelIndex item = list->model()->index(row, 0);
    list->scrollTo(item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualRect(item).center());
    QCoreApplication::processEvents();
    QStackedWidget *stack = qobject_cast<QStackedWidget *>(child(extended, "stack"));
    QTableView *table = stack && stack->isVisible() && stack->currentWidget()
            ? stack->currentWidget()->findChild<QTableView *>() : nullptr;
    if (!table || !table->model() || table->model()->rowCount() == 0)
        return fail(QStringLiteral("the page \"%1\" didn't open").arg(title));
    std::printf("page \"%s\" open, %d rows\n", qPrintable(title), table->model()->rowCount());

    delete root;
    return 0;
}
