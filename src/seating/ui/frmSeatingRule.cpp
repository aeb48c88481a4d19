#include "seating/ui/frmSeatingRule.h"

#include "core/FilterCode.h"
#include "guests/clsCONTACT.h"
#include "seating/clsSEATING_RULE.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

namespace {

QComboBox* AttendeeBox(const QList<clsCONTACT>& attendees, const QString& chosen, const QString& name,
                       QWidget* parent) {
    auto* box = new QComboBox(parent);
    box->setObjectName(name);
    box->addItem(QString(), QString());
    for (const clsCONTACT& c : attendees)
        box->addItem(c.LastFirstMiddleSuffix(), c.CONTACT_ID);
    box->setCurrentIndex(std::max(0, box->findData(chosen)));
    return box;
}

} // namespace

frmSeatingRule::frmSeatingRule(const QString& firstId, const QString& otherId, QWidget* parent)
    : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmSeatingRule"));
    SetRecordNoun(QStringLiteral("Seating Rule"));
    SetAdding(true);
    const QList<clsCONTACT> attendees =
        RecordIO::Read([] { return clsCONTACT::OpenRecords(ContactFilter::Attending); });
    cboContact_0 = AttendeeBox(attendees, firstId, QStringLiteral("cboContact_0"), this);
    cboContact_1 = AttendeeBox(attendees, otherId, QStringLiteral("cboContact_1"), this);
    optTogether = new QRadioButton(QStringLiteral("Keep together"), this);
    optTogether->setObjectName(QStringLiteral("optTogether"));
    optTogether->setChecked(true);
    optApart = new QRadioButton(QStringLiteral("Keep apart"), this);
    optApart->setObjectName(QStringLiteral("optApart"));
    spnWeight = new QSpinBox(this);
    spnWeight->setObjectName(QStringLiteral("spnWeight"));
    spnWeight->setRange(clsSEATING_RULE::MinWeight, clsSEATING_RULE::MaxWeight);
    spnWeight->setValue(50);
    spnWeight->setPrefix(QStringLiteral("strength "));
    connect(optTogether, &QRadioButton::toggled, spnWeight, &QWidget::setEnabled);
    txtNotes = new QLineEdit(this);
    txtNotes->setObjectName(QStringLiteral("txtNotes"));

    auto* together = new QHBoxLayout;
    together->addWidget(optTogether);
    together->addWidget(spnWeight);
    together->addStretch(1);
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Guest"), cboContact_0);
    form->addRow(QStringLiteral("&and guest"), cboContact_1);
    form->addRow(QString(), together);
    form->addRow(QString(), optApart);
    form->addRow(QStringLiteral("&Notes"), txtNotes);
    auto* column = new QVBoxLayout(this);
    column->addWidget(Header());
    column->addLayout(form);
    column->addWidget(ButtonRow());
    MarkClean();
}

bool frmSeatingRule::EditRule(const QString& ruleId) {
    clsSEATING_RULE rule;
    if (!RecordIO::Read([&] { return rule.OpenRecord(ruleId); }))
        return false;
    mKey = rule.SEATING_RULE_ID;
    SetAdding(false);
    cboContact_0->setCurrentIndex(std::max(0, cboContact_0->findData(rule.CONTACT_ID)));
    cboContact_1->setCurrentIndex(std::max(0, cboContact_1->findData(rule.OTHER_CONTACT_ID)));
    (rule.RULE_CD == clsSEATING_RULE::KeepApart ? optApart : optTogether)->setChecked(true);
    if (!rule.WEIGHT_NB.isEmpty())
        spnWeight->setValue(rule.WEIGHT_NB.toInt());
    txtNotes->setText(rule.NOTES_TX);
    MarkClean();
    return true;
}

QStringList frmSeatingRule::Snapshot() const {
    return {cboContact_0->currentData().toString(), cboContact_1->currentData().toString(),
            optApart->isChecked() ? clsSEATING_RULE::KeepApart : clsSEATING_RULE::KeepTogether,
            QString::number(spnWeight->value()), txtNotes->text()};
}

bool frmSeatingRule::SaveRecord() {
    clsSEATING_RULE rule;
    rule.SEATING_RULE_ID = IsAdding() ? QString() : mKey;
    rule.CONTACT_ID = cboContact_0->currentData().toString();
    rule.OTHER_CONTACT_ID = cboContact_1->currentData().toString();
    rule.RULE_CD = optApart->isChecked() ? clsSEATING_RULE::KeepApart : clsSEATING_RULE::KeepTogether;
    rule.WEIGHT_NB = QString::number(spnWeight->value());
    rule.NOTES_TX = txtNotes->text().trimmed();
    if (!RecordIO::Attempt([&] { rule.Save(IsAdding()); }))
        return false;
    mKey = rule.SEATING_RULE_ID;
    return true;
}
