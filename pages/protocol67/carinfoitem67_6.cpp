#include "carinfoitem67_6.h"

#include "family67.h"

namespace {

enum Row67_6 { FullPercentage = 1, NormalPercentage = 3 };

// The options go out as the percentage itself, 50 to 100.
const int PercentCodes[] = {0x32, 0x3C, 0x46, 0x50, 0x5A, 0x64};
const int PercentOptions = int(sizeof PercentCodes / sizeof PercentCodes[0]);

int percentCode(int option) { return Family67::codeAt(option, PercentCodes, PercentOptions, PercentCodes[0]); }

// The car reports the percentage in steps of two: 25 is 50 %, 50 is 100 %.
// A byte between the options shows none.
int percentOption(int halfPercent)
{
    return Family67::indexOf(2 * halfPercent, PercentCodes, PercentOptions);
}

// FD 06 A9 08 (full) or 09 (normal) code.
QByteArray chargeAmountFrame(int id, int code)
{
    return Family67::frame(0xA9, {id == FullPercentage ? 0x08 : 0x09, code});
}

} // namespace

CarInfoItem67_6::CarInfoItem67_6(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

QList<Row> CarInfoItem67_6::rowTable() const
{
    return Family67::numbered(QList<Row>()
        << Row::text("Charging settings-set the aamount of charge(full)-approximate mileage").textAt(316)
        << Row::choice("Charging settings-set the aamount of charge(full)-battery percentage",
                       {"50%", "60%", "70%", "80%", "90%", "100%"})
               .at(320).display(percentOption).adjustable().sendAs(percentCode).frame(chargeAmountFrame)
        << Row::text("Charging settings-set the aamount of charge(normal)-approximate mileage").textAt(324)
        << Row::choice("Charging settings-set the aamount Of charge(normal)-battery percentage",
                       {"50%", "60%", "70%", "80%", "90%", "100%"})
               .at(328).display(percentOption).adjustable().sendAs(percentCode).frame(chargeAmountFrame)
        << Row::text("Estimated charging time(fast charging)").textAt(332)
        << Row::text("Power consumption-instant consumption(legacy system)").textAt(336)
        << Row::text("Power consumption-instant consumption(air conditioning system)").textAt(340)
        << Row::text("Power consumption-instant consumption(electronic equipment)").textAt(344)
        << Row::text("Power consumption-instant consumption(battery care)").textAt(348));
}
