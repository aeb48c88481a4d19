#include "reports/clsRTFNotebook.h"

#include "core/clsApp.h"
#include "planning/clsNOTEBOOK.h"

RtfMarkup clsRTFNotebook::Title() const {
    return "All Notes";
}

RtfMarkup clsRTFNotebook::Statistics() const {
    const long notes = gApp().TotalNotes();
    return Count(notes) + QStringLiteral(" note") + (notes == 1 ? QString() : QStringLiteral("s"));
}

QList<clsRTFReport::Column> clsRTFNotebook::Columns() const {
    if (!Rtf())
        return {{"Date"}, {"Time"}, {"Subject"}, {"Notes"}, {"Files"}};
    return {{"Date", 2600, 2600}, {"Subject", 0, 0}};
}

void clsRTFNotebook::PrintRows() {
    for (const clsNOTEBOOK& note : clsNOTEBOOK().OpenRecords()) {
        const QStringList files = note.FilePaths();
        if (!Rtf()) {
            PrintRow({note.NOTEBOOK_DT_DateFormat(), note.NOTEBOOK_DT_TimeFormat(), note.SUBJECT_TX,
                      note.NOTES_TX, files.join(QStringLiteral("; "))});
            continue;
        }
        RTF.SetCellsBOLD(true);
        RTF.SetCellsCELL_BACKCOLOR(clsRTFMasterTemp::SubHeaderFill);
        PrintRow({note.NOTEBOOK_DT_DateTimeFormat(), note.SUBJECT_TX});
        RTF.SetCellsBOLD(false);
        RTF.SetCellsCELL_BACKCOLOR(clsRTFMasterTemp::NoColor);
        RtfMarkup body(note.NOTES_TX.trimmed());
        if (!files.isEmpty()) {
            if (!note.NOTES_TX.trimmed().isEmpty())
                body += RtfMarkup::LineBreak();
            body += clsRTFMaster::ITALIC(QStringLiteral("Files: ") + files.join(QStringLiteral("; ")));
        }
        if (!body.IsEmpty())
            NoteRow(body);
    }
}
