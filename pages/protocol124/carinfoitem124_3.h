#ifndef CARINFOITEM124_3_H
#define CARINFOITEM124_3_H

#include "carinfoitem.h"

#include <QList>
#include <QString>

class CDButton;
class ListDialog;
class QLabel;
class SliderViewImte;
class ZorvRollingText;

// The remote control of the decoder box's disc player: three rolling lines
// of what plays, the position bar with the times beside it and the entry
// counter, twenty-one buttons, and the disc's list in a dialog. Which
// buttons work depends on the source the box reports (byte 36): the two
// disc sources enable their own buttons, the source buttons always work.
// The toggles send the command for the state after the change, read from
// the buffer at the moment of the tap; their texts follow the buffer.
class CarInfoItem124_3 : public CarInfoItem
{
    Q_OBJECT
public:
    CarInfoItem124_3(QString const &title, QWidget *parent);
    ~CarInfoItem124_3();

    void createView();
    void ondataChanged();
    // Closes the list dialog when it shows; false otherwise.
    bool doBackEvent();
    // Brings the widgets up to date with the buffer, touching only what
    // changed since the last call.
    void initlist();
    // 2E C7 02 code 00: one command of the disc player.
    void sendCDDate(unsigned char code);

public slots:
    void onClicke();
    void onSliderValueChanged(int value);
    void onBlackDialogDestoryed();

private:
    void buildView();
    void openListDialog();
    void refreshMode(int mode);

    bool m_built;
    QList<CDButton *> m_buttons;
    ZorvRollingText *m_lines[3];
    SliderViewImte *m_positionBar;
    QLabel *m_leftText;
    QLabel *m_rightText;
    QLabel *m_counter;
    ListDialog *m_listDialog;

    // What the widgets show, as last read from the buffer.
    int m_mode;
    int m_repeat;
    int m_random;
    int m_subtitle;
    int m_aspect;
    int m_position;
    int m_listCount;
    QString m_lineTexts[3];
    QString m_leftTextCache;
    QString m_rightTextCache;
    QString m_counterText;
};

#endif // CARINFOITEM124_3_H
