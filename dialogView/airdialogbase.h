#ifndef AIRDIALOGBASE_H
#define AIRDIALOGBASE_H

#include "airdata.h"
#include "dialogbase.h"

// What any climate overlay needs: the last record shown and the hide timer.
// The timer is restarted by every record and by every touch of a control
// (resetHideTimer()); when it ends the overlay hides itself.
class AirDialogBase : public DialogBase
{
    Q_OBJECT
public:
    explicit AirDialogBase(QWidget *parent = 0);

    // The drive side; stored for the overlay's own use.
    virtual void setRightDriver(bool right);
    // Keeps a copy of the record.
    virtual void setData(AirData const &record);

    AirData const &getData() const;
    void resetHideTimer();

protected:
    void timerEvent(QTimerEvent *event) Q_DECL_OVERRIDE;
    void showEvent(QShowEvent *event) Q_DECL_OVERRIDE;
    void hideEvent(QHideEvent *event) Q_DECL_OVERRIDE;

    bool rightDriver;
    // How long the overlay stays after the last record or touch, in ms.
    int hideDelay;
    AirData airData;
    // 0 while no hide timer runs.
    int hideTimerId;
};

#endif // AIRDIALOGBASE_H
