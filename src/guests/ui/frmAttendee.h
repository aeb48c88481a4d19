#pragma once

#include "guests/clsCONTACT.h"

#include <QDialog>

class QCheckBox;
class QPushButton;
class usrDropdown;

// Whether one person comes, and their meal. Clearing the box sends the person off the attendee list
// and takes away their meal and seat. Children: "lblTop", "chkATTENDING_FG", "usrMEAL_DICT",
// "cmdSave", "cmdCancel".
class frmAttendee : public QDialog {
    Q_OBJECT

public:
    explicit frmAttendee(const QString& contactId, QWidget* parent = nullptr);

    const clsCONTACT& Contact() const { return mContact; }
    // Writes attendance and meal. False after a message, with the dialog left as it is.
    bool SaveAttendee();
    bool IsDirty() const;

signals:
    void AttendeeUpdated(const QString& contactId);

public slots:
    void reject() override;

private:
    void RefreshEnabling();

    clsCONTACT mContact;
    QCheckBox* mAttending = nullptr;
    usrDropdown* mMeal = nullptr;
    QPushButton* mSave = nullptr;
};
