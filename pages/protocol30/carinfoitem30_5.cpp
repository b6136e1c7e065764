#include "pages30.h"

namespace {

// Every setting of this page is 2E 83 02 sub value.
const int Body = 0x83;

} // namespace

QList<Row> CarInfoItem30_5::rowTable() const
{
    return QList<Row>()
        << Row::choice("Daytime running lights", {"OFF", "ON"}).at(52).adjustable().command(Body, 0x04)
        << Row::of(NumberKind, "Headlight sensitivity", {0, 4}).at(53).adjustable().command(Body, 0x06)
        << Row::choice("Set the car lighting off time", {"OFF", "7.5s", "15s", "30s"}).at(54).adjustable()
               .command(Body, 0x0C)
        << Row::choice("Automatic headlight off timer", {"OFF", "30s", "60s", "90s"}).at(55).adjustable()
               .command(Body, 0x07)
        << Row::choice("Autoo lock by speed", {"OFF", "ON"}).at(56).adjustable().command(Body, 0x00)
        << Row::choice("Auto lock by shift from P", {"OFF", "ON"}).at(57).adjustable().command(Body, 0x01)
        << Row::choice("Auto lock by shift to P", {"OFF", "ON"}).at(58).adjustable().command(Body, 0x02)
        << Row::choice("Remote 2 press lock", {"OFF", "ON"}).at(59).adjustable().command(Body, 0x03)
        << Row::of(NumberKind, "Lock unlock feedback tone", {0, 6}).at(60).adjustable().command(Body, 0x05)
        << Row::choice("Operate the key twice to unlock", {"OFF", "ON"}).at(61).adjustable().command(Body, 0x0D)
        << Row::choice("Driver seat door opening linkage  unlock", {"OFF", "ON"}).at(62).adjustable()
               .command(Body, 0x0E)
        << Row::choice("Smart car door unlock", {"OFF", "ON"}).at(63).adjustable().command(Body, 0x0F)
        << Row::choice("Smart lock and a key to start", {"OFF", "ON"}).at(64).adjustable().command(Body, 0x10)
        << Row::choice("Lock and unlock emergency flashing response light", {"OFF", "ON"}).at(65).adjustable()
               .command(Body, 0x11)
        << Row::choice("Electric rear door opening and gear adjustment",
                       {"1st gear", "2st gear", "3st gear", "4st gear", "5st gear"}).at(66).adjustable()
               .command(Body, 0x23)
        << Row::choice("Air conditioning and A UTO key linkage", {"OFF", "ON"}).at(67).adjustable()
               .command(Body, 0x12)
        << Row::choice("AUTO key and external air switching linkage", {"OFF", "ON"}).at(68).adjustable()
               .command(Body, 0x13)
        << Row::choice("Camera track", {"Show dynamic trajectory", "Show static trajectory", "Show warning line"})
               .at(69).adjustable().command(Body, 0x22)
        << Row::choice("Auto relock timer", {"OFF", "30S", "60S", "90S"}).at(70).adjustable().command(Body, 0x14);
}
