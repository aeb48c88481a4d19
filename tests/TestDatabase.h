#pragma once

#include "TestHome.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/modSchema.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

// A test's own data root with a fresh database in its current shape (tables and seed rows), opened
// through the global gateway. The shape is built once per test program into a template file, and each
// TestDatabase starts from a copy of it: a separate home that no other test sees. Everything is gone
// when the object goes.
class TestDatabase : public TestHome {
public:
    TestDatabase() {
        gDB().CloseConnection();
        const QString path = gApp().DatabasePath();
        if (!QDir().mkpath(QFileInfo(path).absolutePath()) || !QFile::copy(TemplateFile(), path))
            qFatal("test database: the template could not be copied to %s", qPrintable(path));
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

private:
    // The database in its current shape, made the first time a test asks for one.
    static QString TemplateFile() {
        static QTemporaryDir folder;
        static const QString file = [] {
            const QString path = folder.filePath(QStringLiteral("template.quilldata"));
            QString error;
            if (!folder.isValid() || !modSchema::CreateDatabaseFile(path, &error))
                qFatal("test database template: %s", qPrintable(error));
            return path;
        }();
        return file;
    }
};

// The message of the clsDbError the work throws; "" when it runs through.
inline QString ErrorOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const clsDbError& e) {
        return e.Message();
    }
    return {};
}
