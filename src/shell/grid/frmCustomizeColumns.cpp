#include "shell/grid/frmCustomizeColumns.h"

#include "shell/grid/usrGrid.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace {
const QString kIconCaption = QStringLiteral("(Icon)");
}

frmCustomizeColumns::frmCustomizeColumns(usrGrid* grid, QWidget* parent) : QDialog(parent), mGrid(grid) {
    setObjectName(QStringLiteral("frmCustomizeColumns"));
    setWindowTitle(QStringLiteral("Customize Columns"));

    auto* hint = new QLabel(QStringLiteral("Tick the columns to show, and put them in the order you want:"), this);
    hint->setObjectName(QStringLiteral("lbl"));
    mList = new QListWidget(this);
    mList->setObjectName(QStringLiteral("lst"));
    mList->setMinimumSize(220, 260);
    hint->setBuddy(mList);

    const char* captions[] = {"Move &Up", "Move &Down", "&Show", "&Hide", "OK", "Cancel"};
    auto* commands = new QVBoxLayout;
    for (int i = 0; i < 6; ++i) {
        mCmd[i] = new QPushButton(QString::fromUtf8(captions[i]), this);
        mCmd[i]->setObjectName(QStringLiteral("cmd_%1").arg(i));
        mCmd[i]->setAutoDefault(false);
        commands->addWidget(mCmd[i]);
        if (i == CmdHide) commands->addStretch(1);
    }
    mCmd[CmdOK]->setDefault(true);

    auto* body = new QHBoxLayout;
    body->addWidget(mList, 1);
    body->addLayout(commands);
    auto* page = new QVBoxLayout(this);
    page->addWidget(hint);
    page->addLayout(body, 1);

    connect(mCmd[CmdMoveUp], &QPushButton::clicked, this, [this] { MoveSelected(-1); });
    connect(mCmd[CmdMoveDown], &QPushButton::clicked, this, [this] { MoveSelected(+1); });
    connect(mCmd[CmdShow], &QPushButton::clicked, this, [this] { CheckSelected(true); });
    connect(mCmd[CmdHide], &QPushButton::clicked, this, [this] { CheckSelected(false); });
    connect(mCmd[CmdOK], &QPushButton::clicked, this, [this] {
        Apply();
        accept();
    });
    connect(mCmd[CmdCancel], &QPushButton::clicked, this, &QDialog::reject);
    connect(mList, &QListWidget::currentRowChanged, this, &frmCustomizeColumns::UpdateCommands);
    connect(mList, &QListWidget::itemChanged, this, &frmCustomizeColumns::UpdateCommands);
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Up), mList), &QShortcut::activated, this,
            [this] { MoveSelected(-1); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Down), mList), &QShortcut::activated, this,
            [this] { MoveSelected(+1); });

    Fill();
    mList->setCurrentRow(0);
    UpdateCommands();
}

bool frmCustomizeColumns::CanHide(const QString& caption) {
    static const QStringList fixed = {kIconCaption, "Name", "Attendee Name", "Invitation"};
    return !fixed.contains(caption);
}

void frmCustomizeColumns::Fill() {
    const clsGridModel* model = mGrid->Model();
    for (const int column : mGrid->ColumnOrder()) {
        const clsGridColumn& definition = model->Column(column);
        if (definition.Internal) continue;
        const QString caption = definition.Caption.isEmpty() ? kIconCaption : definition.Caption;
        auto* item = new QListWidgetItem(caption, mList);
        item->setData(Qt::UserRole, column);
        const bool hideable = CanHide(caption);
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | (hideable ? Qt::ItemIsUserCheckable : Qt::NoItemFlags));
        item->setCheckState(mGrid->ColumnShown(column) || !hideable ? Qt::Checked : Qt::Unchecked);
    }
}

void frmCustomizeColumns::MoveSelected(int step) {
    const int from = mList->currentRow();
    const int to = from + step;
    if (from < 0 || to < 0 || to >= mList->count()) return;
    QListWidgetItem* item = mList->takeItem(from);
    mList->insertItem(to, item);
    mList->setCurrentRow(to);
}

void frmCustomizeColumns::CheckSelected(bool checked) {
    QListWidgetItem* item = mList->currentItem();
    if (item == nullptr || (!checked && !CanHide(item->text()))) return;
    item->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

void frmCustomizeColumns::UpdateCommands() {
    const int row = mList->currentRow();
    const QListWidgetItem* item = mList->currentItem();
    const bool checked = item != nullptr && item->checkState() == Qt::Checked;
    mCmd[CmdMoveUp]->setEnabled(row > 0);
    mCmd[CmdMoveDown]->setEnabled(row >= 0 && row < mList->count() - 1);
    mCmd[CmdShow]->setEnabled(item != nullptr && !checked);
    mCmd[CmdHide]->setEnabled(item != nullptr && checked && CanHide(item->text()));
}

void frmCustomizeColumns::Apply() {
    // The listed columns take the places of the listed columns, in the new order; the others stay.
    QList<int> order = mGrid->ColumnOrder();
    int next = 0;
    for (int& column : order) {
        if (mGrid->Model()->Column(column).Internal) continue;
        column = mList->item(next++)->data(Qt::UserRole).toInt();
    }
    mGrid->SetColumnOrder(order);
    for (int i = 0; i < mList->count(); ++i) {
        const QListWidgetItem* item = mList->item(i);
        mGrid->ShowColumn(item->data(Qt::UserRole).toInt(), item->checkState() == Qt::Checked);
    }
}
