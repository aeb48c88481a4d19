#include "seating/ui/frmTravelEditor.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

void frmTravelEditor::Lay(QFormLayout* form, QLineEdit* number, const QList<QLineEdit*>& required) {
    mNumber = number;
    mRequired = required;
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Header());
    layout->addLayout(form);
    EditorButtonNames names;
    names.SaveAndNew = QStringLiteral("cmdSaveNew");
    layout->addWidget(ButtonRow(names));
    for (QLineEdit* box : mRequired + QList<QLineEdit*>{mNumber})
        connect(box, &QLineEdit::textChanged, this, &frmTravelEditor::RefreshEnabling);
}

void frmTravelEditor::Ready(QLineEdit* focus) {
    MarkClean();
    RefreshEnabling();
    resize(460, sizeHint().height());
    focus->setFocus();
}

void frmTravelEditor::RefreshEnabling() {
    bool complete = mNumber->hasAcceptableInput();
    for (QLineEdit* box : std::as_const(mRequired))
        complete = complete && !box->text().trimmed().isEmpty();
    SaveButton()->setEnabled(complete);
    SaveAndNewButton()->setEnabled(complete);
}
