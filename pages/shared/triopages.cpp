#include "triopages.h"

#include "frames.h"

namespace {

// --- Display maps --------------------------------------------------------

// A voice state byte: 1 closed, 2 opened, 3 closing, 4 opening; any other
// byte, 0 included, means the car lacks the feature (the last option).
int stateIndex(int byte)
{
    return byte >= 1 && byte <= 4 ? byte - 1 : 4;
}

// The current window: 0 to 3 name a window, 16 all of them; any other byte
// shows the first window.
int windowIndex(int byte)
{
    if (byte >= 0 && byte <= 3)
        return byte;
    return byte == 16 ? 4 : 0;
}

// The window as the decoder box counts it: "All car windows" is 16.
int windowCode(int index)
{
    return index == 4 ? 16 : index;
}

// The vehicle's skylight: 1 to 3 name the options, and 0 shows as 1.
int skylightIndex(int byte)
{
    return byte == 0 ? 0 : byte - 1;
}

// --- Steps and frames -----------------------------------------------------

// The skylight row tells the car the direction of the step, not a value:
// 1 for the right arrow, 0 for the left.
int directionBit(DataBuffer const &, int, bool down)
{
    return down ? 0 : 1;
}

// 2E EF 03 7D 01 b ck.
QByteArray skylightFrame(int, int direction)
{
    return Frames::make2E(0xEF, {0x7D, 0x01, direction});
}

// FD 07 EF 7D 01 b ck ck.
QByteArray skylightFrameFD(int, int direction)
{
    return Frames::makeFD(0xEF, {0x7D, 0x01, direction}, 2);
}

// 2E EF 04 7D 02 w 0B: the length says four payload bytes, but the frame
// ends with 0x0B where the checksum slot is, seven bytes in all.
QByteArray windowFrame(int, int window)
{
    return Frames::exact({0x2E, 0xEF, 0x04, 0x7D, 0x02, window, 0x0B});
}

// FD 07 EF 7D 02 w 0B and one byte: 0x0B in the first checksum slot.
QByteArray windowFrameFD(int, int window)
{
    return Frames::exact({0xFD, 0x07, 0xEF, 0x7D, 0x02, window, 0x0B, 0x00});
}

// The skeletons of the two read-only pages: header, command and length, the
// payload left at zero. Under the 0xFD header the 0x2E order stays.
QByteArray functionSkeleton(int, int)
{
    return Frames::make2E(0xA0, {0x00, 0x00});
}

QByteArray functionSkeletonFD(int, int)
{
    return Frames::exact({0xFD, 0xA0, 0x02, 0x00, 0x00, 0x00});
}

QByteArray vehicleSkeleton(int, int)
{
    return Frames::make2E(0xE2, {0x00, 0x00});
}

QByteArray vehicleSkeletonFD(int, int)
{
    return Frames::exact({0xFD, 0xE2, 0x02, 0x00, 0x00, 0x00});
}

// --- Rows -----------------------------------------------------------------

// Gives each row its id by the member's rule. firstSkipped is the first row
// whose id is its index plus one, or -1.
QList<Row> numbered(QList<Row> rows, TrioRowIds ids, int firstSkipped = -1)
{
    if (ids == TrioNoIds)
        return rows;
    for (int i = 0; i < rows.size(); ++i)
        rows[i].id(ids == TrioIdsSkip34 && firstSkipped >= 0 && i >= firstSkipped ? i + 1 : i);
    return rows;
}

Row state(const char *title)
{
    return Row::choice(title, {"Closed", "Already opened", "Closing", "opening", "This feature is not supported"})
        .display(stateIndex);
}

Row seatChoice(const char *title)
{
    return Row::choice(title, {"Driving position", "Co-pilot"});
}

const char *const functionTitles[Trio::FunctionRows] = {
    "The width light", "Low beam lights", "High beam", "Left turn signal", "Right turn signal",
    "Front fog lights", "Rear fog lamps", "Wiper", "Instantaneous speed", "Average speed", "total mileage",
    "recharge mleage", "Mileage-A", "Mileage-B", "Door information", "Gear status", "Brake state",
    "Copilot seat belt", "Handbrake status", "Driving seat belt", "ACC status", "Reverse gear", "light",
    "Instantaneous fuel consumption", "Average fuel onsumption", "Corner function",
    "Water temperature information", "Ambient temperature", "Engine oil temperature", "Engine speed",
    "Control module voltage", "Motor speed information", "Tire speed information", "Car window-front left",
    "Car window-right front", "Car window-rear left", "Car window-rear right"};

// The wiper's options: "Don't scratch" and the member's levels.
QList<QVariant> wiperOptions(int levels)
{
    static const char *const texts[] = {"Don't scratch", "Level 1", "Level 2", "Level 3", "Level 4",
                                        "Level 5", "Level 6", "Level 7"};
    const int count = int(sizeof texts / sizeof texts[0]);
    QList<QVariant> options;
    for (int i = 0; i <= levels && i < count; ++i)
        options.append(QString::fromUtf8(texts[i]));
    return options;
}

Row lamp(const char *title)
{
    return Row::choice(title, {"OFF", "ON"});
}

Row lock(const char *title)
{
    return Row::choice(title, {"Lock up", "Unlock"});
}

Row pulses(const char *title)
{
    // The range stands as the pages have always shown it, though a 16-bit
    // count never reaches its top.
    return Row::of(NumberKind, title, {0, 71535});
}

Row opening(const char *title)
{
    return Row::of(PercentKind, title, {0, 100});
}

// The row of the vehicle list from which ids skip 34.
const int FirstRowAfterSkippedId = 34;

} // namespace

TrioPage::TrioPage(QString const &title, QWidget *parent, int protocol)
    : RowPage(title, parent)
    , m_protocol(protocol)
{
}

int TrioPage::bufferId() const
{
    return m_protocol;
}

TrioMember const *TrioPage::member() const
{
    return Trio::member(m_protocol);
}

VoiceFeedbackPage::VoiceFeedbackPage(QString const &title, QWidget *parent, int protocol)
    : TrioPage(title, parent, protocol)
{
}

QList<Row> VoiceFeedbackPage::rowTable() const
{
    TrioMember const *m = member();
    if (!m)
        return QList<Row>();
    const int at = m->voiceOffset;
    const bool fd = m->frames == TrioFramesFD;
    const QList<Row> rows = QList<Row>()
        << state("Skylight").at(at + 0).stepWith(directionBit).frame(fd ? skylightFrameFD : skylightFrame)
        << Row::choice("Current car window",
                       {"Front right", "Back right", "Front left", "Back left", "All car windows"})
               .at(at + 1).display(windowIndex).sendAs(windowCode).frame(fd ? windowFrameFD : windowFrame)
        << state("Current window status").at(at + 2)
        << state("Sunroof sun visor").at(at + 3)
        << state("Skylight tilt").at(at + 4)
        << state("Trunk").at(at + 5)
        << seatChoice("Air conditioning temperature").at(at + 6)
        << seatChoice("Air conditioning seat heating").at(at + 7);
    return numbered(rows, m->rowIds);
}

FunctionRecognitionPage::FunctionRecognitionPage(QString const &title, QWidget *parent, int protocol)
    : TrioPage(title, parent, protocol)
{
    TrioMember const *m = member();
    setShowsStepAtOnce(m && m->functionStep == TrioFunctionShowsStep);
}

QList<Row> FunctionRecognitionPage::rowTable() const
{
    TrioMember const *m = member();
    if (!m)
        return QList<Row>();
    const Row::FrameRule skeleton = m->frames == TrioFramesFD ? functionSkeletonFD : functionSkeleton;
    QList<Row> rows;
    for (int r = 0; r < m->functionRows && r < Trio::FunctionRows; ++r)
        rows << lamp(functionTitles[r]).at(m->functionOffset + r).frame(skeleton);
    return numbered(rows, m->rowIds);
}

VehicleInformationPage::VehicleInformationPage(QString const &title, QWidget *parent, int protocol)
    : TrioPage(title, parent, protocol)
{
}

QList<Row> VehicleInformationPage::rowTable() const
{
    TrioMember const *m = member();
    if (!m)
        return QList<Row>();
    // Offsets below are those of the common layout, moved to the member's.
    const int d = m->vehicleOffset - Trio::CommonVehicleOffset;
    QList<Row> all = QList<Row>()
        << Row::text("total mileage").textAt(d + 4)
        << Row::text("recharge mileage").textAt(d + 8)
        << Row::text("Mileage A").textAt(d + 12)
        << Row::text("Mileage B").textAt(d + 16)
        << lamp("Width indicator").at(d + 20)
        << lamp("Low beam lights").at(d + 21)
        << lamp("High beam").at(d + 22)
        << lamp("Front fog lights").at(d + 23)
        << lamp("Rear fog lamps").at(d + 24)
        << lamp("Left turn signal").at(d + 25)
        << lamp("Right turn signal").at(d + 26)
        << Row::of(ChoiceKind, "Wiper speed level", wiperOptions(m->wiperLevels)).at(d + 27)
        << Row::text("Instantaneous speed").textAt(d + 28)
        << Row::text("avarage speed").textAt(d + 32)
        << Row::text("Water temperature information").textAt(d + 36)
        << Row::text("Ambient temperature").textAt(d + 40)
        << Row::text("Engine oil temperature").textAt(d + 44)
        << Row::text("Rotating speed").textAt(d + 48)
        << Row::text("Voltage").textAt(d + 52)
        << pulses("Number of pulses per tire lap").wordAt(d + 56)
        << pulses("Left front pulse number").wordAt(d + 58)
        << pulses("Right front pulse number").wordAt(d + 60)
        << pulses("Left rear pulse number").wordAt(d + 62)
        << pulses("Right rear pulse number").wordAt(d + 64)
        << Row::text("Motor speed information").textAt(d + 68)
        << Row::text("Front left tire speed").textAt(d + 72)
        << Row::text("Right front tire speed").textAt(d + 76)
        << Row::choice("Skylight", {"Full open", "All off", "Half open"}).at(d + 80).display(skylightIndex)
        << lock("Front left door lock state").at(d + 81)
        << lock("Front right door lock state").at(d + 82)
        << lock("Rear left door locked state").at(d + 83)
        << lock("Rear right door locked state").at(d + 84)
        << Row::text("Instant fuel consumption").textAt(d + 88)
        << Row::text("Average fuel consumption").textAt(d + 92)
        << Row::text("Frame Number Information").textAt(d + 96)
        << opening("Opening and closing of left front window").at(d + 100)
        << opening("Opening and closing of right front window").at(d + 101)
        << opening("Opening and closing of left rear window").at(d + 102)
        << opening("Opening and closing of right rear window").at(d + 103)
        << opening("Skylight opening and closing").at(d + 104);

    QList<Row> rows = all.mid(0, m->vehicleRows);
    // A last row that no field of the buffer fills: an empty text.
    if (m->vehicleSettingsRow)
        rows << Row::text("Vehicle settings");
    if (m->vehicleSends) {
        const Row::FrameRule skeleton = m->frames == TrioFramesFD ? vehicleSkeletonFD : vehicleSkeleton;
        for (int i = 0; i < rows.size(); ++i)
            rows[i].frame(skeleton);
    }
    return numbered(rows, m->rowIds, FirstRowAfterSkippedId);
}
