#ifndef LISTDATA_H
#define LISTDATA_H

#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariant>

class QPixmap;

// The kinds of a page row. The kind decides how ListModel1 turns the raw
// value into the text on screen (DisplayValueRole); everything else about a
// row looks alike.
enum RowKind {
    ChoiceKind = 0,         // one of the option texts, value is the index
    PercentKind = 1,        // "%1%"
    TemperatureKind = 2,    // "%1℃" or "%1℉"
    ElectricKind = 3,       // "%1V" or "%1kWh"
    PressureKind = 4,       // "%1Kap"
    NumberKind = 5,         // plain number, optionally with texts for the sign
    EngineSpeedKind = 6,    // "%1RPM"
    SpeedKind = 7,          // "%1km/h" or "%1mph"
    DistanceKind = 8,       // "%1km", "%1mi" or "%1L/100km"
    UnscaledKind = 9,       // "%1V" or "%1L", factor not applied
    TextKind = 10,          // the row's text as it stands
    TimeSpanKind = 11,      // "%1s", "%1Minute" or "%1Hour"
    TimeOfDayKind = 12,     // "hh:mm"
    SuffixedKind = 13       // number with a suffix, or a text for some values
};

// The item data roles of the toolkit's models and painters. The numbers are
// those of the head unit's list library, which the host's list widgets read;
// ListModel0 answers the first group, ListModel1 the second, and the painters
// read both.
enum ListRole {
    // The host list's roles.
    EnabledRole = 356,
    EntryTextRole = 357,
    EntryText2Role = 359,
    HostColor364Role = 364,
    HostColor365Role = 365,
    HostColor366Role = 366,
    TextColorRole = 367,
    SelectedTextColorRole = 368,
    DisabledTextColorRole = 369,
    LeftIconRole = 370,
    SelectedLeftIconRole = 371,
    DisabledLeftIconRole = 372,
    RightIconRole = 373,
    SelectedRightIconRole = 374,
    DisabledRightIconRole = 375,
    HostValue382Role = 382,
    LeftIconXRole = 383,
    RightIconMarginRole = 384,
    TextXRole = 385,
    HostColor389Role = 389,
    HostValue391Role = 391,
    HostValue392Role = 392,

    // Shared by both models: font sizes and the separator line.
    TitleFontSizeRole = 378,
    ValueFontSizeRole = 379,
    SeparatorRole = 390,

    // Page rows (ListModel1).
    TitleRole = 395,
    ValueRole = 396,            // the raw value; written by pages
    DisplayValueRole = 397,     // the value as shown, formatted by kind
    OptionsRole = 398,
    AdjustableRole = 399,
    UnitRole = 400,             // written by pages when the car's unit changes
    FactorRole = 401,
    LeftArrowRole = 402,
    LeftArrowDisabledRole = 403,
    RightArrowRole = 404,
    RightArrowDisabledRole = 405,
    LeftButtonXRole = 406,      // x where the right half of a row begins
    ValueBackdropRole = 407,
    IdRole = 408
};

// One row of a page. Pages build their rows once and afterwards change them
// only through the model; a row is copied, never edited in place.
class ListData
{
public:
    // A row that pages find by its position; its id stays -1.
    ListData(int kind, QString const &title, QVariant const &value,
             QList<QVariant> const &options, bool adjustable, int unit, double factor);
    // A row that pages find by its own id, whatever its position.
    ListData(int id, int kind, QString const &title, QVariant const &value,
             QList<QVariant> const &options, bool adjustable, int unit, double factor);

    int kind;
    int id;
    QString title;
    QString text;             // the value as a string; shown by TextKind only
    int value;
    QList<QVariant> options;  // option texts, or range and format parameters
    bool adjustable;          // arrows shown and answered
    int unit;
    double factor;            // scales the shown text, never the value
};

// A picture carried through a QVariant: a pointer, not owned, to a pixmap
// that its model keeps.
struct Pixmap
{
    Pixmap() : pixmap(0) {}
    explicit Pixmap(QPixmap *p) : pixmap(p) {}

    QPixmap *pixmap;
};

Q_DECLARE_METATYPE(Pixmap)

// The pixmap that a role's value carries, or null when the value holds no
// Pixmap, a null pointer or a null pixmap.
QPixmap const *presentPixmap(QVariant const &value);

#endif // LISTDATA_H
