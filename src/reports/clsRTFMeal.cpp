#include "reports/clsRTFMeal.h"

#include "core/clsApp.h"
#include "core/clsDICT.h"
#include "guests/clsCONTACT.h"

namespace {
constexpr int kAttending = 14;
constexpr int kCustom = 1000;
constexpr int kAttendingWithoutMeal = 999;
const QString kWithMeal = QStringLiteral("CONTACT.MEAL_ID Is Not Null");
} // namespace

RtfMarkup clsRTFMeal::Title() const {
    return "Meals";
}

RtfMarkup clsRTFMeal::Statistics() const {
    return QStringLiteral("Total Attendees: ") + Count(gApp().TotalContacts(kAttending)) +
           QStringLiteral(",  Total Specified Meals: ") + Count(gApp().TotalContacts(kCustom, kWithMeal)) +
           QStringLiteral(",  Total Unspecified Meals: ") +
           Count(gApp().TotalContacts(kAttendingWithoutMeal));
}

QList<clsRTFReport::Column> clsRTFMeal::Columns() const {
    return {{"Meal", 5000, 3000},
            {"Total Meals", 7500, 5500, clsRTFCell::AlignRight},
            {"Price per Person", 10000, 8000, clsRTFCell::AlignRight},
            {"Total Cost", 0, 0, clsRTFCell::AlignRight}};
}

void clsRTFMeal::MealRow(const RtfMarkup& meal, long count, const QString& price, const QString& cost) {
    PrintRow({meal, RtfMarkup::Figure(Count(count)), RtfMarkup::Figure(price), RtfMarkup::Figure(cost)});
}

void clsRTFMeal::PrintRows() {
    double totalCost = 0;
    for (const clsDICT& meal : clsDICT(clsDICT::Meal).OpenRecords(clsDICT::Meal)) {
        const long count = clsCONTACT::GetTotal(kCustom, QStringLiteral("CONTACT.MEAL_ID = ") + meal.ID);
        bool priced = false;
        const double price = meal.PRICE_NB.toDouble(&priced);
        totalCost += priced ? price * double(count) : 0;
        MealRow(meal.TX, count, priced ? Money(price) : QString(),
                priced ? Money(price * double(count)) : QString());
    }
    RTF.SetCellsBOLD(true);
    RTF.SetCellsCELL_BACKCOLOR(clsRTFMasterTemp::SubHeaderFill);
    MealRow("Total", clsCONTACT::GetTotal(kCustom, kWithMeal), QString(), Money(totalCost));

    RTF.PrintBlankCells();
    RTF.SetCellsCELL_BORDER(clsRTFCell::BorderBox);
    RTF.SetCellsCELL_BACKCOLOR(clsRTFMasterTemp::NoColor);
    MealRow("Unspecified", clsCONTACT::GetTotal(kAttendingWithoutMeal), QString(), QString());
    PrintRow({"* Vendor meals"});
    NoteRow("* Consider whether you will be providing meals for vendors.");
}
