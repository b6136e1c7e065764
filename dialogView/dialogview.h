#ifndef DIALOGVIEW_H
#define DIALOGVIEW_H

#include "reverseinterface.h"

#include <QPointer>
#include <QVariant>
#include <QWidget>

class AirDialogBase;
class CardoorDialogBase;
class QGridLayout;
class RadarData;

// The overlay coordinator: one widget as large as the main area that holds
// the climate overlay, the door and body overlay and the reverse plug-in's
// view, each made on the first record that asks for it. It decides which of
// them is wanted, keeps them apart while the car reverses, and shows or
// hides itself as a whole: it is visible exactly while a child wants to be
// seen or the car reverses (refreshVisibleView()).
//
// All three children cover the whole area. The door overlay always lies over
// the climate overlay; the reverse view, made last, lies over both.
class DialogView : public QWidget
{
    Q_OBJECT
public:
    explicit DialogView(QWidget *parent = 0);
    ~DialogView();

    // Below 1 no vehicle is selected: the coordinator hides and takes no
    // input, its children stay.
    void setProtocolId(int id);
    void setRightDriver(bool const &right);
    // Takes both from CanObj; runs before every delivery to a child.
    void refreshIdAndRightDrive();
    // The one rule of visibility.
    void refreshVisibleView();
    // The host's direct request to show or hide the climate overlay.
    void showAirView(bool show);
    void createAirView();
    void createCarDoorView();
    void createReverseView();
    void showReverseView(bool show);

signals:
    void hided();

public slots:
    void setReverse(bool reverse);
    void setReverseSignalState(bool hadSig);
    void onAirConditionerVisibleChanged(bool visible);
    void onAirConditionerDataChanged();
    void onCardoorDataChanged();
    void onCarbodyDataChanged();
    void onRadarDataChanged();
    void onRadarDataChanged(QVariant data);
    void onTrajectoryDataChanged(int value, int range, bool visible);

protected:
    void mousePressEvent(QMouseEvent *event) Q_DECL_OVERRIDE;
    void keyPressEvent(QKeyEvent *event) Q_DECL_OVERRIDE;
    void keyReleaseEvent(QKeyEvent *event) Q_DECL_OVERRIDE;
    void resizeEvent(QResizeEvent *event) Q_DECL_OVERRIDE;
    void showEvent(QShowEvent *event) Q_DECL_OVERRIDE;
    void hideEvent(QHideEvent *event) Q_DECL_OVERRIDE;

private slots:
    void onSubHide();

private:
    void deliverRadar(RadarData const &radar);
    // The widget's own grid, whose cell (0,0) the children share.
    QGridLayout *childGrid() const;

    AirDialogBase *airView;
    CardoorDialogBase *carDoorView;
    // The view belongs to another plug-in's code; the guarded pointer
    // forgets it should that code end it by itself.
    QPointer<ReverseView> reverseView;
    // The car is reversing, as last given to setReverse().
    bool reverse;
    // An empty grid in the cell that the children share.
    QGridLayout *innerLayout;
};

#endif // DIALOGVIEW_H
