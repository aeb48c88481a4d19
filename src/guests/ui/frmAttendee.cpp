#include "guests/ui/frmAttendee.h"

#include "core/ShowMessage.h"
#include "core/clsDICT.h"
#include "guests/ui/modGuestEditors.h"
#include "shell/controls/usrDropdown.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmAttendee::frmAttendee(const QString& contactId, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmAttendee"));
    setWindowTitle(QStringLiteral("Attendee"));
    mContact.OpenRecord(contactId);

    QLabel* top = modGuestEditors::HeaderLabel(this);
    top->setObjectName(QStringLiteral("lblTop"));
    top->setText(mContact.TitleFirstMiddleLastSuffix());
    top->setWordWrap(true);

    mAttending = new QCheckBox(QStringLiteral("&Attending"), this);
    mAttending->setObjectName(QStringLiteral("chkATTENDING_FG"));
    mAttending->setChecked(mContact.ATTENDING_FG == QLatin1String("Y"));
    mMeal = new usrDropdown(this);
    mMeal->setObjectName(QStringLiteral("usrMEAL_DICT"));
    mMeal->PopulateX(clsDICT::Meal);
    mMeal->setCode(mContact.MEAL_ID);
    mMeal->setMinimumWidth(200);
    connect(mAttending, &QCheckBox::toggled, this, &frmAttendee::RefreshEnabling);

    auto* form = new QFormLayout;
    form->addRow(QString(), mAttending);
    auto* mealLabel = new QLabel(QStringLiteral("&Meal"), this);
    mealLabel->setBuddy(mMeal->ComboBox());
    form->addRow(mealLabel, mMeal);

    QDialogButtonBox* buttons = modGuestEditors::SaveCancelButtons(this, [this] { return SaveAttendee(); }, &mSave);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(top);
    layout->addLayout(form);
    layout->addStretch(1);
    layout->addWidget(buttons);
    RefreshEnabling();
    setMinimumWidth(360);
    mAttending->setFocus();
}

void frmAttendee::RefreshEnabling() {
    mMeal->setEnabled(mAttending->isChecked());
}

bool frmAttendee::IsDirty() const {
    const bool attending = mAttending->isChecked();
    return attending != (mContact.ATTENDING_FG == QLatin1String("Y")) ||
           (attending && mMeal->Code() != mContact.MEAL_ID);
}

bool frmAttendee::SaveAttendee() {
    clsCONTACT contact = mContact;
    contact.ATTENDING_FG = mAttending->isChecked() ? QStringLiteral("Y") : QStringLiteral("N");
    contact.MEAL_ID = mMeal->Code();
    if (!contact.Save(false, false))
        return false;
    mContact = contact;
    emit AttendeeUpdated(mContact.CONTACT_ID);
    return true;
}

void frmAttendee::reject() {
    const CloseChoice choice = AskBeforeClose(IsDirty());
    if (choice == CloseChoice::Save && SaveAttendee())
        QDialog::accept();
    else if (choice == CloseChoice::Discard)
        QDialog::reject();
}
