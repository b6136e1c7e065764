#ifndef CANBUSMODULE_H
#define CANBUSMODULE_H

#include "appframework.h"

#include <QObject>

// The signal object of the framework's "canbus" module: dataChanged() after a
// buffer or record changed, and the climate commands that the climate panel
// connects its own signals to.
class CanbusSignals : public QObject
{
    Q_OBJECT
public:
    explicit CanbusSignals(QObject *parent = nullptr) : QObject(parent) {}

signals:
    void dataChanged();

    void setAuto();
    void setinnerLoop();
    void SetleftPlus();
    void SetleftLess();
    void SetrightPlus();
    void SetrightLess();
    void SetDUAL();
    void SetAc();
    void SetfrontDefrostLeftL();
    void SetrearDefrostLeftL();
    void Setsmall();
    void SetGale();
    void SetSwitch();
    void LeftHeatingButton(int heating);
    void RightHeatingButton(int heating);
    void BlowOn(bool left);
    void MediumBlow(bool left);
    void BlowDown(bool left);
};

class CanbusModule : public zorvappframework::Module
{
public:
    QObject *signalObject() override;
};

#endif // CANBUSMODULE_H
