#pragma once

#include "seating/clsFLIGHT.h"
#include "seating/ui/clsFieldSet.h"
#include "seating/ui/frmTravelEditor.h"

class QDateTimeEdit;

// Adds or edits one flight. An empty key opens it for adding, with the next flight number; "Save and New"
// starts the next flight. A flight that would arrive before it departs is refused with a message.
// Children: "txt_0" number, "txt_1" name, "txt_2" airport of departure, "txt_3" airport of arrival,
// "txt_4" notes, "dtp_0" departs, "dtp_1" arrives, "cmdSave", "cmdSaveNew", "cmdCancel".
class frmFlight : public frmTravelEditor {
    Q_OBJECT

public:
    explicit frmFlight(const QString& key, QWidget* parent = nullptr);

    const clsFLIGHT& Flight() const { return mFlight; }
    static QString ArrivesBeforeDepartsMessage();

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mFlight.FLIGHT_ID; }
    void StartNew() override;

private:
    QDateTimeEdit* Picker(const QString& name);

    clsFLIGHT mFlight;
    clsFieldSet<clsFLIGHT> mFields;
    QLineEdit* mNumber = nullptr;
    QLineEdit* mName = nullptr;
    QLineEdit* mFrom = nullptr;
    QLineEdit* mTo = nullptr;
    QDateTimeEdit* mDeparts = nullptr;
    QDateTimeEdit* mArrives = nullptr;
};
