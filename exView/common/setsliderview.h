#ifndef SETSLIDERVIEW_H
#define SETSLIDERVIEW_H

#include "setitembase.h"

class QLabel;
class Slider;

// A settings line with a title, a picture slider (objectName "slider") and
// the value in digits beside it (objectName "valueLabel").
class SetSliderView : public SetItemBase
{
    Q_OBJECT
public:
    explicit SetSliderView(QString const &title, QWidget *parent = 0);

    bool isInFocus() const;
    // The groove, the handle and the focused handle (see Slider).
    void setImage(QString const &groove, QString const &handle, QString const &focusedHandle);
    void setRange(int lowest, int highest);
    // Sets the slider (reporting a change by valueChanged() when emitSignal
    // is true) and always writes the digits anew.
    void setValue(int value, bool emitSignal);
    int getValue() const;

public slots:
    void onValueChanged(int value);

signals:
    void valueChanged(int value);

protected:
    void focusInEvent(QFocusEvent *event);

private:
    Slider *m_slider;
    QLabel *m_valueLabel;
};

#endif // SETSLIDERVIEW_H
