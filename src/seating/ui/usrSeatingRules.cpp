#include "seating/ui/usrSeatingRules.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "seating/clsSEATING_RULE.h"
#include "seating/ui/frmAutoSeat.h"
#include "seating/ui/frmMain_04_Attendees_Tables.h"
#include "seating/ui/frmSeatingRule.h"
#include "shell/modScreenshots.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

usrSeatingRules::usrSeatingRules(frmMain_04_Attendees_Tables* page) : QWidget(page), mPage(page) {
    setObjectName(QStringLiteral("usrSeatingRules"));
    auto* box = new QGroupBox(QStringLiteral("Seating rules"), this);
    lvwRules = new QTreeWidget(box);
    lvwRules->setObjectName(QStringLiteral("lvwRules"));
    lvwRules->setHeaderLabels({QStringLiteral("Guests"), QStringLiteral("Rule")});
    lvwRules->setRootIsDecorated(false);
    lvwRules->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    lvwRules->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    lvwRules->header()->setStretchLastSection(false);
    auto* add = new QPushButton(QStringLiteral("Add rule…"), box);
    add->setObjectName(QStringLiteral("cmdAddRule"));
    cmdDeleteRule = new QPushButton(QStringLiteral("Delete rule"), box);
    cmdDeleteRule->setObjectName(QStringLiteral("cmdDeleteRule"));
    auto* seat = new QPushButton(QStringLiteral("Seat automatically…"), this);
    seat->setObjectName(QStringLiteral("cmdAutoSeat"));
    connect(add, &QPushButton::clicked, this, &usrSeatingRules::AddRule);
    connect(cmdDeleteRule, &QPushButton::clicked, this, &usrSeatingRules::DeleteSelectedRule);
    connect(seat, &QPushButton::clicked, this, &usrSeatingRules::SeatAutomatically);
    connect(lvwRules, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* row) {
        EditRule(row->data(0, Qt::UserRole).toString());
    });
    connect(lvwRules, &QTreeWidget::itemSelectionChanged, this,
            [this] { cmdDeleteRule->setEnabled(!lvwRules->selectedItems().isEmpty()); });

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(cmdDeleteRule);
    auto* inBox = new QVBoxLayout(box);
    inBox->addWidget(lvwRules);
    inBox->addLayout(buttons);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(seat);
    column->addWidget(box, 1);
    Reload();
}

void usrSeatingRules::Reload() {
    lvwRules->clear();
    const QList<clsSEATING_RULE> rules = RecordIO::Read([] { return clsSEATING_RULE::OpenRecords(); });
    for (const clsSEATING_RULE& rule : rules) {
        auto* row = new QTreeWidgetItem(
            lvwRules, {rule.CONTACT_NM + QStringLiteral(" and ") + rule.OTHER_CONTACT_NM, rule.KindText()});
        row->setData(0, Qt::UserRole, rule.SEATING_RULE_ID);
        row->setToolTip(0, rule.NOTES_TX);
    }
    cmdDeleteRule->setEnabled(false);
}

QStringList usrSeatingRules::RuleIds() const {
    QStringList ids;
    for (int i = 0; i < lvwRules->topLevelItemCount(); ++i)
        ids << lvwRules->topLevelItem(i)->data(0, Qt::UserRole).toString();
    return ids;
}

void usrSeatingRules::AddRule() {
    frmSeatingRule editor(QString(), QString(), this);
    connect(&editor, &frmEditorBase::Added, this, &usrSeatingRules::Reload);
    editor.exec();
}

void usrSeatingRules::EditRule(const QString& ruleId) {
    frmSeatingRule editor(QString(), QString(), this);
    if (!editor.EditRule(ruleId))
        return;
    connect(&editor, &frmEditorBase::Updated, this, &usrSeatingRules::Reload);
    editor.exec();
}

void usrSeatingRules::DeleteSelectedRule() {
    const QList<QTreeWidgetItem*> rows = lvwRules->selectedItems();
    if (rows.isEmpty())
        return;
    const QString caption = rows.first()->text(0) + QStringLiteral(": ") + rows.first()->text(1);
    if (ShowMessage(QStringLiteral("Delete the seating rule \"%1\"?").arg(caption),
                    Msg::YesNo | Msg::Question) != Msg::Yes)
        return;
    const QString key = rows.first()->data(0, Qt::UserRole).toString();
    if (RecordIO::Attempt([&] { clsSEATING_RULE::Delete(key); }))
        Reload();
}

void usrSeatingRules::ConnectSeater(frmAutoSeat& seater) {
    seater.OnApply = [this](const modSeating::Seats& before, const modSeating::Seats& after) {
        if (!mPage->ApplySeats(after))
            return false;
        mPage->PushSeatsStep(before, after, QStringLiteral("Seat automatically"));
        return true;
    };
}

void usrSeatingRules::SeatAutomatically() {
    frmAutoSeat seater(this);
    ConnectSeater(seater);
    seater.exec();
}

namespace {

// A few wishes of the couple on the demo wedding, when it has none: some pairs of attendees of different
// invitations kept together, two kept apart.
void DemoRules() {
    RecordIO::Attempt([] {
        if (!clsSEATING_RULE::OpenRecords().isEmpty())
            return;
        const clsRecordset rs =
            gDB().Execute(QStringLiteral("SELECT CONTACT_ID FROM CONTACT WHERE ATTENDING_FG = 'Y' AND "
                                         "CONTACT_ID > 2 AND PRIMARY_CONTACT_FG = 'Y' "
                                         "ORDER BY CONTACT_ID LIMIT 16"));
        for (int row = 0; row + 1 < rs.RowCount(); row += 2) {
            clsSEATING_RULE rule;
            rule.CONTACT_ID = rs.Value(row, 0);
            rule.OTHER_CONTACT_ID = rs.Value(row + 1, 0);
            rule.RULE_CD = row % 8 == 6 ? clsSEATING_RULE::KeepApart : clsSEATING_RULE::KeepTogether;
            rule.WEIGHT_NB = QString::number(20 + 10 * row);
            rule.Save(true);
        }
    });
}

} // namespace

void RegisterAutoSeatScreenshots() {
    modScreenshots::Register(QStringLiteral("frmAutoSeat"), [] {
        DemoRules();
        auto* seater = new frmAutoSeat;
        seater->ProposeNow();
        return seater;
    });
    modScreenshots::Register(QStringLiteral("frmSeatingRule"), [] { return new frmSeatingRule; });
}
