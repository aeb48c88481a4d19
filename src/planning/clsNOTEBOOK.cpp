#include "planning/clsNOTEBOOK.h"

#include "core/modGeneral.h"
#include "core/modSchema.h"

namespace {

QString FormatStored(const QString& stored, const QString& format) {
    return FormatDateTime(ParseDateTimeText(stored), format);
}

} // namespace

const RecordTable<clsNOTEBOOK>& clsNOTEBOOK::Table() {
    static const RecordTable<clsNOTEBOOK> table{"NOTEBOOK",
                                                "NOTEBOOK_ID",
                                                {{"NOTEBOOK_ID", &clsNOTEBOOK::NOTEBOOK_ID},
                                                 {"NOTEBOOK_DT", &clsNOTEBOOK::NOTEBOOK_DT},
                                                 {"SUBJECT_TX", &clsNOTEBOOK::SUBJECT_TX},
                                                 {"FILE_PATH_TX", &clsNOTEBOOK::FILE_PATH_TX},
                                                 {"NOTES_TX", &clsNOTEBOOK::NOTES_TX}}};
    return table;
}

QString clsNOTEBOOK::NOTEBOOK_DT_DateFormat() const {
    return FormatStored(NOTEBOOK_DT, QLatin1String(kDateFormat));
}

QString clsNOTEBOOK::NOTEBOOK_DT_DateTimeFormat() const {
    return FormatStored(NOTEBOOK_DT, DateTimeFormat());
}

QString clsNOTEBOOK::NOTEBOOK_DT_TimeFormat() const {
    return FormatStored(NOTEBOOK_DT, TimeFormat());
}

QStringList clsNOTEBOOK::FilePaths() const {
    return FILE_PATH_TX.split(QLatin1Char(';'), Qt::SkipEmptyParts);
}

void clsNOTEBOOK::SetFilePaths(const QStringList& paths) {
    FILE_PATH_TX = paths.join(QLatin1Char(';'));
}

void clsNOTEBOOK::CreateTable() {
    modSchema::CreateTableIfMissing(gDB(), QStringLiteral("NOTEBOOK"));
}

void clsNOTEBOOK::Delete(const QString& notebookId) {
    RecordIO::Delete(QStringLiteral("NOTEBOOK"), QStringLiteral("NOTEBOOK_ID"), notebookId);
}

long clsNOTEBOOK::GetTotal() const {
    return RecordIO::Count(QStringLiteral("SELECT COUNT(*) AS CNT FROM NOTEBOOK"));
}

bool clsNOTEBOOK::OpenRecord(const QString& notebookId) {
    return RecordIO::OpenRecord(*this, Table(), notebookId);
}

QList<clsNOTEBOOK> clsNOTEBOOK::OpenRecords() const {
    return RecordIO::ReadAll(Table(),
                             QStringLiteral("SELECT NOTEBOOK.* FROM NOTEBOOK ORDER BY NOTEBOOK_DT DESC"));
}

void clsNOTEBOOK::Save(bool isNew) {
    RecordIO::Save(*this, Table(), isNew);
}
