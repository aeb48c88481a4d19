#pragma once

#include "seating/clsHOTEL.h"
#include "seating/ui/clsFieldSet.h"
#include "seating/ui/frmTravelEditor.h"

class QSpinBox;
class usrHyperlink;

// Adds or edits one hotel. An empty key opens it for adding, with the next hotel number; "Save and New"
// starts the next hotel. Children: "txt_0" number, "txt_1" name, "txt_2" address, "txt_3" contact,
// "txt_4" phone, "txt_5" fax, "txt_6" e-mail, "txt_7" web site, "txt_8" rooms, "txt_9" notes,
// "picEmail", "picWeb", "cmdSave", "cmdSaveNew", "cmdCancel".
class frmHotel : public frmTravelEditor {
    Q_OBJECT

public:
    explicit frmHotel(const QString& key, QWidget* parent = nullptr);

    const clsHOTEL& Hotel() const { return mHotel; }

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mHotel.HOTEL_ID; }
    void StartNew() override;

private:
    clsHOTEL mHotel;
    clsFieldSet<clsHOTEL> mFields;
    QLineEdit* mNumber = nullptr;
    QLineEdit* mName = nullptr;
    QLineEdit* mEmail = nullptr;
    QLineEdit* mWeb = nullptr;
    QSpinBox* mRooms = nullptr;
    usrHyperlink* mPicEmail = nullptr;
    usrHyperlink* mPicWeb = nullptr;
};
