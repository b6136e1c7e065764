#ifndef DATEINFO_H
#define DATEINFO_H

#include <QList>
#include <QMetaType>
#include <QString>
#include <QtGlobal>

// One entry of the disc list that the CAN-bus module keeps for the disc
// player: its number on the disc and its name.
struct DateInfo
{
    DateInfo() : number(0) {}
    DateInfo(quint16 n, QString const &s) : number(n), name(s) {}

    quint16 number;
    QString name;
};

Q_DECLARE_METATYPE(DateInfo)

#endif // DATEINFO_H
