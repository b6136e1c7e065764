#include "dialogview.h"

#include "airdialog27.h"
#include "appframework.h"
#include "basecontrol.h"
#include "canobj.h"
#include "cardoordialog27.h"
#include "carlog.h"
#include "thememanager.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

// The door overlay comes back for a body notice only when one of its three
// warnings changed: seat belt, condensate or the automatic parking fault.
// The record's own comparison leaves the parking byte out, so it is added
// here.
bool sameBodyWarnings(CarbodyData const &shown, CarbodyData const &incoming)
{
    return shown.compareWarningPart(incoming) && shown.autoParkingFault == incoming.autoParkingFault;
}

} // namespace

DialogView::DialogView(QWidget *parent)
    : QWidget(parent)
    , airView(0)
    , carDoorView(0)
    , reverse(false)
    , innerLayout(0)
{
    // All children share cell (0,0) of the outer grid and so cover the whole
    // area.
    QGridLayout *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    innerLayout = new QGridLayout;
    innerLayout->setObjectName(QStringLiteral("innerLayout"));
    grid->addLayout(innerLayout, 0, 0);

    setGeometry(zorvappframework::UIManager::getMainAreaRect());
    setVisible(false);
    refreshIdAndRightDrive();
}

// The children are asked to end, reverse view first; none of them may call
// back into this widget any more.
DialogView::~DialogView()
{
    if (reverseView) {
        reverseView->deleteLater();
        reverseView = 0;
    }
    if (airView) {
        airView->disconnect(this);
        airView->deleteLater();
        airView = 0;
    }
    if (carDoorView) {
        carDoorView->disconnect(this);
        carDoorView->deleteLater();
        carDoorView = 0;
    }
}

void DialogView::setProtocolId(int id)
{
    if (id < 1)
        hide();
    setEnabled(id >= 1);
}

void DialogView::setRightDriver(bool const &right)
{
    if (airView)
        airView->setRightDriver(right);
    if (carDoorView)
        carDoorView->setRightDriver(right);
    if (reverseView)
        reverseView->setRightDriver(right);
}

void DialogView::refreshIdAndRightDrive()
{
    setProtocolId(CanObj::id());
    setRightDriver(CanObj::instance()->isRightDriver());
}

// The coordinator is seen while the climate overlay or the door overlay wants
// to be seen; otherwise while the reverse view wants to be seen or the car
// reverses. It is neither raised nor focused here.
void DialogView::refreshVisibleView()
{
    if (airView && airView->needShow()) {
        setVisible(true);
        return;
    }
    if (carDoorView && carDoorView->needShow()) {
        setVisible(true);
        return;
    }
    if (!reverseView) {
        setVisible(reverse);
        return;
    }
    if (reverseView->needShow()) {
        setVisible(true);
        return;
    }
    setVisible(reverse);
}

// The host's direct request: it has checked that the car has a climate, and
// the request holds even while reversing.
void DialogView::showAirView(bool show)
{
    if (show) {
        createAirView();
        AirData const *air = CanObj::instance()->getAirData();
        if (air)
            airView->setData(*air);
        airView->setVisible(true);
        refreshVisibleView();
    } else if (airView) {
        airView->setVisible(false);
        refreshVisibleView();
    }
}

void DialogView::createAirView()
{
    if (airView)
        return;
    airView = new AirDialog27(this);
    airView->setObjectName(QStringLiteral("airView"));
    airView->hide();
    connect(airView, SIGNAL(hided()), this, SLOT(onSubHide()));
    childGrid()->addWidget(airView, 0, 0, 1, 1);
    // The door overlay stays on top, whichever was made first.
    if (carDoorView)
        airView->stackUnder(carDoorView);
}

void DialogView::createCarDoorView()
{
    if (carDoorView)
        return;
    carDoorView = new CardoorDialog27(this);
    carDoorView->setObjectName(QStringLiteral("carDoorView"));
    carDoorView->hide();
    connect(carDoorView, SIGNAL(hided()), this, SLOT(onSubHide()));
    childGrid()->addWidget(carDoorView, 0, 0, 1, 1, Qt::AlignCenter);
}

// The view comes from the reverse plug-in, through the host's theme manager.
// Without that plug-in the coordinator stays empty while the car reverses.
void DialogView::createReverseView()
{
    if (reverseView)
        return;
    QObject *instance = ThemeManager::getInstance()->getReverseManager()->getThemeInstance();
    if (!instance) {
        CAR_LOG_AT("DialogView", 150) << "createReverseView" << "get reverseinterface fail";
        return;
    }
    // An object of another interface is not ours to end.
    ReverseInterface *reverseInterface =
            static_cast<ReverseInterface *>(instance->qt_metacast("reversetheme/0.1"));
    if (!reverseInterface)
        return;

    ReverseView *view = reverseInterface->createView(this);
    if (view) {
        reverseView = view;
        view->setObjectName(QStringLiteral("reverseView"));
        view->hide();
        view->setGeometry(rect());
        view->setRadarEnabled(!CanObj::instance()->disableRadar());
        view->init();
        childGrid()->addWidget(view, 0, 0, 1, 1);
    }
    delete reverseInterface;
}

// Leaving reverse ends the view; the next reverse gets a fresh one from the
// plug-in.
void DialogView::showReverseView(bool show)
{
    if (show) {
        createReverseView();
        if (reverseView)
            reverseView->setVisible(true);
    } else if (reverseView) {
        ReverseView *view = reverseView;
        reverseView = 0;
        view->close();
        view->deleteLater();
    }
}

// Reverse puts the two overlays away; nothing brings them back when it ends
// but their next record.
void DialogView::setReverse(bool reverse)
{
    if (reverse == this->reverse)
        return;
    this->reverse = reverse;
    if (CanObj::id() > 0) {
        if (reverse) {
            if (airView)
                airView->setVisible(false);
            if (carDoorView)
                carDoorView->setVisible(false);
        }
        showReverseView(reverse);
    }
    refreshVisibleView();
}

// The state is passed on, not kept: a view made later doesn't learn it.
void DialogView::setReverseSignalState(bool hadSig)
{
    if (reverseView)
        reverseView->setReverseSignalState(hadSig);
}

void DialogView::onAirConditionerVisibleChanged(bool visible)
{
    if (!airView) {
        if (!visible) {
            refreshVisibleView();
            return;
        }
        createAirView();
    }
    refreshIdAndRightDrive();
    airView->setVisible(visible && !reverse);
    refreshVisibleView();
}

// Every notice goes through: the record is not compared with the last one.
// The overlay is made even for a record that doesn't ask to be shown.
void DialogView::onAirConditionerDataChanged()
{
    createAirView();
    AirData const *air = CanObj::instance()->getAirData();
    if (air) {
        refreshIdAndRightDrive();
        airView->setData(*air);
        airView->setVisible(air->showRequest != 0 && !reverse);
    }
    refreshVisibleView();
}

// A missing body record counts as a warning. No comparison with the last
// door record: any door notice during a warning brings a dismissed overlay
// back.
void DialogView::onCardoorDataChanged()
{
    CanObj *can = CanObj::instance();
    CardoorData const *door = can->getCardoorData();
    if (door) {
        CarbodyData const *body = can->getCarbodyData();
        const bool warn = door->isWarningState() || !body || body->isWarningState();
        if (warn)
            createCarDoorView();
        if (carDoorView) {
            refreshIdAndRightDrive();
            carDoorView->setData(*door);
            carDoorView->setVisible(warn && !reverse);
        }
    }
    refreshVisibleView();
}

// Body records arrive all the time: one whose warning part is what the
// overlay already has is dropped at once, so a dismissed overlay stays
// dismissed. A missing door record counts as a warning.
void DialogView::onCarbodyDataChanged()
{
    CanObj *can = CanObj::instance();
    CarbodyData const *body = can->getCarbodyData();
    if (body) {
        CardoorDialog27 *door = qobject_cast<CardoorDialog27 *>(carDoorView);
        if (door && sameBodyWarnings(door->getCarbodyData(), *body))
            return;
        CardoorData const *doorRecord = can->getCardoorData();
        const bool warn = body->isWarningState() || !doorRecord || doorRecord->isWarningState();
        if (warn)
            createCarDoorView();
        if (carDoorView) {
            refreshIdAndRightDrive();
            carDoorView->setCarbodyData(*body);
            carDoorView->setVisible(warn && !reverse);
        }
    }
    refreshVisibleView();
}

void DialogView::onRadarDataChanged()
{
    if (!reverse) {
        if (isVisible())
            refreshVisibleView();
        return;
    }
    if (!reverseView)
        createReverseView();
    RadarData const *radar = CanObj::instance()->getRadarData();
    if (radar && reverseView) {
        refreshIdAndRightDrive();
        deliverRadar(*radar);
    }
    refreshVisibleView();
}

// The variant is taken as it is when it holds a radar record, converted
// otherwise; a conversion that fails yields a default record.
void DialogView::onRadarDataChanged(QVariant data)
{
    const int radarType = qMetaTypeId<RadarData>();
    if (!reverse || !data.canConvert(radarType)) {
        if (isVisible())
            refreshVisibleView();
        return;
    }
    if (!reverseView)
        createReverseView();
    RadarData radar;
    if (data.userType() == radarType) {
        radar = data.value<RadarData>();
    } else {
        QVariant converted(data);
        if (converted.convert(radarType))
            radar = converted.value<RadarData>();
    }
    if (reverseView) {
        refreshIdAndRightDrive();
        deliverRadar(radar);
    }
    refreshVisibleView();
}

// Guide lines are drawn only on cars that have them and while the user wants
// them. Once a view exists, `visible` has no say.
void DialogView::onTrajectoryDataChanged(int value, int range, bool visible)
{
    CanObj *can = CanObj::instance();
    if (reverse && can->hadReverseLine() && can->isShowReverseLine()
            && (reverseView || visible)) {
        if (!reverseView)
            createReverseView();
        refreshIdAndRightDrive();
        if (reverseView) {
            reverseView->setTrajectoryRange(range);
            reverseView->setTrajectoryValue(value);
            reverseView->setVisible(true);
        }
        show();
    }
    refreshVisibleView();
}

// The second group of eight distances is not passed on.
void DialogView::deliverRadar(RadarData const &radar)
{
    if (!reverseView)
        return;
    quint8 const *d = radar.distances;
    reverseView->setRadarScale(radar.scale);
    reverseView->setRadarValues(d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7]);
}

QGridLayout *DialogView::childGrid() const
{
    return static_cast<QGridLayout *>(layout());
}

// A press on the area never falls through to what lies below.
void DialogView::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

// Keys that no overlay took go to the head unit.
void DialogView::keyPressEvent(QKeyEvent *event)
{
    BaseControl::getInstance()->keyPressEvent(event);
}

void DialogView::keyReleaseEvent(QKeyEvent *event)
{
    BaseControl::getInstance()->keyReleaseEvent(event);
}

void DialogView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
}

void DialogView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
}

void DialogView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    emit hided();
}

// A child that hid only because this widget hides needs no new decision.
void DialogView::onSubHide()
{
    QWidget *child = qobject_cast<QWidget *>(sender());
    if (child && !child->isHidden())
        return;
    refreshVisibleView();
}
