#pragma once

#include "core/FilterCode.h"
#include "reports/clsRTFMasterTemp.h"
#include "reports/clsReportRoute.h"

#include <QList>
#include <QString>
#include <QStringList>

// Everything the report screen decides, without the screen: the sections and their filter rows with
// their counts, when labels may be printed, the caption of the run button, the title text of a filter,
// where each row leads, and how report files are named.
class clsReportCatalogue {
public:
    // Section keys, as the pages hand them to the report screen.
    enum SectionKey : int {
        Contacts = 1,
        Invitations = 2,
        RSVPs = 3,
        Attendees = 4,
        Tables = 5,
        Gifts = 6,
        Checklist = 7,
        Budget = 8,
        Vendors = 9,
        Timelines = 10,
        Notebook = 11,
        Events = 12,
        Widgets = 13,
        Statistics = 14,
        Flights = 15,
        Hotels = 16,
        Tentcards = 17,
        Custom = 18,
    };
    // The filter key of the custom filter, and the filter codes the custom filter hands the record
    // classes with its own condition: 1000 for contacts and attendees, 20 for invitations and RSVPs.
    static constexpr int CustomFilterKey = 99999;
    static constexpr int CustomWhereContacts = ContactFilter::Custom;
    static constexpr int CustomWhereInvitations = InviteFilter::Custom;
    static constexpr int CustomFilterIcon = 21;

    class Section {
    public:
        QString Caption;
        int Key = 0;
        int Indent = 0;
    };

    class FilterRow {
    public:
        QString FILTER; // the caption
        int Key = 0;
        int Indent = 0;    // 0 for a head row or a row of a section without heads, 10 under a head row
        bool Head = false; // printed in bold
        QString COUNT;     // a number, "--", "All" or empty
        QString NOTES_TX;
        int Icon = 0; // of the shared image list; 0 for none
        // The report class the row leads to, and whether that class can be run yet.
        QString ClassName;
        bool Available = false;
    };

    // The kinds of output the screen offers. Labels are always RTF.
    enum ReportType : int { WordRtf = 0, CommaSeparated = 1, Labels = 2, PortableDocument = 3 };

    // The state of the screen's commands for the selection and the chosen output.
    class Commands {
    public:
        bool LabelsEnabled = false;
        QString LabelsCaption;    // "Labels (.RTF)", or "LabelDesk" while the label program is active
        int ReportType = WordRtf; // the chosen output, back at RTF when labels are no longer allowed
        bool RunEnabled = false;  // a section and a filter row are selected
        QString RunCaption;
    };

    // Where the screen opens: the section and filter row positions for the keys it was given. A key
    // that doesn't occur leaves the first section, or the first row.
    class Selection {
    public:
        int SectionIndex = 0;
        int RowIndex = 0;
    };

    // What the screen's output options hand every report through the application's settings.
    class Choices {
    public:
        int ReportType = WordRtf;
        QString FontName = QStringLiteral("Verdana");
        QString FontSize = QStringLiteral("9");
        int PaperSizeIndex = 0;        // 0 Letter, 1 A4
        int PaperOrientationIndex = 0; // 0 Landscape, 1 Portrait
        clsColor Header = clsRTFMasterTemp::DefaultHeaderColor();
        clsColor SubHeader = clsRTFMasterTemp::DefaultSubHeaderColor();
        clsColor Border = clsRTFMasterTemp::DefaultBorderColor();
    };

    // The sections in display order.
    static QList<Section> Sections();
    // The position of the section with that key in Sections(), or -1.
    static int SectionIndex(int sectionKey);
    // The filter rows of a section, counted now; none for an unknown key.
    static QList<FilterRow> FilterRows(int sectionKey);
    // The position of the row with that key, or -1.
    static int FilterRowIndex(const QList<FilterRow>& rows, int filterKey);

    // May the labels be chosen for this row (rowIndex from 0)?
    static bool LabelsAllowed(int sectionKey, const QList<FilterRow>& rows, int rowIndex,
                              bool labelDeskActive);
    // "Continue" when another dialog follows (the custom filter, the labels), else "Run".
    static QString RunCaption(int filterKey, bool labelsSelected);
    // The caption as it goes into a report's title: "All" for every caption that begins with it.
    static QString FilterText(const QString& caption);

    // The commands for a selected row (rowIndex -1 for none) and the chosen output.
    static Commands CommandState(int sectionKey, const QList<FilterRow>& rows, int rowIndex, int reportType,
                                 bool labelDeskActive);
    // The positions to select on opening for the keys RPT_ROW and FilterIndex.
    static Selection OpeningSelection(int RPT_ROW, int FilterIndex);
    // Hands the output choices to the settings that every report reads (not used on the label route).
    static void TakeSettings(const Choices& choices, clsRTFMasterTemp& settings);

    // What the run button does on this row (rowIndex from 0); an empty ClassName and no picture for a
    // position outside the rows.
    static clsReportRoute Route(int sectionKey, const QList<FilterRow>& rows, int rowIndex);
    // What the run button does on this row with the labels chosen.
    static clsReportRoute LabelRoute(int sectionKey, const QList<FilterRow>& rows, int rowIndex,
                                     bool labelDeskActive);

    // The start of a report class's file name ("01_Contacts_"); a guest list also names its event.
    static QString FilePrefix(const QString& className, const QString& eventName = QString());
    // The prefix and the time stamp of this moment.
    static QString ReportFileName(const QString& prefix);
    // The file in the report folder, ".rtf" or ".csv".
    static QString ReportFullFileName(const QString& prefix, bool useRtf);

    // The whole catalogue with its counts as lines of plain text: a line for each section, and under it
    // a line for each filter row.
    static QStringList CatalogueLines();
};
