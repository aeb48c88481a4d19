#include "reports/clsRTFTimeline.h"

#include "core/clsApp.h"
#include "planning/clsTIMELINE.h"

RtfMarkup clsRTFTimeline::Title() const {
    return FilterText + QStringLiteral(" Timeline");
}

RtfMarkup clsRTFTimeline::Statistics() const {
    return QStringLiteral("Total Records: ") + Count(gApp().TotalTimelineEntries(EventId()));
}

QList<clsRTFReport::Column> clsRTFTimeline::Columns() const {
    return {
        {"Time", 2400, 2400}, {"Duration", 4200, 4200}, {"Description", 10800, 8000}, {"Contact(s)", 0, 0}};
}

void clsRTFTimeline::PrintRows() {
    QString day;
    for (const clsTIMELINE& entry : clsTIMELINE().OpenRecords(EventId())) {
        const QString group = entry.TIMELINE_START_DT_DateFormat() + QStringLiteral(": ") + entry.EVENT_TX;
        if (group != day) {
            day = group;
            GroupRow(group);
        }
        RtfMarkup description(entry.TIMELINE_DESC);
        if (!entry.NOTES_TX.isEmpty())
            description += RtfMarkup::LineBreak() + clsRTFMaster::ITALIC(entry.NOTES_TX);
        PrintRow({entry.TIMELINE_START_TM_TO_END_TM(), entry.Duration(), description, entry.CONTACT_NM});
    }
}
