// The contact editor driven like a person would: typing, tabbing, the buttons and Esc, checked against
// the database and the messages shown.
#include "TestDatabase.h"
#include "UiTestTools.h"
#include "core/clsApp.h"
#include "guests/clsCONTACT.h"
#include "guests/ui/frmCheckName.h"
#include "guests/ui/frmContact.h"
#include "guests/ui/frmContactEmail.h"
#include "guests/ui/frmRemarriedTo.h"
#include "shell/controls/usrDropdown.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

using namespace UiTestTools;

namespace {

const QString kAndRefused =
    QStringLiteral("The 'Title' field cannot contain the word 'and'.\n\nVowren requires that each contact "
                   "record represent one "
                   "individual.\n\nPlease edit the title so that it represents one individual.");
const QString kAmpersandRefused =
    QStringLiteral("The 'Title' field cannot contain the '&' character.\n\nVowren requires that each contact "
                   "record represent "
                   "one individual.\n\nPlease edit the title so that it represents one individual.");
const QString kNamesRequired = QStringLiteral("First and Last names are required.");

// Replaces the text of a box by typing, as a person would after selecting all of it.
void Type(QWidget* box, const QString& text) {
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, text);
}

void TypeTitle(frmContact& form, const QString& title) {
    Type(Child<QComboBox>(&form, "cbo_0")->lineEdit(), title);
}

// Leaves a box by Tab, which commits what was typed into it.
void TypeAndLeave(QWidget* box, const QString& text) {
    Type(box, text);
    QTest::keyClick(box, Qt::Key_Tab);
}

void TypeLines(QPlainTextEdit* box, const QStringList& lines) {
    box->setFocus();
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (i > 0)
            QTest::keyClick(box, Qt::Key_Return);
        QTest::keyClicks(box, lines.at(i));
    }
}

void Click(frmContact& form, const char* button) {
    QTest::mouseClick(Child<QPushButton>(&form, button), Qt::LeftButton);
}

QString ContactCount() {
    return TestDatabase::Scalar(QStringLiteral("SELECT COUNT(*) FROM CONTACT"));
}

clsCONTACT Saved(const QString& contactId) {
    clsCONTACT contact;
    contact.OpenRecord(contactId);
    return contact;
}

// A household in the database to edit and copy: John Smith with an address and a role.
QString SaveSmith() {
    clsCONTACT smith;
    smith.TITLE_TX = QStringLiteral("Mr.");
    smith.FIRST_NM = QStringLiteral("John");
    smith.LAST_NM = QStringLiteral("Smith");
    smith.ADDRESS_TX = QStringLiteral("12 Oak St\r\nBoston, MA 02101");
    smith.PHONE_TX = QStringLiteral("555-0100");
    smith.FRIEND_OF_CD = QStringLiteral("2");
    smith.ROLE_ID = QStringLiteral("8");
    smith.NICK_NM = QStringLiteral("Jack");
    smith.Save(true, true);
    return smith.CONTACT_ID;
}

} // namespace

class tst_frmContact : public QObject {
    Q_OBJECT

private slots:
    void init() { mDatabase = std::make_unique<TestDatabase>(); }
    void cleanup() { mDatabase.reset(); }

    // The next person of a household keeps the address and the first telephone; the title follows the
    // husband-then-wife rule and the gender follows the title.
    void saveAndNewAddsAHousehold_data() {
        QTest::addColumn<QString>("firstTitle");
        QTest::addColumn<QString>("nextTitle");
        QTest::addColumn<QString>("nextGender");
        QTest::newRow("husband, then wife") << "Mr."
                                            << "Mrs."
                                            << "F";
        QTest::newRow("a doctor, then an untitled person") << "Dr."
                                                           << ""
                                                           << "M";
    }
    void saveAndNewAddsAHousehold() {
        QFETCH(QString, firstTitle);
        QFETCH(QString, nextTitle);
        QFETCH(QString, nextGender);
        frmContact form;
        ShowActive(form);
        QSignalSpy added(&form, &frmContact::Added);
        TypeTitle(form, firstTitle);
        Type(Child<QLineEdit>(&form, "txt_1"), QStringLiteral("John Smith"));
        TypeLines(Child<QPlainTextEdit>(&form, "txt_2"),
                  {QStringLiteral("12 Oak St"), QStringLiteral("Boston, MA 02101")});
        Type(Child<QLineEdit>(&form, "txt_4"), QStringLiteral("john@example.com"));
        Type(Child<QLineEdit>(&form, "txt_5"), QStringLiteral("555-0100"));
        Type(Child<QLineEdit>(&form, "txt_6"), QStringLiteral("555-0199"));
        Click(form, "cmd_0");

        QVERIFY(form.isVisible());
        QCOMPARE(added.count(), 1);
        QCOMPARE(form.windowTitle(), QStringLiteral("Add New Contact"));
        QCOMPARE(Child<QComboBox>(&form, "cbo_0")->currentText(), nextTitle);
        QCOMPARE(Child<QLineEdit>(&form, "txt_1")->text(), QString());
        QCOMPARE(Child<QLineEdit>(&form, "txt_4")->text(), QString());
        QCOMPARE(Child<QLineEdit>(&form, "txt_6")->text(), QString());
        QCOMPARE(Child<QLineEdit>(&form, "txt_5")->text(), QStringLiteral("555-0100"));
        QVERIFY(!form.IsDirty());

        Type(Child<QLineEdit>(&form, "txt_1"), QStringLiteral("Jane Smith"));
        Click(form, "cmd_1");
        QVERIFY(!form.isVisible());
        QCOMPARE(added.count(), 2);

        const clsCONTACT husband = Saved(added.at(0).at(0).toString());
        const clsCONTACT wife = Saved(added.at(1).at(0).toString());
        QCOMPARE(husband.FirstMiddleLastSuffix(), QStringLiteral("John Smith"));
        QCOMPARE(husband.TITLE_TX, firstTitle);
        QCOMPARE(husband.EMAIL_TX, QStringLiteral("john@example.com"));
        QCOMPARE(husband.PHONE2_TX, QStringLiteral("555-0199"));
        QCOMPARE(wife.FirstMiddleLastSuffix(), QStringLiteral("Jane Smith"));
        QCOMPARE(wife.TITLE_TX, nextTitle);
        QCOMPARE(wife.GENDER_FG, nextGender);
        QCOMPARE(wife.EMAIL_TX, QString());
        QCOMPARE(wife.PHONE2_TX, QString());
        for (const clsCONTACT& person : {husband, wife}) {
            QCOMPARE(person.ADDRESS_TX, QStringLiteral("12 Oak St\r\nBoston, MA 02101"));
            QCOMPARE(person.PHONE_TX, QStringLiteral("555-0100"));
            QCOMPARE(person.PRIMARY_CONTACT_FG, QStringLiteral("N"));
            QCOMPARE(person.ATTENDING_FG, QStringLiteral("N"));
        }
    }

    // A contact record is one person: a title that names two is refused with its message.
    void titleForTwoPeopleIsRefused_data() {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("message");
        QTest::newRow("and") << "Mr. and Mrs." << kAndRefused;
        QTest::newRow("ampersand") << "Mr. & Mrs." << kAmpersandRefused;
        QTest::newRow("ampersand without spaces") << "Mr.&Mrs." << QString();
        QTest::newRow("one person") << "Judge" << QString();
    }
    void titleForTwoPeopleIsRefused() {
        QFETCH(QString, title);
        QFETCH(QString, message);
        const QString before = ContactCount();
        frmContact form;
        ShowActive(form);
        TypeTitle(form, title);
        Type(Child<QLineEdit>(&form, "txt_1"), QStringLiteral("Pat Jones"));
        QTest::keyClick(Child<QLineEdit>(&form, "txt_1"), Qt::Key_Return); // Enter saves

        const QStringList& shown = mDatabase->Messages().Prompts;
        if (message.isEmpty()) {
            QVERIFY2(shown.isEmpty(), qPrintable(shown.join(QLatin1Char('|'))));
            QCOMPARE(ContactCount().toInt(), before.toInt() + 1);
            QCOMPARE(Saved(form.Contact().CONTACT_ID).TITLE_TX, title);
        } else {
            QCOMPARE(shown, QStringList{message});
            QCOMPARE(ContactCount(), before);
            QVERIFY(form.isVisible());
        }
    }

    // The one-line name is cut into its parts when the box is left, written back in its standard form,
    // and saved as parts. An incomplete name is refused.
    void fullNameIsParsedIntoParts_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QStringList>("parts"); // first, middle, last, suffix; empty: refused
        QTest::newRow("middle and suffix")
            << "John Quincy Public, Jr."
            << "John Quincy Public, Jr." << QStringList{"John", "Quincy", "Public", "Jr."};
        QTest::newRow("particle") << "  Peter van   Dyke "
                                  << "Peter van Dyke" << QStringList{"Peter", "", "van Dyke", ""};
        QTest::newRow("first name only") << "Dana"
                                         << "Dana" << QStringList{};
    }
    void fullNameIsParsedIntoParts() {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QFETCH(QStringList, parts);
        gApp().SetShowDialogWhenNameUnclear(false);
        frmContact form;
        ShowActive(form);
        auto* name = Child<QLineEdit>(&form, "txt_1");
        TypeAndLeave(name, typed);
        QCOMPARE(name->text(), shown);
        Click(form, "cmd_1");

        if (parts.isEmpty()) {
            QCOMPARE(mDatabase->Messages().Prompts, QStringList{kNamesRequired});
            QVERIFY(form.isVisible());
            return;
        }
        const clsCONTACT saved = Saved(form.Contact().CONTACT_ID);
        QCOMPARE((QStringList{saved.FIRST_NM, saved.MIDDLE_NM, saved.LAST_NM, saved.SUFFIX_TX}), parts);
        QCOMPARE(saved.TITLE_TX, QString());
    }

    // Emptying the name of a contact does not leave the old name in place unseen: it is refused.
    void blankNameOfAContactIsRefused() {
        const QString smith = SaveSmith();
        frmContact form(smith);
        ShowActive(form);
        TypeAndLeave(Child<QLineEdit>(&form, "txt_1"), QString());
        Click(form, "cmd_1");
        QCOMPARE(mDatabase->Messages().Prompts, QStringList{kNamesRequired});
        QVERIFY(form.isVisible());
    }

    // A name that looks incomplete opens the dialog of the parts; what is corrected there comes back into
    // the editor, title included.
    void unclearNameOpensTheDialogOfParts() {
        gApp().SetShowDialogWhenNameUnclear(true);
        frmContact form;
        ShowActive(form);
        bool dialogSeen = false;
        QTimer::singleShot(0, &form, [&dialogSeen] {
            auto* dialog = qobject_cast<frmCheckName*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            dialogSeen = true;
            QCOMPARE(dialog->findChild<QLineEdit*>("txt_1")->text(), QStringLiteral("Dana"));
            Type(dialog->findChild<QComboBox*>("cbo_0")->lineEdit(), QStringLiteral("Ms."));
            Type(dialog->findChild<QLineEdit*>("txt_3"), QStringLiteral("Miller"));
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
        });
        TypeAndLeave(Child<QLineEdit>(&form, "txt_1"), QStringLiteral("Dana"));
        QVERIFY(dialogSeen);
        QCOMPARE(Child<QLineEdit>(&form, "txt_1")->text(), QStringLiteral("Dana Miller"));
        QCOMPARE(Child<QComboBox>(&form, "cbo_0")->currentText(), QStringLiteral("Ms."));
        QVERIFY(Child<QRadioButton>(&form, "optGender_1")->isChecked());
    }
    // A copy is another person of the household: the placeholder is selected so that typing replaces
    // it, and the new contact shares the address but not the role.
    void copyKeepsTheHouseholdAndAsksForTheFirstName() {
        const QString smith = SaveSmith();
        frmContact form(smith, nullptr, frmContact::Mode::Copy);
        ShowActive(form);
        auto* name = Child<QLineEdit>(&form, "txt_1");
        QCOMPARE(name->text(), QStringLiteral("[FirstName] Smith"));
        QCOMPARE(form.windowTitle(), QStringLiteral("Add New Contact"));
        QTRY_COMPARE(name->selectedText(), QStringLiteral("[FirstName]"));

        Click(form, "cmd_1");
        QCOMPARE(mDatabase->Messages().Prompts, QStringList{kNamesRequired});

        name->setFocus();
        QTRY_COMPARE(name->selectedText(), QStringLiteral("[FirstName]"));
        QTest::keyClicks(name, QStringLiteral("Mary"));
        QCOMPARE(name->text(), QStringLiteral("Mary Smith"));
        QSignalSpy added(&form, &frmContact::Added);
        Click(form, "cmd_1");
        QCOMPARE(added.count(), 1);
        const clsCONTACT copy = Saved(added.at(0).at(0).toString());
        QVERIFY(copy.CONTACT_ID != smith);
        QCOMPARE(copy.FirstLast(), QStringLiteral("Mary Smith"));
        QCOMPARE(copy.ADDRESS_TX, Saved(smith).ADDRESS_TX);
        QCOMPARE(copy.FRIEND_OF_CD, QStringLiteral("2"));
        QCOMPARE(copy.ROLE_ID, QString());
        QCOMPARE(Saved(smith).ROLE_ID, QStringLiteral("8"));
    }

    // Every box is one Alt key away; the gender key lands on the gender chosen.
    void mnemonicsReachTheirBoxes_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("box");
        QTest::newRow("full name") << int(Qt::Key_U) << "txt_1";
        QTest::newRow("gender") << int(Qt::Key_G) << "optGender_1";
    }
    void mnemonicsReachTheirBoxes() {
        QFETCH(int, key);
        QFETCH(QString, box);
        frmContact form;
        ShowActive(form);
        TypeTitle(form, QStringLiteral("Mrs."));
        Child<QLineEdit>(&form, "txt_5")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), Qt::AltModifier);
        QWidget* focus = QApplication::focusWidget();
        while (focus && focus->objectName().isEmpty())
            focus = focus->parentWidget();
        QVERIFY(focus);
        QCOMPARE(focus->objectName(), box);
        QVERIFY(Child<QRadioButton>(&form, "optGender_1")->isChecked());
    }

    void emailListKeepsAddressesOnly() {
        QCOMPARE(frmContactEmail::AddressList({"a@example.com", "", "no address", "b@example.org"}),
                 QStringLiteral("a@example.com;b@example.org;"));
        QCOMPARE(frmContactEmail::AddressList({"", "none"}), QString());
    }

    // The chosen contact takes the role, and the opener hears who it is.
    void remarriedToGivesTheRole() {
        const QString smith = SaveSmith();
        frmRemarriedTo dialog(4);
        QCOMPARE(dialog.findChild<QLabel*>("lbl_0")->text(), QStringLiteral("Mother of the Bride"));
        QSignalSpy selected(&dialog, &frmRemarriedTo::NameSelected);
        auto* contacts = dialog.findChild<usrDropdown*>("usrCONTACTS");
        contacts->setText(QStringLiteral("Smith, John"));
        QCOMPARE(contacts->Code(), smith);
        QTest::mouseClick(dialog.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.at(0).at(0).toString(), smith);
        QCOMPARE(TestDatabase::Scalar(QStringLiteral("SELECT CONTACT_ID FROM CONTACT WHERE ROLE_ID = 4")),
                 smith);
    }

private:
    std::unique_ptr<TestDatabase> mDatabase;
};

QTEST_MAIN(tst_frmContact)
#include "tst_frmContact.moc"
