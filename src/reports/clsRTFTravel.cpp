#include "reports/clsRTFTravel.h"

#include "reports/clsRTFMaster.h"

#include <QStringList>

namespace RtfTravel {

RtfMarkup NameAndNotes(const QString& name, const QString& notes) {
    RtfMarkup text = clsRTFMaster::BOLD(name);
    if (!notes.trimmed().isEmpty())
        text += RtfMarkup::LineBreak() + clsRTFMaster::ITALIC(notes.trimmed());
    return text;
}

QString Numbers(const QString& phone, const QString& fax, const QString& email) {
    QStringList lines;
    if (!phone.isEmpty())
        lines << QStringLiteral("p. ") + phone;
    if (!fax.isEmpty())
        lines << QStringLiteral("f. ") + fax;
    if (!email.isEmpty())
        lines << email;
    return lines.join(QStringLiteral("\r\n"));
}

QString Airport(const QString& airport, const QString& when) {
    return when.isEmpty() ? airport : airport + QStringLiteral("\r\n") + when;
}

} // namespace RtfTravel
