// Renders the desktop host's screen, with a view that holds one widget of
// each kind the host offers, to a PNG file.
//
//   hostshot OUTPUT.png
//
// The artwork is read from CARCONTROL_RESOURCE_ROOT.

#include "appframework.h"
#include "basebar.h"
#include "customimagebutton.h"
#include "customimagewidget.h"
#include "hostsim.h"
#include "listview.h"
#include "zorvrollingtext.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

QString artwork(QString const &name)
{
    return qEnvironmentVariable("CARCONTROL_RESOURCE_ROOT") + QLatin1Char('/') + name;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 2) {
        qCritical("usage: hostshot OUTPUT.png");
        return 2;
    }

    using namespace zorvappframework;
    QWidget *screen = HostSim::screen();
    auto *view = new QWidget(UIManager::getUIHerarchy(UIHerarchyLevel1));
    view->setGeometry(UIManager::getMainAreaRect());
    view->setStyleSheet(QStringLiteral("background-color:rgb(10,14,20);"));
    view->setAttribute(Qt::WA_StyledBackground);
    BaseBar *bar = BaseBarManager::createBaseBar(view, QString(), false, true, QString());
    bar->setTitle(QStringLiteral("Host widgets"));

    auto *content = new QWidget(view);
    content->setGeometry(UIManager::getSystemViewRect());
    auto *layout = new QHBoxLayout(content);

    auto *buttons = new QVBoxLayout;
    auto *ac = new CustomImageButton(content);
    ac->setBackgroundImage(artwork(QStringLiteral("style4/ac")), artwork(QStringLiteral("style4/ac_d")),
                           QString(), QString(), true, 0);
    auto *acDown = new CustomImageButton(content);
    acDown->setBackgroundImage(artwork(QStringLiteral("style4/ac")), artwork(QStringLiteral("style4/ac_d")),
                               QString(), QString(), true, 0);
    acDown->setDown(true);
    auto *reset = new CustomImageButton(content);
    reset->setBackgroundImage(artwork(QStringLiteral("exStyle4/reset_n.png")),
                              artwork(QStringLiteral("exStyle4/reset_d.png")), QString(), QString(), true, 0);
    reset->setText(QStringLiteral("Reset"), Qt::AlignCenter, Qt::white, 0.4f, false);
    auto *tyres = new CustomImageWidget(content);
    tyres->setBackgroundImage(artwork(QStringLiteral("exStyle4/tire.png")), true);
    buttons->addWidget(ac, 0, Qt::AlignCenter);
    buttons->addWidget(acDown, 0, Qt::AlignCenter);
    buttons->addWidget(reset, 0, Qt::AlignCenter);
    buttons->addWidget(tyres, 0, Qt::AlignCenter);
    layout->addLayout(buttons);

    auto *right = new QVBoxLayout;
    auto *rolling = new ZorvRollingText(content);
    rolling->setFontSize(20);
    rolling->setTextColor(QColor(250, 250, 250));
    rolling->setText(QStringLiteral("A rolling text that is far too long for the width of its line"));
    rolling->setFixedHeight(40);
    right->addWidget(rolling);
    auto *list = new ListView(content);
    auto *model = new QStandardItemModel(list);
    for (const char *title : {"Language", "Units", "Lights", "Mirrors", "Doors"})
        model->appendRow(new QStandardItem(QString::fromLatin1(title)));
    list->setModel(model);
    list->verticalHeader()->setDefaultSectionSize(81);
    list->setStyleSheet(QStringLiteral("QTableView{color:white;background:transparent;font:24px;}"));
    right->addWidget(list, 1);
    layout->addLayout(right, 1);

    view->show();
    screen->show();
    app.processEvents();

    const QString output = args.at(1);
    if (!screen->grab().save(output, "PNG")) {
        qCritical("hostshot: can't write %s", qPrintable(output));
        return 1;
    }
    return 0;
}
