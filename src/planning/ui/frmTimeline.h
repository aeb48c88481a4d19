#pragma once

#include "planning/clsTIMELINE.h"
#include "shell/frmEditorBase.h"

#include <QTime>

class QComboBox;
class QDateEdit;
class QLineEdit;
class QPlainTextEdit;
class usrDropdown;

// One entry of an event's timeline. A new entry starts where the event's latest entry ends (8:00 AM for
// the first) and lasts as long as the duration in memory (30 minutes at first); "Save and New" starts the
// next entry where this one ended, so entries can be typed one after the other without any time input.
// The end list shows each half hour with its distance from the start, "10:30 AM (1.5 hours)".
// Children: "usrEVENT", "dtStart", "cboTime_0", "dtEnd", "cboTime_1", "txtTIMELINE_DESC", "txtCONTACT_NM",
// "txtNOTES_TX", "cmdSave", "cmdSaveAndNew", "cmdCancel".
class frmTimeline : public frmEditorBase {
    Q_OBJECT

public:
    // An empty key adds an entry, for the given event (or none chosen yet when that is empty too).
    frmTimeline(const QString& timelineId, const QString& eventId, QWidget* parent = nullptr);
    ~frmTimeline() override;

    const clsTIMELINE& Entry() const { return mEntry; }
    // The duration a new end is given, in minutes.
    int DurationMinutes() const { return mDuration; }

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mEntry.TIMELINE_ID; }
    void StartNew() override;

private:
    QWidget* BuildFields();
    void ShowEntry(const clsTIMELINE& entry);
    void StartAt(const QTime& start);
    void SetEndTime(const QTime& end);
    void cboTime_0_Changed();
    void cboTime_1_Changed();
    void dtStart_Changed();
    void dtEnd_Changed();
    void usrEVENT_Click();
    void usrEVENT_AddClick();
    void KeepDatesInStep();
    void UpdateState();
    bool CheckTimes(QTime& start, QTime& end);

    clsTIMELINE mEntry;
    int mDuration;
    bool mFilling = false;
    usrDropdown* usrEVENT = nullptr;
    QDateEdit* dtStart = nullptr;
    QDateEdit* dtEnd = nullptr;
    QComboBox* cboStart = nullptr;
    QComboBox* cboEnd = nullptr;
    QLineEdit* txtDesc = nullptr;
    QLineEdit* txtContact = nullptr;
    QPlainTextEdit* txtNotes = nullptr;
};
