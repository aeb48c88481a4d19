#pragma once

#include "guests/clsCONTACT.h"
#include "shell/frmEditorBase.h"

class QCheckBox;
class usrDropdown;

// Whether one person comes, and their meal. Clearing the box sends the person off the attendee list
// and takes away their meal and seat. Children: "lblTop", "chkATTENDING_FG", "usrMEAL_DICT",
// "cmdSave", "cmdCancel".
class frmAttendee : public frmEditorBase {
    Q_OBJECT

public:
    explicit frmAttendee(const QString& contactId, QWidget* parent = nullptr);

    const clsCONTACT& Contact() const { return mContact; }

signals:
    void AttendeeUpdated(const QString& contactId);

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mContact.CONTACT_ID; }

private:
    void RefreshEnabling();

    clsCONTACT mContact;
    QCheckBox* mAttending = nullptr;
    usrDropdown* mMeal = nullptr;
};
