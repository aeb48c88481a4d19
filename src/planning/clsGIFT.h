#pragma once

#include "core/RecordIO.h"

#include <QList>
#include <QString>
#include <QStringList>

// A gift received at an event, from a single contact or from a whole invitation (a household or a
// couple invited together), and whether the thank-you note has gone out. Only one of CONTACT_ID and
// INVITE_ID is filled: the one used tells what kind of giver the gift has.
class clsGIFT {
public:
    QString GIFT_ID;
    QString EVENT_ID;
    QString EVENT_TX; // from the join
    QString CONTACT_ID;
    QString INVITE_ID;
    QString GIFT_TX;
    QString THANK_YOU_SENT_FG; // 'Y' or 'N'
    QString RECEIVED_DT;
    QString NOTES_TX;

    // The giver, filled when the gift is opened. For a contact: the name as "Last, First Middle
    // Suffix", the name with title for the envelope, and the contact's address; for an invitation: its
    // display name, its outer envelope and its primary contact's address.
    QString DISPLAY_NM; // the sort key: a contact's last name or an invitation's display name
    QString GIVER_NM;
    QString OUTER_ENVELOPE_TX;
    QString OUTER_ENVELOPE_ADDRESS_TX;

    // The filters of the gifts page: all, thank-you notes sent, notes unsent.
    enum Filter : int { AllGifts = 0, NotesSent = 1, NotesUnsent = 2 };

    static const RecordTable<clsGIFT>& Table();

    // Widens GIFT_TX of an older table to the current shape.
    static void Patch_5_Apply();
    static void Patch_7_Apply();
    QString RECEIVED_DT_DDMMMYYYY() const;
    QString OUTER_ENVELOPE_ADDRESS_TX_Text(bool multiLine) const;
    QString THANK_YOU_SENT_FG_Text() const;

    // Every operation below that reads or writes throws clsDbError when the database refuses.

    void Delete(const QString& giftId);
    // Deletes these gifts, all or none.
    static void Delete(const QStringList& giftIds);
    // Marks the thank-you note of these gifts as sent or not, all or none.
    static void SetThankYouSent(const QStringList& giftIds, bool sent);
    // A custom condition (with its word WHERE) takes the place of the filter.
    long GetTotal(int filter, const QString& customWhere = QString()) const;
    bool OpenRecord(const QString& giftId);
    // Gifts of contacts and invitations sorted together by last name or display name.
    QList<clsGIFT> OpenRecords(int filter, const QString& customWhere = QString()) const;
    // The id of the other kind of giver is written as NULL. A refused save leaves the object as it was.
    void Save(bool isNew);

private:
    static const RecordTable<clsGIFT>& ReadTable();
    static QString SelectSql();
    static QString WhereSql(int filter, const QString& customWhere);
    static QList<clsGIFT> Open(const QString& sql, const QVariantList& values);
};
