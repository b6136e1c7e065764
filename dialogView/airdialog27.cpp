#include "airdialog27.h"

#include "airseatwidget.h"
#include "airwindwidget.h"
#include "appframework.h"
#include "basecontrol.h"
#include "canobj.h"
#include "carlog.h"
#include "customimagebutton.h"
#include "imagepaths.h"
#include "mirrorbutton.h"
#include "seatheatingtipview.h"
#include "statusbarmodewidget27.h"
#include "tipdialog.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

namespace {

// The texts of a temperature: "Low" and "High" win over the value, which is
// shown as the car delivers it, with the unit that the unit byte names.
QString temperatureText(quint8 low, quint8 high, qint8 unit, QString const &value)
{
    if (low)
        return QStringLiteral("Low");
    if (high)
        return QStringLiteral("High");
    switch (unit) {
    case 0:
        return value + QChar(0x2103);  // degrees Celsius
    case 1:
        return value + QChar(0x2109);  // degrees Fahrenheit
    case -1:
        return value;
    default:
        return QStringLiteral("NULL");
    }
}

// Three sources may report the automatic mode; the first one wins when the
// car has it.
bool autoIsOn(AirData const &record)
{
    const qint8 first = record.function(AirData::Auto);
    if (first > 0)
        return true;
    if (first < 0)
        return record.function(AirData::Auto3) > 0 || record.function(AirData::Auto2) > 0;
    return false;
}

// A defroster with two sources: the first when the car has it.
bool defrostIsOn(AirData const &record, int first, int second)
{
    return record.function(first) >= 0 ? record.function(first) > 0
                                       : record.function(second) > 0;
}

void sendCommand(QString const &key, QString const &value)
{
    BaseControl::getInstance()->setCanbusStateToCanbus(key, value);
}

// The state a toggle asks for: the opposite of what the button shows. The
// button itself follows the next record.
QString toggled(CustomImageButton *button)
{
    return button->isDown() ? QStringLiteral("off") : QStringLiteral("on");
}

template <typename Widget>
void drop(Widget *&widget)
{
    if (widget) {
        widget->deleteLater();
        widget = 0;
    }
}

void setDown(CustomImageButton *button, bool down)
{
    if (button)
        button->setDown(down);
}

} // namespace

AirDialog27::AirDialog27(QWidget *parent)
    : AirDialogBase(parent)
    , statusBar(0)
    , seatWidget(0)
    , windWidget(0)
    , topRow(0)
    , windRow(0)
    , leftColumn(0)
    , rightColumn(0)
    , seatMirror(false)
    , switchButton(0)
    , innerLoopButton(0)
    , innerLoopQasButton(0)
    , autoButton(0)
    , acButton(0)
    , heatButton(0)
    , dualButton(0)
    , fdcButton(0)
    , frontWindButton(0)
    , downWindButton(0)
    , upWindButton(0)
    , frontDefrostButton(0)
    , rearDefrostButton(0)
    , leftPlusButton(0)
    , leftTempLabel(0)
    , leftLessButton(0)
    , rightPlusButton(0)
    , rightTempLabel(0)
    , rightLessButton(0)
    , leftSeatTip(0)
    , rightSeatTip(0)
{
    hideDelay = 15000;

    statusBar = new StatusBarModeWidget27(this);
    statusBar->setObjectName(QStringLiteral("statusBar"));
    seatWidget = new AirSeatWidget(this);
    seatWidget->setObjectName(QStringLiteral("seatWidget"));
    seatWidget->setImages(imagePath(OverlayImages, QStringLiteral("seat")),
                          imagePath(OverlayImages, QStringLiteral("seat_1")),
                          imagePath(OverlayImages, QStringLiteral("seat_2")),
                          imagePath(OverlayImages, QStringLiteral("seat_3")));
    // The seat picture only shows: a touch on it is a touch on the panel.
    seatWidget->setAttribute(Qt::WA_TransparentForMouseEvents);
    windWidget = new AirWindWidget(this);
    windWidget->setObjectName(QStringLiteral("windWidget"));

    topRow = new QHBoxLayout;
    topRow->setObjectName(QStringLiteral("topRow"));
    windRow = new QHBoxLayout;
    windRow->setObjectName(QStringLiteral("windRow"));
    leftColumn = new QVBoxLayout;
    leftColumn->setObjectName(QStringLiteral("leftColumn"));
    rightColumn = new QVBoxLayout;
    rightColumn->setObjectName(QStringLiteral("rightColumn"));

    QGridLayout *grid = new QGridLayout(this);
    grid->setContentsMargins(5, 5, 5, 5);
    grid->addWidget(statusBar, 0, 0, 1, 3);
    grid->addLayout(topRow, 1, 1);
    grid->addLayout(leftColumn, 2, 0);
    grid->addWidget(seatWidget, 2, 1, Qt::AlignCenter);
    grid->addLayout(rightColumn, 2, 2);
    grid->addLayout(windRow, 3, 1);
    grid->addWidget(windWidget, 4, 1, Qt::AlignCenter);
    grid->setRowStretch(1, 2);
    grid->setRowStretch(2, 7);
    grid->setRowStretch(3, 2);
    grid->setRowStretch(4, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 4);
    grid->setColumnStretch(2, 1);

    connect(statusBar, SIGNAL(backClicked()), this, SLOT(hide()));
    connect(windWidget, SIGNAL(windAdd()), this, SLOT(onWindSpeedAddClicked()));
    connect(windWidget, SIGNAL(windSub()), this, SLOT(onWindSpeedSubClicked()));

    // The second road of the commands: the "canbus" module's own signals.
    // Without the module the panel works with the keys alone.
    QSharedPointer<zorvappframework::Module> canbus
        = zorvappframework::ModuleManager::self()->module(QStringLiteral("canbus"));
    QObject *canbusSignals = canbus ? canbus->signalObject() : 0;
    if (canbusSignals) {
        static char const *const forwarded[][2] = {
            {SIGNAL(onsetAuto()), SIGNAL(setAuto())},
            {SIGNAL(onsetinnerLoop()), SIGNAL(setinnerLoop())},
            {SIGNAL(onSetleftPlus()), SIGNAL(SetleftPlus())},
            {SIGNAL(onSetleftLess()), SIGNAL(SetleftLess())},
            {SIGNAL(onSetrightPlus()), SIGNAL(SetrightPlus())},
            {SIGNAL(onSetrightLess()), SIGNAL(SetrightLess())},
            {SIGNAL(onSetDUAL()), SIGNAL(SetDUAL())},
            {SIGNAL(onSetAc()), SIGNAL(SetAc())},
            {SIGNAL(onSetfrontDefrostLeftL()), SIGNAL(SetfrontDefrostLeftL())},
            {SIGNAL(onSetrearDefrostLeftL()), SIGNAL(SetrearDefrostLeftL())},
            {SIGNAL(onSetsmall()), SIGNAL(Setsmall())},
            {SIGNAL(onSetGale()), SIGNAL(SetGale())},
            {SIGNAL(onSetSwitch()), SIGNAL(SetSwitch())},
            {SIGNAL(onLeftHeatingButton(int)), SIGNAL(LeftHeatingButton(int))},
            {SIGNAL(onRightHeatingButton(int)), SIGNAL(RightHeatingButton(int))},
            {SIGNAL(onBlowOn(bool)), SIGNAL(BlowOn(bool))},
            {SIGNAL(onMediumBlow(bool)), SIGNAL(MediumBlow(bool))},
            {SIGNAL(onBlowDown(bool)), SIGNAL(BlowDown(bool))},
        };
        for (size_t i = 0; i < sizeof forwarded / sizeof forwarded[0]; ++i)
            connect(this, forwarded[i][0], canbusSignals, forwarded[i][1]);
    }
}

void AirDialog27::setData(AirData const &record)
{
    resetHideTimer();
    initWidget(record);
    setDown(switchButton, record.function(AirData::ClimateSwitch) != 0);
    if (record.leftTemperatureValid && leftTempLabel)
        leftTempLabel->setText(temperatureText(record.leftTemperatureLow, record.leftTemperatureHigh,
                                               record.leftTemperatureUnit, record.leftTemperature));
    if (record.rightTemperatureValid && rightTempLabel)
        rightTempLabel->setText(temperatureText(record.rightTemperatureLow, record.rightTemperatureHigh,
                                                record.rightTemperatureUnit, record.rightTemperature));
    // A car without a switch (-1) counts as running.
    if (record.function(AirData::ClimateSwitch) != 0)
        showRunningState(record);
    else
        showStoppedState(record);
    AirDialogBase::setData(record);
}

CustomImageButton *AirDialog27::syncButton(CustomImageButton *&button, bool present,
                                           char const *name, char const *normal, char const *down,
                                           QBoxLayout *row, char const *slot)
{
    if (present && !button) {
        button = new CustomImageButton(this);
        button->setObjectName(QLatin1String(name));
        button->setBackgroundImage(imagePath(OverlayImages, QLatin1String(normal)),
                                   imagePath(OverlayImages, QLatin1String(down)),
                                   QString(), QString(), true, 0);
        row->addWidget(button, 1, Qt::AlignCenter);
        connect(button, SIGNAL(clicked()), this, slot);
        button->show();
    } else if (!present && button) {
        button->close();
        button->deleteLater();
        button = 0;
    }
    return button;
}

MirrorButton *AirDialog27::syncWindButton(MirrorButton *&button, bool present, char const *name,
                                          char const *normal, char const *down)
{
    if (present && !button) {
        button = new MirrorButton(this);
        button->setObjectName(QLatin1String(name));
        button->setButtonBackgroundImage(imagePath(OverlayImages, QLatin1String(normal)),
                                         imagePath(OverlayImages, QLatin1String(down)));
        windRow->addWidget(button, 1, Qt::AlignCenter);
        connect(button, SIGNAL(clicked()), this, SLOT(onWindBtClicked()));
        button->show();
    } else if (!present && button) {
        button->close();
        button->deleteLater();
        button = 0;
    }
    return button;
}

void AirDialog27::createTemperature(QVBoxLayout *column, CustomImageButton *&plus, QLabel *&label,
                                    CustomImageButton *&less, char const *side)
{
    const QString prefix = QLatin1String(side);
    plus = new CustomImageButton(this);
    plus->setObjectName(prefix + QStringLiteral("PlusButton"));
    plus->setBackgroundImage(imagePath(OverlayImages, QStringLiteral("plus_n")),
                             imagePath(OverlayImages, QStringLiteral("plus_d")),
                             QString(), QString(), true, 0);
    label = new QLabel(this);
    label->setObjectName(prefix + QStringLiteral("TempLabel"));
    label->setFixedWidth(110);
    label->setStyleSheet(QStringLiteral("font:30px;color:white"));
    label->setAlignment(Qt::AlignHCenter);
    less = new CustomImageButton(this);
    less->setObjectName(prefix + QStringLiteral("LessButton"));
    less->setBackgroundImage(imagePath(OverlayImages, QStringLiteral("less_n")),
                             imagePath(OverlayImages, QStringLiteral("less_d")),
                             QString(), QString(), true, 0);
    column->addWidget(plus, 1, Qt::AlignCenter);
    column->addWidget(label, 1, Qt::AlignCenter);
    column->addWidget(less, 1, Qt::AlignCenter);
    connect(plus, SIGNAL(clicked()), this, SLOT(OnCliked()));
    connect(less, SIGNAL(clicked()), this, SLOT(OnCliked()));
    plus->show();
    label->show();
    less->show();
}

SeatHeatingTipView *AirDialog27::createSeatTip(char const *name, int column, bool mirror)
{
    SeatHeatingTipView *tip = new SeatHeatingTipView(this);
    tip->setObjectName(QLatin1String(name));
    if (mirror)
        tip->setMirror();
    static_cast<QGridLayout *>(layout())->addWidget(tip, 3, column, 3, 1, Qt::AlignCenter);
    connect(tip, SIGNAL(clicked()), this, SLOT(OnCliked()));
    tip->show();
    return tip;
}

// Controls are made in the order of the rows, so that a set that arrives
// whole stands in that order. The temperature columns and the seat tiles,
// once made, stay until the air type changes.
void AirDialog27::initWidget(AirData const &record)
{
    if (record.airType != airData.airType && acButton) {
        CAR_LOG("AirDialog27") << "air type" << airData.airType << "->" << record.airType;
        clearAllLabel();
    }

    // The function byte of the record at that offset.
    auto byte = [&record](int offset) { return record.function(offset); };

    const char *onClicked = SLOT(OnCliked());
    if (syncButton(switchButton, byte(49) >= 0, "switchButton", "airswitch_n", "airswitch_d",
                   topRow, onClicked))
        switchButton->setDown(byte(49) != 0);
    if (syncButton(innerLoopButton, byte(59) >= 0 || byte(61) >= 0, "innerLoopButton",
                   "innerloop", "innerloop_d", topRow, onClicked))
        innerLoopButton->setDown(byte(59) >= 0 ? byte(59) > 0 : byte(61) > 0);
    if (syncButton(innerLoopQasButton, byte(60) >= 0 && byte(59) < 0, "innerLoopQasButton",
                   "innerloop", "innerloop_d", topRow, onClicked))
        innerLoopQasButton->setDown(byte(60) > 0);
    if (syncButton(autoButton, byte(55) >= 0 || byte(56) >= 0 || byte(57) >= 0, "autoButton",
                   "auto", "auto_d", topRow, onClicked))
        autoButton->setDown(autoIsOn(record));
    if (syncButton(acButton, byte(50) >= 0, "acButton", "ac", "ac_d", topRow, onClicked))
        acButton->setDown(byte(50) > 0);
    if (syncButton(heatButton, byte(66) >= 0, "heatButton", "heat_n", "heat_d", topRow, onClicked))
        heatButton->setDown(byte(66) != 0);
    if (syncButton(dualButton, byte(54) >= 0, "dualButton", "dual", "dual_tip", topRow, onClicked))
        dualButton->setDown(byte(54) > 0);
    if (syncButton(fdcButton, byte(52) >= 0, "fdcButton", "fdc", "fdc_d", topRow, onClicked))
        fdcButton->setDown(byte(52) > 0);

    syncWindButton(frontWindButton, byte(72) >= 0 || byte(77) >= 0, "frontWindButton",
                   "front_wind", "front_wind_d");
    syncWindButton(downWindButton, byte(73) >= 0, "downWindButton",
                   "katabatic_wind", "katabatic_wind_d");
    syncWindButton(upWindButton, byte(71) >= 0, "upWindButton", "up_wind", "up_wind_d");
    const char *onWind = SLOT(onWindBtClicked());
    if (syncButton(frontDefrostButton, byte(67) >= 0 || byte(68) >= 0, "frontDefrostButton",
                   "front_defrost", "front_defrost_d", windRow, onWind))
        frontDefrostButton->setDown(defrostIsOn(record, AirData::FrontDefrost, AirData::FrontDefrost2));
    if (syncButton(rearDefrostButton, byte(69) >= 0 || byte(70) >= 0, "rearDefrostButton",
                   "rear_defrost", "rear_defrost_d", windRow, onWind))
        rearDefrostButton->setDown(defrostIsOn(record, AirData::RearDefrost, AirData::RearDefrost2));

    if (record.leftTemperatureValid && !leftPlusButton)
        createTemperature(leftColumn, leftPlusButton, leftTempLabel, leftLessButton, "left");
    if (record.rightTemperatureValid && !rightPlusButton)
        createTemperature(rightColumn, rightPlusButton, rightTempLabel, rightLessButton, "right");
    if (record.seatHeating.hasSeatHeating) {
        if (!leftSeatTip)
            leftSeatTip = createSeatTip("leftSeatTip", 0, false);
        if (!rightSeatTip)
            rightSeatTip = createSeatTip("rightSeatTip", 2, true);
    }
}

// The deletion is deferred, so the caller goes straight on to build the new
// set.
void AirDialog27::clearAllLabel()
{
    drop(switchButton);
    drop(innerLoopButton);
    drop(innerLoopQasButton);
    drop(autoButton);
    drop(acButton);
    drop(heatButton);
    drop(dualButton);
    drop(fdcButton);
    drop(frontWindButton);
    drop(downWindButton);
    drop(upWindButton);
    drop(frontDefrostButton);
    drop(rearDefrostButton);
    drop(leftPlusButton);
    drop(leftTempLabel);
    drop(leftLessButton);
    drop(rightPlusButton);
    drop(rightTempLabel);
    drop(rightLessButton);
    drop(leftSeatTip);
    drop(rightSeatTip);
}

// The up arrow is read from the left zone and the down arrow from the right
// zone; the fan level from the zone the seat shows.
void AirDialog27::setSeat(AirData const &record)
{
    seatWidget->setMirror(seatMirror);
    const bool up = record.function(AirData::LeftWindUp) == 1;
    const bool down = record.function(AirData::RightWindDown) == 1;
    seatWidget->setState(up && down ? 3 : up ? 2 : down ? 1 : 0);
    if (windWidget)
        windWidget->setWindSpeed(record.function(seatMirror ? AirData::LeftWindSpeed
                                                            : AirData::RightWindSpeed));
}

// The inner loop's second source reports in the opposite sense here: 0 is
// on. The air buttons show the right zone.
void AirDialog27::showRunningState(AirData const &record)
{
    setSeat(record);
    setDown(heatButton, record.function(AirData::Heat) == 1);
    setDown(acButton, record.function(AirData::Ac) > 0);
    setDown(dualButton, record.function(AirData::Dual) == 1);
    if (innerLoopButton) {
        const qint8 loop = record.function(AirData::InnerLoop);
        const qint8 inverted = record.function(AirData::InnerLoopInverted);
        if (loop >= 0)
            innerLoopButton->setDown(loop > 0);
        else if (inverted >= 0)
            innerLoopButton->setDown(inverted == 0);
    }
    setDown(innerLoopQasButton, record.function(AirData::InnerLoopQas) > 0);
    setDown(autoButton, autoIsOn(record));
    setDown(frontDefrostButton, defrostIsOn(record, AirData::FrontDefrost, AirData::FrontDefrost2));
    setDown(rearDefrostButton, defrostIsOn(record, AirData::RearDefrost, AirData::RearDefrost2));
    setDown(frontWindButton, record.function(seatMirror ? AirData::LeftWindFront
                                                        : AirData::RightWindFront) != 0);
    setDown(upWindButton, record.function(seatMirror ? AirData::LeftWindUp
                                                     : AirData::RightWindUp) != 0);
    setDown(downWindButton, record.function(seatMirror ? AirData::LeftWindDown
                                                       : AirData::RightWindDown) != 0);
    if (windWidget)
        windWidget->setWindSpeed(record.function(seatMirror ? AirData::LeftWindSpeed
                                                            : AirData::RightWindSpeed));
    if (leftSeatTip)
        leftSeatTip->setData(record.seatHeating);
    if (rightSeatTip)
        rightSeatTip->setData(record.seatHeating);
}

// Switched off: the functions show off and the fan stands. The seat picture,
// FDC and the seat tiles keep what they had.
void AirDialog27::showStoppedState(AirData const &record)
{
    setDown(heatButton, false);
    setDown(acButton, false);
    setDown(dualButton, false);
    setDown(innerLoopQasButton, false);
    setDown(autoButton, false);
    setDown(frontDefrostButton, false);
    setDown(rearDefrostButton, false);
    setDown(frontWindButton, false);
    setDown(upWindButton, false);
    setDown(downWindButton, false);
    if (record.function(AirData::InnerLoop) >= 0 || record.function(AirData::InnerLoopInverted) >= 0)
        setDown(innerLoopButton, false);
    windWidget->setWindSpeed(0);
}

// A car without a climate switch can't be switched off, so its commands
// always go. Vehicles 37 to 39 take commands also while the climate is off.
bool AirDialog27::climateAllows()
{
    if (!switchButton || switchButton->isDown())
        return true;
    const int id = CanObj::id();
    if (id >= 37 && id <= 39)
        return true;
    TipDialog::showMessage(QString::fromUtf8("请打先开空调"), 0, false);
    return false;
}

// The top row, the temperature buttons and the seat tiles. The switch itself
// is never refused. A button's signal goes before its key; a seat tile's key
// goes before its signal.
void AirDialog27::OnCliked()
{
    resetHideTimer();
    QObject *from = sender();
    if (from != switchButton && !climateAllows())
        return;

    if (from == leftSeatTip && leftSeatTip) {
        sendCommand(QStringLiteral("SeatHotLeft"), QString());
        emit onLeftHeatingButton(1);
        return;
    }
    if (from == rightSeatTip && rightSeatTip) {
        sendCommand(QStringLiteral("SeatHotRight"), QString());
        emit onRightHeatingButton(2);
        return;
    }
    // Each button's signal (if it has one), its key, and its value: the
    // opposite of its state where none is given.
    static const struct {
        CustomImageButton *AirDialog27::*button;
        void (AirDialog27::*signal)();
        char const *key;
        char const *value;
    } commands[] = {
        {&AirDialog27::switchButton, &AirDialog27::onSetSwitch, "AirOnOff", 0},
        {&AirDialog27::autoButton, &AirDialog27::onsetAuto, "AirAUTO", 0},
        {&AirDialog27::acButton, &AirDialog27::onSetAc, "AirAC", 0},
        {&AirDialog27::innerLoopButton, &AirDialog27::onsetinnerLoop, "AirInnerLoop", 0},
        {&AirDialog27::innerLoopQasButton, 0, "AirInnerLoopQAS", 0},
        {&AirDialog27::fdcButton, 0, "AirFDC", 0},
        {&AirDialog27::leftPlusButton, &AirDialog27::onSetleftPlus, "AirTempFrontLeft", "add"},
        {&AirDialog27::leftLessButton, &AirDialog27::onSetleftLess, "AirTempFrontLeft", "sub"},
        {&AirDialog27::rightPlusButton, &AirDialog27::onSetrightPlus, "AirTempFrontRight", "add"},
        {&AirDialog27::rightLessButton, &AirDialog27::onSetrightLess, "AirTempFrontRight", "sub"},
        {&AirDialog27::dualButton, &AirDialog27::onSetDUAL, "AirDUAL", 0},
        {&AirDialog27::heatButton, 0, "AirHEAT", 0},
    };
    CustomImageButton *button = qobject_cast<CustomImageButton *>(from);
    if (!button)
        return;
    for (size_t i = 0; i < sizeof commands / sizeof commands[0]; ++i) {
        if (button != this->*commands[i].button)
            continue;
        if (commands[i].signal)
            emit (this->*commands[i].signal)();
        sendCommand(QLatin1String(commands[i].key),
                    commands[i].value ? QString(QLatin1String(commands[i].value)) : toggled(button));
        return;
    }
}

// The air buttons and the defrosters.
void AirDialog27::onWindBtClicked()
{
    resetHideTimer();
    if (!climateAllows())
        return;
    CustomImageButton *button = qobject_cast<CustomImageButton *>(sender());
    if (!button)
        return;
    if (button == upWindButton) {
        emit onBlowOn(true);
        sendCommand(QStringLiteral("AirWindUpFront"), toggled(button));
    } else if (button == frontWindButton) {
        emit onMediumBlow(true);
        sendCommand(QStringLiteral("AirWindFrontFront"), toggled(button));
    } else if (button == downWindButton) {
        emit onBlowDown(true);
        sendCommand(QStringLiteral("AirWindDownFront"), toggled(button));
    } else if (button == frontDefrostButton) {
        emit onSetfrontDefrostLeftL();
        sendCommand(QStringLiteral("AirDefrostFront"), toggled(button));
    } else if (button == rearDefrostButton) {
        emit onSetrearDefrostLeftL();
        sendCommand(QStringLiteral("AirDefrostRear"), toggled(button));
    }
}

// The fan steps also while the climate is off; the key goes first.
void AirDialog27::onWindSpeedAddClicked()
{
    resetHideTimer();
    sendCommand(QStringLiteral("AirWindSpeedAddSubFront"), QStringLiteral("1"));
    emit onSetGale();
}

void AirDialog27::onWindSpeedSubClicked()
{
    resetHideTimer();
    sendCommand(QStringLiteral("AirWindSpeedAddSubFront"), QStringLiteral("-1"));
    emit onSetsmall();
}

// Touches on the panel's free area end here and do nothing; the panel is
// closed by touch only through the back button.
void AirDialog27::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void AirDialog27::mouseReleaseEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

void AirDialog27::mouseMoveEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

// The head unit's back and close keys hide the panel; every other key goes on
// to the coordinator and the host.
void AirDialog27::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case 0x0110002A:
    case 0x0110002C:
    case 0x01200026:
    case 0x0140000F:
        if (isVisible()) {
            event->accept();
            hide();
            return;
        }
        break;
    default:
        break;
    }
    event->ignore();
}

// The panel has no background of its own: it lies on the user's wallpaper.
void AirDialog27::paintEvent(QPaintEvent *event)
{
    QPixmap const *wallpaper = BaseControl::getInstance()->getBackgroundPixmap();
    if (wallpaper && !wallpaper->isNull()) {
        QPainter painter(this);
        painter.drawPixmap(0, 0, *wallpaper);
    }
    event->accept();
}
