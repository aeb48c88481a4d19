#pragma once

#include "core/RecordIO.h"

#include <QList>
#include <QString>

// A wish of the couple about two people at the reception: keep them at one table ('T', with a strength
// from 1 to 100) or never at one table ('A'). A rule goes with either person when that person is deleted.
class clsSEATING_RULE {
public:
    QString SEATING_RULE_ID;
    QString CONTACT_ID;
    QString OTHER_CONTACT_ID;
    QString RULE_CD;   // 'T' keep together, 'A' keep apart
    QString WEIGHT_NB; // 1 to 100 for 'T'; empty for 'A'
    QString NOTES_TX;
    // Read only: the two people's names, first name first.
    QString CONTACT_NM;
    QString OTHER_CONTACT_NM;

    static inline const QString KeepTogether = QStringLiteral("T");
    static inline const QString KeepApart = QStringLiteral("A");
    static constexpr int MinWeight = 1;
    static constexpr int MaxWeight = 100;

    static const RecordTable<clsSEATING_RULE>& Table();

    // Creates the table when it is missing.
    static bool CreateTable();
    // Like every operation here, these throw clsDbError on a failure.
    static void Delete(const QString& key);
    bool OpenRecord(const QString& key);
    // Every rule, by the first person's name.
    static QList<clsSEATING_RULE> OpenRecords();
    // Refuses, in the words the user reads, two people that are not two different contacts, a kind that
    // is neither, or a strength outside 1 to 100; a 'A' rule keeps no strength.
    void Save(bool insert);
    // "Keep together (40)" or "Keep apart".
    QString KindText() const;
    // "Ann Lee and Bob Ray: Keep together (40)"
    QString Caption() const;

private:
    static const RecordTable<clsSEATING_RULE>& ReadTable();
    void Check();
};
