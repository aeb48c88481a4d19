#include "guests/ui/frmCheckName.h"

#include "core/RecordIO.h"
#include "core/clsApp.h"
#include "core/clsDICT.h"
#include "guests/ui/modGuestEditors.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

QLineEdit* NamePart(const QString& name, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    return box;
}

QComboBox* EditableList(const QString& name, QWidget* parent) {
    auto* list = new QComboBox(parent);
    list->setObjectName(name);
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    return list;
}

} // namespace

frmCheckName::frmCheckName(const QString& title, const QString& fullName, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmCheckName"));
    setWindowTitle(QStringLiteral("Edit full name"));
    BuildControls();
    FillLists();
    ShowParts(title, fullName);
    mFirst->setFocus();
}

void frmCheckName::BuildControls() {
    mTitle = EditableList(QStringLiteral("cbo_0"), this);
    mFirst = NamePart(QStringLiteral("txt_1"), this);
    mMiddle = NamePart(QStringLiteral("txt_2"), this);
    mLast = NamePart(QStringLiteral("txt_3"), this);
    mSuffix = EditableList(QStringLiteral("cbo_4"), this);

    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->addRow(QStringLiteral("&title"), mTitle);
    form->addRow(QStringLiteral("&first"), mFirst);
    form->addRow(QStringLiteral("&middle"), mMiddle);
    form->addRow(QStringLiteral("l&ast"), mLast);
    form->addRow(QStringLiteral("&suffix"), mSuffix);
    for (QWidget* box :
         {static_cast<QWidget*>(mFirst), static_cast<QWidget*>(mMiddle), static_cast<QWidget*>(mLast)})
        box->setMinimumWidth(box->fontMetrics().averageCharWidth() * 28);

    mShowWhenUnclear = new QCheckBox(QStringLiteral("Show &when name is incomplete or unclear"), this);
    mShowWhenUnclear->setObjectName(QStringLiteral("chk"));
    mShowWhenUnclear->setChecked(gApp().ShowDialogWhenNameUnclear());
    // The choice counts at once, whichever button closes the dialog.
    connect(mShowWhenUnclear, &QCheckBox::toggled, this,
            [](bool checked) { gApp().SetShowDialogWhenNameUnclear(checked); });

    QDialogButtonBox* buttons = modGuestEditors::OkCancelButtons(this, [this] { cmdOK_Click(); });

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addSpacing(4);
    layout->addWidget(mShowWhenUnclear);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmCheckName::FillLists() {
    mTitle->addItem(QString());
    for (const clsDICT& title : RecordIO::Read([] { return clsDICT().OpenRecords(clsDICT::Title); }))
        mTitle->addItem(title.TX);
    mSuffix->addItems({QString(), QStringLiteral("I"), QStringLiteral("II"), QStringLiteral("III"),
                       QStringLiteral("IV"), QStringLiteral("Jr."), QStringLiteral("Sr.")});
}

// The title is given already, so the name is parsed without looking for one.
void frmCheckName::ShowParts(const QString& title, const QString& fullName) {
    clsParseName parts;
    parts.ParseFullName(fullName, false);
    mTitle->setCurrentText(title);
    mFirst->setText(parts.FIRST_NM);
    mMiddle->setText(parts.MIDDLE_NM);
    mLast->setText(parts.LAST_NM);
    mSuffix->setCurrentText(parts.SUFFIX_TX);
}

void frmCheckName::cmdOK_Click() {
    clsParseName name;
    name.TITLE_TX = mTitle->currentText().trimmed().left(50);
    name.FIRST_NM = mFirst->text().trimmed();
    name.MIDDLE_NM = mMiddle->text().trimmed();
    name.LAST_NM = mLast->text().trimmed();
    name.SUFFIX_TX = mSuffix->currentText().trimmed().left(50);
    emit NameChecked(name);
    accept();
}

void frmCheckName::PlaceBelow(const QRect& globalRect) {
    adjustSize();
    QPoint at = globalRect.bottomLeft() + QPoint(0, 2);
    if (const QScreen* screen = QGuiApplication::screenAt(globalRect.center())) {
        const QRect room = screen->availableGeometry();
        at.setX(qBound(room.left(), at.x(), room.right() - width()));
        at.setY(qBound(room.top(), at.y(), room.bottom() - height()));
    }
    move(at);
}
