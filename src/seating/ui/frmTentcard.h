#pragma once

#include "seating/clsTENTCARD.h"
#include "shell/frmEditorBase.h"

class QPlainTextEdit;

// The wording of one tent card, changed by hand; it lasts until the cards are refreshed.
// Children: "txtTENTCARD_TX", "cmdSave", "cmdCancel".
class frmTentcard : public frmEditorBase {
    Q_OBJECT

public:
    explicit frmTentcard(const QString& tentcardId, QWidget* parent = nullptr);

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mCard.TENTCARD_ID; }

private:
    clsTENTCARD mCard;
    QPlainTextEdit* mText = nullptr;
};
