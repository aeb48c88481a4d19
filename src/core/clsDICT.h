#pragma once

#include <QList>
#include <QString>

// One generic record class for the small lookup tables (meals, payers, roles, titles, task groups,
// songlists, vendor categories). The object is told its kind first; every statement is built from the
// kind's table and columns. The budget categories have a kind too, but carry an estimate and have a
// class of their own for their records.
class clsDICT {
public:
    // The kinds that screens pass around. 5, 6 and 9 are the options screen's groups that are no
    // dictionaries; any number without a table gives an empty table name, and its SQL then fails.
    enum Kind : int {
        BudgetCategory = 0,
        Meal = 1,
        PaidBy = 2,
        Role = 3,
        Title = 4,
        TaskGroup = 7,
        Songlist = 8,
        VendorCategory = 10,
    };

    QString ID;
    QString TX;
    QString PRICE_NB;      // meals only
    QString SORT_ORDER_NB; // songlists only
    int DICT_TYPE = -1;    // set before any other call

    clsDICT() = default;
    explicit clsDICT(int kind) : DICT_TYPE(kind) {}

    // ---- Schema ----
    static bool CreateTable_PAID_BY_DICT();
    static bool CreateTable_SONGLIST_DICT();
    static bool CreateTable_TITLE_DICT();
    static bool CreateTable_VENDOR_CATEGORY_DICT();
    static bool Patch_MEAL_DICT_Add_PRICE_NB();

    // ---- Records ----
    // Every operation below throws clsDbError when the database refuses; whoever asked shows it.

    // Deletes the row; a row still in use is refused with the program's message. The roles of the
    // bride and the groom are refused too: they are never deleted.
    void Delete(const QString& key);
    // The key column and the table of this object's kind.
    QString DICT_ID() const { return DICT_ID_ByEnum(DICT_TYPE); }
    QString DICT_NAME() const { return DICT_NAME_ByEnum(DICT_TYPE); }
    QString DICT_TX() const { return DICT_TX_ByEnum(DICT_TYPE); }
    static QString DICT_NAME_ByEnum(int kind);
    static QString DICT_ID_ByEnum(int kind);
    static QString DICT_TX_ByEnum(int kind);
    // Rows of the kind's table.
    static long GetTotal(int kind);
    // Fills this object from the row with that key; no such row leaves it as it was.
    bool OpenRecord(const QString& key);
    // Every row of the kind, songlists in their own order, all others alphabetically. The kind is
    // also kept in this object.
    QList<clsDICT> OpenRecords(int kind);
    // INSERT (a new key, and for a songlist the next sort number) or UPDATE of the text and the extra
    // column. A refused save (a duplicate title, say) leaves the object as it was.
    void Save(bool insert);
    // Saves each row with its place in the list as its sort number, 1, 2, 3 ...; all or nothing.
    static void SaveSortOrder(QList<clsDICT> rows);

    // ---- Rules of the options screen ----
    // True for the kinds that are dictionaries edited here.
    static bool IsDictionary(int kind);
    // Rows that may be deleted: everything but the roles of the bride and the groom (they can be
    // renamed).
    static bool CanDelete(int kind, const QString& key);

private:
    static bool CreateAndSeed(const QString& table);
};
