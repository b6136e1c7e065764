// Draws the artwork that the plug-in loads from its resource tree, so that
// every widget has a picture of a sensible size on a desktop run.
//
//   artwork OUTPUT_ROOT   writes every picture under OUTPUT_ROOT
//   artwork --list        prints the path of every picture, relative to the
//                         root, one a line, sorted
//
// The overlays' pictures go to OUTPUT_ROOT/style4/ and are named without an
// extension; those of the extended view and the page toolkit go to
// OUTPUT_ROOT/exStyle4/ with ".png". All files are PNG.
//
// The geometry the sizes follow: a 1024x600 screen with a 60 px system bar,
// so a 1024x540 main area, and under the 70 px base bar of a full screen a
// 1024x470 content area; page rows are 81 px high.

#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace {

// How a picture is drawn.
enum class Style {
    Button,      // rounded button face with a glyph or a label
    RoundButton, // round button face with a glyph
    Icon,        // a glyph alone on a clear ground
    Backdrop,    // a flat rounded plate that texts or pictures lie on
    Level,       // the fan level bar; the variant number is the level
    Dial,        // a round gauge face, its value is written over it
    CarBody,     // the car seen from above
    CarPart,     // one door, the hood or the trunk, to lie over the car body
    Switch,      // an on/off switch: Down is on; a white ring when focused
    Groove,      // the groove of a slider
    Handle,      // the handle of a slider; lit and ringed when focused
};

// The state a picture stands for. Down is the pressed, lit or open state.
enum class Look { Normal, Down, Disabled };

// What a button or an icon shows.
enum class Glyph {
    None, Label,
    Plus, Minus, Back, Power, Recirculate, FanSmall, FanLarge,
    AirUpper, AirMiddle, AirLower, DefrostFront, DefrostRear,
    Seat, SeatAirLower, SeatAirUpper, SeatAirBoth, SeatHeat, SeatCool, Dot,
    SeatBelt, AutoParking, Condensate,
    Hood, Trunk, FrontLeftDoor, FrontRightDoor, RearLeftDoor, RearRightDoor, Tyres,
    RoadCar, Mileage, Fuel, Delete, ArrowLeft, ArrowRight,
};

// The colour of each family of pictures.
constexpr QRgb Climate = qRgb(47, 155, 255);
constexpr QRgb Airflow = qRgb(38, 198, 184);
constexpr QRgb Warm = qRgb(255, 138, 61);
constexpr QRgb Cool = qRgb(79, 179, 255);
constexpr QRgb Neutral = qRgb(124, 138, 160);
constexpr QRgb Warning = qRgb(255, 84, 84);
constexpr QRgb Body = qRgb(170, 182, 198);
constexpr QRgb Tyre = qRgb(91, 209, 110);
constexpr QRgb Gauge = qRgb(51, 151, 254);
constexpr QRgb Rows = qRgb(0, 188, 212);
constexpr QRgb Keypad = qRgb(150, 132, 220);
constexpr QRgb Settings = qRgb(47, 120, 255);

struct Picture {
    const char *path;  // relative to the output root; "%1" is the variant
    int width;
    int height;
    Style style;
    Look look;
    Glyph glyph;
    QRgb accent;
    const char *label = "";
    int variants = 1;  // "%1" runs from 0 to variants - 1
    bool focused = false;
};

// Short names of the looks, to keep the table narrow.
constexpr Look N = Look::Normal;
constexpr Look D = Look::Down;
constexpr Look X = Look::Disabled;

// Every picture, grouped by the widget that shows it.
const Picture pictures[] = {
    // Climate panel, top row: switch, inner loop, auto, A/C, heat, dual, FDC.
    {"style4/airswitch_n", 80, 56, Style::Button, N, Glyph::Power, Climate},
    {"style4/airswitch_d", 80, 56, Style::Button, D, Glyph::Power, Climate},
    {"style4/innerloop", 80, 56, Style::Button, N, Glyph::Recirculate, Climate},
    {"style4/innerloop_d", 80, 56, Style::Button, D, Glyph::Recirculate, Climate},
    {"style4/auto", 80, 56, Style::Button, N, Glyph::Label, Climate, "AUTO"},
    {"style4/auto_d", 80, 56, Style::Button, D, Glyph::Label, Climate, "AUTO"},
    {"style4/ac", 80, 56, Style::Button, N, Glyph::Label, Climate, "A/C"},
    {"style4/ac_d", 80, 56, Style::Button, D, Glyph::Label, Climate, "A/C"},
    {"style4/heat_n", 80, 56, Style::Button, N, Glyph::Label, Warm, "HEAT"},
    {"style4/heat_d", 80, 56, Style::Button, D, Glyph::Label, Warm, "HEAT"},
    {"style4/dual", 80, 56, Style::Button, N, Glyph::Label, Climate, "DUAL"},
    {"style4/dual_tip", 80, 56, Style::Button, D, Glyph::Label, Climate, "DUAL"},
    {"style4/fdc", 80, 56, Style::Button, N, Glyph::Label, Climate, "FDC"},
    {"style4/fdc_d", 80, 56, Style::Button, D, Glyph::Label, Climate, "FDC"},

    // Climate panel, air row: where the air goes, and the two defrosters.
    {"style4/up_wind", 96, 56, Style::Button, N, Glyph::AirUpper, Airflow},
    {"style4/up_wind_d", 96, 56, Style::Button, D, Glyph::AirUpper, Airflow},
    {"style4/front_wind", 96, 56, Style::Button, N, Glyph::AirMiddle, Airflow},
    {"style4/front_wind_d", 96, 56, Style::Button, D, Glyph::AirMiddle, Airflow},
    {"style4/katabatic_wind", 96, 56, Style::Button, N, Glyph::AirLower, Airflow},
    {"style4/katabatic_wind_d", 96, 56, Style::Button, D, Glyph::AirLower, Airflow},
    {"style4/front_defrost", 96, 56, Style::Button, N, Glyph::DefrostFront, Warm},
    {"style4/front_defrost_d", 96, 56, Style::Button, D, Glyph::DefrostFront, Warm},
    {"style4/rear_defrost", 96, 56, Style::Button, N, Glyph::DefrostRear, Warm},
    {"style4/rear_defrost_d", 96, 56, Style::Button, D, Glyph::DefrostRear, Warm},

    // Climate panel, temperature columns: warmer and cooler.
    {"style4/plus_n", 72, 72, Style::RoundButton, N, Glyph::Plus, Warm},
    {"style4/plus_d", 72, 72, Style::RoundButton, D, Glyph::Plus, Warm},
    {"style4/less_n", 72, 72, Style::RoundButton, N, Glyph::Minus, Cool},
    {"style4/less_d", 72, 72, Style::RoundButton, D, Glyph::Minus, Cool},

    // Title bar of the climate panel: the back button, as high as the bar.
    {"style4/ctrl_back_n", 60, 60, Style::RoundButton, N, Glyph::Back, Neutral},
    {"style4/ctrl_back_d", 60, 60, Style::RoundButton, D, Glyph::Back, Neutral},

    // Fan level bar: one bar per level, and the 80x80 slower and faster keys.
    {"style4/wind_%1", 360, 44, Style::Level, N, Glyph::None, Airflow, "", 8},
    {"style4/small_wind_icon", 80, 80, Style::RoundButton, N, Glyph::FanSmall, Airflow},
    {"style4/gale_icon", 80, 80, Style::RoundButton, N, Glyph::FanLarge, Airflow},

    // Seat picture of the climate panel: no air, air to the feet, to the
    // upper body, to both.
    {"style4/seat", 220, 220, Style::Icon, N, Glyph::Seat, Airflow},
    {"style4/seat_1", 220, 220, Style::Icon, N, Glyph::SeatAirLower, Airflow},
    {"style4/seat_2", 220, 220, Style::Icon, N, Glyph::SeatAirUpper, Airflow},
    {"style4/seat_3", 220, 220, Style::Icon, N, Glyph::SeatAirBoth, Airflow},

    // Climate tip: the plate its two pictures lie on.
    {"style4/tip_bg", 320, 160, Style::Backdrop, N, Glyph::None, Climate},

    // Door overlay: the plate, and the body warnings, large for one or two
    // warnings and small ("_m") for three or four.
    {"style4/cardoor_bg", 800, 440, Style::Backdrop, N, Glyph::None, Warning},
    {"style4/seat_belt", 180, 180, Style::Icon, N, Glyph::SeatBelt, Warning},
    {"style4/seat_belt_m", 110, 110, Style::Icon, N, Glyph::SeatBelt, Warning},
    {"style4/automatic_parking", 180, 180, Style::Icon, N, Glyph::AutoParking, Warning},
    {"style4/automatic_parking_m", 110, 110, Style::Icon, N, Glyph::AutoParking, Warning},
    {"style4/condensate", 180, 180, Style::Icon, N, Glyph::Condensate, Warning},
    {"style4/condensate_m", 110, 110, Style::Icon, N, Glyph::Condensate, Warning},

    // Door overlay, the car from above: the body, and over it the hood, the
    // trunk and the four doors, closed ("_n") and open ("_d"). Each part
    // keeps the corner of the car it is aligned to.
    {"style4/car/car", 180, 300, Style::CarBody, N, Glyph::None, Body},
    {"style4/car/f_n", 120, 110, Style::CarPart, N, Glyph::Hood, Warning},
    {"style4/car/f_d", 120, 110, Style::CarPart, D, Glyph::Hood, Warning},
    {"style4/car/r_n", 120, 80, Style::CarPart, N, Glyph::Trunk, Warning},
    {"style4/car/r_d", 120, 80, Style::CarPart, D, Glyph::Trunk, Warning},
    {"style4/car/lf_n", 90, 150, Style::CarPart, N, Glyph::FrontLeftDoor, Warning},
    {"style4/car/lf_d", 90, 150, Style::CarPart, D, Glyph::FrontLeftDoor, Warning},
    {"style4/car/rf_n", 90, 150, Style::CarPart, N, Glyph::FrontRightDoor, Warning},
    {"style4/car/rf_d", 90, 150, Style::CarPart, D, Glyph::FrontRightDoor, Warning},
    {"style4/car/lr_n", 90, 150, Style::CarPart, N, Glyph::RearLeftDoor, Warning},
    {"style4/car/lr_d", 90, 150, Style::CarPart, D, Glyph::RearLeftDoor, Warning},
    {"style4/car/rr_n", 90, 150, Style::CarPart, N, Glyph::RearRightDoor, Warning},
    {"style4/car/rr_d", 90, 150, Style::CarPart, D, Glyph::RearRightDoor, Warning},

    // Seat heating tile: the seat heated or cooled, and its three level dots.
    {"style4/seat_heat", 64, 64, Style::Icon, N, Glyph::SeatHeat, Warm},
    {"style4/seat_cool", 64, 64, Style::Icon, N, Glyph::SeatCool, Cool},
    {"style4/value_item_on", 22, 22, Style::Icon, D, Glyph::Dot, Warm},
    {"style4/value_item_off", 22, 22, Style::Icon, N, Glyph::Dot, Neutral},

    // Tyre panel: the tyre picture on its plate, and the reset button, whose
    // text the panel writes.
    {"exStyle4/tire_by.png", 320, 290, Style::Backdrop, N, Glyph::None, Tyre},
    {"exStyle4/tire.png", 180, 260, Style::CarBody, N, Glyph::Tyres, Tyre},
    {"exStyle4/reset_n.png", 200, 60, Style::Button, N, Glyph::None, Tyre},
    {"exStyle4/reset_d.png", 200, 60, Style::Button, D, Glyph::None, Tyre},

    // Dashboard: the plates of temperature and voltage, the speed and engine
    // speed dials, the road picture, the distance and fuel symbols.
    {"exStyle4/toptitle.png", 180, 56, Style::Backdrop, N, Glyph::None, Gauge},
    {"exStyle4/toptitle_dis.png", 180, 56, Style::Backdrop, X, Glyph::None, Gauge},
    {"exStyle4/round.png", 280, 280, Style::Dial, N, Glyph::None, Gauge},
    {"exStyle4/round_dis.png", 280, 280, Style::Dial, X, Glyph::None, Gauge},
    {"exStyle4/road_car.png", 420, 200, Style::Icon, N, Glyph::RoadCar, Gauge},
    {"exStyle4/mileage.png", 48, 48, Style::Icon, N, Glyph::Mileage, Gauge},
    {"exStyle4/mileage_dis.png", 48, 48, Style::Icon, X, Glyph::Mileage, Gauge},
    {"exStyle4/remainL.png", 48, 48, Style::Icon, N, Glyph::Fuel, Gauge},
    {"exStyle4/remainL_dis.png", 48, 48, Style::Icon, X, Glyph::Fuel, Gauge},

    // Page rows and the option editor: the arrows, square within the 81 px
    // row, and the plates of the value and of the title.
    {"exStyle4/last.png", 60, 60, Style::RoundButton, N, Glyph::ArrowLeft, Rows},
    {"exStyle4/last_d.png", 60, 60, Style::RoundButton, D, Glyph::ArrowLeft, Rows},
    {"exStyle4/next.png", 60, 60, Style::RoundButton, N, Glyph::ArrowRight, Rows},
    {"exStyle4/next_d.png", 60, 60, Style::RoundButton, D, Glyph::ArrowRight, Rows},
    {"exStyle4/data_by.png", 300, 56, Style::Backdrop, N, Glyph::None, Rows},
    {"exStyle4/title_by.png", 260, 56, Style::Backdrop, N, Glyph::None, Rows},

    // Key pages (panel keys, OnStar): the keys, whose text the page writes,
    // the number field and the delete key.
    {"exStyle4/set_n.png", 100, 64, Style::Button, N, Glyph::None, Keypad},
    {"exStyle4/set_d.png", 100, 64, Style::Button, D, Glyph::None, Keypad},
    {"exStyle4/page_password.png", 320, 56, Style::Backdrop, N, Glyph::None, Keypad},
    {"exStyle4/del_n.png", 72, 56, Style::Button, N, Glyph::Delete, Keypad},
    {"exStyle4/del_d.png", 72, 56, Style::Button, D, Glyph::Delete, Keypad},

    // Key-driven settings lines: the on/off switch, on and off, with and
    // without focus; the slider's groove and its handle, with and without
    // focus.
    {"exStyle4/switch_on.png", 96, 44, Style::Switch, D, Glyph::None, Settings},
    {"exStyle4/switch_on_focus.png", 96, 44, Style::Switch, D, Glyph::None, Settings, "", 1, true},
    {"exStyle4/switch_off.png", 96, 44, Style::Switch, N, Glyph::None, Settings},
    {"exStyle4/switch_off_focus.png", 96, 44, Style::Switch, N, Glyph::None, Settings, "", 1, true},
    {"exStyle4/slider_groove.png", 300, 36, Style::Groove, N, Glyph::None, Settings},
    {"exStyle4/slider_handle.png", 36, 36, Style::Handle, N, Glyph::None, Settings},
    {"exStyle4/slider_handle_focus.png", 36, 36, Style::Handle, N, Glyph::None, Settings, "", 1, true},
};

// One file to write: a picture and, for numbered pictures, its number.
struct Output {
    QString path;
    Picture const *picture;
    int variant;
};

std::vector<Output> outputs()
{
    std::vector<Output> result;
    for (Picture const &picture : pictures) {
        const QString path = QString::fromLatin1(picture.path);
        for (int variant = 0; variant < picture.variants; ++variant) {
            const QString name = picture.variants > 1 ? path.arg(variant) : path;
            result.push_back({name, &picture, variant});
        }
    }
    std::sort(result.begin(), result.end(),
              [](Output const &a, Output const &b) { return a.path < b.path; });
    return result;
}

// ---------------------------------------------------------------------------
// Colours

// The colours a picture is drawn with, from its accent and its state.
struct Ink {
    QColor faceTop;
    QColor faceBottom;
    QColor border;
    QColor content;  // glyphs and labels
    bool lit;
};

QColor mix(QColor const &a, QColor const &b, double share)
{
    return QColor::fromRgbF(a.redF() + (b.redF() - a.redF()) * share,
                            a.greenF() + (b.greenF() - a.greenF()) * share,
                            a.blueF() + (b.blueF() - a.blueF()) * share,
                            a.alphaF() + (b.alphaF() - a.alphaF()) * share);
}

Ink inkFor(Look look, QRgb accentRgb)
{
    const QColor accent(accentRgb);
    const QColor white(245, 248, 252);
    switch (look) {
    case Look::Down:
        return {accent.lighter(125), accent.darker(150), accent.lighter(160), white, true};
    case Look::Disabled:
        return {QColor(52, 54, 58), QColor(36, 38, 41), QColor(86, 88, 92), QColor(112, 114, 118),
                false};
    case Look::Normal:
        break;
    }
    return {QColor(54, 60, 72), QColor(28, 32, 40), mix(accent, QColor(28, 32, 40), 0.35),
            mix(accent, white, 0.45), false};
}

// ---------------------------------------------------------------------------
// Glyphs, drawn in a square of 100 x 100 units

QPen strokePen(QColor const &colour, double width)
{
    return QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// Maps the largest centred square of `box` to 0..100 in both directions.
void enterUnitSquare(QPainter &p, QRectF const &box)
{
    const double side = std::min(box.width(), box.height());
    p.translate(box.center().x() - side / 2, box.center().y() - side / 2);
    p.scale(side / 100.0, side / 100.0);
}

void drawArrow(QPainter &p, QPointF from, QPointF to, QColor const &colour, double width)
{
    const QLineF line(from, to);
    const QLineF unit = line.unitVector();
    const QPointF along(unit.dx() * width * 2.2, unit.dy() * width * 2.2);
    const QPointF across(-along.y() * 0.6, along.x() * 0.6);
    p.setPen(strokePen(colour, width));
    p.drawLine(from, to - along * 0.5);
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawPolygon(QPolygonF({to, to - along + across, to - along - across}));
}

// A rising wavy line, the mark of warm air.
void drawWave(QPainter &p, double x, double bottom, double top, QColor const &colour, double width)
{
    QPainterPath path(QPointF(x, bottom));
    const double step = (bottom - top) / 4;
    for (int i = 0; i < 4; ++i) {
        const double y = bottom - step * i;
        const double side = i % 2 == 0 ? 1 : -1;
        path.cubicTo(x + 6 * side, y - step / 3, x + 6 * side, y - step * 2 / 3, x, y - step);
    }
    p.setBrush(Qt::NoBrush);
    p.setPen(strokePen(colour, width));
    p.drawPath(path);
}

// The seat seen from the side, facing left, filling the unit square.
void drawSeatShape(QPainter &p, QColor const &colour)
{
    p.setPen(strokePen(colour, 5));
    p.setBrush(colour);
    p.drawRoundedRect(QRectF(62, 8, 20, 15), 6, 6);
    p.drawPolygon(QPolygonF({QPointF(58, 29), QPointF(80, 27), QPointF(73, 70), QPointF(52, 70)}));
    p.drawPolygon(QPolygonF({QPointF(22, 66), QPointF(72, 66), QPointF(72, 80), QPointF(26, 80)}));
    p.drawRect(QRectF(44, 80, 8, 10));
}

enum AirFlow { AirToHead = 1, AirToChest = 2, AirToFeet = 4 };

void drawSeatWithAir(QPainter &p, int flows, QColor const &seat, QColor const &air)
{
    drawSeatShape(p, seat);
    if (flows & AirToHead)
        drawArrow(p, QPointF(6, 44), QPointF(46, 18), air, 8);
    if (flows & AirToChest)
        drawArrow(p, QPointF(2, 46), QPointF(46, 46), air, 8);
    if (flows & AirToFeet)
        drawArrow(p, QPointF(4, 54), QPointF(18, 94), air, 8);
}

// A six-armed star of ice, the mark of cooled air.
void drawSnowflake(QPainter &p, QPointF centre, double radius, QColor const &colour)
{
    p.save();
    p.translate(centre);
    p.setPen(strokePen(colour, 5));
    for (int arm = 0; arm < 6; ++arm) {
        p.drawLine(QPointF(0, 0), QPointF(0, -radius));
        p.drawLine(QPointF(0, -radius * 0.6), QPointF(radius * 0.3, -radius * 0.85));
        p.drawLine(QPointF(0, -radius * 0.6), QPointF(-radius * 0.3, -radius * 0.85));
        p.rotate(60);
    }
    p.restore();
}

void drawFan(QPainter &p, double scale, QColor const &colour)
{
    p.translate(50, 50);
    p.scale(scale, scale);
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    for (int blade = 0; blade < 3; ++blade) {
        p.drawEllipse(QRectF(-11, -44, 22, 40));
        p.rotate(120);
    }
    p.drawEllipse(QPointF(0, 0), 9, 9);
}

void drawLoop(QPainter &p, QColor const &colour)
{
    p.setBrush(Qt::NoBrush);
    p.setPen(strokePen(colour, 8));
    p.drawArc(QRectF(22, 22, 56, 56), 90 * 16, 270 * 16);
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawPolygon(QPolygonF({QPointF(66, 54), QPointF(90, 54), QPointF(78, 36)}));
}

void drawPower(QPainter &p, QColor const &colour)
{
    p.setBrush(Qt::NoBrush);
    p.setPen(strokePen(colour, 8));
    p.drawArc(QRectF(22, 26, 56, 56), 125 * 16, 290 * 16);
    p.drawLine(QPointF(50, 16), QPointF(50, 50));
}

void drawDefrost(QPainter &p, bool front, QColor const &colour)
{
    p.setBrush(Qt::NoBrush);
    p.setPen(strokePen(colour, 6));
    if (front) {
        QPainterPath screen(QPointF(10, 80));
        screen.lineTo(90, 80);
        screen.lineTo(80, 22);
        screen.quadTo(50, 12, 20, 22);
        screen.closeSubpath();
        p.drawPath(screen);
    } else {
        p.drawRoundedRect(QRectF(12, 20, 76, 60), 8, 8);
    }
    for (double x : {34.0, 50.0, 66.0})
        drawWave(p, x, 70, 34, colour, 5);
}

void drawSeatBelt(QPainter &p, QColor const &colour)
{
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawEllipse(QPointF(50, 20), 12, 12);
    p.drawRoundedRect(QRectF(24, 36, 52, 60), 18, 18);
    p.setCompositionMode(QPainter::CompositionMode_Clear);
    p.setPen(strokePen(Qt::transparent, 14));
    p.drawLine(QPointF(32, 38), QPointF(68, 92));
    p.setCompositionMode(QPainter::CompositionMode_SourceOver);
    p.setPen(strokePen(colour, 6));
    p.drawLine(QPointF(32, 38), QPointF(68, 92));
    p.setPen(Qt::NoPen);
    p.drawRoundedRect(QRectF(58, 74, 16, 12), 3, 3);
}

void drawLetter(QPainter &p, QRectF const &box, QString const &text, double size)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setBold(true);
    font.setPixelSize(int(size));
    p.setFont(font);
    p.drawText(box, Qt::AlignCenter, text);
}

void drawAutoParking(QPainter &p, QColor const &colour)
{
    p.setBrush(Qt::NoBrush);
    p.setPen(strokePen(colour, 6));
    p.drawEllipse(QPointF(50, 50), 30, 30);
    p.drawArc(QRectF(6, 12, 88, 76), 140 * 16, 80 * 16);
    p.drawArc(QRectF(6, 12, 88, 76), -40 * 16, 80 * 16);
    p.setPen(colour);
    drawLetter(p, QRectF(20, 20, 60, 60), QStringLiteral("P"), 40);
    drawLetter(p, QRectF(70, 72, 28, 28), QStringLiteral("A"), 20);
}

void drawCondensate(QPainter &p, QColor const &colour)
{
    QPainterPath drop(QPointF(50, 8));
    drop.quadTo(78, 42, 78, 62);
    drop.arcTo(QRectF(22, 34, 56, 56), 0, -180);
    drop.quadTo(22, 42, 50, 8);
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawPath(drop);
    p.setCompositionMode(QPainter::CompositionMode_Clear);
    p.setBrush(Qt::NoBrush);
    p.setPen(strokePen(Qt::transparent, 5));
    p.drawArc(QRectF(32, 46, 34, 34), 190 * 16, 70 * 16);
    p.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void drawRoad(QPainter &p, QColor const &colour)
{
    p.setPen(strokePen(colour, 7));
    p.drawLine(QPointF(16, 92), QPointF(40, 10));
    p.drawLine(QPointF(84, 92), QPointF(60, 10));
    QPen dashes = strokePen(colour, 5);
    dashes.setDashPattern({2.0, 2.4});
    dashes.setCapStyle(Qt::FlatCap);
    p.setPen(dashes);
    p.drawLine(QPointF(50, 90), QPointF(50, 12));
}

void drawFuelPump(QPainter &p, QColor const &colour)
{
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawRoundedRect(QRectF(18, 14, 44, 74), 6, 6);
    p.drawRect(QRectF(12, 84, 56, 8));
    p.setCompositionMode(QPainter::CompositionMode_Clear);
    p.drawRect(QRectF(26, 22, 28, 20));
    p.setCompositionMode(QPainter::CompositionMode_SourceOver);
    p.setBrush(Qt::NoBrush);
    p.setPen(strokePen(colour, 6));
    p.drawPolyline(QPolygonF({QPointF(62, 34), QPointF(76, 42), QPointF(76, 74), QPointF(86, 74),
                              QPointF(86, 30), QPointF(78, 20)}));
}

void drawDelete(QPainter &p, QColor const &colour)
{
    p.setBrush(Qt::NoBrush);
    p.setPen(strokePen(colour, 6));
    p.drawPolygon(QPolygonF({QPointF(10, 50), QPointF(32, 24), QPointF(90, 24), QPointF(90, 76),
                             QPointF(32, 76)}));
    p.drawLine(QPointF(48, 38), QPointF(72, 62));
    p.drawLine(QPointF(72, 38), QPointF(48, 62));
}

void drawTriangle(QPainter &p, bool left, QColor const &colour)
{
    p.setPen(strokePen(colour, 4));
    p.setBrush(colour);
    const double tip = left ? 24 : 76;
    const double base = left ? 66 : 34;
    p.drawPolygon(QPolygonF({QPointF(tip, 50), QPointF(base, 22), QPointF(base, 78)}));
}

void drawDot(QPainter &p, Ink const &ink)
{
    if (ink.lit) {
        QRadialGradient glow(QPointF(42, 40), 46);
        glow.setColorAt(0, ink.faceTop.lighter(130));
        glow.setColorAt(1, ink.faceBottom);
        p.setPen(Qt::NoPen);
        p.setBrush(glow);
        p.drawEllipse(QPointF(50, 50), 40, 40);
    } else {
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(ink.content.darker(150), 10));
        p.drawEllipse(QPointF(50, 50), 34, 34);
    }
}

// A car from behind on a road running into the distance; the box is twice as
// wide as high, drawn in 200 x 100 units.
void drawRoadCar(QPainter &p, QRectF const &box, QColor const &accent)
{
    p.translate(box.topLeft());
    p.scale(box.width() / 200.0, box.height() / 100.0);
    QLinearGradient tarmac(0, 20, 0, 100);
    tarmac.setColorAt(0, QColor(40, 44, 52, 0));
    tarmac.setColorAt(1, QColor(52, 58, 68, 230));
    p.setPen(Qt::NoPen);
    p.setBrush(tarmac);
    p.drawPolygon(QPolygonF({QPointF(92, 18), QPointF(108, 18), QPointF(196, 100), QPointF(4, 100)}));
    p.setPen(strokePen(accent, 2.5));
    p.drawLine(QPointF(92, 18), QPointF(4, 100));
    p.drawLine(QPointF(108, 18), QPointF(196, 100));
    QPen lane = strokePen(QColor(230, 234, 240, 200), 2);
    lane.setDashPattern({4.0, 4.0});
    lane.setCapStyle(Qt::FlatCap);
    p.setPen(lane);
    p.drawLine(QPointF(100, 20), QPointF(100, 100));

    QLinearGradient paint(0, 52, 0, 92);
    paint.setColorAt(0, QColor(200, 208, 220));
    paint.setColorAt(1, QColor(110, 120, 136));
    p.setPen(Qt::NoPen);
    p.setBrush(paint);
    p.drawRoundedRect(QRectF(70, 66, 60, 24), 6, 6);
    p.drawRoundedRect(QRectF(78, 52, 44, 18), 8, 8);
    p.setBrush(QColor(40, 60, 84));
    p.drawRoundedRect(QRectF(82, 55, 36, 10), 3, 3);
    p.setBrush(QColor(255, 70, 70));
    p.drawRoundedRect(QRectF(72, 70, 12, 5), 2, 2);
    p.drawRoundedRect(QRectF(116, 70, 12, 5), 2, 2);
    p.setBrush(QColor(24, 26, 30));
    p.drawRect(QRectF(74, 90, 10, 5));
    p.drawRect(QRectF(116, 90, 10, 5));
}

void drawGlyph(QPainter &p, Glyph glyph, QRectF const &box, Ink const &ink, QRgb accent)
{
    p.save();
    if (glyph == Glyph::RoadCar) {
        drawRoadCar(p, box, accent);
        p.restore();
        return;
    }
    enterUnitSquare(p, box);
    const QColor c = ink.content;
    const QColor seat(150, 160, 176);
    const QColor dimmed = mix(c, ink.faceBottom, 0.35);
    switch (glyph) {
    case Glyph::Plus:
        p.setPen(strokePen(c, 9));
        p.drawLine(QPointF(26, 50), QPointF(74, 50));
        p.drawLine(QPointF(50, 26), QPointF(50, 74));
        break;
    case Glyph::Minus:
        p.setPen(strokePen(c, 9));
        p.drawLine(QPointF(26, 50), QPointF(74, 50));
        break;
    case Glyph::Back:
        p.setPen(strokePen(c, 8));
        p.drawLine(QPointF(30, 50), QPointF(72, 50));
        p.drawPolyline(QPolygonF({QPointF(48, 30), QPointF(28, 50), QPointF(48, 70)}));
        break;
    case Glyph::Power: drawPower(p, c); break;
    case Glyph::Recirculate: drawLoop(p, c); break;
    case Glyph::FanSmall: drawFan(p, 0.55, c); break;
    case Glyph::FanLarge: drawFan(p, 0.95, c); break;
    case Glyph::AirUpper: drawSeatWithAir(p, AirToHead, dimmed, c); break;
    case Glyph::AirMiddle: drawSeatWithAir(p, AirToChest, dimmed, c); break;
    case Glyph::AirLower: drawSeatWithAir(p, AirToFeet, dimmed, c); break;
    case Glyph::DefrostFront: drawDefrost(p, true, c); break;
    case Glyph::DefrostRear: drawDefrost(p, false, c); break;
    case Glyph::Seat: drawSeatWithAir(p, 0, seat, c); break;
    case Glyph::SeatAirLower: drawSeatWithAir(p, AirToFeet, seat, c); break;
    case Glyph::SeatAirUpper: drawSeatWithAir(p, AirToHead, seat, c); break;
    case Glyph::SeatAirBoth: drawSeatWithAir(p, AirToHead | AirToFeet, seat, c); break;
    case Glyph::SeatHeat:
    case Glyph::SeatCool:
        p.save();
        p.translate(28, 8);
        p.scale(0.72, 0.72);
        drawSeatShape(p, QColor(190, 198, 210));
        p.restore();
        if (glyph == Glyph::SeatCool) {
            drawSnowflake(p, QPointF(24, 50), 22, c);
            break;
        }
        for (double x : {12.0, 24.0, 36.0})
            drawWave(p, x, 78, 22, c, 5);
        break;
    case Glyph::Dot: drawDot(p, ink); break;
    case Glyph::SeatBelt: drawSeatBelt(p, c); break;
    case Glyph::AutoParking: drawAutoParking(p, c); break;
    case Glyph::Condensate: drawCondensate(p, c); break;
    case Glyph::Mileage: drawRoad(p, c); break;
    case Glyph::Fuel: drawFuelPump(p, c); break;
    case Glyph::Delete: drawDelete(p, c); break;
    case Glyph::ArrowLeft: drawTriangle(p, true, c); break;
    case Glyph::ArrowRight: drawTriangle(p, false, c); break;
    default: break;
    }
    p.restore();
}

// ---------------------------------------------------------------------------
// Styles

void drawLabel(QPainter &p, QRectF const &box, QString const &text, QColor const &colour)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setBold(true);
    int size = int(box.height() * 0.36);
    font.setPixelSize(size);
    while (size > 8 && QFontMetricsF(font).horizontalAdvance(text) > box.width() * 0.78) {
        font.setPixelSize(--size);
    }
    p.setFont(font);
    p.setPen(colour);
    p.drawText(box, Qt::AlignCenter, text);
}

void paintButton(QPainter &p, Picture const &picture, QRectF const &box, bool round)
{
    const Ink ink = inkFor(picture.look, picture.accent);
    const QRectF face = box.adjusted(1.5, 1.5, -1.5, -1.5);
    QLinearGradient fill(face.topLeft(), face.bottomLeft());
    fill.setColorAt(0, ink.faceTop);
    fill.setColorAt(1, ink.faceBottom);
    p.setBrush(fill);
    p.setPen(QPen(ink.border, 2));
    const double radius = std::min(face.width(), face.height()) * 0.22;
    if (round)
        p.drawEllipse(face);
    else
        p.drawRoundedRect(face, radius, radius);

    if (picture.glyph == Glyph::Label) {
        drawLabel(p, face, QString::fromUtf8(picture.label), ink.content);
    } else if (picture.glyph != Glyph::None) {
        const double inset = std::min(face.width(), face.height()) * (round ? 0.2 : 0.1);
        drawGlyph(p, picture.glyph, face.adjusted(inset, inset, -inset, -inset), ink, picture.accent);
    }
}

// An icon in its normal look takes the family's colour itself.
void paintIcon(QPainter &p, Picture const &picture, QRectF const &box)
{
    Ink ink = inkFor(picture.look, picture.accent);
    if (picture.look == Look::Normal)
        ink.content = QColor(picture.accent);
    drawGlyph(p, picture.glyph, box, ink, picture.accent);
}

void paintBackdrop(QPainter &p, Picture const &picture, QRectF const &box)
{
    const bool disabled = picture.look == Look::Disabled;
    const QColor accent = disabled ? QColor(90, 92, 96) : QColor(picture.accent);
    const QRectF plate = box.adjusted(1, 1, -1, -1);
    const double radius = std::min(16.0, std::min(plate.width(), plate.height()) * 0.25);
    QLinearGradient fill(plate.topLeft(), plate.bottomLeft());
    fill.setColorAt(0, disabled ? QColor(44, 46, 50, 220) : QColor(36, 42, 52, 235));
    fill.setColorAt(1, disabled ? QColor(30, 31, 34, 220) : QColor(18, 21, 27, 235));
    // The rim is lit from above.
    QLinearGradient rim(plate.topLeft(), plate.bottomLeft());
    rim.setColorAt(0, mix(accent, Qt::white, 0.25));
    rim.setColorAt(1, mix(accent, QColor(18, 21, 27), 0.45));
    p.setBrush(fill);
    p.setPen(QPen(QBrush(rim), 2));
    p.drawRoundedRect(plate, radius, radius);
}

void paintLevel(QPainter &p, Picture const &picture, QRectF const &box, int level)
{
    const int bars = 7;
    const double slot = box.width() / bars;
    const QColor accent(picture.accent);
    p.setPen(Qt::NoPen);
    for (int bar = 0; bar < bars; ++bar) {
        const double height = box.height() * (0.3 + 0.7 * (bar + 1) / bars);
        const QRectF rect(box.left() + slot * bar + slot * 0.12, box.bottom() - height,
                          slot * 0.76, height);
        if (bar < level) {
            QLinearGradient fill(rect.topLeft(), rect.bottomLeft());
            fill.setColorAt(0, accent.lighter(130));
            fill.setColorAt(1, accent.darker(130));
            p.setBrush(fill);
        } else {
            p.setBrush(QColor(62, 68, 80, 220));
        }
        p.drawRoundedRect(rect, 4, 4);
    }
}

void paintDial(QPainter &p, Picture const &picture, QRectF const &box)
{
    const bool disabled = picture.look == Look::Disabled;
    const QColor accent = disabled ? QColor(96, 98, 102) : QColor(picture.accent);
    const double radius = std::min(box.width(), box.height()) / 2 - 3;
    const QPointF centre = box.center();

    QRadialGradient face(centre, radius);
    face.setColorAt(0, disabled ? QColor(44, 45, 48) : QColor(36, 44, 58));
    face.setColorAt(1, QColor(14, 16, 20));
    p.setBrush(face);
    p.setPen(QPen(accent, 4));
    p.drawEllipse(centre, radius, radius);

    // Ticks over 240 degrees, open at the bottom; every fifth one longer.
    p.translate(centre);
    p.rotate(-120);
    const int ticks = 40;
    for (int tick = 0; tick <= ticks; ++tick) {
        const bool major = tick % 5 == 0;
        p.setPen(strokePen(major ? accent.lighter(130) : mix(accent, QColor(14, 16, 20), 0.4),
                           major ? 3.5 : 2));
        p.drawLine(QPointF(0, -radius * 0.9), QPointF(0, -radius * (major ? 0.76 : 0.82)));
        p.rotate(240.0 / ticks);
    }
    p.resetTransform();
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(mix(accent, QColor(14, 16, 20), 0.6), 2));
    p.drawEllipse(centre, radius * 0.62, radius * 0.62);
}

// The car body is designed in 180 x 300 units: the body spans x 30..150 and
// y 8..292, the front at the top. The door pictures use the same units, so
// that they fit over the body when aligned to its corners.
const QSizeF carDesign(180, 300);

void drawCarBody(QPainter &p, bool withTyres, QColor const &tyreColour)
{
    if (withTyres) {
        p.setPen(strokePen(tyreColour.darker(160), 2));
        p.setBrush(tyreColour);
        for (double y : {62.0, 206.0}) {
            p.drawRoundedRect(QRectF(16, y, 18, 46), 6, 6);
            p.drawRoundedRect(QRectF(146, y, 18, 46), 6, 6);
        }
    }
    QLinearGradient paint(30, 0, 150, 0);
    paint.setColorAt(0, QColor(70, 78, 92));
    paint.setColorAt(0.5, QColor(104, 114, 130));
    paint.setColorAt(1, QColor(70, 78, 92));
    p.setPen(QPen(QColor(Body), 3));
    p.setBrush(paint);
    p.drawRoundedRect(QRectF(30, 8, 120, 284), 40, 34);
    // Mirrors.
    p.drawEllipse(QRectF(20, 100, 14, 10));
    p.drawEllipse(QRectF(146, 100, 14, 10));
    // Glass: windscreen, roof, rear window.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(30, 44, 62));
    p.drawPolygon(QPolygonF({QPointF(42, 118), QPointF(138, 118), QPointF(128, 90), QPointF(52, 90)}));
    p.drawPolygon(QPolygonF({QPointF(48, 230), QPointF(132, 230), QPointF(124, 250), QPointF(56, 250)}));
    p.setBrush(QColor(84, 94, 110));
    p.drawRoundedRect(QRectF(48, 124, 84, 100), 10, 10);
}

// Where a part lies within the car body picture: the corner it is aligned to.
QPointF partOffset(Glyph part, QSizeF const &size)
{
    const double right = carDesign.width() - size.width();
    const double bottom = carDesign.height() - size.height();
    const double middle = right / 2;
    switch (part) {
    case Glyph::Hood: return {middle, 0};
    case Glyph::Trunk: return {middle, bottom};
    case Glyph::FrontRightDoor: return {right, 0};
    case Glyph::RearLeftDoor: return {0, bottom};
    case Glyph::RearRightDoor: return {right, bottom};
    default: return {0, 0};
    }
}

// A left door in car units: closed it is a seam along the body's side, open
// it stands out from its front hinge.
void drawDoor(QPainter &p, double top, double bottom, Ink const &ink)
{
    if (!ink.lit) {
        p.setPen(strokePen(QColor(150, 162, 178), 3));
        p.drawLine(QPointF(33, top), QPointF(33, bottom));
        p.drawLine(QPointF(31, bottom), QPointF(42, bottom));
        return;
    }
    const QPointF hinge(30, top);
    const QPointF edge(4, bottom - 8);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(ink.faceTop.red(), ink.faceTop.green(), ink.faceTop.blue(), 90));
    p.drawPolygon(QPolygonF({hinge, edge, QPointF(30, bottom)}));
    p.setPen(strokePen(ink.faceTop, 7));
    p.drawLine(hinge, edge);
}

// The hood or the trunk in car units: closed an outline, open lit red.
void drawLid(QPainter &p, bool hood, Ink const &ink)
{
    QPainterPath lid;
    if (hood) {
        lid.moveTo(38, 86);
        lid.lineTo(38, 44);
        lid.cubicTo(38, 20, 60, 13, 90, 13);
        lid.cubicTo(120, 13, 142, 20, 142, 44);
        lid.lineTo(142, 86);
    } else {
        lid.moveTo(40, 254);
        lid.lineTo(40, 268);
        lid.cubicTo(40, 282, 60, 288, 90, 288);
        lid.cubicTo(120, 288, 140, 282, 140, 268);
        lid.lineTo(140, 254);
    }
    lid.closeSubpath();
    if (ink.lit) {
        p.setPen(strokePen(ink.faceTop, 5));
        p.setBrush(QColor(ink.faceTop.red(), ink.faceTop.green(), ink.faceTop.blue(), 150));
    } else {
        p.setPen(strokePen(QColor(150, 162, 178), 2.5));
        p.setBrush(Qt::NoBrush);
    }
    p.drawPath(lid);
}

void paintCarPart(QPainter &p, Picture const &picture, QRectF const &box)
{
    Ink ink = inkFor(picture.look, picture.accent);
    ink.faceTop = QColor(picture.accent);
    const QPointF offset = partOffset(picture.glyph, box.size());
    p.translate(-offset);
    const bool rightSide =
        picture.glyph == Glyph::FrontRightDoor || picture.glyph == Glyph::RearRightDoor;
    if (rightSide) {
        p.translate(carDesign.width(), 0);
        p.scale(-1, 1);
    }
    switch (picture.glyph) {
    case Glyph::Hood: drawLid(p, true, ink); break;
    case Glyph::Trunk: drawLid(p, false, ink); break;
    case Glyph::FrontLeftDoor:
    case Glyph::FrontRightDoor: drawDoor(p, 124, 176, ink); break;
    default: drawDoor(p, 180, 226, ink); break;
    }
}

void paintCarBody(QPainter &p, Picture const &picture, QRectF const &box)
{
    const double scale =
        std::min(box.width() / carDesign.width(), box.height() / carDesign.height());
    p.translate(box.center());
    p.scale(scale, scale);
    p.translate(-carDesign.width() / 2, -carDesign.height() / 2);
    drawCarBody(p, picture.glyph == Glyph::Tyres, QColor(picture.accent));
}

void paintSwitch(QPainter &p, Picture const &picture, QRectF const &box)
{
    const bool on = picture.look == Look::Down;
    const QColor accent(picture.accent);
    const QRectF track = box.adjusted(3, 3, -3, -3);
    const double radius = track.height() / 2;
    p.setPen(QPen(on ? accent.lighter(140) : QColor(92, 98, 108), 2));
    p.setBrush(on ? accent : QColor(48, 52, 60));
    p.drawRoundedRect(track, radius, radius);
    const double knob = track.height() - 6;
    const double x = on ? track.right() - 3 - knob : track.left() + 3;
    p.setPen(Qt::NoPen);
    p.setBrush(on ? QColor(245, 248, 252) : QColor(150, 156, 166));
    p.drawEllipse(QRectF(x, track.top() + 3, knob, knob));
    if (picture.focused) {
        p.setPen(QPen(Qt::white, 2.5));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(box.adjusted(1.25, 1.25, -1.25, -1.25), radius + 2, radius + 2);
    }
}

void paintGroove(QPainter &p, Picture const &picture, QRectF const &box)
{
    const double height = 8;
    const QRectF bar(box.left() + 2, box.center().y() - height / 2, box.width() - 4, height);
    QLinearGradient fill(bar.topLeft(), bar.topRight());
    fill.setColorAt(0, QColor(picture.accent).darker(170));
    fill.setColorAt(1, QColor(picture.accent));
    p.setPen(QPen(QColor(92, 98, 108), 1));
    p.setBrush(fill);
    p.drawRoundedRect(bar, height / 2, height / 2);
}

void paintHandle(QPainter &p, Picture const &picture, QRectF const &box)
{
    const QColor accent(picture.accent);
    const QRectF knob = box.adjusted(4, 4, -4, -4);
    QRadialGradient fill(knob.center() - QPointF(3, 3), knob.width() / 2);
    fill.setColorAt(0, picture.focused ? QColor(255, 255, 255) : QColor(220, 224, 232));
    fill.setColorAt(1, picture.focused ? accent.lighter(120) : QColor(130, 136, 148));
    p.setPen(QPen(picture.focused ? QColor(Qt::white) : QColor(70, 74, 82), picture.focused ? 3 : 1.5));
    p.setBrush(fill);
    p.drawEllipse(knob);
}

QImage render(Picture const &picture, int variant)
{
    QImage image(picture.width, picture.height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    const QRectF box(0, 0, picture.width, picture.height);
    switch (picture.style) {
    case Style::Button: paintButton(p, picture, box, false); break;
    case Style::RoundButton: paintButton(p, picture, box, true); break;
    case Style::Icon: paintIcon(p, picture, box); break;
    case Style::Backdrop: paintBackdrop(p, picture, box); break;
    case Style::Level: paintLevel(p, picture, box, variant); break;
    case Style::Dial: paintDial(p, picture, box); break;
    case Style::CarBody: paintCarBody(p, picture, box); break;
    case Style::CarPart: paintCarPart(p, picture, box); break;
    case Style::Switch: paintSwitch(p, picture, box); break;
    case Style::Groove: paintGroove(p, picture, box); break;
    case Style::Handle: paintHandle(p, picture, box); break;
    }
    p.end();
    return image;
}

// ---------------------------------------------------------------------------

bool hasDuplicates(std::vector<Output> const &list)
{
    for (std::size_t i = 1; i < list.size(); ++i) {
        if (list[i].path == list[i - 1].path)
            return true;
    }
    return false;
}

int listPaths(std::vector<Output> const &list)
{
    QTextStream out(stdout);
    for (Output const &output : list)
        out << output.path << '\n';
    return 0;
}

int writeAll(std::vector<Output> const &list, QString const &root)
{
    QTextStream err(stderr);
    const QDir base(root);
    for (Output const &output : list) {
        const QString path = base.filePath(output.path);
        if (!QDir().mkpath(QFileInfo(path).path())) {
            err << "artwork: cannot make the folder of " << path << '\n';
            return 1;
        }
        if (!render(*output.picture, output.variant).save(path, "PNG")) {
            err << "artwork: cannot write " << path << '\n';
            return 1;
        }
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 2 || args.at(1).isEmpty()) {
        QTextStream(stderr) << "usage: artwork OUTPUT_ROOT | artwork --list\n";
        return 2;
    }
    const std::vector<Output> list = outputs();
    if (hasDuplicates(list)) {
        QTextStream(stderr) << "artwork: a picture is named twice\n";
        return 1;
    }
    if (args.at(1) == QLatin1String("--list"))
        return listPaths(list);
    return writeAll(list, args.at(1));
}
