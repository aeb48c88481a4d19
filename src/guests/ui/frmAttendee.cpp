#include "guests/ui/frmAttendee.h"

#include "core/clsDICT.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrDropdown.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

frmAttendee::frmAttendee(const QString& contactId, QWidget* parent) : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmAttendee"));
    setWindowTitle(QStringLiteral("Attendee"));
    SetAdding(false);
    RecordIO::Attempt([this, &contactId] { mContact.OpenRecord(contactId); });

    QLabel* top = modLayout::HeaderLabel(this);
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
    modLayout::CaptionedRow(form, QStringLiteral("&Meal"), mMeal, mMeal->ComboBox());

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(top);
    layout->addLayout(form);
    layout->addStretch(1);
    layout->addWidget(ButtonRow());
    connect(this, &frmEditorBase::Updated, this, &frmAttendee::AttendeeUpdated);
    RefreshEnabling();
    MarkClean();
    setMinimumWidth(360);
    mAttending->setFocus();
}

void frmAttendee::RefreshEnabling() {
    mMeal->setEnabled(mAttending->isChecked());
}

// A meal counts only for a person who comes.
QStringList frmAttendee::Snapshot() const {
    const bool attending = mAttending->isChecked();
    return {attending ? QStringLiteral("Y") : QStringLiteral("N"), attending ? mMeal->Code() : QString()};
}

bool frmAttendee::SaveRecord() {
    clsCONTACT contact = mContact;
    contact.ATTENDING_FG = mAttending->isChecked() ? QStringLiteral("Y") : QStringLiteral("N");
    contact.MEAL_ID = mMeal->Code();
    if (!RecordIO::Attempt([&contact] { contact.Save(false, false); }))
        return false;
    mContact = contact;
    return true;
}
