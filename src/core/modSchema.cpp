#include "core/modSchema.h"

#include "core/clsApp.h"
#include "core/clsDB.h"
#include "platform/clsPrivateFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QTemporaryFile>

namespace {

// Column types: integer keys and numbers are INTEGER, amounts REAL, dates ISO text, everything else
// TEXT. Tables are STRICT, so a value that is not of its column's type is refused rather than kept.
const QMap<QString, QString>& Definitions() {
    static const QMap<QString, QString> ddl = {
        {"ROLE_DICT", "CREATE TABLE ROLE_DICT (ROLE_ID INTEGER NOT NULL CONSTRAINT ROLE_DICT_PK PRIMARY KEY, "
                      "ROLE_TX TEXT) STRICT"},
        {"MEAL_DICT", "CREATE TABLE MEAL_DICT (MEAL_ID INTEGER NOT NULL CONSTRAINT MEAL_DICT_PK PRIMARY KEY, "
                      "MEAL_TX TEXT, PRICE_NB REAL) STRICT"},
        {"TASK_GROUP_DICT", "CREATE TABLE TASK_GROUP_DICT (TASK_GROUP_ID INTEGER NOT NULL CONSTRAINT "
                            "TASK_GROUP_DICT_PK PRIMARY KEY, TASK_GROUP_TX TEXT) STRICT"},
        {"TITLE_DICT", "CREATE TABLE TITLE_DICT (TITLE_ID INTEGER NOT NULL CONSTRAINT TITLE_DICT_PK PRIMARY KEY, "
                       "TITLE_TX TEXT NOT NULL) STRICT"},
        {"PAID_BY_DICT", "CREATE TABLE PAID_BY_DICT (PAID_BY_ID INTEGER NOT NULL CONSTRAINT PAID_BY_PK PRIMARY KEY, "
                         "PAID_BY_TX TEXT NOT NULL) STRICT"},
        {"BUDGET_CATEGORY_DICT", "CREATE TABLE BUDGET_CATEGORY_DICT (BUDGET_CATEGORY_ID INTEGER NOT NULL "
                                 "CONSTRAINT BUDGET_CATEGORY_PK PRIMARY KEY, BUDGET_CATEGORY_TX TEXT NOT NULL, "
                                 "ESTIMATE_AMOUNT_NB REAL) STRICT"},
        {"VENDOR_CATEGORY_DICT", "CREATE TABLE VENDOR_CATEGORY_DICT (VENDOR_CATEGORY_ID INTEGER NOT NULL "
                                 "CONSTRAINT VENDOR_CATEGORY_PK PRIMARY KEY, VENDOR_CATEGORY_TX TEXT NOT NULL) STRICT"},
        {"SONGLIST_DICT", "CREATE TABLE SONGLIST_DICT (SONGLIST_ID INTEGER NOT NULL CONSTRAINT SONGLIST_PK PRIMARY "
                          "KEY, SONGLIST_TX TEXT NOT NULL, SORT_ORDER_NB INTEGER NOT NULL) STRICT"},
        {"INVITE", "CREATE TABLE INVITE (INVITE_ID INTEGER NOT NULL CONSTRAINT INVITE_PK PRIMARY KEY, "
                   "INVITE_RSVP_ID INTEGER, DISPLAY_AS_TX TEXT, OUTER_ENVELOPE_TX TEXT, INNER_ENVELOPE_TX TEXT, "
                   "INVITE_SENT_FG TEXT, RSVP_RECEIVED_FG TEXT, AUTO_UPDATE_FG TEXT) STRICT"},
        {"DINING_TABLE", "CREATE TABLE DINING_TABLE (DINING_TABLE_ID INTEGER NOT NULL CONSTRAINT DINING_TABLE_PK "
                         "PRIMARY KEY, DINING_TABLE_NB INTEGER, DINING_TABLE_NM TEXT, SEATS_NB INTEGER, "
                         "POS_X INTEGER, POS_Y INTEGER, DINING_TABLE_TYPE_ID INTEGER) STRICT"},
        {"FLIGHT", "CREATE TABLE FLIGHT (FLIGHT_ID INTEGER NOT NULL CONSTRAINT FLIGHT_PK PRIMARY KEY, "
                   "FLIGHT_NB INTEGER NOT NULL, FLIGHT_NM TEXT NOT NULL, DEPARTS_AIRPORT_NM TEXT NOT NULL, "
                   "DEPARTS_DT TEXT NOT NULL, ARRIVES_AIRPORT_NM TEXT NOT NULL, ARRIVES_DT TEXT NOT NULL, "
                   "POS_X INTEGER NOT NULL, POS_Y INTEGER NOT NULL, NOTES_TX TEXT) STRICT"},
        {"HOTEL", "CREATE TABLE HOTEL (HOTEL_ID INTEGER NOT NULL CONSTRAINT HOTEL_PK PRIMARY KEY, "
                  "HOTEL_NB INTEGER NOT NULL, HOTEL_NM TEXT NOT NULL, ADDRESS_TX TEXT, CONTACT_NM TEXT, "
                  "PHONE_TX TEXT, FAX_TX TEXT, EMAIL_TX TEXT, WEB_SITE_TX TEXT, ROOMS_NB INTEGER NOT NULL, "
                  "POS_X INTEGER NOT NULL, POS_Y INTEGER NOT NULL, NOTES_TX TEXT) STRICT"},
        {"EVENT", "CREATE TABLE EVENT (EVENT_ID INTEGER NOT NULL CONSTRAINT EVENT_PK PRIMARY KEY, EVENT_TX TEXT, "
                  "EVENT_DT TEXT, ADDRESS_TX TEXT, CITY_TX TEXT, STATE_TX TEXT, ZIP_TX TEXT, COUNTRY_TX TEXT, "
                  "CONTACT_NM TEXT, PHONE_TX TEXT, FAX_TX TEXT, EMAIL_TX TEXT, WEB_SITE_TX TEXT, NOTES_TX TEXT) "
                  "STRICT"},
        {"CONTACT",
         "CREATE TABLE CONTACT (CONTACT_ID INTEGER NOT NULL CONSTRAINT CONTACT_PK PRIMARY KEY, TITLE_TX TEXT, "
         "FIRST_NM TEXT, MIDDLE_NM TEXT, LAST_NM TEXT, SUFFIX_TX TEXT, NICK_NM TEXT, ADDRESS_TX TEXT, CITY_TX TEXT, "
         "STATE_TX TEXT, ZIP_TX TEXT, COUNTRY_TX TEXT, PHONE_TX TEXT, EMAIL_TX TEXT, FRIEND_OF_CD INTEGER, "
         "AB_LIST_CD TEXT, "
         "ROLE_ID INTEGER CONSTRAINT CONTACT_TO_ROLE_DICT_FK REFERENCES ROLE_DICT (ROLE_ID), "
         "INVITE_ID INTEGER CONSTRAINT CONTACT_TO_INVITE_FK REFERENCES INVITE (INVITE_ID), "
         "PRIMARY_CONTACT_FG TEXT, ATTENDING_FG TEXT, "
         "MEAL_ID INTEGER CONSTRAINT CONTACT_TO_MEAL_DICT_FK REFERENCES MEAL_DICT (MEAL_ID), "
         "DINING_TABLE_ID INTEGER CONSTRAINT CONTACT_TO_DINING_TABLE_FK REFERENCES DINING_TABLE (DINING_TABLE_ID), "
         "GUEST_OF_ID INTEGER, SORT_ORDER_NB INTEGER, OUT_OF_TOWNER_FG TEXT, "
         "FLIGHT_ID INTEGER CONSTRAINT CONTACT_TO_FLIGHT_FK REFERENCES FLIGHT (FLIGHT_ID), "
         "HOTEL_ID INTEGER CONSTRAINT CONTACT_TO_HOTEL_FK REFERENCES HOTEL (HOTEL_ID), "
         "PHONE2_TX TEXT, GENDER_FG TEXT, CHILD_FG TEXT, NOTES_TX TEXT) STRICT"},
        {"VENDOR", "CREATE TABLE VENDOR (VENDOR_ID INTEGER NOT NULL CONSTRAINT VENDOR_PK PRIMARY KEY, "
                   "VENDOR_NM TEXT, ADDRESS_TX TEXT, CITY_TX TEXT, STATE_TX TEXT, ZIP_TX TEXT, COUNTRY_TX TEXT, "
                   "CONTACT_NM TEXT, EMAIL_TX TEXT, PHONE_TX TEXT, FAX_TX TEXT, WEB_SITE_TX TEXT, NOTES_TX TEXT, "
                   "VENDOR_CATEGORY_ID INTEGER CONSTRAINT VENDOR_TO_VENDOR_CATEGORY_FK REFERENCES "
                   "VENDOR_CATEGORY_DICT (VENDOR_CATEGORY_ID), FILE_PATH_TX TEXT) STRICT"},
        {"BUDGET", "CREATE TABLE BUDGET (BUDGET_ID INTEGER NOT NULL CONSTRAINT BUDGET_PK PRIMARY KEY, "
                   "ACTUAL_AMOUNT_NB REAL, DUE_DT TEXT NOT NULL, PAID_DT TEXT, ITEM_NM TEXT, "
                   "VENDOR_ID INTEGER CONSTRAINT BUDGET_TO_VENDOR_FK REFERENCES VENDOR (VENDOR_ID), NOTES_TX TEXT, "
                   "BUDGET_CATEGORY_ID INTEGER CONSTRAINT BUDGET_TO_BUDGET_CATEGORY_FK REFERENCES "
                   "BUDGET_CATEGORY_DICT (BUDGET_CATEGORY_ID), "
                   "PAID_BY_ID INTEGER CONSTRAINT BUDGET_TO_PAID_BY_DICT_FK REFERENCES PAID_BY_DICT (PAID_BY_ID)) "
                   "STRICT"},
        {"TASK", "CREATE TABLE TASK (TASK_ID INTEGER NOT NULL CONSTRAINT TASK_PK PRIMARY KEY, TASK_NM TEXT, "
                 "TASK_GROUP_ID INTEGER, DUE_DT TEXT, COMPLETED_FG TEXT, NOTES_TX TEXT, SORT_ORDER_NB INTEGER) STRICT"},
        {"GIFT", "CREATE TABLE GIFT (GIFT_ID INTEGER NOT NULL CONSTRAINT GIFT_PK PRIMARY KEY, "
                 "EVENT_ID INTEGER, "
                 "CONTACT_ID INTEGER CONSTRAINT GIFT_TO_CONTACT_FK REFERENCES CONTACT (CONTACT_ID), "
                 "INVITE_ID INTEGER, GIFT_TX TEXT, THANK_YOU_SENT_FG TEXT, RECEIVED_DT TEXT, NOTES_TX TEXT) STRICT"},
        {"TIMELINE", "CREATE TABLE TIMELINE (TIMELINE_ID INTEGER NOT NULL CONSTRAINT TIMELINE_PK PRIMARY KEY, "
                     "TIMELINE_START_DT TEXT NOT NULL, TIMELINE_END_DT TEXT NOT NULL, TIMELINE_DESC TEXT NOT NULL, "
                     "CONTACT_NM TEXT, EVENT_ID INTEGER NOT NULL CONSTRAINT TIMELINE_TO_EVENT_FK REFERENCES EVENT "
                     "(EVENT_ID) ON DELETE CASCADE, NOTES_TX TEXT) STRICT"},
        {"INVITE_WIDGET", "CREATE TABLE INVITE_WIDGET (INVITE_WIDGET_ID INTEGER NOT NULL CONSTRAINT "
                          "INVITE_WIDGET_PK PRIMARY KEY, "
                          "EVENT_ID INTEGER NOT NULL CONSTRAINT INVITE_WIDGET_TO_EVENT_FK REFERENCES EVENT (EVENT_ID) "
                          "ON DELETE CASCADE, "
                          "INVITE_ID INTEGER CONSTRAINT INVITE_WIDGET_TO_INVITE_FK REFERENCES INVITE (INVITE_ID) "
                          "ON DELETE CASCADE, "
                          "CONTACT_ID INTEGER CONSTRAINT INVITE_WIDGET_TO_CONTACT_FK REFERENCES CONTACT (CONTACT_ID) "
                          "ON DELETE CASCADE) STRICT"},
        {"NOTEBOOK", "CREATE TABLE NOTEBOOK (NOTEBOOK_ID INTEGER NOT NULL CONSTRAINT NOTEBOOK_ID_PK PRIMARY KEY, "
                     "NOTEBOOK_DT TEXT NOT NULL, SUBJECT_TX TEXT NOT NULL, FILE_PATH_TX TEXT, NOTES_TX TEXT) STRICT"},
        {"TENTCARD", "CREATE TABLE TENTCARD (TENTCARD_ID INTEGER NOT NULL CONSTRAINT TENTCARD_ID_PK PRIMARY KEY, "
                     "TENTCARD_TX TEXT NOT NULL, TENTCARD_SORT_TX TEXT NOT NULL, DINING_TABLE_ID INTEGER NOT NULL "
                     "CONSTRAINT TENTCARD_TO_DINING_TABLE_FK REFERENCES DINING_TABLE (DINING_TABLE_ID)) STRICT"},
        {"SONG", "CREATE TABLE SONG (SONG_ID INTEGER NOT NULL CONSTRAINT SONG_PK PRIMARY KEY, "
                 "SONG_FILE_PATH_TX TEXT NOT NULL, SORT_ORDER_NB INTEGER NOT NULL, SONGLIST_ID INTEGER NOT NULL "
                 "CONSTRAINT SONG_TO_SONGLIST_FK REFERENCES SONGLIST_DICT (SONGLIST_ID), NOTES_TX TEXT) STRICT"},
        {"WORDING", "CREATE TABLE WORDING (WORDING_ID INTEGER NOT NULL CONSTRAINT WORDING_PK PRIMARY KEY, "
                    "WORDING_TX TEXT) STRICT"},
        {"VOWREN", "CREATE TABLE VOWREN (VOWREN_ID INTEGER NOT NULL CONSTRAINT VOWREN_PK PRIMARY KEY, "
                   "VOWREN_TX TEXT) STRICT"},
        {"SEATING_RULE", "CREATE TABLE SEATING_RULE (SEATING_RULE_ID INTEGER NOT NULL CONSTRAINT SEATING_RULE_PK "
                         "PRIMARY KEY, "
                         "CONTACT_ID INTEGER NOT NULL CONSTRAINT SEATING_RULE_TO_CONTACT_FK REFERENCES CONTACT "
                         "(CONTACT_ID) ON DELETE CASCADE, "
                         "OTHER_CONTACT_ID INTEGER NOT NULL CONSTRAINT SEATING_RULE_TO_OTHER_CONTACT_FK REFERENCES "
                         "CONTACT (CONTACT_ID) ON DELETE CASCADE, "
                         "RULE_CD TEXT NOT NULL CHECK (RULE_CD IN ('T', 'A')), "
                         "WEIGHT_NB INTEGER CHECK (WEIGHT_NB BETWEEN 1 AND 100), NOTES_TX TEXT) STRICT"},
        {"IMPORT_FIELD", "CREATE TABLE IMPORT_FIELD (IMPORT_FIELD_ID INTEGER NOT NULL CONSTRAINT IMPORT_FIELD_PK "
                         "PRIMARY KEY, IMPORT_FIELD_NM TEXT, MAP_IMPORT_FIELD_NM TEXT) STRICT"},
    };
    return ddl;
}

QMap<QString, modSchema::SeedRows>& RegisteredSeeds() {
    static QMap<QString, modSchema::SeedRows> seeds;
    return seeds;
}

using modSchema::InsertRows;

// Rows numbered from 1 in the order given.
void InsertNumbered(clsDB& db, const QString& table, const QString& key, const QString& text,
                    const QStringList& values) {
    QList<QVariantList> rows;
    for (int i = 0; i < values.size(); ++i)
        rows.append({i + 1, values[i]});
    InsertRows(db, table, {key, text}, rows);
}

QString EtiquetteText() { return gApp().EtiquetteIsFormal() ? QStringLiteral("True") : QStringLiteral("False"); }

} // namespace

namespace modSchema {

void InsertRows(clsDB& db, const QString& table, const QStringList& columns, const QList<QVariantList>& rows) {
    QStringList marks;
    for (qsizetype i = 0; i < columns.size(); ++i)
        marks << QStringLiteral("?");
    const QString sql = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                            .arg(table, columns.join(QStringLiteral(", ")), marks.join(QStringLiteral(", ")));
    for (const QVariantList& row : rows)
        db.Execute(sql, row);
}

void RegisterSeed(const QString& table, SeedRows seed) { RegisteredSeeds().insert(table, std::move(seed)); }

QStringList TableNames() {
    return {"ROLE_DICT", "MEAL_DICT",     "TASK_GROUP_DICT", "TITLE_DICT", "PAID_BY_DICT", "BUDGET_CATEGORY_DICT",
            "VENDOR_CATEGORY_DICT", "SONGLIST_DICT", "INVITE", "DINING_TABLE", "FLIGHT", "HOTEL", "EVENT",
            "CONTACT",   "VENDOR",        "BUDGET",          "TASK",       "GIFT",         "TIMELINE",
            "INVITE_WIDGET", "NOTEBOOK",  "TENTCARD",        "SONG",       "WORDING",      "VOWREN",
            "IMPORT_FIELD", "SEATING_RULE"};
}

QString TableDDL(const QString& table) { return Definitions().value(table); }

QStringList IndexDDL(const QString& table) {
    if (table == QLatin1String("BUDGET_CATEGORY_DICT"))
        return {QStringLiteral("CREATE UNIQUE INDEX BUDGET_CATEGORY_TX_INDEX ON BUDGET_CATEGORY_DICT "
                               "(BUDGET_CATEGORY_TX COLLATE NOCASE)")};
    if (table == QLatin1String("CONTACT"))
        return {QStringLiteral("CREATE INDEX CONTACT_INVITE_ID_INDEX ON CONTACT (INVITE_ID)"),
                QStringLiteral("CREATE INDEX CONTACT_GUEST_OF_ID_INDEX ON CONTACT (GUEST_OF_ID)")};
    if (table == QLatin1String("SEATING_RULE"))
        return {QStringLiteral("CREATE INDEX SEATING_RULE_CONTACT_ID_INDEX ON SEATING_RULE (CONTACT_ID)"),
                QStringLiteral("CREATE INDEX SEATING_RULE_OTHER_CONTACT_ID_INDEX ON SEATING_RULE (OTHER_CONTACT_ID)")};
    if (table == QLatin1String("TITLE_DICT"))
        return {QStringLiteral("CREATE UNIQUE INDEX TITLE_TX_INDEX ON TITLE_DICT (TITLE_TX COLLATE NOCASE)")};
    return {};
}

void CreateMissingIndexes(clsDB& db) {
    for (const QString& table : TableNames()) {
        if (!db.TableExists(table))
            continue;
        for (QString index : IndexDDL(table)) {
            index.replace(QRegularExpression(QStringLiteral("^CREATE (UNIQUE )?INDEX ")),
                          QStringLiteral("CREATE \\1INDEX IF NOT EXISTS "));
            db.ExecuteScript(index);
        }
    }
}

bool CreateTableIfMissing(clsDB& db, const QString& table) {
    if (db.TableExists(table))
        return false;
    db.ExecuteScript(TableDDL(table));
    for (const QString& index : IndexDDL(table))
        db.ExecuteScript(index);
    return true;
}

int ReportColour(int index) {
    static const int colours[3][3] = {{170, 194, 234}, {221, 231, 247}, {200, 200, 200}};
    if (index < 0 || index > 2)
        return 0;
    const auto& c = colours[index];
    return c[0] + 256 * c[1] + 65536 * c[2];
}

void SeedTable(clsDB& db, const QString& table) {
    if (table == QLatin1String("ROLE_DICT")) {
        InsertNumbered(db, table, "ROLE_ID", "ROLE_TX",
                       {"Bride", "Groom", "Father of the Bride", "Mother of the Bride", "Father of the Groom",
                        "Mother of the Groom", "Maid of Honor", "Best Man", "Bridesmaid", "Groomsman",
                        "Flower Girl", "Ring Bearer", "Usher", "Officiant", "Reader", "Guest Book Attendant",
                        "Grandparent", "Guest"});
    } else if (table == QLatin1String("MEAL_DICT")) {
        InsertRows(db, table, {"MEAL_ID", "MEAL_TX", "PRICE_NB"},
                   {{1, "Beef", 0.0}, {2, "Chicken", 0.0}, {3, "Fish", 0.0}, {4, "Vegetarian", 0.0},
                    {5, "Vegan", 0.0}, {6, "Children's Meal", 0.0}});
    } else if (table == QLatin1String("TASK_GROUP_DICT")) {
        const QStringList labels = {"1 year+",    "10-12 months", "6-9 months", "4-6 months",
                                    "2-3 months", "1-2 months",   "3 weeks",    "1-2 weeks",
                                    "Day before", "Wedding day",  "After the wedding"};
        QList<QVariantList> rows;
        for (int i = 0; i < labels.size(); ++i)
            rows.append({i, labels[i]});
        InsertRows(db, table, {"TASK_GROUP_ID", "TASK_GROUP_TX"}, rows);
    } else if (table == QLatin1String("TITLE_DICT")) {
        InsertNumbered(db, table, "TITLE_ID", "TITLE_TX",
                       {"Dr.", "Judge", "Miss", "Mr.", "Mrs.", "Ms.", "Pastor", "Professor", "Rabbi", "Rev.", "Sr.",
                        "Sra."});
    } else if (table == QLatin1String("PAID_BY_DICT")) {
        InsertNumbered(db, table, "PAID_BY_ID", "PAID_BY_TX",
                       {"Bride", "Groom", "Bride and Groom", "Bride's Family", "Groom's Family"});
    } else if (table == QLatin1String("BUDGET_CATEGORY_DICT")) {
        const QStringList names = {"Stationery", "Fashion", "Ceremony", "Reception", "Flowers", "Music",
                                   "Photography/Videography", "Hotels/Transportation", "Honeymoon", "Miscellaneous"};
        QList<QVariantList> rows;
        for (int i = 0; i < names.size(); ++i)
            rows.append({i + 1, names[i], 0.0});
        InsertRows(db, table, {"BUDGET_CATEGORY_ID", "BUDGET_CATEGORY_TX", "ESTIMATE_AMOUNT_NB"}, rows);
    } else if (table == QLatin1String("VENDOR_CATEGORY_DICT")) {
        InsertNumbered(db, table, "VENDOR_CATEGORY_ID", "VENDOR_CATEGORY_TX",
                       {"Miscellaneous", "Baker", "Catering", "Ceremony Site", "Entertainment: DJ", "Florist",
                        "Lodging", "Officiant", "Photographer", "Reception Site", "Stationery", "Videographer",
                        "Wedding/Event Planner"});
    } else if (table == QLatin1String("SONGLIST_DICT")) {
        InsertRows(db, table, {"SONGLIST_ID", "SONGLIST_TX", "SORT_ORDER_NB"},
                   {{1, "Ceremony", 1}, {2, "Reception", 2}});
    } else if (table == QLatin1String("EVENT")) {
        InsertRows(db, table, {"EVENT_ID", "EVENT_TX"}, {{1, "Wedding Day"}});
    } else if (table == QLatin1String("CONTACT")) {
        const QStringList columns = {"CONTACT_ID", "ROLE_ID",    "ATTENDING_FG", "GENDER_FG",      "CHILD_FG",
                                     "FRIEND_OF_CD", "AB_LIST_CD", "PRIMARY_CONTACT_FG", "OUT_OF_TOWNER_FG"};
        InsertRows(db, table, columns,
                   {{1, 1, "Y", "F", "N", 1, "A", "N", "N"}, {2, 2, "Y", "M", "N", 2, "A", "N", "N"}});
    } else if (table == QLatin1String("WORDING")) {
        InsertRows(db, table, {"WORDING_ID"}, {{1}, {2}, {3}});
    } else if (table == QLatin1String("VOWREN")) {
        InsertRows(db, table, {"VOWREN_ID", "VOWREN_TX"},
                   {{1, "1"}, {2, "1"}, {3, "0"}, {4, QString::number(ReportColour(0))},
                    {5, QString::number(ReportColour(1))}, {6, QString::number(ReportColour(2))},
                    {7, EtiquetteText()}, {8, EtiquetteText()}, {9, QString::number(gApp().GoogleMapIndex())}});
    }
    if (const auto seed = RegisteredSeeds().constFind(table); seed != RegisteredSeeds().constEnd())
        (*seed)(db);
}

void CreateCurrentSchema(clsDB& db) {
    // Without the subsystems' seed rows a new wedding would start without its checklist, unnoticed.
    if (RegisteredSeeds().isEmpty())
        throw clsDbError(QStringLiteral("The program was started without the seed rows of its subsystems."), 0);
    clsTransaction tx(db);
    for (const QString& table : TableNames()) {
        db.ExecuteScript(TableDDL(table));
        for (const QString& index : IndexDDL(table))
            db.ExecuteScript(index);
    }
    for (const QString& table : TableNames())
        SeedTable(db, table);
    db.StampIdentity(DbIdentity::kSchemaVersion);
    tx.Commit();
}

bool CreateDatabaseFile(const QString& path, QString* error) {
    auto fail = [error](const QString& text) {
        if (error)
            *error = text;
        return false;
    };
    const QFileInfo target(path);
    if (target.exists())
        return fail(QStringLiteral("\"%1\" exists already; it was left as it is.").arg(path));
    if (!QDir().mkpath(target.absolutePath()))
        return fail(QStringLiteral("The folder \"%1\" could not be created. Check that you may write there.")
                        .arg(target.absolutePath()));
    const QString temp = target.absoluteFilePath() + QStringLiteral(".new");
    QFile::remove(temp);
    // Readable by its owner only from the first byte; the engine keeps that mode, and so does its journal.
    if (QString why; !clsPrivateFile::CreateNew(temp, &why))
        return fail(QStringLiteral("A new database could not be written in \"%1\": %2").arg(target.absolutePath(), why));
    {
        clsDB db;
        db.DatabasePath = temp;
        try {
            if (!db.OpenConnection())
                throw clsDbError(db.OpenError(), 0);
            CreateCurrentSchema(db);
        } catch (const clsDbError& e) {
            db.CloseConnection();
            QFile::remove(temp);
            return fail(QStringLiteral("A new database could not be made at \"%1\": %2").arg(path, e.Message()));
        }
    }
    if (!QFile::rename(temp, target.absoluteFilePath())) {
        QFile::remove(temp);
        return fail(QStringLiteral("The new database could not be moved to \"%1\".").arg(path));
    }
    return true;
}

} // namespace modSchema
