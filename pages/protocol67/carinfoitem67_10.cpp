#include "carinfoitem67_10.h"

#include "family67.h"

namespace {

// Rows 0 to 7 show bytes 204 to 211 and go out as sub-commands 1 to 8;
// from row 8 on, byte 212 and sub-command 9 are skipped.
const int FirstByte = 204;
const int SkipAfter = 7;

int byteOf(int id) { return FirstByte + id + (id > SkipAfter ? 1 : 0); }
int subCommandOf(int id) { return id + 1 + (id > SkipAfter ? 1 : 0); }

// The theme colours as the car codes them: in threes up to "Travel", 0x09,
// and "Midnight City" as 0x0F; "Romance" (index 4), "Coffee" and any other
// index go out as 0x12.
int themeCode(int option)
{
    switch (option) {
    case 0: return 0x00;
    case 1: return 0x03;
    case 2: return 0x06;
    case 3: return 0x09;
    case 5: return 0x0F;
    default: return 0x12;
    }
}

// The car's theme code back to its option: the multiples of three from 0
// to 0x12; other codes show none.
int themeOption(int code)
{
    return code % 3 == 0 && code <= 0x12 ? code / 3 : -1;
}

// The brightness levels: 1 goes out as 2, 3 as 4, "null" and 4 as 5.
int brightnessCode(int option)
{
    switch (option) {
    case 1: return 2;
    case 2: return 2;
    case 3: return 4;
    default: return 5;
    }
}

// FD 06 83 sub value.
QByteArray setupFrame(int id, int value)
{
    return Family67::frame(0x83, {subCommandOf(id), value});
}

Row setting(const char *title, std::initializer_list<const char *> options)
{
    return Row::choice(title, options).adjustable().frame(setupFrame);
}

} // namespace

CarInfoItem67_10::CarInfoItem67_10(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

QList<Row> CarInfoItem67_10::rowTable() const
{
    QList<Row> rows = QList<Row>()
        << setting("blind spot monitor", {"null", "Open", "OFF"})
        << setting("Air conditioning system-automatic temperature adjustment and cycle control",
                   {"null", "Open", "OFF"})
        << setting("Seats-third row left seat back fold", {"null", "fold", "expand"})
        << setting("Seat-third row right seat back fold", {"null", "fold", "expand"})
        << setting("Steering wheel heater-automatic comfort control", {"null", "Open", "OFF"})
        << setting("Seat heated ventilation-automatic comfort control", {"null", "Open", "OFF"})
        << setting("Seat-seat position change tips", {"null", "Open", "OFF"})
        << setting("Rear camera-keep the rear camera on", {"null", "Open", "OFF"})
        << setting("Air conditioning system-air recirculation(activated after using glass water)",
                   {"null", "Open", "OFF"})
        << setting("Sound ambient light-ambient light", {"null", "theme color", "Monochrome lights"})
        << setting("Sound ambient light-theme color(On)",
                   {"null", "Party theme", "Hey! Yo!", "Travel", "Romance", "Midnight City", "Coffee"})
               .display(themeOption).sendAs(themeCode)
        << setting("Sound ambient light-monochromatic light(On)",
                   {"null", "Baltic Sea Blue", "Norwegian Forest Green", "Provence Violet", "Colorful Clouds",
                    "Vibrant Orange", "Desert Gold", "Refreshing Sea", "Barcelona Red"})
        << setting("Sound ambient light-music+", {"null", "Open", "OFF"})
        << setting("Sound ambient light-brightness",
                   {"null", "Brightness level 1", "Brightness level 2", "Brightness level 3", "Brightness level 4"})
               .sendAs(brightnessCode);
    for (int i = 0; i < rows.size(); ++i)
        rows[i].at(byteOf(i));
    return Family67::numbered(rows);
}
