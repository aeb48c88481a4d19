#pragma once

#include "core/RecordIO.h"

#include <QList>
#include <QString>
#include <QStringList>

// A dated note of the couple's journal, with files attached by name (FILE_PATH_TX, paths joined by
// ";"; the files are never copied).
class clsNOTEBOOK {
public:
    QString NOTEBOOK_ID;
    QString NOTEBOOK_DT; // date and time in one value
    QString SUBJECT_TX;
    QString FILE_PATH_TX;
    QString NOTES_TX;

    static const RecordTable<clsNOTEBOOK>& Table();

    QString NOTEBOOK_DT_DateFormat() const;
    QString NOTEBOOK_DT_DateTimeFormat() const;
    QString NOTEBOOK_DT_TimeFormat() const;
    // The attached files; a path that holds ";" comes back as two entries.
    QStringList FilePaths() const;
    // Joins the paths with ";"; no paths leave FILE_PATH_TX empty (NULL in the database).
    void SetFilePaths(const QStringList& paths);

    static void CreateTable();
    // Every operation below that reads or writes throws clsDbError when the database refuses.

    void Delete(const QString& notebookId);
    long GetTotal() const;
    bool OpenRecord(const QString& notebookId);
    // The newest note first.
    QList<clsNOTEBOOK> OpenRecords() const;
    void Save(bool isNew);
};
