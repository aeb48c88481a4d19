#include "widgets/ui/usrVowsSide.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "guests/clsCONTACT.h"
#include "guests/modParseText.h"
#include "shell/controls/modLayout.h"
#include "shell/options/modBrideGroomIcons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

usrVowsSide::usrVowsSide(QWidget* parent) : usrWidgetSide(parent) {
    setObjectName(QStringLiteral("usrVowsSide"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    const QString her = gBride().FIRST_NM.isEmpty() ? QStringLiteral("Her Vows")
                                                    : gBride().FIRST_NM + QStringLiteral("'s Vows");
    const QString his = gGroom().FIRST_NM.isEmpty() ? QStringLiteral("His Vows")
                                                    : gGroom().FIRST_NM + QStringLiteral("'s Vows");
    layout->addWidget(BuildVows(clsWORDING::BrideVows, QStringLiteral("lblHers"), her));
    layout->addWidget(BuildVows(clsWORDING::GroomVows, QStringLiteral("lblHis"), his));
}

// The partner's picture kept with the data, beside the label.
QLabel* usrVowsSide::Picture(int row) {
    const bool bride = row == clsWORDING::BrideVows;
    auto* picture = new QLabel(this);
    picture->setObjectName(bride ? QStringLiteral("imgBride") : QStringLiteral("imgGroom"));
    picture->setPixmap(modBrideGroomIcons::StoredIcon(bride).pixmap(32, 32));
    return picture;
}

QWidget* usrVowsSide::BuildVows(int row, const QString& name, const QString& caption) {
    auto* box = new QWidget(this);
    auto* layout = new QVBoxLayout(box);
    QLabel* label = modLayout::BoldLabel(name, box);
    label->setText(caption);
    auto* text = new QPlainTextEdit(box);
    text->setObjectName(QStringLiteral("txtVows_%1").arg(row));
    auto* save = new QPushButton(QStringLiteral("Save"), box);
    save->setObjectName(QStringLiteral("cmdSaveVows_%1").arg(row));
    auto* heading = new QHBoxLayout;
    heading->addWidget(Picture(row));
    heading->addWidget(label, 1);
    layout->addLayout(heading);
    layout->addWidget(text, 1);
    layout->addWidget(save, 0, Qt::AlignRight);
    mText.at(Slot(row)) = text;
    mSave.at(Slot(row)) = save;

    clsWORDING& saved = mSaved.at(Slot(row));
    RecordIO::Attempt([&saved, row] { saved.OpenRecord(QString::number(row)); });
    text->setPlainText(Shown(saved.WORDING_TX));
    connect(text, &QPlainTextEdit::textChanged, this, [this, row] { UpdateSaveButton(row); });
    connect(save, &QPushButton::clicked, this, [this, row] { cmdSaveVows_Click(row); });
    UpdateSaveButton(row);
    return box;
}

void usrVowsSide::UpdateSaveButton(int row) {
    mSave.at(Slot(row))->setEnabled(NormalizeLineBreaks(mText.at(Slot(row))->toPlainText()) !=
                                    NormalizeLineBreaks(mSaved.at(Slot(row)).WORDING_TX));
}

bool usrVowsSide::cmdSaveVows_Click(int row) {
    clsWORDING wording;
    wording.WORDING_ID = QString::number(row);
    wording.WORDING_TX = NormalizeLineBreaks(mText.at(Slot(row))->toPlainText());
    if (!RecordIO::Attempt([&wording] { wording.Save(false); }))
        return false;
    mSaved.at(Slot(row)) = wording;
    UpdateSaveButton(row);
    return true;
}

// Yes saves both texts, as if both buttons were pressed.
void usrVowsSide::Leaving() {
    if (!mSave.at(0)->isEnabled() && !mSave.at(1)->isEnabled())
        return;
    if (ShowMessage(QStringLiteral("Save Wedding Vows?"), Msg::YesNo | Msg::Question, ProgramTitle()) !=
        Msg::Yes)
        return;
    for (int row : {int(clsWORDING::BrideVows), int(clsWORDING::GroomVows)})
        if (mSave.at(Slot(row))->isEnabled())
            cmdSaveVows_Click(row);
}
