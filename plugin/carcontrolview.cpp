#include "carcontrolview.h"

#include "appframework.h"
#include "canobj.h"
#include "dialogview.h"
#include "exview.h"
#include "tipdialog.h"
#include "translation.h"

using zorvappframework::UIManager;

CarControlView::CarControlView(QObject *parent)
    : CarControlInterface(parent)
    , reverse(false)
    , dialogView(0)
    , exView(0)
    , exDialogView(0)
{
    followLocale();
}

// A view may be in the middle of one of its own events when the framework
// lets the plug-in go, so the views are only asked to end.
CarControlView::~CarControlView()
{
    if (dialogView) {
        dialogView->deleteLater();
        dialogView = 0;
    }
    if (exView) {
        exView->deleteLater();
        exView = 0;
    }
    if (exDialogView) {
        exDialogView->deleteLater();
        exDialogView = 0;
    }
}

// The protocol and the drive side are not kept here: the coordinator reads
// both from CanObj when it is made and before every record it delivers.
void CarControlView::setProtocolId(int id)
{
    if (dialogView)
        dialogView->setProtocolId(id);
}

void CarControlView::setRightDriver(bool const &right)
{
    if (dialogView)
        dialogView->setRightDriver(right);
}

// The flag is kept whatever follows, so that a coordinator made later for a
// climate or door event learns it. Leaving reverse never makes the
// coordinator, and without a vehicle no view is touched.
void CarControlView::setReverse(bool on)
{
    reverse = on;
    if (CanObj::id() < 1)
        return;
    if (reverse && !dialogView)
        showDialogView();
    if (dialogView)
        dialogView->setReverse(on);
}

void CarControlView::setReverseSignalState(bool state)
{
    if (dialogView)
        dialogView->setReverseSignalState(state);
}

void CarControlView::setOtherProperty(QString const &key, QVariant value)
{
    if (key != QLatin1String("ShowAirconditioner"))
        return;
    if (CanObj::id() < 1) {
        TipDialog::showMessage(tr("No model currently selected, please select a model in factory settings"),
                               0, false);
        return;
    }
    AirData const *air = CanObj::instance()->getAirData();
    if (!air || !air->hasAirConditioner) {
        TipDialog::showMessage(tr("This model does not support the air conditioning function"),
                               0, false);
        return;
    }
    showDialogView();
    if (dialogView)
        dialogView->showAirView(value.toBool());
}

// The data are only the extended views' signal to refresh their page.
void CarControlView::setData(QVariant const &data)
{
    if (exView)
        exView->setData(data);
    if (exDialogView)
        exDialogView->setData(data);
}

void CarControlView::showDialogView()
{
    if (!dialogView) {
        followLocale();
        dialogView = new DialogView(UIManager::getUIHerarchy(zorvappframework::UIHerarchyLevel0));
        dialogView->setObjectName(QStringLiteral("dialogView"));
        connect(dialogView, SIGNAL(destroyed()), this, SLOT(onViewDestoryed()));
        dialogView->setGeometry(UIManager::getMainAreaRect());
    }
    showView(dialogView);
    dialogView->setReverse(reverse);
}

void CarControlView::showExView()
{
    if (!exView) {
        exView = createExView(zorvappframework::UIHerarchyLevel1);
        exView->setObjectName(QStringLiteral("exView"));
    }
    showView(exView);
}

void CarControlView::showExViewDialogView()
{
    if (!exDialogView) {
        exDialogView = createExView(zorvappframework::UIHerarchyLevel3);
        exDialogView->setObjectName(QStringLiteral("exDialogView"));
    }
    showView(exDialogView);
}

void CarControlView::showUiRaise()
{
    if (dialogView)
        dialogView->raise();
}

void CarControlView::onAirConditionerVisibleChanged(bool visible)
{
    ensureDialogView();
    dialogView->onAirConditionerVisibleChanged(visible);
}

void CarControlView::onAirConditionerDataChanged()
{
    ensureDialogView();
    dialogView->onAirConditionerDataChanged();
}

void CarControlView::onCardoorDataChanged()
{
    ensureDialogView();
    dialogView->onCardoorDataChanged();
}

// Body records arrive all the time, so a harmless one must not make the
// coordinator. This is also the one event that reaches the extended views:
// it keeps their dashboard current.
void CarControlView::onCarbodyDataChanged()
{
    if (!dialogView) {
        CarbodyData const *body = CanObj::instance()->getCarbodyData();
        if (body && body->isWarningState())
            showDialogView();
    }
    if (dialogView)
        dialogView->onCarbodyDataChanged();
    if (exView)
        exView->refresh();
    if (exDialogView)
        exDialogView->refresh();
}

// Radar and guide line notices matter only while the car reverses.
void CarControlView::onRadarDataChanged()
{
    if (!reverse)
        return;
    ensureDialogView();
    dialogView->onRadarDataChanged();
}

void CarControlView::onRadarDataChanged(QVariant data)
{
    if (!reverse)
        return;
    ensureDialogView();
    dialogView->onRadarDataChanged(data);
}

void CarControlView::onTrajectoryDataChanged(int value, int range, bool visible)
{
    if (!reverse)
        return;
    ensureDialogView();
    dialogView->onTrajectoryDataChanged(value, range, visible);
}

void CarControlView::onViewDestoryed()
{
    QObject *view = sender();
    if (view == dialogView)
        dialogView = 0;
    else if (view == exView)
        exView = 0;
    else if (view == exDialogView)
        exDialogView = 0;
}

void CarControlView::ensureDialogView()
{
    if (!dialogView)
        showDialogView();
}

ExView *CarControlView::createExView(int level)
{
    followLocale();
    ExView *view = new ExView(UIManager::getUIHerarchy(zorvappframework::UIHerarchy(level)));
    connect(view, SIGNAL(destroyed()), this, SLOT(onViewDestoryed()));
    view->setGeometry(UIManager::getMainAreaRect());
    return view;
}

void CarControlView::showView(QWidget *view)
{
    view->show();
    view->raise();
    view->setFocus(Qt::OtherFocusReason);
}
