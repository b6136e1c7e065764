#include "listmodel1.h"

#include "imagepaths.h"
#include "listview.h"

#include <QPixmap>

namespace {

const int TitleFontSize = 26;
const int ValueFontSize = 20;
const int SeparatorLine = 0x1000000;

const int FirstRole = TitleFontSizeRole;
const int LastRole = IdRole;

QPixmap *loadPicture(char const *name)
{
    return new QPixmap(imagePath(ExtendedImages, QString::fromLatin1(name)));
}

// Number formats of the row texts: one decimal, no decimals, and the general
// format with Qt's default precision.
QString fixed1(QString const &pattern, double number)
{
    return pattern.arg(number, 0, 'f', 1, QLatin1Char(' '));
}

QString fixed0(QString const &pattern, double number)
{
    return pattern.arg(number, 0, 'f', 0, QLatin1Char(' '));
}

QString general(QString const &pattern, double number)
{
    return pattern.arg(number, 0, 'g', -1, QLatin1Char(' '));
}

// A row's parameters: options read as integers. The arithmetic on the value
// and these is in int; only the sum is scaled, in double.
class Options
{
public:
    explicit Options(QList<QVariant> const &options) : list(options) {}

    int count() const { return list.size(); }
    int at(int i) const { return list.at(i).toInt(); }
    double floatAt(int i) const { return list.at(i).toFloat(); }
    QString textAt(int i) const { return list.at(i).toString(); }

private:
    QList<QVariant> const &list;
};

// NumberKind with five options: lowest, zero point, highest, the text before
// negative numbers and the text before positive ones. The distance from the
// zero point is a signed byte, shown by its magnitude after its text.
QString signedScale(Options const &options, int value, double factor)
{
    const qint8 steps = static_cast<qint8>(options.at(0) + value - options.at(1));
    const QString number = QStringLiteral("%1");
    if (steps == 0)
        return general(number, factor * 0.0);
    if (steps < 0) {
        const qint8 magnitude = static_cast<qint8>(-steps);
        return options.textAt(3) + general(number, magnitude * factor);
    }
    return options.textAt(4) + general(number, steps * factor);
}

// SuffixedKind: a number with the suffix of option 4; from option 5 on, the
// first value that has a text of its own, then those texts.
QString mixedScale(Options const &options, int value, double factor)
{
    const int n = options.count();
    if (n < 5)
        return QString();
    const double number = options.floatAt(3)
            + static_cast<double>(options.at(0) + value + options.at(1)) * factor;
    const QString withSuffix = fixed1(QStringLiteral("%1"), number) + options.textAt(4);
    if (n == 5)
        return withSuffix;
    const int firstText = options.at(5);
    if (firstText < 0 || firstText > n)
        return withSuffix;
    if (firstText <= value && value < n + firstText - 6)
        return options.textAt(value - firstText + 6);
    return withSuffix;
}

QString timeOfDay(Options const &options, int value)
{
    if (options.count() < 4 || value < options.at(2) || value > options.at(3))
        return QStringLiteral("--:--");
    const int minutes = options.at(0) + options.at(1) * value;
    return QStringLiteral("%1:%2")
            .arg(minutes / 60, 2, 10, QLatin1Char('0'))
            .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

ListModel1::ListModel1(ListView *view)
    : QStringListModel(view)
    , lastPixmap(loadPicture("last.png"))
    , lastDisabledPixmap(loadPicture("last_d.png"))
    , nextPixmap(loadPicture("next.png"))
    , nextDisabledPixmap(loadPicture("next_d.png"))
    , valueBackdropPixmap(loadPicture("data_by.png"))
    , view(view)
{
    qRegisterMetaType<Pixmap>("Pixmap");
}

ListModel1::~ListModel1()
{
    delete lastPixmap;
    delete lastDisabledPixmap;
    delete nextPixmap;
    delete nextDisabledPixmap;
    delete valueBackdropPixmap;
}

QList<ListData> const &ListModel1::getListData() const
{
    return rows;
}

int ListModel1::leftBtX() const
{
    return view ? view->width() / 2 : 0;
}

int ListModel1::rowCount(QModelIndex const &) const
{
    return rows.size();
}

int ListModel1::columnCount(QModelIndex const &) const
{
    return 1;
}

QModelIndex ListModel1::sibling(int row, int column, QModelIndex const &) const
{
    return index(row, column);
}

void ListModel1::setListData(QList<ListData> const &list)
{
    beginResetModel();
    rows.clear();
    rows = list;
    endResetModel();
}

bool ListModel1::hasRow(QModelIndex const &index) const
{
    return index.isValid() && index.row() < rows.size();
}

QVariant ListModel1::data(QModelIndex const &index, int role) const
{
    if (!hasRow(index) || role < FirstRole || role > LastRole)
        return QStringListModel::data(index, role);

    ListData const &row = rows.at(index.row());
    switch (role) {
    case TitleFontSizeRole:
        return TitleFontSize;
    case ValueFontSizeRole:
        return ValueFontSize;
    case SeparatorRole:
        return SeparatorLine;
    case TitleRole:
        return row.title;
    case ValueRole:
        return row.value;
    case DisplayValueRole:
        return displayValue(row);
    case OptionsRole:
        return QVariant(row.options);
    case AdjustableRole:
        return row.adjustable;
    case UnitRole:
        return row.unit;
    case FactorRole:
        return row.factor;
    case LeftArrowRole:
        return QVariant::fromValue(Pixmap(lastPixmap));
    case LeftArrowDisabledRole:
        return QVariant::fromValue(Pixmap(lastDisabledPixmap));
    case RightArrowRole:
        return QVariant::fromValue(Pixmap(nextPixmap));
    case RightArrowDisabledRole:
        return QVariant::fromValue(Pixmap(nextDisabledPixmap));
    case LeftButtonXRole:
        return leftBtX();
    case ValueBackdropRole:
        return QVariant::fromValue(Pixmap(valueBackdropPixmap));
    case IdRole:
        return row.id;
    default:
        return QStringListModel::data(index, role);
    }
}

// The rows are not the base's string list: the item data is what data()
// answers for Qt's own roles.
QMap<int, QVariant> ListModel1::itemData(QModelIndex const &index) const
{
    return QAbstractItemModel::itemData(index);
}

bool ListModel1::setData(QModelIndex const &index, QVariant const &value, int role)
{
    if (!hasRow(index) || (role != ValueRole && role != UnitRole))
        return QStringListModel::setData(index, value, role);

    ListData &row = rows[index.row()];
    if (role == UnitRole)
        row.unit = value.toInt();
    else if (row.kind == TextKind)
        row.text = value.toString();
    else
        row.value = value.toInt();
    emit dataChanged(index, index);
    return true;
}

// The value as the row shows it. A row whose options or unit don't fit its
// kind shows nothing (a time of day "--:--"): the vehicle may report any
// byte, and a page's table is read as it stands.
QVariant ListModel1::displayValue(ListData const &row)
{
    const Options options(row.options);
    const int n = options.count();
    const int v = row.value;
    const double f = row.factor;

    switch (row.kind) {
    case ChoiceKind:
        if (v >= 0 && v < n)
            return row.options.at(v);
        return QString();

    case PercentKind:
        if (n < 1)
            return QString();
        return fixed1(QStringLiteral("%1%"), (options.at(0) + v) * f);

    case TemperatureKind: {
        QString pattern;
        if (row.unit == 0)
            pattern = QStringLiteral("%1\u2103");
        else if (row.unit == 1)
            pattern = QStringLiteral("%1\u2109");
        else
            return QString();
        if (n == 2)
            return fixed1(pattern, v * f);
        if (n == 3)
            return fixed1(pattern, (options.at(0) + v - options.at(1)) * f);
        return QString();
    }

    case ElectricKind:
        if (row.unit == 0)
            return general(QStringLiteral("%1V"), v * f);
        if (row.unit == 1)
            return fixed1(QStringLiteral("%1kWh"), v * f);
        return QString();

    case PressureKind:
        return general(QStringLiteral("%1Kap"), v * f);

    case NumberKind:
        if (n == 2)
            return general(QStringLiteral("%1"), (options.at(0) + v) * f);
        if (n == 3)
            return general(QStringLiteral("%1"), (options.at(0) + v - options.at(1)) * f);
        if (n == 5)
            return signedScale(options, v, f);
        return QString();

    case EngineSpeedKind:
        if (n < 1)
            return QString();
        return fixed1(QStringLiteral("%1RPM"), (options.at(0) + v) * f);

    case SpeedKind: {
        QString pattern;
        if (row.unit == 0)
            pattern = QStringLiteral("%1km/h");
        else if (row.unit == 1)
            pattern = QStringLiteral("%1mph");
        else
            return QString();
        if (n == 2)
            return fixed1(pattern, (v + options.at(0)) * f);
        if (n == 3)
            return fixed1(pattern, (options.at(0) + v + options.at(1)) * f);
        if (n == 4)
            return fixed1(pattern, options.floatAt(3) + (options.at(0) + v + options.at(1)) * f);
        return QString();
    }

    case DistanceKind:
        if (row.unit == 0)
            return fixed1(QStringLiteral("%1km"), v * f);
        if (row.unit == 1)
            return fixed1(QStringLiteral("%1mi"), v * f);
        if (row.unit == 2)
            return fixed1(QStringLiteral("%1L/100km"), v * f);
        return QString();

    case UnscaledKind:
        if (row.unit == 0)
            return fixed1(QStringLiteral("%1V"), v);
        if (row.unit == 1)
            return fixed1(QStringLiteral("%1L"), v);
        return QString();

    case TextKind:
        return row.text;

    case TimeSpanKind:
        if (row.unit == 0)
            return fixed0(QStringLiteral("%1s"), v * f);
        if (row.unit == 1)
            return fixed1(QStringLiteral("%1Minute"), v * f);
        if (row.unit == 2)
            return fixed1(QStringLiteral("%1Hour"), v * f);
        return QString();

    case TimeOfDayKind:
        return timeOfDay(options, v);

    case SuffixedKind:
        return mixedScale(options, v, f);

    default:
        return QString();
    }
}
