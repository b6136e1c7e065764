#include "family87.h"
#include "pages87.h"

using Family87::Code;
using Family87::codeOf;

namespace {

// The sub-command of each row that the car lets the user set.
const Code SubCommands[] = {{0, 0x1F}, {1, 0x20}, {5, 0x23}, {6, 0x21}, {7, 0x22}};

QByteArray settingFrame(int key, int value)
{
    const int sub = codeOf(SubCommands, key, -1);
    return sub < 0 ? QByteArray() : Family87::setting(sub, value);
}

Row onOff(int id, const char *title)
{
    return Row::choice(title, {"OFF", "ON"}).id(id).at(149 + id);
}

} // namespace

QList<Row> CarInfoItem87_8::rowTable() const
{
    return QList<Row>()
        << onOff(0, "Parallel auxiliary").adjustable().frame(settingFrame)
        << onOff(1, "Anti collision").adjustable().frame(settingFrame)
        << onOff(2, "Left superLine,left front horn beeps")
        << onOff(3, "Right super line,right front horn beeps")
        << onOff(4, "Anti collision,front horn sounds")
        << onOff(5, "Decoding end parallel anti collision sound").adjustable().frame(settingFrame)
        << onOff(6, "keyless entry system").adjustable().frame(settingFrame)
        << onOff(7, "Far and near lLight intelligent auxiliary system").adjustable().frame(settingFrame);
}
