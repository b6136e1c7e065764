#ifndef AIRDIALOG27_H
#define AIRDIALOG27_H

#include "airdialogbase.h"

class AirSeatWidget;
class AirWindWidget;
class CustomImageButton;
class MirrorButton;
class QBoxLayout;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;
class SeatHeatingTipView;
class StatusBarModeWidget27;

// The climate panel over the main area. It shows what the climate record
// says and stays for 15 seconds after the last record or touch of a control.
//
// Its button set follows the record: on every record each control is made or
// removed as the record says the car has that function (a function byte of 0
// or above), so one panel serves all cars. A touch becomes a command to the
// car on two roads: a key and value handed to BaseControl, and a signal of
// the "canbus" module. While the climate is switched off, the panel refuses
// all commands but the switch itself and the fan steps, except on the
// vehicles 37 to 39.
class AirDialog27 : public AirDialogBase
{
    Q_OBJECT
public:
    explicit AirDialog27(QWidget *parent = 0);

    void setData(AirData const &record) Q_DECL_OVERRIDE;

signals:
    void backClicked();
    void onsetAuto();
    void onsetinnerLoop();
    void onSetleftPlus();
    void onSetleftLess();
    void onSetrightPlus();
    void onSetrightLess();
    void onSetDUAL();
    void onSetAc();
    void onSetfrontDefrostLeftL();
    void onSetrearDefrostLeftL();
    void onSetsmall();
    void onSetGale();
    void onSetSwitch();
    void onLeftHeatingButton(int heating);
    void onRightHeatingButton(int heating);
    void onBlowOn(bool Left);
    void onMediumBlow(bool Left);
    void onBlowDown(bool Left);

protected:
    void mousePressEvent(QMouseEvent *event) Q_DECL_OVERRIDE;
    void mouseReleaseEvent(QMouseEvent *event) Q_DECL_OVERRIDE;
    void mouseMoveEvent(QMouseEvent *event) Q_DECL_OVERRIDE;
    void keyPressEvent(QKeyEvent *event) Q_DECL_OVERRIDE;
    void paintEvent(QPaintEvent *event) Q_DECL_OVERRIDE;

private slots:
    void OnCliked();
    void onWindBtClicked();
    void onWindSpeedAddClicked();
    void onWindSpeedSubClicked();

private:
    // Brings the control set in line with the record and sets the buttons'
    // states from it.
    void initWidget(AirData const &record);
    // Drops every control of the record; the fixed children stay.
    void clearAllLabel();
    // The seat picture's air arrows and the fan level.
    void setSeat(AirData const &record);
    void showRunningState(AirData const &record);
    void showStoppedState(AirData const &record);

    // Makes or removes one button of a row; answers the button, null while
    // absent.
    CustomImageButton *syncButton(CustomImageButton *&button, bool present, char const *name,
                                  char const *normal, char const *down, QBoxLayout *row,
                                  char const *slot);
    MirrorButton *syncWindButton(MirrorButton *&button, bool present, char const *name,
                                 char const *normal, char const *down);
    void createTemperature(QVBoxLayout *column, CustomImageButton *&plus, QLabel *&label,
                           CustomImageButton *&less, char const *side);
    SeatHeatingTipView *createSeatTip(char const *name, int column, bool mirror);
    // Whether a command may go to the car now; shows the message if not.
    bool climateAllows();

    StatusBarModeWidget27 *statusBar;
    AirSeatWidget *seatWidget;
    AirWindWidget *windWidget;
    QHBoxLayout *topRow;
    QHBoxLayout *windRow;
    QVBoxLayout *leftColumn;
    QVBoxLayout *rightColumn;
    // The seat picture and the air buttons show the right zone; nothing sets
    // this.
    bool seatMirror;

    CustomImageButton *switchButton;
    CustomImageButton *innerLoopButton;
    CustomImageButton *innerLoopQasButton;
    CustomImageButton *autoButton;
    CustomImageButton *acButton;
    CustomImageButton *heatButton;
    CustomImageButton *dualButton;
    CustomImageButton *fdcButton;
    MirrorButton *frontWindButton;
    MirrorButton *downWindButton;
    MirrorButton *upWindButton;
    CustomImageButton *frontDefrostButton;
    CustomImageButton *rearDefrostButton;
    CustomImageButton *leftPlusButton;
    QLabel *leftTempLabel;
    CustomImageButton *leftLessButton;
    CustomImageButton *rightPlusButton;
    QLabel *rightTempLabel;
    CustomImageButton *rightLessButton;
    SeatHeatingTipView *leftSeatTip;
    SeatHeatingTipView *rightSeatTip;
};

#endif // AIRDIALOG27_H
