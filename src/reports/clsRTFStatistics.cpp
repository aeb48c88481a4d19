#include "reports/clsRTFStatistics.h"

#include "core/clsApp.h"
#include "core/clsDICT.h"
#include "core/modGeneral.h"
#include "guests/clsCONTACT.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "planning/clsEVENT.h"
#include "seating/clsDINING_TABLE.h"

#include <cstdlib>

namespace {
const QString kIndent = QStringLiteral("    ");

QString Contacts(int key, bool excludeBrideGroom = false) {
    return QString::number(gApp().TotalContacts(key, QString(), excludeBrideGroom));
}
QString Invitations(int key) {
    return QString::number(gApp().TotalInvitations(key));
}
} // namespace

RtfMarkup clsRTFStatistics::Title() const {
    clsCONTACT bride;
    bride.OpenRecord(QStringLiteral("1"));
    clsCONTACT groom;
    groom.OpenRecord(QStringLiteral("2"));
    return bride.FirstMiddle() + QStringLiteral(" and ") + groom.FirstMiddle() +
           QStringLiteral(" Wedding Statistics");
}

QList<clsRTFReport::Column> clsRTFStatistics::Columns() const {
    return {{"Wedding Statistics", 10500, 7000}, {"Count", 0, 0, clsRTFCell::AlignRight}};
}

void clsRTFStatistics::Line(LineKind kind, const QString& label, const QString& figure) {
    RTF.SetCellsBOLD(kind == Head);
    RTF.SetCellsCELL_BACKCOLOR(kind == Head ? clsRTFMasterTemp::SubHeaderFill : clsRTFMasterTemp::NoColor);
    PrintRow({kind == Child ? kIndent + label : label, RtfMarkup::Figure(figure)});
}

void clsRTFStatistics::MoneyLine(const QString& label, clsMoney amount, bool redWhenNegative) {
    const bool red = redWhenNegative && amount.IsNegative();
    RTF.RTFCells.last().CELL_FORECOLOR = red ? clsRTFMasterTemp::Red : clsRTFMasterTemp::NoColor;
    Line(Plain, label, amount.Text());
}

void clsRTFStatistics::PrintRows() {
    clsEVENT wedding;
    wedding.OpenRecord(QStringLiteral("1"));
    const QString timeToWedding =
        gApp().TimeToWedding.isEmpty() ? clsApp::TimeToWeddingText(wedding.EVENT_DT, Now()) : gApp().TimeToWedding;
    Line(Plain,
         clsApp::Married(wedding.EVENT_DT, Now()) ? QStringLiteral("Time Married")
                                                  : QStringLiteral("Time until Wedding"),
         timeToWedding.trimmed());

    // The guest figures speak of the guests: the couple is left out wherever a filter can leave them out
    // (attendance, seats, meals).
    const bool guestsOnly = true;
    Line(Head, QStringLiteral("Total Contacts"), Contacts(0, guestsOnly));
    static const struct {
        const char* Label;
        int Key;
    } contactRows[] = {{"Friend of Bride", 1}, {"Friend of Groom", 2}, {"Friend of Both", 3},
                       {"A-list", 4},          {"B-list", 5},          {"Local", 24},
                       {"Out of Towner", 25},  {"No Address", 8},      {"Not Yet Invited Contacts", 7}},
      invitedRows[] = {{"Friend of Bride", 9}, {"Friend of Groom", 10}, {"Friend of Both", 11},
                       {"A-list", 12},         {"B-list", 13},          {"Local", 26},
                       {"Out of Towner", 27}},
      invitationRows[] = {{"Sent", 1},
                          {"RSVPs Received", 3},
                          {"RSVPs No Reply", 4},
                          {"Unsent", 2},
                          {"No Address", 8}},
      attendeeRows[] = {{"Friend of Bride", 15}, {"Friend of Groom", 16}, {"Friend of Both", 17},
                        {"Seated", 21},          {"To be seated", 22},    {"Local", 28},
                        {"Out of Towner", 29}};
    for (const auto& row : contactRows)
        Line(Child, QString::fromLatin1(row.Label), Contacts(row.Key, guestsOnly));
    Line(Head, QStringLiteral("Invited Contacts"), Contacts(6, guestsOnly));
    for (const auto& row : invitedRows)
        Line(Child, QString::fromLatin1(row.Label), Contacts(row.Key, guestsOnly));
    Line(Head, QStringLiteral("Invitations"), Invitations(0));
    for (const auto& row : invitationRows)
        Line(Child, QString::fromLatin1(row.Label), Invitations(row.Key));
    Line(Head, QStringLiteral("Attendees") + QStringLiteral(" (does not include bride and groom)"),
         Contacts(14, guestsOnly));
    for (const auto& row : attendeeRows)
        Line(Child, QString::fromLatin1(row.Label), Contacts(row.Key, guestsOnly));
    for (const clsDICT& meal : clsDICT(clsDICT::Meal).OpenRecords(clsDICT::Meal))
        Line(Child, meal.TX,
             QString::number(
                 gApp().TotalContacts(1000, QStringLiteral("CONTACT.MEAL_ID = ") + meal.ID, guestsOnly)));
    Line(Child, QStringLiteral("Unspecified"), Contacts(999, guestsOnly));
    Line(Plain, QStringLiteral("Total Number of Tables"),
         QString::number(gApp().TotalTables(clsDINING_TABLE::TotalTables)));

    Line(Head, QStringLiteral("Gifts"), QString::number(gApp().TotalGifts(0)));
    Line(Child, QStringLiteral("Thank You Notes Sent"), QString::number(gApp().TotalGifts(1)));
    Line(Child, QStringLiteral("Thank You Notes Unsent"), QString::number(gApp().TotalGifts(2)));
    Line(Head, QStringLiteral("Tasks"), QString::number(gApp().TotalTasks(0)));
    Line(Child, QStringLiteral("Open"), QString::number(gApp().TotalTasks(1)));
    Line(Child, QStringLiteral("Completed"), QString::number(gApp().TotalTasks(2)));
    Line(Child, QStringLiteral("Current"), QString::number(gApp().TotalTasks(3)));

    const clsMoney budget = gApp().TotalBudgetSumEstimates();
    const clsMoney actual = clsBUDGET_CATEGORY_DICT::TotalSumActual();
    MoneyLine(QStringLiteral("Total Wedding Budget"), budget);
    MoneyLine(QStringLiteral("Total Actual Expenses"), actual);
    MoneyLine(QStringLiteral("Total Remaining"), budget - actual, true);
    RTF.RTFCells.last().CELL_FORECOLOR = clsRTFMasterTemp::NoColor;

    Line(Plain, QStringLiteral("Vendors"), QString::number(gApp().TotalVendors()));
    Line(Plain, QStringLiteral("Events"), QString::number(gApp().TotalEvents()));
    Line(Plain, QStringLiteral("Timelines"), QString::number(gApp().TotalTimelineEvents()));
}
