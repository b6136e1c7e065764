#include "panels.h"

#include "airdata.h"
#include "basebar.h"
#include "basecontrol.h"
#include "canobj.h"
#include "carbodydata.h"
#include "cardoordata.h"
#include "catalogue.h"
#include "demo.h"
#include "linkpanel.h"
#include "eventpump.h"
#include "hostsim.h"
#include "radardata.h"
#include "simulatorhost.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

// A climate function byte: below 0 the car lacks it.
constexpr int Absent = -1;

QPushButton *button(QString const &text, QWidget *parent)
{
    auto *b = new QPushButton(text, parent);
    b->setFocusPolicy(Qt::NoFocus);
    return b;
}

quint8 *doorBytes()
{
    return reinterpret_cast<quint8 *>(HostSim::cardoorData());
}

qint8 *bodyBytes()
{
    return reinterpret_cast<qint8 *>(HostSim::carbodyData());
}

} // namespace

// --- Car ----------------------------------------------------------------------

CarPanel::CarPanel(SimulatorHost &host, QWidget *parent)
    : QWidget(parent)
    , m_host(host)
    , m_protocols(new QComboBox(this))
    , m_family(new QLabel(this))
    , m_rightDriver(new QCheckBox(tr("Right-hand drive"), this))
    , m_wallpaper(new QCheckBox(tr("Wallpaper"), this))
    , m_box(new QCheckBox(tr("Decoder box answers"), this))
    , m_sampleData(new QCheckBox(tr("Sample data"), this))
    , m_languages(new QComboBox(this))
{
    m_sampleData->setObjectName(QStringLiteral("sampleData"));
    m_sampleData->setChecked(true);
    m_sampleData->setToolTip(tr("A protocol picked gets the catalogue's sample data, as --protocol gives it; "
                                "off, its buffer stays as it is (zeroed at first)"));
    m_box->setObjectName(QStringLiteral("decoderBox"));
    m_protocols->setObjectName(QStringLiteral("protocolPicker"));
    m_family->setObjectName(QStringLiteral("pageStackName"));
    auto *layout = new QVBoxLayout(this);

    auto *vehicle = new QGroupBox(tr("Vehicle"), this);
    auto *vehicleForm = new QFormLayout(vehicle);
    m_protocols->addItem(tr("0: no vehicle"), 0);
    // Each id by its family's first pages, which tell a person more than
    // the family's number; the number alone without the catalogue.
    for (int id : Catalogue::protocolIds()) {
        const QString name = m_host.box().familyName(id);
        m_protocols->addItem(name.isEmpty() ? tr("%1: family %2").arg(id).arg(Catalogue::familyOf(id))
                                            : tr("%1: %2").arg(id).arg(name),
                             id);
    }
    m_protocols->setMaxVisibleItems(20);
    // The names are long: the picker keeps to the panel's width and the
    // open list shows them whole.
    m_protocols->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_protocols->setMinimumContentsLength(24);
    m_protocols->view()->setMinimumWidth(m_protocols->view()->sizeHintForColumn(0));
    vehicleForm->addRow(tr("Protocol"), m_protocols);
    vehicleForm->addRow(tr("Page stack"), m_family);
    vehicleForm->addRow(m_sampleData);
    vehicleForm->addRow(m_rightDriver);
    vehicleForm->addRow(m_wallpaper);
    vehicleForm->addRow(m_box);
    vehicleForm->addRow(tr("Language"), m_languages);
    // The box writes what a setting frame asks into the buffer, as the car
    // reports it; without its catalogue it can't be switched on.
    m_box->setChecked(m_host.box().isEnabled());
    m_box->setEnabled(m_host.box().isLoaded());
    m_box->setToolTip(m_host.box().isLoaded()
                          ? tr("Answers %1 of %2 adjustable rows after %3 ms")
                                .arg(m_host.box().answeredRows())
                                .arg(m_host.box().adjustableRows())
                                .arg(m_host.box().delay())
                          : m_host.catalogueError());
    connect(m_box, &QCheckBox::toggled, &m_host.box(), &DecoderBox::setEnabled);
    connect(&m_host.box(), &DecoderBox::enabledChanged, m_box, &QCheckBox::setChecked);
    layout->addWidget(vehicle);
    connect(m_protocols, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        selectProtocol(m_protocols->itemData(index).toInt());
    });
    connect(m_rightDriver, &QCheckBox::toggled, this, [this](bool right) {
        HostSim::setRightDriver(right);
        m_host.call(QStringLiteral("setRightDriver"), {right});
    });
    // The head unit's locale: the source texts, or a language that the
    // plug-in has a translation for. The plug-in follows it when it opens
    // its next view.
    m_languages->setObjectName(QStringLiteral("languagePicker"));
    m_languages->setToolTip(tr("Takes effect on the next opening of a view"));
    m_languages->addItem(tr("Source texts"), QStringLiteral("C"));
    const QDir translations(QString::fromLocal8Bit(qgetenv("CARCONTROL_RESOURCE_ROOT")) + QStringLiteral("/translations"));
    const QStringList files = translations.entryList({QStringLiteral("carcontrol_*.qm")}, QDir::Files, QDir::Name);
    for (QString const &file : files) {
        const QString name = file.mid(int(qstrlen("carcontrol_"))).chopped(3);
        m_languages->addItem(QStringLiteral("%1 (%2)").arg(QLocale(name).nativeLanguageName(), name), name);
    }
    const int current = m_languages->findData(QLocale().name());
    m_languages->setCurrentIndex(current < 0 ? 0 : current);
    connect(m_languages, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        QLocale::setDefault(QLocale(m_languages->itemData(index).toString()));
    });
    connect(m_wallpaper, &QCheckBox::toggled, this, [this](bool on) {
        HostSim::setWallpaper(on ? SimulatorHost::wallpaper() : QPixmap());
        m_host.screen()->update();
    });

    auto *views = new QGroupBox(tr("Screens"), this);
    auto *viewGrid = new QGridLayout(views);
    const QList<QPair<QString, QString> > shows = {
        {tr("Extended view"), QStringLiteral("showExView")},
        {tr("Second extended view"), QStringLiteral("showExViewDialogView")},
        {tr("Overlays"), QStringLiteral("showDialogView")},
        {tr("Raise overlays"), QStringLiteral("showUiRaise")},
    };
    for (int i = 0; i < shows.size(); ++i) {
        QPushButton *b = button(shows.at(i).first, views);
        const QString operation = shows.at(i).second;
        b->setToolTip(operation + QStringLiteral("()"));
        connect(b, &QPushButton::clicked, this, [this, operation] { m_host.call(operation); });
        viewGrid->addWidget(b, i / 2, i % 2);
    }
    QPushButton *notify = button(tr("Data changed"), views);
    notify->setToolTip(tr("The \"canbus\" module emits dataChanged()"));
    connect(notify, &QPushButton::clicked, this, [] { HostSim::notifyDataChanged(); });
    viewGrid->addWidget(notify, 2, 0);
    QPushButton *setData = button(tr("Refresh page"), views);
    setData->setToolTip(tr("setData(), the framework's signal to refresh the page in front"));
    connect(setData, &QPushButton::clicked, this, [this] { m_host.call(QStringLiteral("setData"), {QVariant()}); });
    viewGrid->addWidget(setData, 2, 1);
    // The screens' buttons first: they are what a person reaches for most,
    // and stay in sight on a small desktop.
    layout->insertWidget(0, views);
    layout->addWidget(new LinkPanel(m_host, this));
    layout->addStretch(1);
    load();
}

void CarPanel::selectProtocol(int protocolId)
{
    // An extended view picks its pages when it is made: the open ones are
    // left and opened again, as a person would to see the new car's pages.
    QStringList reopen;
    const auto views = m_host.screen()->findChildren<QWidget *>();
    for (QWidget *view : views) {
        if (!view->inherits("ExView") || view->isHidden())
            continue;
        reopen << (view->objectName() == QLatin1String("exDialogView") ? QStringLiteral("showExViewDialogView")
                                                                       : QStringLiteral("showExView"));
        // A tap as a person's finger gives it, so that a recording says the
        // view was left, and its replay doesn't open the new protocol's
        // pages on the old view.
        auto *bar = view->findChild<BaseBar *>(QStringLiteral("baseBar"));
        QWidget *home = bar ? bar->findChild<QWidget *>(QStringLiteral("home")) : nullptr;
        if (home && home->isVisible())
            m_host.input().tapWidget(home);
        else
            HostSim::pressBarButton(bar, QStringLiteral("home"));
    }
    EventPump::settle();
    // A protocol gets its sample data when it is first picked; picked again,
    // it keeps what was set on it since.
    if (m_sampleData->isChecked() && !m_sampled.contains(protocolId)) {
        m_sampled.insert(protocolId);
        Demo::startCar(m_host, protocolId);
    } else {
        Demo::selectProtocol(m_host, protocolId);
    }
    for (QString const &operation : qAsConst(reopen))
        m_host.call(operation);
    showProtocol(protocolId);
}

void CarPanel::setSampleData(bool on)
{
    m_sampleData->setChecked(on);
    // The car started with: its data are in.
    m_sampled.insert(CanObj::id());
}

void CarPanel::load()
{
    if (CanObj::id() != m_shownProtocol)
        showProtocol(CanObj::id());
    const QSignalBlocker rightBlocker(m_rightDriver);
    m_rightDriver->setChecked(CanObj::instance()->isRightDriver());
    const QSignalBlocker wallpaperBlocker(m_wallpaper);
    m_wallpaper->setChecked(BaseControl::getInstance()->getBackgroundPixmap() != nullptr);
}

void CarPanel::showProtocol(int protocolId)
{
    m_shownProtocol = protocolId;
    int index = m_protocols->findData(protocolId);
    if (index < 0) {
        // An id outside the catalogue, chosen by a scenario.
        m_protocols->addItem(tr("%1: no page family").arg(protocolId), protocolId);
        index = m_protocols->count() - 1;
    }
    m_protocols->setCurrentIndex(index);
    const int family = Catalogue::familyOf(protocolId);
    const int pages = m_host.box().pageTitles(protocolId).size();
    QString text = tr("none: the extended view's list stays empty");
    if (family && !pages)
        text = tr("family %1").arg(family);
    else if (family && !m_host.box().hasOnlyEmptyPages(protocolId))
        text = pages == 1 ? tr("family %1, 1 page").arg(family) : tr("family %1, %2 pages").arg(family).arg(pages);
    else if (family)
        text = pages == 1 ? tr("family %1, 1 page, without rows").arg(family)
                          : tr("family %1, %2 pages, none with rows").arg(family).arg(pages);
    m_family->setText(text);
}

// --- Climate ------------------------------------------------------------------

ClimateEditor::ClimateEditor(SimulatorHost &host, QWidget *parent)
    : QWidget(parent)
    , m_host(host)
{
    auto *layout = new QVBoxLayout(this);

    auto *record = new QGroupBox(tr("Record"), this);
    auto *recordForm = new QFormLayout(record);
    m_hasClimate = new QCheckBox(tr("the car has a climate (byte 4)"), record);
    m_showRequest = new QCheckBox(tr("show the overlay (byte 5)"), record);
    m_type = new QSpinBox(record);
    m_type->setRange(-1000, 1000);
    recordForm->addRow(m_hasClimate);
    recordForm->addRow(m_showRequest);
    recordForm->addRow(tr("Panel type (0)"), m_type);
    layout->addWidget(record);

    auto *functions = new QGroupBox(tr("Functions"), this);
    auto *grid = new QGridLayout(functions);
    const QList<QPair<int, QString> > named = {
        {AirData::ClimateSwitch, tr("Power")}, {AirData::Ac, tr("AC")},
        {AirData::Auto, tr("Auto")}, {AirData::Dual, tr("Dual")},
        {AirData::InnerLoop, tr("Inner loop")}, {AirData::Heat, tr("Heat")},
        {AirData::FrontDefrost, tr("Front defrost")}, {AirData::RearDefrost, tr("Rear defrost")},
        {AirData::LeftWindUp, tr("Left: up")}, {AirData::RightWindUp, tr("Right: up")},
        {AirData::LeftWindFront, tr("Left: front")}, {AirData::RightWindFront, tr("Right: front")},
        {AirData::LeftWindDown, tr("Left: down")}, {AirData::RightWindDown, tr("Right: down")},
    };
    for (int i = 0; i < named.size(); ++i) {
        grid->addWidget(new QLabel(named.at(i).second, functions), i / 2, (i % 2) * 2);
        grid->addWidget(function(named.at(i).first), i / 2, (i % 2) * 2 + 1);
    }
    layout->addWidget(functions);

    auto *temperatures = new QGroupBox(tr("Temperatures and fans"), this);
    auto *form = new QGridLayout(temperatures);
    m_leftTemperature = new QLineEdit(temperatures);
    m_rightTemperature = new QLineEdit(temperatures);
    m_leftUnit = unit();
    m_rightUnit = unit();
    m_leftFan = new QSpinBox(temperatures);
    m_rightFan = new QSpinBox(temperatures);
    for (QSpinBox *fan : {m_leftFan, m_rightFan}) {
        fan->setRange(Absent, 127);
        fan->setSpecialValueText(tr("none"));
    }
    m_outside = new QLineEdit(temperatures);
    form->addWidget(new QLabel(tr("Left (16, 13)"), temperatures), 0, 0);
    form->addWidget(m_leftTemperature, 0, 1);
    form->addWidget(m_leftUnit, 0, 2);
    form->addWidget(new QLabel(tr("Right (20, 14)"), temperatures), 1, 0);
    form->addWidget(m_rightTemperature, 1, 1);
    form->addWidget(m_rightUnit, 1, 2);
    form->addWidget(new QLabel(tr("Fan left, right (75, 80)"), temperatures), 2, 0);
    form->addWidget(m_leftFan, 2, 1);
    form->addWidget(m_rightFan, 2, 2);
    form->addWidget(new QLabel(tr("Outside (44)"), temperatures), 3, 0);
    form->addWidget(m_outside, 3, 1, 1, 2);
    layout->addWidget(temperatures);

    auto *seats = new QGroupBox(tr("Seat heating"), this);
    auto *seatRow = new QHBoxLayout(seats);
    m_hasSeatHeating = new QCheckBox(tr("fitted (89)"), seats);
    m_leftSeat = new QSpinBox(seats);
    m_rightSeat = new QSpinBox(seats);
    for (QSpinBox *seat : {m_leftSeat, m_rightSeat})
        seat->setRange(-3, 3);
    seatRow->addWidget(m_hasSeatHeating);
    seatRow->addWidget(new QLabel(tr("left"), seats));
    seatRow->addWidget(m_leftSeat);
    seatRow->addWidget(new QLabel(tr("right"), seats));
    seatRow->addWidget(m_rightSeat);
    layout->addWidget(seats);

    auto *actions = new QHBoxLayout;
    QPushButton *sendButton = button(tr("Send record"), this);
    sendButton->setToolTip(tr("Write the record and call onAirConditionerDataChanged()"));
    QPushButton *showButton = button(tr("Show climate"), this);
    showButton->setToolTip(tr("setOtherProperty(\"ShowAirconditioner\", true)"));
    QPushButton *hideButton = button(tr("Hide"), this);
    hideButton->setToolTip(tr("onAirConditionerVisibleChanged(false)"));
    QPushButton *reloadButton = button(tr("Reload"), this);
    reloadButton->setToolTip(tr("Show the host's record as it is now"));
    actions->addWidget(sendButton);
    actions->addWidget(showButton);
    actions->addWidget(hideButton);
    actions->addWidget(reloadButton);
    layout->addLayout(actions);
    layout->addStretch(1);

    connect(sendButton, &QPushButton::clicked, this, &ClimateEditor::send);
    connect(showButton, &QPushButton::clicked, this, [this] {
        store();
        m_host.call(QStringLiteral("setOtherProperty"), {QStringLiteral("ShowAirconditioner"), true});
    });
    connect(hideButton, &QPushButton::clicked, this, [this] {
        m_host.call(QStringLiteral("onAirConditionerVisibleChanged"), {false});
    });
    connect(reloadButton, &QPushButton::clicked, this, &ClimateEditor::load);
    load();
}

QComboBox *ClimateEditor::function(int byte)
{
    auto *box = new QComboBox(this);
    box->addItem(tr("absent"), Absent);
    box->addItem(tr("off"), 0);
    box->addItem(tr("on"), 1);
    box->setToolTip(tr("byte %1").arg(byte));
    m_functions.append(qMakePair(byte, box));
    return box;
}

QComboBox *ClimateEditor::unit()
{
    auto *box = new QComboBox(this);
    box->addItem(QStringLiteral("\u2103"), 0);
    box->addItem(QStringLiteral("\u2109"), 1);
    box->addItem(tr("no unit"), -1);
    return box;
}

void ClimateEditor::load()
{
    AirData const &air = *HostSim::airData();
    m_hasClimate->setChecked(air.hasAirConditioner != 0);
    m_showRequest->setChecked(air.showRequest != 0);
    m_type->setValue(air.airType);
    for (auto const &entry : qAsConst(m_functions)) {
        const int value = air.function(entry.first);
        const int index = entry.second->findData(value < 0 ? Absent : value > 0 ? 1 : 0);
        entry.second->setCurrentIndex(index);
    }
    m_leftTemperature->setText(air.leftTemperature);
    m_rightTemperature->setText(air.rightTemperature);
    m_leftUnit->setCurrentIndex(qMax(0, m_leftUnit->findData(int(air.leftTemperatureUnit))));
    m_rightUnit->setCurrentIndex(qMax(0, m_rightUnit->findData(int(air.rightTemperatureUnit))));
    m_leftFan->setValue(air.function(AirData::LeftWindSpeed));
    m_rightFan->setValue(air.function(AirData::RightWindSpeed));
    m_outside->setText(air.outsideTemperature);
    m_hasSeatHeating->setChecked(air.seatHeating.hasSeatHeating != 0);
    m_leftSeat->setValue(air.seatHeating.leftSeat);
    m_rightSeat->setValue(air.seatHeating.rightSeat);
}

void ClimateEditor::store()
{
    AirData &air = *HostSim::airData();
    if (m_hasClimate->isChecked() != (air.hasAirConditioner != 0))
        air.hasAirConditioner = m_hasClimate->isChecked() ? 1 : 0;
    air.showRequest = m_showRequest->isChecked() ? 1 : 0;
    air.airType = m_type->value();
    for (auto const &entry : qAsConst(m_functions))
        air.setFunction(entry.first, qint8(entry.second->currentData().toInt()));
    air.leftTemperature = m_leftTemperature->text();
    air.rightTemperature = m_rightTemperature->text();
    air.leftTemperatureUnit = qint8(m_leftUnit->currentData().toInt());
    air.rightTemperatureUnit = qint8(m_rightUnit->currentData().toInt());
    air.setFunction(AirData::LeftWindSpeed, qint8(m_leftFan->value()));
    air.setFunction(AirData::RightWindSpeed, qint8(m_rightFan->value()));
    air.outsideTemperature = m_outside->text();
    air.seatHeating.hasSeatHeating = m_hasSeatHeating->isChecked() ? 1 : 0;
    air.seatHeating.leftSeat = qint8(m_leftSeat->value());
    air.seatHeating.rightSeat = qint8(m_rightSeat->value());
}

void ClimateEditor::send()
{
    store();
    m_host.call(QStringLiteral("onAirConditionerDataChanged"));
}

// --- Body -------------------------------------------------------------------------

BodyPanel::BodyPanel(SimulatorHost &host, QWidget *parent)
    : QWidget(parent)
    , m_host(host)
{
    auto *layout = new QVBoxLayout(this);

    auto *doors = new QGroupBox(tr("Doors (onCardoorDataChanged)"), this);
    auto *doorGrid = new QGridLayout(doors);
    // In the order of the door record's bytes.
    const QStringList doorNames = {tr("Front left door"), tr("Front right door"), tr("Rear left door"),
                                   tr("Rear right door"), tr("Trunk"), tr("Hood")};
    for (int i = 0; i < doorNames.size(); ++i) {
        auto *box = new QCheckBox(doorNames.at(i), doors);
        doorGrid->addWidget(box, i / 2, i % 2);
        m_doors.append(box);
        connect(box, &QCheckBox::toggled, this, [this, i](bool open) {
            doorBytes()[i] = open ? 1 : 0;
            m_host.call(QStringLiteral("onCardoorDataChanged"));
        });
    }
    layout->addWidget(doors);

    auto *body = new QGroupBox(tr("Body warnings (onCarbodyDataChanged)"), this);
    auto *bodyLayout = new QVBoxLayout(body);
    const QList<QPair<int, QString> > warnings = {
        {40, tr("Seat belt unfastened (byte 40)")},
        {41, tr("Automatic parking fault (byte 41)")},
        {34, tr("Condensate fault (byte 34)")},
    };
    for (auto const &warning : warnings) {
        const int offset = warning.first;
        auto *box = new QCheckBox(warning.second, body);
        bodyLayout->addWidget(box);
        m_warnings.append(qMakePair(offset, box));
        connect(box, &QCheckBox::toggled, this, [this, offset](bool on) {
            bodyBytes()[offset] = on ? 1 : 0;
            m_host.call(QStringLiteral("onCarbodyDataChanged"));
        });
    }
    layout->addWidget(body);
    layout->addStretch(1);
    load();
}

void BodyPanel::load()
{
    for (int i = 0; i < m_doors.size(); ++i) {
        const QSignalBlocker blocker(m_doors.at(i));
        m_doors.at(i)->setChecked(doorBytes()[i] != 0);
    }
    for (auto const &warning : qAsConst(m_warnings)) {
        const QSignalBlocker blocker(warning.second);
        warning.second->setChecked(bodyBytes()[warning.first] == 1);
    }
}

// --- Reverse ---------------------------------------------------------------------

ReversePanel::ReversePanel(SimulatorHost &host, QWidget *parent)
    : QWidget(parent)
    , m_host(host)
{
    auto *layout = new QVBoxLayout(this);

    auto *gear = new QGroupBox(tr("Reverse gear"), this);
    auto *gearLayout = new QVBoxLayout(gear);
    auto *reverse = new QCheckBox(tr("In reverse (setReverse)"), gear);
    auto *signal = new QCheckBox(tr("Camera signal (setReverseSignalState)"), gear);
    m_disableRadar = new QCheckBox(tr("Radar display off (host)"), gear);
    gearLayout->addWidget(reverse);
    gearLayout->addWidget(signal);
    gearLayout->addWidget(m_disableRadar);
    layout->addWidget(gear);
    connect(reverse, &QCheckBox::toggled, this, [this](bool on) {
        m_host.call(QStringLiteral("setReverse"), {on});
    });
    connect(signal, &QCheckBox::toggled, this, [this](bool on) {
        m_host.call(QStringLiteral("setReverseSignalState"), {on});
    });
    connect(m_disableRadar, &QCheckBox::toggled, this, [](bool on) { HostSim::setDisableRadar(on); });

    auto *line = new QGroupBox(tr("Guide line (onTrajectoryDataChanged)"), this);
    auto *lineForm = new QFormLayout(line);
    m_lineValue = new QSlider(Qt::Horizontal, line);
    m_lineValue->setRange(-100, 100);
    m_lineRange = new QSpinBox(line);
    m_lineRange->setRange(0, 1000);
    m_lineRange->setValue(100);
    m_lineVisible = new QCheckBox(tr("visible"), line);
    m_lineVisible->setChecked(true);
    m_carHasLine = new QCheckBox(tr("the car reports a guide line (host)"), line);
    m_userWantsLine = new QCheckBox(tr("the user wants the guide line (host)"), line);
    lineForm->addRow(tr("Value"), m_lineValue);
    lineForm->addRow(tr("Range"), m_lineRange);
    lineForm->addRow(m_lineVisible);
    lineForm->addRow(m_carHasLine);
    lineForm->addRow(m_userWantsLine);
    layout->addWidget(line);
    connect(m_lineValue, &QSlider::valueChanged, this, &ReversePanel::sendGuideLine);
    connect(m_lineRange, QOverload<int>::of(&QSpinBox::valueChanged), this, &ReversePanel::sendGuideLine);
    connect(m_lineVisible, &QCheckBox::toggled, this, &ReversePanel::sendGuideLine);
    connect(m_carHasLine, &QCheckBox::toggled, this, [](bool on) { HostSim::setHadReverseLine(on); });
    connect(m_userWantsLine, &QCheckBox::toggled, this, [](bool on) { HostSim::setShowReverseLine(on); });

    auto *radar = new QGroupBox(tr("Radar distances (onRadarDataChanged)"), this);
    auto *radarGrid = new QGridLayout(radar);
    m_scale = new QSpinBox(radar);
    m_scale->setRange(0, 255);
    radarGrid->addWidget(new QLabel(tr("Scale (byte 1)"), radar), 0, 0);
    radarGrid->addWidget(m_scale, 0, 1);
    // The displayed group of eight distances, bytes 2 to 9.
    const QStringList sensors = {tr("Rear, left"), tr("Rear, left middle"), tr("Rear, right middle"),
                                 tr("Rear, right"), tr("Front, left"), tr("Front, left middle"),
                                 tr("Front, right middle"), tr("Front, right")};
    for (int i = 0; i < sensors.size(); ++i) {
        auto *distance = new QSpinBox(radar);
        distance->setRange(0, 255);
        m_distances.append(distance);
        radarGrid->addWidget(new QLabel(sensors.at(i), radar), 1 + i % 4, (i / 4) * 2);
        radarGrid->addWidget(distance, 1 + i % 4, (i / 4) * 2 + 1);
        connect(distance, QOverload<int>::of(&QSpinBox::valueChanged), this, [this] { sendRadar(false); });
    }
    connect(m_scale, QOverload<int>::of(&QSpinBox::valueChanged), this, [this] { sendRadar(false); });
    QPushButton *asVariant = button(tr("Send as a variant"), radar);
    asVariant->setToolTip(tr("onRadarDataChanged(QVariant) with the record"));
    connect(asVariant, &QPushButton::clicked, this, [this] { sendRadar(true); });
    radarGrid->addWidget(asVariant, 5, 0, 1, 4);
    layout->addWidget(radar);
    layout->addStretch(1);
    load();
}

void ReversePanel::load()
{
    CanObj const *can = CanObj::instance();
    QList<QPair<QCheckBox *, bool> > flags = {
        {m_disableRadar, can->disableRadar()},
        {m_carHasLine, can->hadReverseLine()},
        {m_userWantsLine, can->isShowReverseLine()},
    };
    for (auto const &flag : flags) {
        const QSignalBlocker blocker(flag.first);
        flag.first->setChecked(flag.second);
    }
    RadarData const &radar = *HostSim::radarData();
    const QSignalBlocker scaleBlocker(m_scale);
    m_scale->setValue(radar.scale);
    for (int i = 0; i < m_distances.size(); ++i) {
        const QSignalBlocker blocker(m_distances.at(i));
        m_distances.at(i)->setValue(radar.distances[i]);
    }
}

void ReversePanel::sendRadar(bool asVariant)
{
    RadarData &radar = *HostSim::radarData();
    radar.valid = 1;
    radar.scale = quint8(m_scale->value());
    for (int i = 0; i < m_distances.size(); ++i)
        radar.distances[i] = quint8(m_distances.at(i)->value());
    if (asVariant)
        m_host.call(QStringLiteral("onRadarDataChanged"), {QVariant::fromValue(radar)});
    else
        m_host.call(QStringLiteral("onRadarDataChanged"));
}

void ReversePanel::sendGuideLine()
{
    m_host.call(QStringLiteral("onTrajectoryDataChanged"),
                {m_lineValue->value(), m_lineRange->value(), m_lineVisible->isChecked()});
}
