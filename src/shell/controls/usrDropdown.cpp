#include "shell/controls/usrDropdown.h"

#include "core/RecordIO.h"
#include "core/clsDB.h"
#include "core/clsDICT.h"
#include "shell/controls/ControlIcons.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyle>
#include <QToolButton>

namespace {

constexpr int kCodeRole = Qt::UserRole;

QToolButton* MakeButton(QWidget* parent, const QString& name, const QIcon& icon, const QString& tip) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setIcon(icon);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setFocusPolicy(Qt::TabFocus);
    button->setVisible(false);
    return button;
}

} // namespace

usrDropdown::usrDropdown(QWidget* parent) : QWidget(parent) {
    mCombo = new QComboBox(this);
    mCombo->setObjectName(QStringLiteral("cbo"));
    mCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    mCombo->setMinimumContentsLength(8);
    mCombo->installEventFilter(this);
    mAdd = MakeButton(this, QStringLiteral("cmdAdd"), ControlIcons::Plus(), tr("Click to add vendor"));
    mEdit = MakeButton(this, QStringLiteral("cmdEdit"), ControlIcons::Pencil(), tr("Click to edit vendor"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing) / 2);
    layout->addWidget(mCombo, 1);
    layout->addWidget(mAdd);
    layout->addWidget(mEdit);
    setFocusProxy(mCombo);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    connect(mCombo, &QComboBox::activated, this, [this] { emit Click(); });
    connect(mCombo, &QComboBox::currentIndexChanged, this, &usrDropdown::UpdateButtons);
    connect(mAdd, &QToolButton::clicked, this, &usrDropdown::AddClick);
    connect(mEdit, &QToolButton::clicked, this, &usrDropdown::EditClick);
    connect(&Notifier(), &usrDropdownNotifier::OptionsUpdated, this,
            &usrDropdown::mfrmOptions_OptionsUpdated);
    UpdateButtons();
}

// ---- Properties ----

void usrDropdown::setAddIsVisible(bool visible) {
    mAddIsVisible = visible;
    mAdd->setVisible(visible);
}

void usrDropdown::setEditIsVisible(bool visible) {
    mEditIsVisible = visible;
    mEdit->setVisible(visible);
}

QColor usrDropdown::BackColor() const {
    return mCombo->palette().color(QPalette::Base);
}

void usrDropdown::setBackColor(const QColor& color) {
    QPalette p = mCombo->palette();
    p.setColor(QPalette::Base, color);
    p.setColor(QPalette::Button, color);
    mCombo->setPalette(p);
}

void usrDropdown::setCode(const QString& code) {
    setListIndex(code.isEmpty() ? -1 : mCombo->findData(code, kCodeRole, Qt::MatchExactly));
}

int usrDropdown::ListCount() const {
    return mCombo->count();
}
int usrDropdown::ListIndex() const {
    return mCombo->currentIndex();
}
void usrDropdown::setListIndex(int index) {
    mCombo->setCurrentIndex(index >= 0 && index < ListCount() ? index : -1);
}
QString usrDropdown::Text() const {
    return ItemText(ListIndex());
}

void usrDropdown::setText(const QString& text) {
    setListIndex(text.isEmpty() ? -1 : mCombo->findText(text, Qt::MatchFixedString));
}

QString usrDropdown::ItemText(int index) const {
    return index >= 0 && index < ListCount() ? mCombo->itemText(index) : QString();
}

QString usrDropdown::ItemCode(int index) const {
    return index >= 0 && index < ListCount() ? mCombo->itemData(index, kCodeRole).toString() : QString();
}

void usrDropdown::setAddToolTip(const QString& tip) {
    mAdd->setToolTip(tip);
    mAdd->setAccessibleName(tip);
}

void usrDropdown::setEditToolTip(const QString& tip) {
    mEdit->setToolTip(tip);
    mEdit->setAccessibleName(tip);
}

// ---- Rows ----

void usrDropdown::AddItem(const QString& text, const QString& code) {
    mCombo->addItem(text, code);
}

void usrDropdown::Clear() {
    mCombo->clear();
}

int usrDropdown::FindString(const QString& text) const {
    return mCombo->findText(text, Qt::MatchStartsWith);
}

bool usrDropdown::PopulateX(int kind) {
    mSource = Source::Kind;
    mKind = kind;
    mSql.clear();
    return Refill();
}

bool usrDropdown::PopulateSQL(const QString& sql) {
    mSource = Source::Query;
    mKind = -1;
    mSql = sql;
    return Refill();
}

bool usrDropdown::Refill() {
    const QSignalBlocker blocker(mCombo);
    mCombo->clear();
    bool ok = true;
    if (mSource == Source::Kind)
        ok = FillFromKind(mKind);
    else if (mSource == Source::Query)
        ok = FillFromQuery(mSql);
    mCombo->setCurrentIndex(-1);
    ResizeDropdownArea();
    UpdateButtons();
    return ok;
}

bool usrDropdown::FillFromKind(int kind) {
    if (!clsDICT::IsDictionary(kind))
        return false;
    clsDICT dictionary(kind);
    for (const clsDICT& row : RecordIO::Read([&] { return dictionary.OpenRecords(kind); }))
        AddItem(row.TX, row.ID);
    return true;
}

bool usrDropdown::FillFromQuery(const QString& sql) {
    try {
        const clsRecordset rs = gDB().Execute(sql);
        const int textColumn = rs.Columns().size() > 1 ? 1 : 0;
        for (int row = 0; row < rs.RowCount(); ++row)
            AddItem(rs.Value(row, textColumn), rs.Value(row, 0));
        return true;
    } catch (const clsDbError& e) {
        RecordIO::Report(e);
        return false;
    }
}

void usrDropdown::ResizeDropdownArea() {
    const QFontMetrics metrics(mCombo->font());
    int widest = 0;
    for (int i = 0; i < ListCount(); ++i)
        widest = qMax(widest, metrics.horizontalAdvance(mCombo->itemText(i)));
    const int chrome = style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 4 * metrics.averageCharWidth();
    mCombo->view()->setMinimumWidth(qMax(mCombo->width(), widest + chrome));
}

// ---- Refresh after the options changed ----

usrDropdownNotifier& usrDropdown::Notifier() {
    static usrDropdownNotifier notifier;
    return notifier;
}

void usrDropdown::NotifyOptionsUpdated(int kind) {
    emit Notifier().OptionsUpdated(kind);
}

void usrDropdown::mfrmOptions_OptionsUpdated(int kind) {
    const bool concerned =
        mSource == Source::Query || (mSource == Source::Kind && (kind < 0 || kind == mKind));
    if (!concerned)
        return;
    const QString selected = Code();
    Refill();
    {
        const QSignalBlocker blocker(mCombo);
        setCode(selected);
    }
    UpdateButtons();
}

// ---- Keyboard ----

void usrDropdown::UpdateButtons() {
    mEdit->setEnabled(ListIndex() >= 0);
}

bool usrDropdown::HandleKey(int key) {
    if (key == Qt::Key_Insert && mAddIsVisible && mAdd->isEnabled()) {
        mAdd->click();
        return true;
    }
    if (key == Qt::Key_F2 && mEditIsVisible && mEdit->isEnabled()) {
        mEdit->click();
        return true;
    }
    return false;
}

void usrDropdown::keyPressEvent(QKeyEvent* event) {
    if (!HandleKey(event->key()))
        QWidget::keyPressEvent(event);
}

bool usrDropdown::eventFilter(QObject* watched, QEvent* event) {
    if (watched == mCombo && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->modifiers() == Qt::NoModifier &&
        HandleKey(static_cast<QKeyEvent*>(event)->key()))
        return true;
    return QWidget::eventFilter(watched, event);
}
