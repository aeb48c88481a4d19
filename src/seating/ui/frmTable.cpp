#include "seating/ui/frmTable.h"

#include "seating/ui/modTableShapes.h"
#include "shell/controls/modLayout.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr int kMostInCombo = 30;

// The picture of one shape; a click on it chooses the shape. The chosen shape shows highlighted.
class ShapePicture : public QWidget {
public:
    ShapePicture(int shape, QRadioButton* option, QWidget* parent)
        : QWidget(parent), mShape(shape), mOption(option) {
        setObjectName(QStringLiteral("imgShape_%1").arg(shape));
        setFixedSize(56, 56);
        setCursor(Qt::PointingHandCursor);
        setToolTip(TableShapeName(shape));
        connect(option, &QRadioButton::toggled, this, qOverload<>(&QWidget::update));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        PaintTableShape(painter, QRectF(rect()).adjusted(4, 4, -4, -4), mShape, mOption->isChecked());
    }
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && isEnabled())
            mOption->setChecked(true);
    }

private:
    int mShape;
    QRadioButton* mOption;
};

void FillNumbers(QComboBox* combo, int from, int to) {
    combo->clear();
    for (int n = from; n <= to; ++n)
        combo->addItem(QString::number(n));
}

} // namespace

frmTable::frmTable(const QString& key, QWidget* parent) : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmTable"));
    SetAdding(key.isEmpty());
    if (!key.isEmpty())
        RecordIO::Attempt([this, &key] { mTable.OpenRecord(key); });
    setWindowTitle(IsAdding() ? QStringLiteral("Add Table") : QStringLiteral("Edit Table"));

    QLabel* header = modLayout::HeaderLabel(this);
    header->setText(windowTitle());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(header);
    layout->addWidget(BuildProperties());
    layout->addWidget(BuildAddCount());
    layout->addStretch(1);
    layout->addWidget(ButtonRow());
    if (IsAdding()) {
        mNumber->setText(RecordIO::Read([] { return clsDINING_TABLE::NEXT_NB(); }));
        mShapes.first()->setChecked(true);
    } else {
        LoadTable();
    }
    for (QRadioButton* option : mShapes)
        connect(option, &QRadioButton::toggled, this, &frmTable::RefreshEnabling);
    connect(mNumber, &QLineEdit::textChanged, this, &frmTable::RefreshEnabling);
    connect(mLabel, &QLineEdit::textChanged, this, &frmTable::RefreshEnabling);
    connect(mSeats, &QComboBox::currentIndexChanged, this, &frmTable::RefreshEnabling);
    connect(mCount, &QComboBox::currentIndexChanged, this, &frmTable::RefreshEnabling);
    MarkClean();
    RefreshEnabling();
    adjustSize();
    mNumber->setFocus();
    mNumber->selectAll();
}

QWidget* frmTable::BuildProperties() {
    QGroupBox* group = modLayout::Group(QStringLiteral("Properties"), this);
    mNumber = new QLineEdit(group);
    mNumber->setObjectName(QStringLiteral("txt_0"));
    mLabel = new QLineEdit(group);
    mLabel->setObjectName(QStringLiteral("txt_1"));
    mSeats = new QComboBox(group);
    mSeats->setObjectName(QStringLiteral("cbo_1"));
    FillSeats(1, 8);

    auto* form = new QFormLayout;
    modLayout::CaptionedRow(form, QStringLiteral("&Table #"), mNumber);
    modLayout::CaptionedRow(form, QStringLiteral("&Label"), mLabel);
    mSeatsCaption = modLayout::CaptionedRow(
        form, IsAdding() ? QStringLiteral("&Each table seats") : QStringLiteral("This table seats"), mSeats);

    auto* shapes = new QGridLayout;
    for (int shape = RoundTable; shape <= TallTable; ++shape) {
        auto* option = new QRadioButton(TableShapeName(shape), group);
        option->setObjectName(QStringLiteral("opt_%1").arg(shape));
        mShapes.append(option);
        shapes->addWidget(new ShapePicture(shape, option, group), 0, shape - 1, Qt::AlignHCenter);
        shapes->addWidget(option, 1, shape - 1, Qt::AlignHCenter);
    }
    auto* box = new QVBoxLayout(group);
    box->addLayout(form);
    box->addLayout(shapes);
    return group;
}

QWidget* frmTable::BuildAddCount() {
    mAddGroup = modLayout::Group(QStringLiteral("Number of Tables to Add"), this, QStringLiteral("picAdd"));
    mCount = new QComboBox(mAddGroup);
    mCount->setObjectName(QStringLiteral("cbo_0"));
    FillNumbers(mCount, 1, kMostInCombo);
    auto* form = new QFormLayout(mAddGroup);
    modLayout::CaptionedRow(form, QStringLiteral("&Add"), mCount);
    mAddGroup->setVisible(IsAdding());
    return mAddGroup;
}

// The seats offered run from the fewest the table may have up to 30, or further when the table
// already has more.
void frmTable::FillSeats(int fewest, int chosen) {
    const int most = std::max({kMostInCombo, fewest, chosen});
    FillNumbers(mSeats, std::max(1, fewest), most);
    mSeats->setCurrentText(QString::number(std::max(fewest, chosen)));
}

void frmTable::LoadTable() {
    mNumber->setText(mTable.DINING_TABLE_NB);
    mLabel->setText(mTable.DINING_TABLE_NM);
    const long taken = RecordIO::Read([this] { return mTable.GetTotal(clsDINING_TABLE::SeatsTaken); });
    FillSeats(int(taken), mTable.SEATS_NB.toInt());
    const int shape = mTable.DINING_TABLE_TYPE_ID.toInt();
    mShapes.at(shape >= RoundTable && shape <= TallTable ? shape - 1 : 0)->setChecked(true);
}

int frmTable::ChosenShape() const {
    for (qsizetype i = 0; i < mShapes.size(); ++i) {
        if (mShapes.at(i)->isChecked())
            return int(i) + 1;
    }
    return RoundTable;
}

// With more than one table to add, the tables take the next numbers and no label.
void frmTable::RefreshEnabling() {
    const bool many = IsAdding() && mCount->currentIndex() > 0;
    mNumber->setEnabled(!many);
    mLabel->setEnabled(!many);
    if (many)
        mLabel->clear();
    const bool complete = !mNumber->text().trimmed().isEmpty() && mSeats->currentIndex() >= 0;
    SaveButton()->setEnabled(complete && (IsAdding() || IsDirty()));
}

QStringList frmTable::Snapshot() const {
    return {mNumber->text().trimmed(), mLabel->text().trimmed(), mSeats->currentText(),
            QString::number(ChosenShape()), mCount->currentText()};
}

clsDINING_TABLE frmTable::FromControls() const {
    clsDINING_TABLE table = mTable;
    table.DINING_TABLE_NB = mNumber->text().trimmed();
    table.DINING_TABLE_NM = mLabel->text().trimmed();
    table.SEATS_NB = mSeats->currentText();
    table.DINING_TABLE_TYPE_ID = QString::number(ChosenShape());
    return table;
}

// Every new table but the last is announced here; the editor's own Added carries the last.
bool frmTable::SaveRecord() {
    clsDINING_TABLE table = FromControls();
    if (!IsAdding()) {
        if (!RecordIO::Attempt([&table] { table.SaveEdited(); }))
            return false;
        mTable = table;
        return true;
    }
    const int count = mCount->currentText().toInt();
    QStringList keys;
    if (!RecordIO::Attempt([&] { keys = clsDINING_TABLE::AddTables(count, table); }))
        return false;
    mKeys = keys;
    RecordIO::Attempt([&] { mTable.OpenRecord(keys.last()); });
    for (qsizetype i = 0; i + 1 < keys.size(); ++i)
        emit Added(keys.at(i));
    return true;
}
