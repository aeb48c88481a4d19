#include "TestDatabase.h"
#include "UiTestTools.h"
#include "seating/clsDINING_TABLE.h"
#include "seating/ui/frmTable.h"
#include "seating/ui/frmTableSwap.h"
#include "seating/ui/modTableShapes.h"

#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QtTest>
#include <memory>

using UiTestTools::Child;

namespace {

QString Scalar(const QString& sql, const QVariantList& values = {}) {
    return TestDatabase::Scalar(sql, values);
}

void AddTable(int id, int number, int seats, const QString& label = QString(), int shape = 1) {
    TestDatabase::Exec("INSERT INTO DINING_TABLE VALUES (?, ?, ?, ?, 0, 0, ?)",
                       {id, number, label.isEmpty() ? QVariant() : label, seats, shape});
}

void SeatGuests(int table, int count, int firstId) {
    for (int i = 0; i < count; ++i)
        TestDatabase::Exec(
            "INSERT INTO CONTACT (CONTACT_ID, FIRST_NM, LAST_NM, ATTENDING_FG, DINING_TABLE_ID) "
            "VALUES (?, 'Guest', ?, 'Y', ?)",
            {firstId + i, QStringLiteral("Number%1").arg(i), table});
}

QStringList Items(QComboBox* combo) {
    QStringList items;
    for (int i = 0; i < combo->count(); ++i)
        items << combo->itemText(i);
    return items;
}

void Retype(QWidget* form, const QString& name, const QString& text) {
    auto* edit = Child<QLineEdit>(form, name);
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

} // namespace

class tst_TableDialogs : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void opensInItsMode_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("seats");
        QTest::addColumn<QString>("shape");
        QTest::addColumn<bool>("countShown");
        QTest::newRow("adding takes the next number") << ""
                                                      << "Add Table"
                                                      << "8"
                                                      << "8"
                                                      << "opt_1" << true;
        QTest::newRow("editing shows the table") << "2"
                                                 << "Edit Table"
                                                 << "7"
                                                 << "12"
                                                 << "opt_4" << false;
    }
    void opensInItsMode() {
        QFETCH(QString, key);
        QFETCH(QString, title);
        QFETCH(QString, number);
        QFETCH(QString, seats);
        QFETCH(QString, shape);
        QFETCH(bool, countShown);
        AddTable(1, 3, 8);
        AddTable(2, 7, 12, "Family", 4);
        frmTable form(key);
        form.show();
        QCOMPARE(form.windowTitle(), title);
        QCOMPARE(Child<QLineEdit>(&form, "txt_0")->text(), number);
        QCOMPARE(Child<QComboBox>(&form, "cbo_1")->currentText(), seats);
        QVERIFY(Child<QRadioButton>(&form, shape)->isChecked());
        QCOMPARE(Child<QWidget>(&form, "picAdd")->isVisible(), countShown);
        // Unchanged, an edit has nothing to save; a new table can be saved as offered.
        QCOMPARE(Child<QPushButton>(&form, "cmdSave")->isEnabled(), key.isEmpty());
    }

    void seatsNeverBelowTheGuests_data() {
        QTest::addColumn<int>("seats");
        QTest::addColumn<int>("seated");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::newRow("empty table") << 8 << 0 << "1"
                                     << "30";
        QTest::newRow("over-full") << 4 << 6 << "6"
                                   << "30";
        QTest::newRow("more seats than the list") << 40 << 35 << "35"
                                                  << "40";
    }
    void seatsNeverBelowTheGuests() {
        QFETCH(int, seats);
        QFETCH(int, seated);
        QFETCH(QString, first);
        QFETCH(QString, last);
        AddTable(1, 1, seats);
        SeatGuests(1, seated, 10);
        frmTable form(QStringLiteral("1"));
        auto* combo = Child<QComboBox>(&form, "cbo_1");
        QCOMPARE(Items(combo).first(), first);
        QCOMPARE(Items(combo).last(), last);
        QCOMPARE(combo->currentText(), QString::number(std::max(seats, seated)));
    }

    void refusedNumbersKeepTheDialogOpen_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        const QString inUse = QStringLiteral("Table number is already in use.");
        QTest::newRow("adding a number in use") << ""
                                                << "3" << inUse;
        QTest::newRow("editing to another's number") << "2"
                                                     << "3" << inUse;
    }
    void refusedNumbersKeepTheDialogOpen() {
        QFETCH(QString, key);
        QFETCH(QString, typed);
        QFETCH(QString, message);
        AddTable(1, 3, 8);
        AddTable(2, 7, 8, "Family");
        frmTable form(key);
        form.show();
        Retype(&form, "txt_0", typed);
        QSignalSpy added(&form, &frmEditorBase::Added);
        QSignalSpy updated(&form, &frmEditorBase::Updated);
        QTest::mouseClick(Child<QPushButton>(&form, "cmdSave"), Qt::LeftButton);
        QCOMPARE(db->Messages().Prompts, QStringList{message});
        QCOMPARE(db->Messages().Titles, QStringList{"Vowren"});
        QVERIFY(form.isVisible());
        QCOMPARE(added.size() + updated.size(), 0);
        QCOMPARE(Scalar("SELECT GROUP_CONCAT(DINING_TABLE_NB) FROM (SELECT * FROM DINING_TABLE ORDER BY 1)"),
                 QStringLiteral("3,7"));
    }

    void addingManyFillsRowsOfTwelve() {
        frmTable form{QString()};
        form.show();
        Retype(&form, "txt_1", "Family");
        Child<QRadioButton>(&form, "opt_3")->click();
        Child<QComboBox>(&form, "cbo_1")->setCurrentText("10");
        Child<QComboBox>(&form, "cbo_0")->setCurrentText("13");
        QVERIFY(!Child<QLineEdit>(&form, "txt_1")->isEnabled());
        QSignalSpy added(&form, &frmEditorBase::Added);
        QTest::mouseClick(Child<QPushButton>(&form, "cmdSave"), Qt::LeftButton);
        QVERIFY(db->Messages().Prompts.isEmpty());
        QVERIFY(!form.isVisible());
        QCOMPARE(added.size(), 13);
        QCOMPARE(Scalar("SELECT COUNT(*) FROM DINING_TABLE WHERE SEATS_NB = 10 AND DINING_TABLE_TYPE_ID = 3 "
                        "AND DINING_TABLE_NM IS NULL"),
                 QStringLiteral("13"));
        const QString thirteenth = added.at(12).at(0).toString();
        QCOMPARE(Scalar("SELECT DINING_TABLE_NB || ':' || POS_X || ':' || POS_Y FROM DINING_TABLE "
                        "WHERE DINING_TABLE_ID = ?",
                        {thirteenth}),
                 QStringLiteral("13:0:") +
                     Scalar("SELECT POS_X FROM DINING_TABLE WHERE DINING_TABLE_NB = 2"));
        QVERIFY(Scalar("SELECT POS_X FROM DINING_TABLE WHERE DINING_TABLE_NB = 2").toInt() > 0);
    }

    void editingSavesAndTellsTheOpener() {
        AddTable(1, 3, 8);
        SeatGuests(1, 2, 10);
        frmTable form(QStringLiteral("1"));
        form.show();
        Retype(&form, "txt_0", "5");
        Retype(&form, "txt_1", "Friends");
        Child<QComboBox>(&form, "cbo_1")->setCurrentText("6");
        Child<QRadioButton>(&form, "opt_2")->click();
        QSignalSpy updated(&form, &frmEditorBase::Updated);
        QTest::mouseClick(Child<QPushButton>(&form, "cmdSave"), Qt::LeftButton);
        QCOMPARE(updated.size(), 1);
        QCOMPARE(updated.at(0).at(0).toString(), QStringLiteral("1"));
        QCOMPARE(Scalar("SELECT DINING_TABLE_NB || DINING_TABLE_NM || SEATS_NB || DINING_TABLE_TYPE_ID "
                        "FROM DINING_TABLE"),
                 QStringLiteral("5Friends62"));
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT WHERE DINING_TABLE_ID = 1"), QStringLiteral("2"));
    }

    void swapNeedsTwoDifferentTables_data() {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("one chosen") << "1"
                                    << "" << false;
        QTest::newRow("the same twice") << "1"
                                        << "1" << false;
        QTest::newRow("two tables") << "1"
                                    << "2" << true;
    }
    void swapNeedsTwoDifferentTables() {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(bool, enabled);
        AddTable(1, 1, 8);
        AddTable(2, 2, 8);
        frmTableSwap form;
        form.SelectTables(first, second);
        QCOMPARE(Child<QPushButton>(&form, "cmdSwap")->isEnabled(), enabled);
    }

    void swapExchangesGuestsAndLabels() {
        AddTable(1, 1, 8, "Family");
        AddTable(2, 2, 4, "Friends");
        SeatGuests(1, 3, 10);
        SeatGuests(2, 1, 20);
        TestDatabase::Exec("UPDATE CONTACT SET GUEST_OF_ID = 10 WHERE CONTACT_ID = 11");
        frmTableSwap form;
        form.show();
        form.SelectTables("1", "2");
        QCOMPARE(Child<QListWidget>(&form, "lvw_0")->count(), 3);
        QCOMPARE(Child<QListWidget>(&form, "lvw_1")->count(), 1);
        QSignalSpy swapped(&form, &frmTableSwap::Swap);
        QTest::mouseClick(Child<QPushButton>(&form, "cmdSwap"), Qt::LeftButton);
        QCOMPARE(swapped.size(), 1);
        QVERIFY(!form.isVisible());
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT WHERE DINING_TABLE_ID = 2"), QStringLiteral("3"));
        QCOMPARE(Scalar("SELECT DINING_TABLE_NM FROM DINING_TABLE WHERE DINING_TABLE_NB = 1"),
                 QStringLiteral("Friends"));
    }

    // Each shape stays inside its box and keeps its proportions; the highlighted look differs.
    void shapesFitTheirBox_data() {
        QTest::addColumn<int>("shape");
        QTest::addColumn<bool>("wide");
        QTest::addColumn<bool>("tall");
        QTest::newRow("round") << 1 << false << false;
        QTest::newRow("square") << 2 << false << false;
        QTest::newRow("banquet across") << 3 << true << false;
        QTest::newRow("banquet upright") << 4 << false << true;
    }
    void shapesFitTheirBox() {
        QFETCH(int, shape);
        QFETCH(bool, wide);
        QFETCH(bool, tall);
        const QSizeF size = TableShapeSize(shape);
        QCOMPARE(size.width() > size.height(), wide);
        QCOMPARE(size.height() > size.width(), tall);
        const auto paint = [shape](bool highlighted) {
            QImage image(100, 100, QImage::Format_ARGB32);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            PaintTableShape(painter, QRectF(20, 20, 60, 60), shape, highlighted);
            return image;
        };
        const QImage normal = paint(false);
        QVERIFY(normal != paint(true));
        QRect painted;
        for (int y = 0; y < normal.height(); ++y)
            for (int x = 0; x < normal.width(); ++x)
                if (qAlpha(normal.pixel(x, y)) > 0)
                    painted |= QRect(x, y, 1, 1);
        QVERIFY(QRect(19, 19, 62, 62).contains(painted));
        QCOMPARE(painted.width() > painted.height() + 4, wide);
        QCOMPARE(painted.height() > painted.width() + 4, tall);
    }
};

QTEST_MAIN(tst_TableDialogs)
#include "tst_TableDialogs.moc"
