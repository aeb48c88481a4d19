#pragma once

#include "shell/frmEditorBase.h"

class QComboBox;
class QLineEdit;
class QRadioButton;
class QSpinBox;

// Adds or edits one seating rule: two attendees, and "Keep together" with a strength or "Keep apart".
class frmSeatingRule : public frmEditorBase {
    Q_OBJECT

public:
    // The two people chosen first, when the opener knows them.
    explicit frmSeatingRule(const QString& firstId = {}, const QString& otherId = {},
                            QWidget* parent = nullptr);
    // Shows the stored rule for editing; false when there is no such rule.
    bool EditRule(const QString& ruleId);

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mKey; }

private:
    QComboBox* cboContact_0 = nullptr;
    QComboBox* cboContact_1 = nullptr;
    QRadioButton* optTogether = nullptr;
    QRadioButton* optApart = nullptr;
    QSpinBox* spnWeight = nullptr;
    QLineEdit* txtNotes = nullptr;
    QString mKey;
};
