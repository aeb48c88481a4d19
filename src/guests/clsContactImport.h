#pragma once

#include "core/RecordIO.h"
#include "guests/clsCSVReader.h"
#include "guests/clsIMPORT_FIELD.h"

#include <QList>
#include <QString>
#include <functional>

class clsCONTACT;

// One contact as the preview shows it before the import: the file's values for the system's fields,
// whether it is ticked, and the existing contact it repeats.
struct clsImportRow {
    QString TITLE_TX, FIRST_NM, MIDDLE_NM, LAST_NM, SUFFIX_TX;
    QString ADDRESS_TX, CITY_TX, STATE_TX, ZIP_TX, COUNTRY_TX;
    QString NICK_NM, EMAIL_TX, PHONE_TX, PHONE2_TX;
    QString AB_LIST_CD, FRIEND_OF_CD, GENDER_FG, CHILD_FG, OUT_OF_TOWNER_FG, NOTES_TX, RSVP_ID;
    int Line = 0;        // where the row stands in the file
    bool Ticked = true;  // taken over by the import
    QString DuplicateOf; // the contact with the same first name, last name and e-mail address

    // Last name, ", ", first name, as the contact lists show a person.
    QString Name() const;
    // The address parts on one line.
    QString Address() const;
    // The value of a system field by its name (TITLE_TX ... RSVP_ID).
    QString Field(const QString& field) const;
    QString& Field(const QString& field);
    // The values of the system's fields as one CSV record, in the order of the mapping grid.
    QString CsvRecord() const;
};
Q_DECLARE_TYPEINFO(clsImportRow, Q_RELOCATABLE_TYPE);

// What the import does with the preview's rows.
struct clsImportOptions {
    bool ReplaceDuplicates = false; // a duplicate updates the contact it repeats instead of adding one
    bool FiveDigitZip = false;      // a shorter numeric zip is padded with zeros on the left
};

struct clsImportResult {
    int Added = 0;
    int Replaced = 0;
    int LeftOut = 0; // rows not ticked
    int Invitations = 0;
    bool Stopped = false; // the user stopped it; nothing was imported
};

// The import of contacts from a file: reading it (CSV or vCard, told apart by content), the mapping of
// its columns to the system's fields, the preview, and the import itself as one piece of work.
class clsContactImport {
public:
    // The file as a table. Throws clsDbError with a message that names the file and the line: a file
    // missing, empty, binary, too big, cut short or in an encoding nobody knows. A null delimiter is
    // guessed from the first line.
    static clsImportTable ReadFile(const QString& path, QChar delimiter);
    // True when the file holds vCards rather than comma-separated values.
    static bool IsVCardFile(const QString& path);

    // The suggested mapping of a header, one row per column, not saved: each column takes the field its
    // name suggests, unless an earlier column took it already.
    static QList<clsIMPORT_FIELD> SuggestedMapping(const QStringList& headers);
    // Puts a mapping into IMPORT_FIELD in place of whatever stood there, as one piece of work.
    static void SaveMapping(const QList<clsIMPORT_FIELD>& mapping);
    // Maps a column (by its name, any case) to a field, freeing the field from any other column; an empty
    // column name only frees the field. Throws
    // clsDbError for a column the file doesn't have or a field the import doesn't know.
    static void MapColumn(QList<clsIMPORT_FIELD>& mapping, const QString& column, const QString& field);

    // The preview of the table's rows under a mapping. Where several values share one cell, joined by
    // " ::: ", the first is taken (notes excepted).
    static QList<clsImportRow> Preview(const clsImportTable& table, const QList<clsIMPORT_FIELD>& mapping);
    // Marks each row that repeats an existing contact: first name, last name and e-mail address all the
    // same, names compared as the import would store them. Throws clsDbError.
    static void MarkDuplicates(QList<clsImportRow>& rows);

    // Told after each step how many are done of how many; answers false to stop.
    using Progress = std::function<bool(int done, int total)>;
    // Writes the ticked rows as contacts through clsCONTACT and gathers consecutive rows of one RSVP ID
    // into one invitation, labelled as etiquette writes it; all of it one transaction. Stopped or failed,
    // nothing remains. Throws clsDbError on a failure.
    static clsImportResult Import(const QList<clsImportRow>& rows, const clsImportOptions& options,
                                  const Progress& progress = {});

    // The file's values as the contact keeps them (names, A-B list, friend of, flags, zip, address).
    static void FillContact(clsCONTACT& contact, const clsImportRow& row, bool isNew, bool fiveDigitZip);

    // The captions of the system's fields as one CSV record: the template's header.
    static QString CaptionsCsvRecord();
    // The template of a file to fill by hand: Templates/Contacts.csv, its header the captions of the fields
    // (written when it is missing). Its path; throws clsDbError when it can't be written.
    static QString TemplateFile();

    // A file bigger than this is no address book: it is refused before it is read.
    static constexpr qint64 kMaxFileBytes = 32 * 1024 * 1024;
};
