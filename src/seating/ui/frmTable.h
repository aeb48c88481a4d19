#pragma once

#include "seating/clsDINING_TABLE.h"
#include "shell/frmEditorBase.h"

#include <QList>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;

// Adds one table, adds many at once (laid out in rows across the floor), or edits one. An empty key
// opens it for adding. Added is signalled once for every new table, Updated after an edit.
// Children: "txt_0" (number), "txt_1" (label), "cbo_0" (tables to add), "cbo_1" (seats), "opt_1" to
// "opt_4" with the pictures "imgShape_1" to "imgShape_4", "picAdd", "cmdSave", "cmdCancel".
class frmTable : public frmEditorBase {
    Q_OBJECT

public:
    explicit frmTable(const QString& key, QWidget* parent = nullptr);

    const clsDINING_TABLE& Table() const { return mTable; }

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mKeys.isEmpty() ? mTable.DINING_TABLE_ID : mKeys.last(); }

private:
    QWidget* BuildProperties();
    QWidget* BuildAddCount();
    void FillSeats(int fewest, int chosen);
    void LoadTable();
    int ChosenShape() const;
    void RefreshEnabling();
    clsDINING_TABLE FromControls() const;

    clsDINING_TABLE mTable;
    QStringList mKeys; // the tables this dialog added
    QLineEdit* mNumber = nullptr;
    QLineEdit* mLabel = nullptr;
    QComboBox* mCount = nullptr;
    QComboBox* mSeats = nullptr;
    QLabel* mSeatsCaption = nullptr;
    QGroupBox* mAddGroup = nullptr;
    QList<QRadioButton*> mShapes;
};
