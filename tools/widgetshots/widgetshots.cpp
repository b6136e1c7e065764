// Takes pictures of two parts of the toolkit that no protocol id brings to
// the screen: a settings page built from the key-driven setting lines (an
// on/off switch, a slider and two grids of choices, the focus in a grid),
// and a dashboard of protocol 27 showing a sample body record.
//
//   widgetshots OUTPUT_DIR   writes OUTPUT_DIR/settings_page.png and
//                            OUTPUT_DIR/dashboard.png
//
// The artwork is read from CARCONTROL_RESOURCE_ROOT.

#include "appframework.h"
#include "carbodydata.h"
#include "carexview27.h"
#include "hostsim.h"
#include "imagepaths.h"
#include "setitem.h"
#include "setitemsview.h"
#include "setonoffview.h"
#include "setpagewidget.h"
#include "setsliderview.h"

#include <QApplication>
#include <QDir>
#include <QVBoxLayout>

namespace {

QString picture(const char *name)
{
    return imagePath(ExtendedImages, QString::fromLatin1(name));
}

// A settings page of four lines, with texts of the vehicle settings of
// protocol 28.
class SampleSettingsPage : public SetPageWidget
{
public:
    explicit SampleSettingsPage(QWidget *parent = nullptr)
        : SetPageWidget(parent)
    {
        auto *lights = new SetOnOffView(QStringLiteral("Light-automatic driving lights"), this);
        lights->setImage(picture("switch_on.png"), picture("switch_on_focus.png"), picture("switch_off.png"),
                         picture("switch_off_focus.png"));
        lights->setOnOff(true, false);

        auto *door = new SetSliderView(QStringLiteral("Light-door ambient lighting"), this);
        door->setImage(picture("slider_groove.png"), picture("slider_handle.png"),
                       picture("slider_handle_focus.png"));
        door->setRange(0, 100);
        door->setValue(65, false);

        const QStringList programs = {"Comfort", "Normal", "Sport", "Eco"};
        auto *program = new SetItemsView(QStringLiteral("Driver assistance 2-ACC travel program"), programs,
                                         {0, 1, 2, 3}, 4, this);
        program->setValue(2);

        const QStringList colours = {"OFF", "White", "tangerine", "blue", "Red", "Orange", "yellow",
                                     "light green", "gem blue", "dark blue", "pink"};
        QList<unsigned char> values;
        for (int i = 0; i < colours.size(); ++i)
            values << static_cast<unsigned char>(i);
        auto *colour = new SetItemsView(QStringLiteral("Ambient lighting-car light color"), colours, values, 4, this);
        colour->setValue(3);

        m_lines << lights << door << program << colour;
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(2);
        for (SetItemBase *line : m_lines)
            layout->addWidget(line);
        layout->addStretch(1);
    }
};

// The dashboard needs no pages to show.
class SampleDashboard : public CarExView27
{
public:
    using CarExView27::CarExView27;
    void showIndex(int) override {}
};

// A window of the head unit's dark ground. A palette, not a style sheet:
// a style sheet would reach the lines' own grounds too.
void paintGround(QWidget *window)
{
    QPalette palette = window->palette();
    palette.setColor(QPalette::Window, QColor(10, 14, 20));
    window->setPalette(palette);
    window->setAutoFillBackground(true);
}

bool save(QWidget *widget, QString const &path)
{
    if (widget->grab().save(path, "PNG"))
        return true;
    qCritical("widgetshots: can't write %s", qPrintable(path));
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 2) {
        qCritical("usage: widgetshots OUTPUT_DIR");
        return 2;
    }
    const QDir output(args.at(1));

    // The settings page, as large as the system view, the focus on a colour.
    QWidget settingsWindow;
    paintGround(&settingsWindow);
    settingsWindow.setFixedSize(zorvappframework::UIManager::getSystemViewRect().size());
    auto *settingsLayout = new QVBoxLayout(&settingsWindow);
    settingsLayout->setContentsMargins(0, 0, 0, 0);
    auto *page = new SampleSettingsPage(&settingsWindow);
    settingsLayout->addWidget(page);
    settingsWindow.show();
    QApplication::setActiveWindow(&settingsWindow);
    auto *colours = page->findChildren<SetItemsView *>().last();
    colours->items().at(5)->setFocus();
    app.processEvents();
    if (!save(&settingsWindow, output.filePath(QStringLiteral("settings_page.png"))))
        return 1;
    settingsWindow.hide();

    // The dashboard on a sample record.
    CarbodyData *body = HostSim::carbodyData();
    body->temperatureUnit = 0;
    body->outsideTemperature = 235;
    body->batteryVoltage = 126;
    body->speed = 6250;
    body->speedUnit = 0;
    body->speedUnit2 = 0;
    body->engineSpeed = 215000;
    body->distance = 12345;
    body->distanceUnit = 0;
    body->remainingFuel = 38;

    QWidget dashboardWindow;
    paintGround(&dashboardWindow);
    dashboardWindow.setFixedSize(zorvappframework::UIManager::getMainAreaRect().size());
    auto *dashboardLayout = new QVBoxLayout(&dashboardWindow);
    dashboardLayout->setContentsMargins(0, 0, 0, 0);
    auto *dashboard = new SampleDashboard(&dashboardWindow);
    dashboardLayout->addWidget(dashboard);
    dashboard->refresh();
    dashboardWindow.show();
    app.processEvents();
    if (!save(&dashboardWindow, output.filePath(QStringLiteral("dashboard.png"))))
        return 1;
    return 0;
}
