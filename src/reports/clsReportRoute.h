#pragma once

#include <QString>

// What a run of the report screen does for one section and filter row: the report class to build and
// what it is handed, or first a dialog, or a picture to open. Worked out by clsReportCatalogue::Route;
// the screen or the command line carries it out.
class clsReportRoute {
public:
    // The report class to build ("clsRTFContacts"); empty when the row only opens a picture.
    QString ClassName;
    // A dialog that comes first and starts the report itself ("frmReportsCustomFilter",
    // "frmReportEventDates", "frmReportsSQL", "frmReportsLabels", "clsLabelDesk"); empty for none.
    QString Dialog;
    // The section of the custom filter dialog and of the labels (the section key).
    int FormNumber = 0;
    // False when the class is built without a filter (meals, roles, vendors, ...).
    bool UsesFilter = true;
    int FilterEnum = 0;
    QString FilterText;
    QString CustomWhere;
    // For the contacts report: leave the bride and groom out. The custom filter's condition already
    // says whom it takes, so its run sets this false.
    bool ExcludeBrideGroom = true;
    // The text argument of the classes that take one: the vows' key, the event of a guest list.
    QString Argument;
    // The start of the report's file name; the time stamp of the run follows it.
    QString FilePrefix;
    // A picture of the report folder that the row opens, and what the user is told when it is missing.
    QString PictureFile;
    QString MissingPictureMessage;
    // A custom report: its query, and its name and description, which become the title and the line
    // under it.
    QString SQL;
    QString SQL_NAME;
    QString SQL_DESC;
};
