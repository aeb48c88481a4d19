#include "guests/clsContactImport.h"

#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"
#include "guests/clsParseAddress.h"
#include "guests/clsVCardReader.h"
#include "guests/modImportText.h"
#include "guests/modParseText.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QSet>

namespace {

using RowField = QString clsImportRow::*;

const QList<QPair<QString, RowField>>& RowFields() {
    static const QList<QPair<QString, RowField>> fields = {
        {"TITLE_TX", &clsImportRow::TITLE_TX},
        {"FIRST_NM", &clsImportRow::FIRST_NM},
        {"MIDDLE_NM", &clsImportRow::MIDDLE_NM},
        {"LAST_NM", &clsImportRow::LAST_NM},
        {"SUFFIX_TX", &clsImportRow::SUFFIX_TX},
        {"ADDRESS_TX", &clsImportRow::ADDRESS_TX},
        {"CITY_TX", &clsImportRow::CITY_TX},
        {"STATE_TX", &clsImportRow::STATE_TX},
        {"ZIP_TX", &clsImportRow::ZIP_TX},
        {"COUNTRY_TX", &clsImportRow::COUNTRY_TX},
        {"NICK_NM", &clsImportRow::NICK_NM},
        {"EMAIL_TX", &clsImportRow::EMAIL_TX},
        {"PHONE_TX", &clsImportRow::PHONE_TX},
        {"PHONE2_TX", &clsImportRow::PHONE2_TX},
        {"AB_LIST_CD", &clsImportRow::AB_LIST_CD},
        {"FRIEND_OF_CD", &clsImportRow::FRIEND_OF_CD},
        {"GENDER_FG", &clsImportRow::GENDER_FG},
        {"CHILD_FG", &clsImportRow::CHILD_FG},
        {"OUT_OF_TOWNER_FG", &clsImportRow::OUT_OF_TOWNER_FG},
        {"NOTES_TX", &clsImportRow::NOTES_TX},
        {"RSVP_ID", &clsImportRow::RSVP_ID},
    };
    return fields;
}

RowField MemberOf(const QString& field) {
    for (const auto& [name, member] : RowFields()) {
        if (name == field)
            return member;
    }
    return nullptr;
}

[[noreturn]] void Refuse(const QString& path, int line, const QString& why) {
    throw clsDbError(QStringLiteral("%1, line %2: %3").arg(QDir::toNativeSeparators(path)).arg(line).arg(why),
                     0);
}

// The first byte that Windows-1252 has no character for.
qsizetype FirstUndefinedByte(const QByteArray& bytes) {
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes.at(i));
        if (byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D)
            return i;
    }
    return 0;
}

QString CsvText(const QString& path, const QByteArray& bytes) {
    if (modImportText::IsUtf16(bytes))
        return modImportText::DecodeUtf16(bytes);
    const QByteArray body = modImportText::WithoutUtf8Bom(bytes);
    bool ok = true;
    QString text = modImportText::DecodeUtf8OrWindows1252(body, &ok);
    if (!ok)
        Refuse(path, modImportText::LineOfOffset(body, FirstUndefinedByte(body)),
               QStringLiteral("the text is neither UTF-8, UTF-16 nor Windows-1252; save the file as UTF-8 "
                              "and import it again"));
    return text;
}

void RefuseBinary(const QString& path, const QByteArray& bytes) {
    if (modImportText::IsUtf16(bytes))
        return;
    const qsizetype zero = bytes.indexOf('\0');
    if (zero >= 0)
        Refuse(path, modImportText::LineOfOffset(bytes, zero),
               QStringLiteral("the file holds binary data, not text; choose a CSV or vCard file"));
}

// Google joins several values of one field with " ::: "; the first is the one.
QString FirstOfSeveral(const QString& value) {
    const qsizetype joint = value.indexOf(QLatin1String(" ::: "));
    return joint < 0 ? value : value.left(joint);
}

QString StoredFirstName(const QString& first) {
    return first.isEmpty() ? QStringLiteral("UNKNOWN") : first;
}

QString StoredLastName(const QString& last) {
    return last.isEmpty() ? QStringLiteral("(UNKNOWN)") : last;
}

QString DuplicateKey(const QString& first, const QString& last, const QString& email) {
    return first + QChar(0x1F) + last + QChar(0x1F) + email;
}

// "Yes", "Y", "True", "1" and "X" tick a box; any other text clears it; nothing leaves it as it is.
QString Flag(const QString& value, const QString& kept) {
    if (value.isEmpty())
        return kept;
    static const QStringList yes = {"Y", "YES", "TRUE", "1", "X"};
    return yes.contains(AsciiUpper(value)) ? QStringLiteral("Y") : QStringLiteral("N");
}

QString GenderOf(const QString& value, const QString& kept) {
    const QString upper = AsciiUpper(value);
    if (upper.startsWith(QLatin1Char('M')))
        return QStringLiteral("M");
    if (upper.startsWith(QLatin1Char('F')))
        return QStringLiteral("F");
    return kept;
}

QString ListOf(const QString& value, const QString& kept, bool isNew) {
    const QString upper = AsciiUpper(value);
    if (upper == QLatin1String("A") || upper == QLatin1String("B"))
        return upper;
    if (!value.isEmpty() || isNew)
        return QStringLiteral("A");
    return kept;
}

// "Bride", "Groom" and "Both" by their first two letters, or the code itself.
QString FriendOf(const QString& value, const QString& kept) {
    const QString upper = AsciiUpper(value);
    static const QStringList starts = {"BR", "GR", "BO"};
    for (qsizetype i = 0; i < starts.size(); ++i) {
        if (upper.startsWith(starts.at(i)) || upper == QString::number(i + 1))
            return QString::number(i + 1);
    }
    return kept;
}

QString FiveDigits(const QString& zip) {
    const bool digits =
        !zip.isEmpty() && std::all_of(zip.begin(), zip.end(), [](QChar c) { return c.isDigit(); });
    return digits && zip.size() < 5 ? zip.rightJustified(5, QLatin1Char('0')) : zip;
}

// The invitations that OpenRecordByRSVP_ID finds, by RSVP ID, read once for the whole import: the first of
// each number that has a primary contact.
QHash<QString, QString> InvitationsByRSVP() {
    QHash<QString, QString> invitations;
    gDB().Stream(QStringLiteral("SELECT INVITE.INVITE_RSVP_ID, INVITE.INVITE_ID FROM INVITE INNER JOIN CONTACT ON "
                                "INVITE.INVITE_ID = CONTACT.INVITE_ID WHERE CONTACT.PRIMARY_CONTACT_FG = 'Y' AND "
                                "INVITE.INVITE_RSVP_ID IS NOT NULL ORDER BY INVITE.INVITE_ID"),
                 {}, [](const QStringList&) {},
                 [&](QStringList& row) {
                     if (!invitations.contains(row.value(0)))
                         invitations.insert(row.value(0), row.value(1));
                 });
    return invitations;
}

// A new invitation for people who had none of this number: labelled from them as they stand, then saved,
// and each of them put on it in the order of the file, the first primary.
void NewInvitation(clsINVITE& invite, QList<clsCONTACT> people) {
    for (qsizetype i = 0; i < people.size(); ++i) {
        people[i].SORT_ORDER_NB = QString::number(i + 1);
        people[i].PRIMARY_CONTACT_FG = i == 0 ? QStringLiteral("Y") : QStringLiteral("N");
        if (!clsCONTACT::IsCouple(people[i].CONTACT_ID, people[i].ROLE_ID))
            invite.GUESTS.append(people[i]);
    }
    invite.RefreshLabeling(false, false);
    invite.Save(true);
    for (clsCONTACT& person : people) {
        person.INVITE_ID = invite.INVITE_ID;
        person.Save(false, false);
    }
}

// The people of one RSVP ID, put on the invitation of that ID (made when there is none) in the order of
// the file, the first of them primary; the invitations they left are noted.
void JoinInvitation(const QString& rsvpId, const QList<clsCONTACT>& people, QHash<QString, QString>& byRSVP,
                    QSet<QString>& left, QSet<QString>& joined) {
    clsINVITE invite;
    const bool found = invite.OpenRecord(byRSVP.value(rsvpId), false);
    for (const clsCONTACT& person : people) {
        if (!person.INVITE_ID.isEmpty() && person.INVITE_ID != invite.INVITE_ID)
            left.insert(person.INVITE_ID);
    }
    if (found) {
        invite.SaveWithPeople(false, people);
        invite.RefreshLabeling(true, false);
        invite.Save(false);
    } else {
        invite.INVITE_RSVP_ID = rsvpId;
        NewInvitation(invite, people);
        byRSVP.insert(rsvpId, invite.INVITE_ID);
    }
    joined.insert(invite.INVITE_ID);
}

// An invitation someone left for another is labelled anew, or goes when nobody is left on it.
void RelabelLeftInvitations(const QSet<QString>& left, const QSet<QString>& joined) {
    for (const QString& inviteId : left) {
        if (joined.contains(inviteId))
            continue;
        if (RecordIO::Count(QStringLiteral("SELECT COUNT(*) FROM CONTACT WHERE INVITE_ID = ?"), {inviteId}) ==
            0) {
            clsINVITE::Delete(inviteId);
            continue;
        }
        clsINVITE::RefreshPrimaryContact(inviteId);
        clsINVITE invite;
        if (invite.OpenRecord(inviteId, false)) {
            invite.RefreshLabeling(true, false);
            invite.Save(false);
        }
    }
}

// Consecutive contacts of one non-empty RSVP ID make one invitation; the number made.
int GroupByRSVP(const QList<clsCONTACT>& contacts, const QStringList& rsvpIds) {
    QHash<QString, QString> byRSVP = InvitationsByRSVP();
    QSet<QString> left;
    QSet<QString> joined;
    int made = 0;
    for (qsizetype i = 0; i < contacts.size();) {
        const QString& id = rsvpIds.at(i);
        qsizetype end = i + 1;
        while (end < contacts.size() && !id.isEmpty() && rsvpIds.at(end) == id)
            ++end;
        if (!id.isEmpty()) {
            JoinInvitation(id, contacts.mid(i, end - i), byRSVP, left, joined);
            ++made;
        }
        i = end;
    }
    RelabelLeftInvitations(left, joined);
    return made;
}

} // namespace

// ---- The preview row --------------------------------------------------------------------------------

QString clsImportRow::Name() const {
    clsCONTACT person;
    person.FIRST_NM = FIRST_NM;
    person.LAST_NM = LAST_NM;
    return person.LastFirst();
}

QString clsImportRow::Address() const {
    return AddressOf(*this).DisplayAddress(false);
}

QString clsImportRow::Field(const QString& field) const {
    const RowField member = MemberOf(field);
    return member ? this->*member : QString();
}

QString& clsImportRow::Field(const QString& field) {
    const RowField member = MemberOf(field);
    Q_ASSERT(member);
    return this->*member;
}

QString clsImportRow::CsvRecord() const {
    QStringList values;
    for (const clsIMPORT_FIELD::SystemField& field : clsIMPORT_FIELD::SystemFields())
        values << QuoteCSV(Field(field.Field));
    return values.join(QLatin1Char(','));
}

QString clsContactImport::CaptionsCsvRecord() {
    QStringList captions;
    for (const clsIMPORT_FIELD::SystemField& field : clsIMPORT_FIELD::SystemFields())
        captions << QuoteCSV(field.Caption);
    return captions.join(QLatin1Char(','));
}

// ---- Reading the file --------------------------------------------------------------------------------

bool clsContactImport::IsVCardFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && clsVCardReader::LooksLikeVCard(file.read(400));
}

clsImportTable clsContactImport::ReadFile(const QString& path, QChar delimiter) {
    QFile file(path);
    if (!file.exists())
        Refuse(path, 1, QStringLiteral("there is no such file"));
    if (file.size() > kMaxFileBytes)
        Refuse(path, 1,
               QStringLiteral("the file is %1 MB; a file of contacts is never above %2 MB, so this is "
                              "not one")
                   .arg(file.size() / (1024 * 1024))
                   .arg(kMaxFileBytes / (1024 * 1024)));
    if (!file.open(QIODevice::ReadOnly))
        Refuse(path, 1, QStringLiteral("the file cannot be read (%1)").arg(file.errorString()));
    const QByteArray bytes = file.readAll();
    if (bytes.trimmed().isEmpty())
        Refuse(path, 1, QStringLiteral("the file is empty"));
    RefuseBinary(path, bytes);
    try {
        if (clsVCardReader::LooksLikeVCard(bytes))
            return clsVCardReader::Read(bytes);
        const QString text = CsvText(path, bytes);
        return clsCSVReader::Read(text, delimiter.isNull() ? clsCSVReader::GuessDelimiter(text) : delimiter);
    } catch (const clsDbError& e) {
        if (e.Message().startsWith(QDir::toNativeSeparators(path)))
            throw;
        throw clsDbError(QDir::toNativeSeparators(path) + QStringLiteral(", ") + e.Message(), e.Code());
    }
}

QString clsContactImport::TemplateFile() {
    const QString path = QDir(gApp().TemplatePath()).filePath(QStringLiteral("Contacts.csv"));
    if (QFile::exists(path))
        return path;
    QFile file(path);
    if (!QDir().mkpath(gApp().TemplatePath()) || !file.open(QIODevice::WriteOnly))
        throw clsDbError(QStringLiteral("The template %1 cannot be written: %2")
                             .arg(QDir::toNativeSeparators(path), file.errorString()),
                         0);
    file.write("\xEF\xBB\xBF" + CaptionsCsvRecord().toUtf8() + "\r\n");
    return path;
}

// ---- The mapping ------------------------------------------------------------------------------------

QList<clsIMPORT_FIELD> clsContactImport::SuggestedMapping(const QStringList& headers) {
    QList<clsIMPORT_FIELD> mapping;
    QSet<QString> taken;
    for (qsizetype i = 0; i < headers.size(); ++i) {
        clsIMPORT_FIELD column;
        column.IMPORT_FIELD_ID = QString::number(i + 1);
        column.IMPORT_FIELD_NM = headers.at(i);
        column.ArrayIndex = static_cast<int>(i);
        const QString field = clsIMPORT_FIELD::SuggestMAP_IMPORT_FIELD_NM(headers.at(i));
        if (!field.isEmpty() && !taken.contains(field)) {
            column.MAP_IMPORT_FIELD_NM = field;
            taken.insert(field);
        }
        mapping << column;
    }
    return mapping;
}

void clsContactImport::SaveMapping(const QList<clsIMPORT_FIELD>& mapping) {
    clsTransaction tx(gDB());
    clsIMPORT_FIELD::Delete();
    for (clsIMPORT_FIELD column : mapping)
        column.Save(true);
    tx.Commit();
}

void clsContactImport::MapColumn(QList<clsIMPORT_FIELD>& mapping, const QString& column,
                                 const QString& field) {
    if (!MemberOf(field))
        throw clsDbError(QStringLiteral("\"%1\" is no field the import fills; the fields are %2.")
                             .arg(field,
                                  [] {
                                      QStringList names;
                                      for (const auto& entry : RowFields())
                                          names << entry.first;
                                      return names.join(QStringLiteral(", "));
                                  }()),
                         0);
    auto named = std::find_if(mapping.begin(), mapping.end(), [&](const clsIMPORT_FIELD& c) {
        return c.IMPORT_FIELD_NM.compare(column, Qt::CaseInsensitive) == 0;
    });
    if (named == mapping.end() && !column.isEmpty())
        throw clsDbError(QStringLiteral("The file has no column \"%1\".").arg(column), 0);
    for (clsIMPORT_FIELD& other : mapping) {
        if (other.MAP_IMPORT_FIELD_NM == field)
            other.MAP_IMPORT_FIELD_NM.clear();
    }
    if (named != mapping.end())
        named->MAP_IMPORT_FIELD_NM = field;
}

// ---- The preview ------------------------------------------------------------------------------------

QList<clsImportRow> clsContactImport::Preview(const clsImportTable& table,
                                              const QList<clsIMPORT_FIELD>& mapping) {
    struct Source {
        int Index;
        RowField Member;
        bool Several; // may hold several values joined
    };
    std::vector<Source> sources;
    for (const clsIMPORT_FIELD& column : mapping) {
        if (const RowField member = MemberOf(column.MAP_IMPORT_FIELD_NM); member && column.ArrayIndex >= 0)
            sources.push_back({column.ArrayIndex, member, member != &clsImportRow::NOTES_TX});
    }
    QList<clsImportRow> rows;
    rows.reserve(table.Rows.size());
    for (qsizetype r = 0; r < table.Rows.size(); ++r) {
        const QStringList& cells = table.Rows.at(r);
        clsImportRow& row = rows.emplaceBack();
        row.Line = table.Lines.value(r);
        for (const Source& source : sources) {
            const QString value = cells.value(source.Index);
            row.*(source.Member) = source.Several ? FirstOfSeveral(value).trimmed() : value;
        }
    }
    return rows;
}

void clsContactImport::MarkDuplicates(QList<clsImportRow>& rows) {
    QHash<QString, QString> existing;
    gDB().Stream(
        QStringLiteral("SELECT CONTACT_ID, FIRST_NM, LAST_NM, EMAIL_TX FROM CONTACT ORDER BY CONTACT_ID"), {},
        [](const QStringList&) {},
        [&](QStringList& c) {
            existing.insert(DuplicateKey(c.value(1), c.value(2), c.value(3)), c.value(0));
        });
    for (clsImportRow& row : rows)
        row.DuplicateOf = existing.value(
            DuplicateKey(StoredFirstName(row.FIRST_NM), StoredLastName(row.LAST_NM), row.EMAIL_TX));
}

// ---- The import -------------------------------------------------------------------------------------

void clsContactImport::FillContact(clsCONTACT& contact, const clsImportRow& row, bool isNew,
                                   bool fiveDigitZip) {
    const auto take = [isNew](QString& target, const QString& value) {
        if (isNew || !value.isEmpty())
            target = value;
    };
    take(contact.TITLE_TX, row.TITLE_TX);
    contact.FIRST_NM = StoredFirstName(row.FIRST_NM);
    take(contact.MIDDLE_NM, row.MIDDLE_NM);
    contact.LAST_NM = StoredLastName(row.LAST_NM);
    take(contact.SUFFIX_TX, row.SUFFIX_TX);
    take(contact.NICK_NM, row.NICK_NM);
    take(contact.EMAIL_TX, row.EMAIL_TX);
    take(contact.PHONE_TX, row.PHONE_TX);
    take(contact.PHONE2_TX, row.PHONE2_TX);
    take(contact.NOTES_TX, row.NOTES_TX);
    if (isNew || !AddressOf(row).DisplayAddress(false).isEmpty()) {
        contact.ADDRESS_TX = NormalizeLineBreaks(row.ADDRESS_TX);
        contact.CITY_TX = row.CITY_TX;
        contact.STATE_TX = row.STATE_TX;
        contact.ZIP_TX = fiveDigitZip ? FiveDigits(row.ZIP_TX) : row.ZIP_TX;
        contact.COUNTRY_TX = row.COUNTRY_TX;
        JoinAddressParts(contact);
    }
    contact.AB_LIST_CD = ListOf(row.AB_LIST_CD, contact.AB_LIST_CD, isNew);
    contact.FRIEND_OF_CD = FriendOf(row.FRIEND_OF_CD, contact.FRIEND_OF_CD);
    contact.GENDER_FG = GenderOf(row.GENDER_FG, contact.GENDER_FG);
    contact.CHILD_FG = Flag(row.CHILD_FG, contact.CHILD_FG);
    contact.OUT_OF_TOWNER_FG = Flag(row.OUT_OF_TOWNER_FG, contact.OUT_OF_TOWNER_FG);
    if (isNew) {
        contact.ATTENDING_FG = QStringLiteral("N");
        contact.PRIMARY_CONTACT_FG = QStringLiteral("N");
    }
}

clsImportResult clsContactImport::Import(const QList<clsImportRow>& rows, const clsImportOptions& options,
                                         const Progress& progress) {
    clsImportResult result;
    clsTransaction tx(gDB());
    QList<clsCONTACT> contacts;
    QStringList rsvpIds;
    const int total = static_cast<int>(rows.size());
    for (int i = 0; i < total; ++i) {
        const clsImportRow& row = rows.at(i);
        if (!row.Ticked) {
            ++result.LeftOut;
        } else {
            clsCONTACT contact;
            const bool isNew = !(options.ReplaceDuplicates && contact.OpenRecord(row.DuplicateOf));
            FillContact(contact, row, isNew, options.FiveDigitZip);
            // A person with an RSVP ID is labelled with the rest of the invitation below.
            contact.Save(isNew, !isNew && row.RSVP_ID.isEmpty());
            ++(isNew ? result.Added : result.Replaced);
            contacts << contact;
            rsvpIds << row.RSVP_ID;
        }
        if (progress && !progress(i + 1, total)) {
            clsImportResult stopped;
            stopped.Stopped = true;
            return stopped;
        }
    }
    result.Invitations = GroupByRSVP(contacts, rsvpIds);
    tx.Commit();
    return result;
}
