#pragma once

#include "core/RecordIO.h"
#include "guests/clsCONTACT.h"

#include <QList>
#include <QString>

// A card that stands on a dining table and says who sits there: one card for the people of one
// invitation at one table, worded like the envelopes. The cards are made from the seating; a hand
// edit lasts until the next refresh, which rebuilds them all.
class clsTENTCARD {
public:
    QString TENTCARD_ID;
    QString TENTCARD_TX;      // the wording
    QString TENTCARD_SORT_TX; // the order within the table
    QString DINING_TABLE_ID;
    // Read only
    QString DINING_TABLE_NB;
    QString DINING_TABLE_NM;

    static const RecordTable<clsTENTCARD>& Table();

    // Creates the table when it is missing and fills it from the seating.
    static bool CreateTable();
    // Like every operation here, these throw clsDbError on a failure.
    static void Delete(const QString& tentcardId);
    static void DeleteAll();
    // The wording for the people of one card, in the etiquette chosen for tent cards.
    static QString GetTENTCARD_TX(const QList<clsCONTACT>& group);
    static QString GetTENTCARD_TX(const QList<clsCONTACT>& group, bool formal);
    bool OpenRecord(const QString& tentcardId);
    // By table number, then the sort text.
    static QList<clsTENTCARD> OpenRecords();
    // Rebuilds every card from who sits where: all or nothing. Throws on a failure.
    static void RefreshTentcards();
    void Save(bool Add);
    static long Total();

    // The etiquette of tent cards kept with the data (formal or personal).
    static bool EtiquetteIsFormal();

private:
    static const RecordTable<clsTENTCARD>& ReadTable();
    static QString SelectSQL();
};
