#pragma once

#include "shell/frmEditorBase.h"

#include <QList>

class QFormLayout;
class QLineEdit;

// What the hotel and the flight editors share: the heading, a form of captioned boxes, the row of Save,
// Save and New ("cmdSaveNew") and Cancel, and Save waiting for a number and the boxes that must be
// filled.
class frmTravelEditor : public frmEditorBase {
    Q_OBJECT

protected:
    using frmEditorBase::frmEditorBase;

    // Lays the editor out around the form; Save waits for a number in `number` and text in `required`.
    void Lay(QFormLayout* form, QLineEdit* number, const QList<QLineEdit*>& required);
    // What the controls show now counts as unchanged; the box takes the focus.
    void Ready(QLineEdit* focus);

private:
    void RefreshEnabling();

    QLineEdit* mNumber = nullptr;
    QList<QLineEdit*> mRequired;
};
