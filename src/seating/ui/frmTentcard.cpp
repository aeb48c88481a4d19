#include "seating/ui/frmTentcard.h"

#include "shell/controls/modLayout.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

frmTentcard::frmTentcard(const QString& tentcardId, QWidget* parent) : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmTentcard"));
    SetAdding(false);
    setWindowTitle(QStringLiteral("Edit Tentcard"));
    RecordIO::Attempt([this, &tentcardId] { mCard.OpenRecord(tentcardId); });

    auto* caption = new QLabel(QStringLiteral("Tentcard &wording"), this);
    mText = new QPlainTextEdit(mCard.TENTCARD_TX, this);
    mText->setObjectName(QStringLiteral("txtTENTCARD_TX"));
    mText->setTabChangesFocus(true);
    caption->setBuddy(mText);
    auto* table = new QLabel(this);
    table->setObjectName(QStringLiteral("lblTable"));
    table->setText(
        QStringLiteral("Table #") + mCard.DINING_TABLE_NB +
        (mCard.DINING_TABLE_NM.isEmpty() ? QString() : QStringLiteral(" - ") + mCard.DINING_TABLE_NM));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(table);
    layout->addWidget(caption);
    layout->addWidget(mText, 1);
    layout->addWidget(ButtonRow());
    MarkClean();
    resize(420, 240);
    mText->setFocus();
}

QStringList frmTentcard::Snapshot() const {
    return {mText->toPlainText()};
}

bool frmTentcard::SaveRecord() {
    clsTENTCARD card = mCard;
    card.TENTCARD_TX = mText->toPlainText().trimmed();
    if (!RecordIO::Attempt([&card] { card.Save(false); }))
        return false;
    mCard = card;
    return true;
}
