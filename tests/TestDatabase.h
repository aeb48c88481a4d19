#pragma once

#include "TestHome.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/modSchema.h"

#include <QtTest>

// A test's own data root with a fresh database in its current shape (tables and seed rows), opened
// through the global gateway. Everything is gone when the object goes.
class TestDatabase : public TestHome {
public:
    TestDatabase() {
        gDB().CloseConnection();
        QString error;
        const QString path = gApp().DatabasePath();
        if (!modSchema::CreateDatabaseFile(path, &error))
            qFatal("test database: %s", qPrintable(error));
        gDB().DatabasePath = path;
        if (!gDB().OpenConnection())
            qFatal("test database: %s", qPrintable(gDB().OpenError()));
    }
    ~TestDatabase() { gDB().CloseConnection(); }

    // Runs a statement and gives back the first value of the first row ("" when there is none).
    static QString Scalar(const QString& sql, const QVariantList& values = {}) {
        return gDB().Execute(sql, values).Scalar();
    }
    static void Exec(const QString& sql, const QVariantList& values = {}) { gDB().Execute(sql, values); }
};
