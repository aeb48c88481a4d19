#include "reports/clsRTFTask.h"

#include "core/clsApp.h"
#include "planning/clsTASK.h"

RtfMarkup clsRTFTask::Title() const {
    return FilterText + QStringLiteral(" Tasks") +
           (FilterEnum == clsTASK::ByDueDate ? QStringLiteral(" by Due Date") : QString());
}

RtfMarkup clsRTFTask::Statistics() const {
    return QStringLiteral("Total Records: ") + Count(gApp().TotalTasks(FilterEnum));
}

// A spreadsheet gets what a line through a row says, and the notes, as columns of their own.
QList<clsRTFReport::Column> clsRTFTask::Columns() const {
    if (!Rtf())
        return {{"#"}, {"Task"}, {"Due Date"}, {"Completed"}, {"Notes"}};
    return {{"#", 600, 600, clsRTFCell::AlignRight}, {"Task", 11000, 8000}, {"Due Date", 0, 0}};
}

void clsRTFTask::PrintRows() {
    const bool grouped = FilterEnum != clsTASK::ByDueDate;
    QString group;
    bool first = true;
    for (const clsTASK& task : clsTASK().OpenRecords(FilterEnum)) {
        if (grouped && (first || task.TASK_GROUP_ID != group))
            GroupRow(task.TASK_GROUP_TX.isEmpty() ? QStringLiteral("(no time frame)") : task.TASK_GROUP_TX);
        group = task.TASK_GROUP_ID;
        first = false;
        const bool done = task.COMPLETED_FG == QLatin1String("Y");
        if (!Rtf()) {
            PrintRow({RtfMarkup::Figure(task.SORT_ORDER_NB), task.TASK_NM, task.DUE_DT_Format(),
                      YesNo(task.COMPLETED_FG), task.NOTES_TX});
            continue;
        }
        RtfMarkup name(task.TASK_NM);
        if (!task.NOTES_TX.trimmed().isEmpty())
            name += RtfMarkup::LineBreak() + clsRTFMaster::ITALIC(task.NOTES_TX.trimmed());
        // The strike-through is spent by each printed row, so every row sets it anew.
        RTF.SetCellsSTRIKE(done);
        RTF.SetCellsCELL_FORECOLOR(done ? clsRTFMasterTemp::Gray : clsRTFMasterTemp::NoColor);
        PrintRow({task.SORT_ORDER_NB, name, task.DUE_DT_Format()});
    }
    RTF.SetCellsSTRIKE(false);
    RTF.SetCellsCELL_FORECOLOR(clsRTFMasterTemp::NoColor);
}
