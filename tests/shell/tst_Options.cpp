#include "UiTestTools.h"
#include "guests/GuestTestData.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/controls/usrNumberBox.h"
#include "shell/options/frmBackup.h"
#include "shell/options/frmBrideGroomIcons.h"
#include "shell/options/frmOptions.h"
#include "shell/options/frmOptionsEntry.h"

#include "core/clsVOWREN.h"
#include "platform/clsLabelDesk.h"

#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>
#include <memory>
#include <sqlite3.h>

using namespace GuestTestData;
using namespace UiTestTools;

namespace {

std::unique_ptr<frmOptions> OpenOptions(int kind) {
    auto dialog = std::make_unique<frmOptions>(nullptr, kind);
    dialog->show();
    return dialog;
}

// A panel that was just shown lays itself out first, as it would before a user could click. The click
// lands near the left edge, where a radio button's mark and a link's caption begin.
void Click(QWidget* widget) {
    QCoreApplication::sendPostedEvents();
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(qMin(8, widget->width() / 2), widget->height() / 2));
}

// The editor that is open now (a closed one may wait for its deletion a little longer).
frmOptionsEntry* OpenEditor(const frmOptions& options) {
    for (frmOptionsEntry* editor : options.findChildren<frmOptionsEntry*>()) {
        if (editor->isVisible())
            return editor;
    }
    return nullptr;
}

void SelectRow(const frmOptions& options, const QString& text) {
    auto* grid = Child<QTreeWidget>(options, QStringLiteral("grid"));
    const QList<QTreeWidgetItem*> found = grid->findItems(text, Qt::MatchExactly);
    QVERIFY2(!found.isEmpty(), qPrintable(text));
    grid->setCurrentItem(found.first());
}

void TypeText(frmOptionsEntry* editor, const QString& text) {
    auto* txt = Child<QLineEdit>(*editor, QStringLiteral("txt"));
    txt->clear();
    QTest::keyClicks(txt, text);
}

QStringList GridTexts(const frmOptions& options) {
    auto* grid = Child<QTreeWidget>(options, QStringLiteral("grid"));
    QStringList texts;
    for (int i = 0; i < grid->topLevelItemCount(); ++i)
        texts << grid->topLevelItem(i)->text(0);
    return texts;
}

QString CountOf(const QString& table, const QString& where = QStringLiteral("1")) {
    return TestDatabase::Scalar(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2").arg(table, where));
}

// Mr. John and Mrs. Mary Smith on one invitation whose envelopes follow the people.
QString AddSmiths(const QString& autoUpdate = QStringLiteral("Y")) {
    const QString invite = AddInvite({{"INNER_ENVELOPE_TX", "as typed"}, {"AUTO_UPDATE_FG", autoUpdate}});
    AddContact({{"TITLE_TX", "Mr."},
                {"FIRST_NM", "John"},
                {"LAST_NM", "Smith"},
                {"INVITE_ID", invite},
                {"PRIMARY_CONTACT_FG", "Y"},
                {"SORT_ORDER_NB", 1}});
    AddContact({{"TITLE_TX", "Mrs."},
                {"FIRST_NM", "Mary"},
                {"LAST_NM", "Smith"},
                {"INVITE_ID", invite},
                {"SORT_ORDER_NB", 2},
                {"GENDER_FG", "F"}});
    return invite;
}

QString InnerOf(const QString& invite) {
    return TestDatabase::Scalar(QStringLiteral("SELECT INNER_ENVELOPE_TX FROM INVITE WHERE INVITE_ID = ?"),
                                {invite});
}

QString Stored(int key) {
    return TestDatabase::Scalar(QStringLiteral("SELECT VOWREN_TX FROM VOWREN WHERE VOWREN_ID = ?"), {key});
}

// Rows of a table in a database file, read with a connection of its own.
int RowsInFile(const QString& path, const QString& table) {
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READONLY, nullptr) !=
        SQLITE_OK) {
        sqlite3_close(db);
        return -1;
    }
    sqlite3_stmt* statement = nullptr;
    int rows = -1;
    const QByteArray sql = "SELECT COUNT(*) FROM " + table.toLatin1();
    if (sqlite3_prepare_v2(db, sql.constData(), -1, &statement, nullptr) == SQLITE_OK &&
        sqlite3_step(statement) == SQLITE_ROW)
        rows = sqlite3_column_int(statement, 0);
    sqlite3_finalize(statement);
    sqlite3_close(db);
    return rows;
}

} // namespace

class tst_Options : public QObject {
    Q_OBJECT

private slots:
    void dictionaryEntryAddEditDelete_data();
    void dictionaryEntryAddEditDelete();
    void saveAndNewKeepsTheEditorOpen();
    void dirtyCancelAsksToSave_data();
    void dirtyCancelAsksToSave();
    void duplicateIsRefusedAndEditorStays_data();
    void duplicateIsRefusedAndEditorStays();
    void deleteOfARowInUseIsRefused_data();
    void deleteOfARowInUseIsRefused();
    void rolesOfTheCoupleCannotBeDeleted();
    void songlistsMoveWithCtrlArrows();
    void etiquetteUpdateRelabelsInvitations_data();
    void etiquetteUpdateRelabelsInvitations();
    void etiquetteUpdateWithoutInvitationsSaysDone();
    void cancelledUpdateLeavesEverythingAsItWas();
    void tentCardUpdateStoresTheChoice();
    void iconsAndCountryAreStoredAtOnce();
    void labelProgramIsNamedAndChecked();
    void backupWritesACompleteDatabase();
    void backupIntoAMissingFolderWritesNothing();
};

void tst_Options::dictionaryEntryAddEditDelete_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("price");
    QTest::newRow("title") << 4 << "TITLE_DICT"
                           << "TITLE_TX"
                           << "";
    QTest::newRow("meal with a price") << 1 << "MEAL_DICT"
                                       << "MEAL_TX"
                                       << "42.5";
}

void tst_Options::dictionaryEntryAddEditDelete() {
    QFETCH(int, kind);
    QFETCH(QString, table);
    QFETCH(QString, column);
    QFETCH(QString, price);
    TestDatabase db;
    const auto options = OpenOptions(kind);
    QSignalSpy updated(&gOptionsEvents(), &OptionsEvents::OptionsUpdated);
    const int before = CountOf(table).toInt();
    const QString typed = QStringLiteral("  Lakeside Extra  ");

    Click(Child<QWidget>(*options, QStringLiteral("linkAction_0")));
    frmOptionsEntry* editor = OpenEditor(*options);
    QVERIFY(editor);
    QVERIFY(!Child<QPushButton>(*editor, QStringLiteral("cmdSave"))->isEnabled());
    TypeText(editor, typed);
    if (!price.isEmpty()) {
        auto* number = Child<usrNumberBox>(*editor, QStringLiteral("usrNB"));
        number->clear();
        QTest::keyClicks(number, price);
    }
    Click(Child<QWidget>(*editor, QStringLiteral("cmdSave")));
    QTRY_VERIFY(!OpenEditor(*options));
    QCOMPARE(CountOf(table, column + QStringLiteral(" = 'Lakeside Extra'")), QStringLiteral("1"));
    if (!price.isEmpty())
        QCOMPARE(TestDatabase::Scalar(
                     QStringLiteral("SELECT PRICE_NB FROM MEAL_DICT WHERE MEAL_TX = 'Lakeside Extra'"))
                     .toDouble(),
                 price.toDouble());
    QVERIFY(GridTexts(*options).contains(QStringLiteral("Lakeside Extra")));
    QVERIFY(Child<QLabel>(*options, QStringLiteral("lblCount"))
                ->text()
                .startsWith(QString::number(before + 1) + ' '));

    SelectRow(*options, QStringLiteral("Lakeside Extra"));
    Click(Child<QWidget>(*options, QStringLiteral("linkAction_1")));
    editor = OpenEditor(*options);
    QVERIFY(editor);
    QCOMPARE(editor->windowTitle(), QStringLiteral("Edit"));
    QCOMPARE(Child<QLineEdit>(*editor, QStringLiteral("txt"))->text(), QStringLiteral("Lakeside Extra"));
    TypeText(editor, QStringLiteral("Hillside"));
    Click(Child<QWidget>(*editor, QStringLiteral("cmdSave")));
    QTRY_VERIFY(!OpenEditor(*options));
    QCOMPARE(CountOf(table, column + QStringLiteral(" = 'Lakeside Extra'")), QStringLiteral("0"));
    QCOMPARE(CountOf(table, column + QStringLiteral(" = 'Hillside'")), QStringLiteral("1"));

    SelectRow(*options, QStringLiteral("Hillside"));
    Click(Child<QWidget>(*options, QStringLiteral("linkAction_2")));
    QCOMPARE(db.Messages().Prompts.value(0), QStringLiteral("Delete 'Hillside'?"));
    QCOMPARE(CountOf(table).toInt(), before);
    QVERIFY(!GridTexts(*options).contains(QStringLiteral("Hillside")));
    QCOMPARE(updated.count(), 3);
    QCOMPARE(updated.last().value(0).toInt(), kind);
}

void tst_Options::saveAndNewKeepsTheEditorOpen() {
    TestDatabase db;
    const auto options = OpenOptions(clsDICT::PaidBy);
    Click(Child<QWidget>(*options, QStringLiteral("linkAction_0")));
    frmOptionsEntry* editor = OpenEditor(*options);
    QVERIFY(editor);
    TypeText(editor, QStringLiteral("Aunt Rose"));
    Click(Child<QWidget>(*editor, QStringLiteral("cmdSaveNew")));
    QCOMPARE(OpenEditor(*options), editor);
    QVERIFY(Child<QLineEdit>(*editor, QStringLiteral("txt"))->text().isEmpty());
    QVERIFY(GridTexts(*options).contains(QStringLiteral("Aunt Rose")));
    TypeText(editor, QStringLiteral("Uncle Sam"));
    Click(Child<QWidget>(*editor, QStringLiteral("cmdSave")));
    QCOMPARE(
        CountOf(QStringLiteral("PAID_BY_DICT"), QStringLiteral("PAID_BY_TX IN ('Aunt Rose', 'Uncle Sam')")),
        QStringLiteral("2"));
}

void tst_Options::dirtyCancelAsksToSave_data() {
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("saved");
    QTest::addColumn<bool>("stillOpen");
    QTest::newRow("yes saves") << int(Msg::Yes) << true << false;
    QTest::newRow("no drops the text") << int(Msg::No) << false << false;
    QTest::newRow("cancel goes back to the editor") << int(Msg::Cancel) << false << true;
}

void tst_Options::dirtyCancelAsksToSave() {
    QFETCH(int, answer);
    QFETCH(bool, saved);
    QFETCH(bool, stillOpen);
    TestDatabase db;
    const auto options = OpenOptions(clsDICT::VendorCategory);
    Click(Child<QWidget>(*options, QStringLiteral("linkAction_0")));
    frmOptionsEntry* editor = OpenEditor(*options);
    QVERIFY(editor);
    TypeText(editor, QStringLiteral("Calligrapher"));
    db.Messages().NextAnswer = answer;
    QTest::keyClick(editor, Qt::Key_Escape);
    QCOMPARE(db.Messages().Prompts, QStringList{QStringLiteral("Save Changes?")});
    QCOMPARE(CountOf(QStringLiteral("VENDOR_CATEGORY_DICT"),
                     QStringLiteral("VENDOR_CATEGORY_TX = 'Calligrapher'")),
             QString::number(saved ? 1 : 0));
    QCOMPARE(OpenEditor(*options) == editor, stillOpen);
}

void tst_Options::duplicateIsRefusedAndEditorStays_data() {
    QTest::addColumn<QString>("editing");
    QTest::addColumn<QString>("typed");
    QTest::newRow("new title in other case") << ""
                                             << "mR.";
    QTest::newRow("renamed onto another") << "Mrs."
                                          << "Dr.";
}

void tst_Options::duplicateIsRefusedAndEditorStays() {
    QFETCH(QString, editing);
    QFETCH(QString, typed);
    TestDatabase db;
    const QString before = CountOf(QStringLiteral("TITLE_DICT"));
    const auto options = OpenOptions(clsDICT::Title);
    if (!editing.isEmpty())
        SelectRow(*options, editing);
    Click(Child<QWidget>(*options, QStringLiteral("linkAction_%1").arg(editing.isEmpty() ? 0 : 1)));
    frmOptionsEntry* editor = OpenEditor(*options);
    QVERIFY(editor);
    TypeText(editor, typed);
    Click(Child<QWidget>(*editor, QStringLiteral("cmdSave")));
    QCOMPARE(db.Messages().Prompts,
             QStringList{QStringLiteral("Duplicate value.  Ensure that entry is unique.")});
    QCOMPARE(OpenEditor(*options), editor);
    QCOMPARE(Child<QLineEdit>(*editor, QStringLiteral("txt"))->text(), typed);
    QCOMPARE(CountOf(QStringLiteral("TITLE_DICT")), before);
    if (!editing.isEmpty())
        QCOMPARE(CountOf(QStringLiteral("TITLE_DICT"), QStringLiteral("TITLE_TX = 'Mrs.'")),
                 QStringLiteral("1"));
}

void tst_Options::deleteOfARowInUseIsRefused_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("setup");
    QTest::addColumn<QString>("message");
    QTest::newRow("songlist with songs") << 8 << "Reception"
                                         << "INSERT INTO SONG (SONG_ID, SONG_FILE_PATH_TX, SORT_ORDER_NB, "
                                            "SONGLIST_ID) VALUES (1, '/m/a.mp3', 1, 2)"
                                         << "Unable to delete.  Songs are associated with this songlist.";
}

void tst_Options::deleteOfARowInUseIsRefused() {
    QFETCH(int, kind);
    QFETCH(QString, row);
    QFETCH(QString, setup);
    QFETCH(QString, message);
    TestDatabase db;
    TestDatabase::Exec(setup);
    const auto options = OpenOptions(kind);
    SelectRow(*options, row);
    Click(Child<QWidget>(*options, QStringLiteral("linkAction_2")));
    QCOMPARE(db.Messages().Prompts,
             (QStringList{QStringLiteral("Delete '") + row + QStringLiteral("'?"), message}));
    QVERIFY(GridTexts(*options).contains(row));
}

void tst_Options::rolesOfTheCoupleCannotBeDeleted() {
    TestDatabase db;
    const auto options = OpenOptions(clsDICT::Role);
    auto* remove = Child<usrHyperlink>(*options, QStringLiteral("linkAction_2"));
    for (const char* role : {"Bride", "Groom"}) {
        SelectRow(*options, QString::fromLatin1(role));
        QVERIFY(!remove->isEnabled());
        QVERIFY(Child<usrHyperlink>(*options, QStringLiteral("linkAction_1"))->isEnabled());
    }
    SelectRow(*options, QStringLiteral("Usher"));
    QVERIFY(remove->isEnabled());

    // A renamed role of the couple still tells what it was.
    SelectRow(*options, QStringLiteral("Bride"));
    Click(Child<QWidget>(*options, QStringLiteral("linkAction_1")));
    frmOptionsEntry* editor = OpenEditor(*options);
    QVERIFY(!Child<QLabel>(*editor, QStringLiteral("lblRoleHint"))->isVisible());
    TypeText(editor, QStringLiteral("Partner"));
    Click(Child<QWidget>(*editor, QStringLiteral("cmdSave")));
    QTRY_VERIFY(!OpenEditor(*options));
    SelectRow(*options, QStringLiteral("Partner"));
    Click(Child<QWidget>(*options, QStringLiteral("linkAction_1")));
    editor = OpenEditor(*options);
    QVERIFY(Child<QLabel>(*editor, QStringLiteral("lblRoleHint"))->isVisible());
    QCOMPARE(Child<QLabel>(*editor, QStringLiteral("lblRoleHint"))->text(),
             QStringLiteral("originally Bride"));
}

void tst_Options::songlistsMoveWithCtrlArrows() {
    TestDatabase db;
    TestDatabase::Exec(QStringLiteral("INSERT INTO SONGLIST_DICT VALUES (3, 'Dinner', 3)"));
    const auto options = OpenOptions(clsDICT::Songlist);
    QCOMPARE(GridTexts(*options), (QStringList{"Ceremony", "Reception", "Dinner"}));
    SelectRow(*options, QStringLiteral("Dinner"));
    auto* grid = Child<QTreeWidget>(*options, QStringLiteral("grid"));
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_Up, Qt::ControlModifier);
    QTest::keyClick(grid, Qt::Key_Up, Qt::ControlModifier);
    QTest::keyClick(grid, Qt::Key_Up, Qt::ControlModifier); // already first: nothing moves
    QCOMPARE(GridTexts(*options), (QStringList{"Dinner", "Ceremony", "Reception"}));
    QCOMPARE(TestDatabase::Scalar(
                 QStringLiteral("SELECT group_concat(SONGLIST_TX, ',') FROM "
                                "(SELECT SONGLIST_TX FROM SONGLIST_DICT ORDER BY SORT_ORDER_NB)")),
             QStringLiteral("Dinner,Ceremony,Reception"));
    QCOMPARE(grid->currentItem()->text(0), QStringLiteral("Dinner"));
}

void tst_Options::etiquetteUpdateRelabelsInvitations_data() {
    QTest::addColumn<bool>("storedFormal");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("expectedInner");
    QTest::addColumn<QString>("expectedStored");
    QTest::newRow("personal to formal") << false << "optEtiquette_0"
                                        << "Mr. and Mrs. Smith"
                                        << "True";
}

void tst_Options::etiquetteUpdateRelabelsInvitations() {
    QFETCH(bool, storedFormal);
    QFETCH(QString, option);
    QFETCH(QString, expectedInner);
    QFETCH(QString, expectedStored);
    TestDatabase db;
    SetEtiquette(storedFormal, false);
    const QString followed = AddSmiths();
    const QString frozen = AddSmiths(QStringLiteral("N"));
    const auto options = OpenOptions(frmOptions::Etiquette);
    QSignalSpy done(&gOptionsEvents(), &OptionsEvents::EtiquetteUpdated);
    auto* update = Child<QPushButton>(*options, QStringLiteral("cmdUpdateInner"));
    QVERIFY(!update->isEnabled());

    // Picking an option enables "Update" only while it differs from what is stored.
    const QString other =
        option.endsWith('0') ? QStringLiteral("optEtiquette_1") : QStringLiteral("optEtiquette_0");
    Click(Child<QWidget>(*options, option));
    QVERIFY(update->isEnabled());
    Click(Child<QWidget>(*options, other));
    QVERIFY(!update->isEnabled());
    Click(Child<QWidget>(*options, option));
    QCOMPARE(InnerOf(followed), QStringLiteral("as typed")); // nothing happens before "Update"

    Click(update);
    QCOMPARE(Stored(7), expectedStored);
    QCOMPARE(InnerOf(followed), expectedInner);
    QCOMPARE(InnerOf(frozen), QStringLiteral("as typed"));
    QCOMPARE(done.count(), 1);
    auto* progress = Child<QProgressBar>(*options, QStringLiteral("progressInner"));
    QCOMPARE(progress->maximum(), 2);
    QCOMPARE(progress->value(), 2);
    QVERIFY(Child<QWidget>(*options, QStringLiteral("lblDoneInner"))->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!progress->isVisible(), frmOptions::kDoneDelay * 3);
    QVERIFY(!Child<QWidget>(*options, QStringLiteral("lblDoneInner"))->isVisible());
    QVERIFY(!update->isEnabled());
}

void tst_Options::etiquetteUpdateWithoutInvitationsSaysDone() {
    TestDatabase db;
    SetEtiquette(false, false);
    const auto options = OpenOptions(frmOptions::Etiquette);
    Click(Child<QWidget>(*options, QStringLiteral("optEtiquette_0")));
    Click(Child<QWidget>(*options, QStringLiteral("cmdUpdateInner")));
    QVERIFY(Child<QWidget>(*options, QStringLiteral("lblDoneInner"))->isVisible());
    QCOMPARE(Stored(7), QStringLiteral("True"));
    QVERIFY(db.Messages().Prompts.isEmpty());
}

void tst_Options::cancelledUpdateLeavesEverythingAsItWas() {
    TestDatabase db;
    SetEtiquette(false, false);
    const QString first = AddSmiths();
    const QString second = AddSmiths();
    const auto options = OpenOptions(frmOptions::Etiquette);
    QSignalSpy done(&gOptionsEvents(), &OptionsEvents::EtiquetteUpdated);
    auto* progress = Child<QProgressBar>(*options, QStringLiteral("progressInner"));
    auto* cancel = Child<QPushButton>(*options, QStringLiteral("cmdCancelInner"));
    connect(progress, &QProgressBar::valueChanged, cancel, [cancel](int value) {
        if (value == 1)
            Click(cancel);
    });
    Click(Child<QWidget>(*options, QStringLiteral("optEtiquette_0")));
    Click(Child<QWidget>(*options, QStringLiteral("cmdUpdateInner")));
    QCOMPARE(Stored(7), QStringLiteral("False"));
    QCOMPARE(InnerOf(first), QStringLiteral("as typed"));
    QCOMPARE(InnerOf(second), QStringLiteral("as typed"));
    QCOMPARE(gVowren().Get_VOWREN_TX(7), QStringLiteral("False"));
    QCOMPARE(done.count(), 0);
    QVERIFY(!Child<QWidget>(*options, QStringLiteral("lblDoneInner"))->isVisible());
    QVERIFY(Child<QPushButton>(*options, QStringLiteral("cmdUpdateInner"))->isEnabled());
    QVERIFY(Child<QWidget>(*options, QStringLiteral("gridLeft"))->isEnabled());
}

void tst_Options::tentCardUpdateStoresTheChoice() {
    TestDatabase db;
    SetEtiquette(false, false);
    const auto options = OpenOptions(frmOptions::Etiquette);
    QSignalSpy done(&gOptionsEvents(), &OptionsEvents::EtiquetteTentCardUpdated);
    QSignalSpy inner(&gOptionsEvents(), &OptionsEvents::EtiquetteUpdated);
    Click(Child<QWidget>(*options, QStringLiteral("optEtiquetteTentCard_0")));
    QVERIFY(!Child<QPushButton>(*options, QStringLiteral("cmdUpdateInner"))->isEnabled());
    Click(Child<QWidget>(*options, QStringLiteral("cmdUpdateTentCard")));
    QCOMPARE(Stored(8), QStringLiteral("True"));
    QCOMPARE(Stored(7), QStringLiteral("False"));
    QCOMPARE(done.count(), 1);
    QCOMPARE(inner.count(), 0);
}

void tst_Options::iconsAndCountryAreStoredAtOnce() {
    TestDatabase db;
    const auto options = OpenOptions(frmOptions::Icons);
    QSignalSpy icons(&gOptionsEvents(), &OptionsEvents::IconsUpdated);
    Click(Child<QWidget>(*options, QStringLiteral("optGroom_2")));
    QCOMPARE(Stored(2), QStringLiteral("3"));
    QCOMPARE(Stored(1), QStringLiteral("1"));

    Click(Child<QWidget>(*options, QStringLiteral("linkBrideMore")));
    auto* chooser = options->findChild<frmBrideGroomIcons*>();
    QVERIFY(chooser && chooser->isVisible());
    Click(Child<QWidget>(*chooser, QStringLiteral("imgIcon_5")));
    QCOMPARE(Stored(1), QStringLiteral("5"));
    for (int i = 0; i < 3; ++i)
        QVERIFY(!Child<QRadioButton>(*options, QStringLiteral("optBride_%1").arg(i))->isChecked());
    Click(Child<QWidget>(*chooser, QStringLiteral("cmdDone")));
    QVERIFY(!chooser->isVisible());
    QCOMPARE(icons.count(), 2);

    options->SelectKind(frmOptions::Country);
    QSignalSpy country(&gOptionsEvents(), &OptionsEvents::CountryUpdated);
    Click(Child<QWidget>(*options, QStringLiteral("optCountry_3")));
    QCOMPARE(Stored(9), QStringLiteral("3"));
    QCOMPARE(country.count(), 1);
    frmOptions reopened(nullptr, frmOptions::Country);
    QVERIFY(Child<QRadioButton>(reopened, QStringLiteral("optCountry_3"))->isChecked());
}

// The folder and name are written as they are left; the line below tells whether labels go there.
void tst_Options::labelProgramIsNamedAndChecked() {
    TestDatabase db;
    QTemporaryDir folder;
    const QString program = folder.filePath("print labels");
    QFile file(program);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const auto options = OpenOptions(frmOptions::LabelProgram);
    auto* status = Child<QLabel>(*options, QStringLiteral("lblStatus"));
    QVERIFY(status->text().startsWith("No label program is named"));
    auto* path = Child<QLineEdit>(*options, QStringLiteral("txtAppPath"));
    auto* exe = Child<QLineEdit>(*options, QStringLiteral("txtExeName"));
    path->setText(folder.path());
    emit path->editingFinished();
    exe->setText(QStringLiteral("print labels"));
    emit exe->editingFinished();
    QCOMPARE(clsLabelDesk().AppPath(), folder.path());
    QVERIFY2(status->text().contains("is not a program that can be run"), qPrintable(status->text()));
    QVERIFY(!clsLabelDesk().IsActive());

    file.setPermissions(file.permissions() | QFile::ExeOwner);
    options->SelectKind(frmOptions::LabelProgram); // showing the panel again looks again
    QCOMPARE(status->text(), "Labels and tent cards go to " + program + ".");
    QVERIFY(clsLabelDesk().IsActive());

    Click(Child<QWidget>(*options, QStringLiteral("cmdClear")));
    QVERIFY(clsLabelDesk().AppPath().isEmpty() && clsLabelDesk().ExeName().isEmpty());
    QVERIFY(!clsLabelDesk().IsActive());
}

void tst_Options::backupWritesACompleteDatabase() {
    TestDatabase db;
    AddSmiths();
    AddSmiths();
    QTemporaryDir folder;
    frmBackup backup;
    const QString first = backup.BackupTo(folder.path());
    const QString second = backup.BackupTo(folder.path());
    QVERIFY(!first.isEmpty() && !second.isEmpty() && first != second);
    QVERIFY(QRegularExpression(QStringLiteral("^Vowren_\\d{4}-\\d{2}-\\d{2}_\\d{6}(_2)?\\.quilldata$"))
                .match(QFileInfo(first).fileName())
                .hasMatch());
    for (const char* table : {"CONTACT", "INVITE", "TITLE_DICT", "VOWREN"})
        QCOMPARE(RowsInFile(first, QString::fromLatin1(table)), CountOf(QString::fromLatin1(table)).toInt());
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2); // no leftovers
    QVERIFY(Child<QLabel>(backup, QStringLiteral("lblBackupResult"))
                ->text()
                .endsWith(QDir::toNativeSeparators(second)));
    QVERIFY(db.Messages().Prompts.isEmpty());
}

void tst_Options::backupIntoAMissingFolderWritesNothing() {
    TestDatabase db;
    QTemporaryDir folder;
    frmBackup backup;
    QVERIFY(backup.BackupTo(folder.filePath(QStringLiteral("gone"))).isEmpty());
    QCOMPARE(db.Messages().Prompts.size(), 1);
    QVERIFY(db.Messages().Prompts.first().contains(QStringLiteral("does not exist")));
    QVERIFY(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden).isEmpty());
}

QTEST_MAIN(tst_Options)
#include "tst_Options.moc"
