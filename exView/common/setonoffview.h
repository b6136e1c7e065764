#ifndef SETONOFFVIEW_H
#define SETONOFFVIEW_H

#include "setitembase.h"

class OnOffButton;

// A settings line with a title and an on/off switch (objectName
// "onOffButton"). A tap or enter on the switch toggles it and reports the
// new state.
class SetOnOffView : public SetItemBase
{
    Q_OBJECT
public:
    explicit SetOnOffView(QString const &title, QWidget *parent = 0);

    bool isInFocus() const;
    // Sets the switch; reports a change by onoffChanged() when emitSignal
    // is true.
    void setOnOff(bool on, bool emitSignal);
    bool getOnOff() const;
    // The switch's pictures, in the order of OnOffButton::setImage(). Leaves
    // the switch off without a report.
    void setImage(QString const &on, QString const &onFocused, QString const &off,
                  QString const &offFocused);

public slots:
    void onBtClicked();

signals:
    void onoffChanged(bool on);

protected:
    void focusInEvent(QFocusEvent *event);

private:
    OnOffButton *m_button;
};

#endif // SETONOFFVIEW_H
