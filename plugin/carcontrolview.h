#ifndef CARCONTROLVIEW_H
#define CARCONTROLVIEW_H

#include "carcontrolinterface.h"

class DialogView;
class ExView;

// The plug-in's root object: one per process. It receives the framework's
// calls and is the one place where a vehicle event becomes a created widget:
// the overlay coordinator on UI level 0 and two independent extended views
// on levels 1 and 3, each made on first demand and forgotten when it is
// destroyed, so that the next demand makes it anew.
class CarControlView : public CarControlInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "cantheme/0.1")
    Q_INTERFACES(CarControlInterface)
public:
    explicit CarControlView(QObject *parent = 0);
    ~CarControlView();

    void setProtocolId(int id) Q_DECL_OVERRIDE;
    void setReverse(bool on) Q_DECL_OVERRIDE;
    void setReverseSignalState(bool state) Q_DECL_OVERRIDE;
    void setRightDriver(bool const &right) Q_DECL_OVERRIDE;
    void setOtherProperty(QString const &key, QVariant value) Q_DECL_OVERRIDE;
    void setData(QVariant const &data) Q_DECL_OVERRIDE;
    void showDialogView() Q_DECL_OVERRIDE;
    void showExView() Q_DECL_OVERRIDE;
    void showExViewDialogView() Q_DECL_OVERRIDE;
    void showUiRaise() Q_DECL_OVERRIDE;

    // Slots of the interface: its meta-object already offers them by name.
    void onAirConditionerVisibleChanged(bool visible) Q_DECL_OVERRIDE;
    void onAirConditionerDataChanged() Q_DECL_OVERRIDE;
    void onCardoorDataChanged() Q_DECL_OVERRIDE;
    void onCarbodyDataChanged() Q_DECL_OVERRIDE;
    void onRadarDataChanged() Q_DECL_OVERRIDE;
    void onRadarDataChanged(QVariant data) Q_DECL_OVERRIDE;
    void onTrajectoryDataChanged(int value, int range, bool visible) Q_DECL_OVERRIDE;

private slots:
    void onViewDestoryed();

private:
    void ensureDialogView();
    ExView *createExView(int level);
    void showView(QWidget *view);

    // The car is in reverse, as last given to setReverse().
    bool reverse;
    // The views; null while absent. Each is cleared when its view is
    // destroyed.
    DialogView *dialogView;
    ExView *exView;
    ExView *exDialogView;
};

#endif // CARCONTROLVIEW_H
