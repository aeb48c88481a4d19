#pragma once

#include "guests/GuestTestData.h"
#include "reports/RtfTestTools.h"
#include "reports/modReportRegistry.h"
#include "reports/modReportRunner.h"

#include <QRegularExpression>

// A small hand-made wedding for the guest reports, and a reader that gives back what a report shows
// as rows of cell texts, alike for both dialects.
namespace GuestReportTestData {

inline QString Nasty() {
    return QStringLiteral(R"(Zoë O'Brien-Łukasik {Jr.} C:\temp)");
}
inline QString NastyLast() {
    return QStringLiteral(R"(O'Brien-Łukasik {Jr.} C:\temp)");
}

// Anna Lee Smith marries Ben Jones on 5 June 2027 at 4 PM.
//  Invitation RSVP 1, sent, answered: Zoë (Fish, table 1, the Reader) and the guest she brings (Fish).
//  Invitation RSVP 2, sent, answered, nobody comes: Carl and Dora Decliner.
//  Invitation RSVP 3, sent, no reply yet: Eve Waiting.
//  Frank Loner, not invited, sits at table 2 all the same. The bride eats beef at table 1; the groom
//  has no meal. Fish costs 42.50. Table 1 "Head Table", table 2 without a label, 8 seats each.
inline void MakeSmallWedding() {
    using namespace GuestTestData;
    AddDiningTable(1, 1, "Head Table");
    AddDiningTable(2, 2, QString());
    TestDatabase::Exec(
        "UPDATE CONTACT SET FIRST_NM = 'Anna', MIDDLE_NM = 'Lee', LAST_NM = 'Smith', MEAL_ID = 1, "
        "DINING_TABLE_ID = 1 WHERE CONTACT_ID = 1");
    TestDatabase::Exec("UPDATE CONTACT SET FIRST_NM = 'Ben', LAST_NM = 'Jones' WHERE CONTACT_ID = 2");
    TestDatabase::Exec("UPDATE EVENT SET EVENT_DT = '2027-06-05 16:00:00' WHERE EVENT_ID = 1");
    TestDatabase::Exec("UPDATE MEAL_DICT SET PRICE_NB = 42.5 WHERE MEAL_TX = 'Fish'");

    QStringList ids;
    AddInvitation(
        QStringList{QStringLiteral("Ms.|Zoë||") + NastyLast() + QStringLiteral("||"), "||Guest||||0"},
        QVariantMap{{"INVITE_RSVP_ID", 1},
                    {"INVITE_SENT_FG", "Y"},
                    {"RSVP_RECEIVED_FG", "Y"},
                    {"DISPLAY_AS_TX", QString(NastyLast() + QStringLiteral(", Zoë and Guest"))},
                    {"OUTER_ENVELOPE_TX", QString(QStringLiteral("Ms. ") + Nasty())},
                    {"INNER_ENVELOPE_TX", "Zoë and Guest"}},
        &ids);
    TestDatabase::Exec(
        "UPDATE CONTACT SET ADDRESS_TX = ?, PHONE_TX = '555-0101', EMAIL_TX = 'zoe@example.com', "
        "FRIEND_OF_CD = '1', AB_LIST_CD = 'A', GENDER_FG = 'F', ROLE_ID = 15, "
        "NOTES_TX = 'Vegan cousin', ATTENDING_FG = 'Y', MEAL_ID = 3, DINING_TABLE_ID = 1 "
        "WHERE CONTACT_ID = ?",
        {QStringLiteral("12 Oak St\r\nBoston, MA 02101"), ids[0]});
    TestDatabase::Exec("UPDATE CONTACT SET ATTENDING_FG = 'Y', MEAL_ID = 3 WHERE CONTACT_ID = ?", {ids[1]});

    AddInvitation({"Mr.|Carl||Decliner||", "Mrs.|Dora||Decliner||"},
                  {{"INVITE_RSVP_ID", 2},
                   {"INVITE_SENT_FG", "Y"},
                   {"RSVP_RECEIVED_FG", "Y"},
                   {"DISPLAY_AS_TX", "Decliner, Carl and Dora"},
                   {"OUTER_ENVELOPE_TX", "Mr. and Mrs. Carl Decliner"}});
    AddInvitation({"Ms.|Eve||Waiting||"}, {{"INVITE_RSVP_ID", 3},
                                           {"INVITE_SENT_FG", "Y"},
                                           {"DISPLAY_AS_TX", "Waiting, Eve"},
                                           {"OUTER_ENVELOPE_TX", "Ms. Eve Waiting"}});
    AddContact({{"FIRST_NM", "Frank"}, {"LAST_NM", "Loner"}, {"DINING_TABLE_ID", 2}});
    TestDatabase::Exec("INSERT INTO TENTCARD VALUES (1, ?, '1', 1)", {Nasty()});
}

// What a written report shows: the document's text (RTF) and its table as rows of cell texts. A CSV
// file gives its records as rows and no text.
struct Shown {
    QString File;
    QString Text;
    QList<QStringList> Rows;
    QStringList RowLines;       // RTF: the raw lines of each row's cells, joined, to see their styles
    QList<QList<int>> RowEdges; // RTF: the right edges of each row's cells
    QString Error;

    bool HasRow(const QStringList& cells) const { return Rows.contains(cells); }
    int RowIndex(const QStringList& cells) const { return int(Rows.indexOf(cells)); }
};

inline Shown ReadRtf(const QString& file) {
    Shown shown;
    shown.File = file;
    const QString rtf = QString::fromLatin1(RtfTestTools::FileBytes(file));
    // Blanks around a line end are the writer's delimiters, not text.
    shown.Text = RtfTestTools::DecodeRtf(rtf).Text;
    shown.Text.replace(QRegularExpression(QStringLiteral(" *\r\n *")), QStringLiteral("\r\n"));
    QStringList cells;
    QString raw;
    QList<int> edges;
    const QRegularExpression cellx(QStringLiteral("\\\\cellx(\\d+)"));
    for (const QString& line : rtf.split(QStringLiteral("\r\n"))) {
        for (auto it = cellx.globalMatch(line); it.hasNext();)
            edges << it.next().captured(1).toInt();
        if (line.startsWith(QLatin1String("\\intbl\\row"))) {
            shown.Rows << cells;
            shown.RowLines << raw;
            shown.RowEdges << edges;
            cells.clear();
            raw.clear();
            edges.clear();
        } else if (line.startsWith(QLatin1String("\\intbl")) &&
                   line.endsWith(QLatin1String("\\cell\\pard"))) {
            QString text = RtfTestTools::DecodeRtf(line.chopped(int(qstrlen("\\cell\\pard")))).Text;
            // A line break of the writer leaves its delimiting blanks around CR LF.
            text.replace(QRegularExpression(QStringLiteral(" ?\r\n ?")), QStringLiteral("\r\n"));
            cells << text;
            raw += line;
        }
    }
    return shown;
}

inline Shown ReadCsv(const QString& file) {
    Shown shown;
    shown.File = file;
    QByteArray bytes = RtfTestTools::FileBytes(file);
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    else
        shown.Error = QStringLiteral("no byte-order mark");
    const QString text = QString::fromUtf8(bytes);
    shown.Rows = RtfTestTools::ParseCsvStrict(text, &shown.Error);
    return shown;
}

// Writes the report through the registry, as the report screen and the command line do.
inline Shown Write(const clsReportRoute& route, bool useRtf, bool landscape = true, bool a4 = false) {
    modReportRunner::Output output;
    output.UseRtf = useRtf;
    output.Landscape = landscape;
    output.A4 = a4;
    const QString file = modReportRunner::Write(route, output);
    if (file.isEmpty()) {
        Shown nothing;
        nothing.Error = QStringLiteral("nothing written");
        return nothing;
    }
    return useRtf ? ReadRtf(file) : ReadCsv(file);
}

inline clsReportRoute Route(const QString& className, int filterEnum = 0, const QString& filterText = "All") {
    clsReportRoute route;
    route.ClassName = className;
    route.FilterEnum = filterEnum;
    route.FilterText = filterText;
    return route;
}

} // namespace GuestReportTestData
