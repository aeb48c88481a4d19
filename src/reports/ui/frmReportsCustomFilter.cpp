#include "reports/ui/frmReportsCustomFilter.h"

#include "reports/ui/modReportDialogs.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmReportsCustomFilter::frmReportsCustomFilter(int FormNumber, QWidget* parent)
    : QDialog(parent), mFilter(FormNumber) {
    setObjectName(QStringLiteral("frmReportsCustomFilter"));
    setWindowTitle(QStringLiteral("Custom Filter"));

    img = new QLabel(this);
    img->setObjectName(QStringLiteral("img"));
    const int iconSize = fontMetrics().height() * 2;
    img->setPixmap(ReportIcons::SectionIcon(FormNumber).pixmap(iconSize, iconSize));
    lblHeader = new QLabel(mFilter.HeaderCaption(), this);
    lblHeader->setObjectName(QStringLiteral("lblHeader"));
    QFont headerFont = lblHeader->font();
    headerFont.setPointSizeF(headerFont.pointSizeF() * 1.5);
    headerFont.setBold(true);
    lblHeader->setFont(headerFont);
    auto* header = new QHBoxLayout;
    header->addWidget(img);
    header->addWidget(lblHeader, 1);

    auto* hint = new QLabel(QStringLiteral("Tick what the records must be. Boxes in one row are "
                                           "alternatives; the rows are combined."),
                            this);
    hint->setWordWrap(true);

    auto* boxes = new QFrame(this);
    boxes->setFrameShape(QFrame::StyledPanel);
    auto* grid = new QGridLayout(boxes);
    grid->setHorizontalSpacing(fontMetrics().averageCharWidth() * 3);
    BuildBoxes(grid);

    lblCount = new QLabel(this);
    lblCount->setObjectName(QStringLiteral("lblCount"));
    lblCount->setMinimumHeight(fontMetrics().height() + 4);

    auto* buttons = new QDialogButtonBox(this);
    cmdRun = buttons->addButton(QStringLiteral("Run"), QDialogButtonBox::AcceptRole);
    cmdRun->setObjectName(QStringLiteral("cmdRun"));
    cmdRun->setDefault(true);
    cmdCancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(cmdRun, &QPushButton::clicked, this, &frmReportsCustomFilter::cmdRun_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addWidget(hint);
    layout->addWidget(boxes);
    layout->addWidget(lblCount);
    layout->addWidget(buttons);
    UpdateCount();
}

void frmReportsCustomFilter::BuildBoxes(QGridLayout* grid) {
    const QList<clsCustomFilter::Group>& groups = mFilter.Groups();
    for (qsizetype row = 0; row < groups.size(); ++row) {
        QList<QCheckBox*> boxes;
        for (qsizetype column = 0; column < groups[row].Boxes.size(); ++column) {
            const clsCustomFilter::Box& box = groups[row].Boxes[column];
            auto* chk = new QCheckBox(box.Caption, this);
            chk->setObjectName(QStringLiteral("chk_") + QString::number(box.Key));
            chk->installEventFilter(this);
            const int key = box.Key;
            connect(chk, &QCheckBox::toggled, this, [this, key](bool ticked) { chk_Click(key, ticked); });
            grid->addWidget(chk, int(row), int(column));
            boxes.append(chk);
        }
        mRows.append(boxes);
    }
    grid->setColumnStretch(3, 1);
}

void frmReportsCustomFilter::chk_Click(int key, bool ticked) {
    mFilter.SetTicked(key, ticked);
    UpdateCount();
}

void frmReportsCustomFilter::UpdateCount() {
    cmdRun->setEnabled(mFilter.AnyTicked());
    lblCount->setText(mFilter.CountText());
}

void frmReportsCustomFilter::cmdRun_Click() {
    if (!mFilter.AnyTicked())
        return;
    mWrittenFile = ReportDialogs::BuildAndShow(mFilter.Route());
    if (!mWrittenFile.isEmpty())
        accept();
}

// The arrow keys move through the boxes: left and right along a row, up and down between the rows.
bool frmReportsCustomFilter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        auto* box = qobject_cast<QCheckBox*>(watched);
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (box && MoveFocus(box, key))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

bool frmReportsCustomFilter::MoveFocus(QCheckBox* from, int key) {
    for (qsizetype row = 0; row < mRows.size(); ++row) {
        const qsizetype column = mRows[row].indexOf(from);
        if (column < 0)
            continue;
        qsizetype toRow = row;
        qsizetype toColumn = column;
        if (key == Qt::Key_Left)
            --toColumn;
        else if (key == Qt::Key_Right)
            ++toColumn;
        else if (key == Qt::Key_Up)
            --toRow;
        else if (key == Qt::Key_Down)
            ++toRow;
        else
            return false;
        if (toRow < 0 || toRow >= mRows.size() || toColumn < 0)
            return true;
        const QList<QCheckBox*>& target = mRows[toRow];
        if (toRow == row && toColumn >= target.size())
            return true;
        target[qMin(toColumn, target.size() - 1)]->setFocus(Qt::TabFocusReason);
        return true;
    }
    return false;
}
