#include "reports/ui/frmReportsLabels.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "core/modGeneral.h"
#include "platform/clsRegistry.h"
#include "reports/clsLabelSheet.h"
#include "reports/clsRTFLabel.h"
#include "reports/clsRTFMasterTemp.h"
#include "reports/ui/frmReportsFont.h"
#include "reports/ui/modReportDialogs.h"
#include "reports/ui/usrLabel.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/modFormPlace.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <functional>

namespace {

constexpr int KeyColumn = 2;
constexpr int IndexRole = Qt::UserRole;
constexpr int TwipsPerPixel = 15;

const char* const kHints[] = {"Drag address(es) from the list to the desired label(s).",
                              "To move an existing label, drag it to another location.",
                              "To clear labels, drag a label back to the list or click 'Clear All'."};

// The address list: its selected rows are dragged onto labels, and a label dropped on it is cleared.
class LabelAddressList : public QTreeWidget {
public:
    using QTreeWidget::QTreeWidget;
    std::function<void(int number)> LabelReturned;
    std::function<void()> EnterPressed;

protected:
    QStringList mimeTypes() const override { return {usrLabel::AddressesMime}; }
    QMimeData* mimeData(const QList<QTreeWidgetItem*>& items) const override {
        auto* mime = new QMimeData;
        mime->setData(usrLabel::AddressesMime, QByteArray::number(items.size()));
        return mime;
    }
    void dragEnterEvent(QDragEnterEvent* event) override { AcceptLabel(event); }
    void dragMoveEvent(QDragMoveEvent* event) override { AcceptLabel(event); }
    void dropEvent(QDropEvent* event) override {
        const int number = usrLabel::DraggedLabel(event->mimeData());
        if (number == 0)
            return;
        event->acceptProposedAction();
        if (LabelReturned)
            LabelReturned(number);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && EnterPressed) {
            EnterPressed();
            return;
        }
        QTreeWidget::keyPressEvent(event);
    }

private:
    static void AcceptLabel(QDragMoveEvent* event) {
        if (usrLabel::DraggedLabel(event->mimeData()) > 0)
            event->acceptProposedAction();
        else
            event->ignore();
    }
};

QString Setting(const char* name, const char* defaultValue) {
    return gRegistry().GetSetting(FormRegistryKey(QStringLiteral("frmReportsLabels")),
                                  QString::fromLatin1(name), QString::fromLatin1(defaultValue));
}

void SaveSetting(const char* name, const QString& value) {
    gRegistry().SaveSetting(FormRegistryKey(QStringLiteral("frmReportsLabels")), QString::fromLatin1(name),
                            value);
}

usrHyperlink* MakeLink(const QString& name, const QString& caption, QWidget* parent) {
    auto* link = new usrHyperlink(caption, parent);
    link->setObjectName(name);
    link->setFocusPolicy(Qt::StrongFocus);
    return link;
}

} // namespace

frmReportsLabels::frmReportsLabels(const clsReportRoute& route, QWidget* parent)
    : QDialog(parent), RPT_ROW(route.FormNumber), FilterEnum(route.FilterEnum), FilterText(route.FilterText),
      CustomWhere(route.CustomWhere) {
    setObjectName(QStringLiteral("frmReportsLabels"));
    setWindowTitle(modLabels::Title(RPT_ROW));
    setSizeGripEnabled(true);
    modFormPlace::Remember(this);

    auto* sides = new QHBoxLayout;
    sides->addWidget(MakeList(), 2);
    sides->addWidget(MakeSheet(), 3);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(sides, 1);
    layout->addWidget(MakeOptions());
    layout->addWidget(MakeCommands());

    LoadSettings();
    FillList();
    UpdateCounts();
    resize(1040, 680);
}

// ---- Building the form ----

QWidget* frmReportsLabels::MakeList() {
    auto* box = new QWidget(this);
    auto* list = new LabelAddressList(box);
    lvw = list;
    lvw->setObjectName(QStringLiteral("lvw"));
    lvw->setColumnCount(3);
    lvw->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Address"), QStringLiteral("Key")});
    lvw->setColumnHidden(KeyColumn, true);
    lvw->setRootIsDecorated(false);
    lvw->setUniformRowHeights(true);
    lvw->setAllColumnsShowFocus(true);
    lvw->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lvw->setDragDropMode(QAbstractItemView::DragOnly);
    lvw->viewport()->setAcceptDrops(true); // a label comes back here to be cleared
    lvw->header()->resizeSection(0, 170);
    list->LabelReturned = [this](int number) { ClearLabel(number); };
    list->EnterPressed = [this] { FillFreeLabels(); };
    connect(lvw, &QTreeWidget::itemSelectionChanged, this, &frmReportsLabels::UpdateCounts);

    lblSelected = new QLabel(box);
    lblSelected->setObjectName(QStringLiteral("lblSelected"));
    auto* selectAll = MakeLink(QStringLiteral("linkSelectAll"), QStringLiteral("Select All"), box);
    connect(selectAll, &usrHyperlink::Click, this, &frmReportsLabels::linkSelectAll_Click);
    auto* links = new QHBoxLayout;
    links->addWidget(lblSelected, 1);
    links->addWidget(selectAll);

    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(lvw, 1);
    layout->addLayout(links);
    return box;
}

QWidget* frmReportsLabels::MakeSheet() {
    auto* box = new QWidget(this);
    auto* sheet = new QWidget;
    mSheetGrid = new QGridLayout(sheet);
    mSheetGrid->setSpacing(4);
    for (int number = 1; number <= clsLabelSheet::ScreenCells; ++number) {
        auto* label = new usrLabel(number, sheet);
        connect(label, &usrLabel::Click, this, &frmReportsLabels::SelectLabel);
        connect(label, &usrLabel::ClearRequested, this, &frmReportsLabels::ClearLabel);
        connect(label, &usrLabel::AddressesDropped, this, &frmReportsLabels::DropAddresses);
        connect(label, &usrLabel::LabelDropped, this, &frmReportsLabels::MoveLabel);
        mSheetGrid->addWidget(label, (number - 1) / 3, (number - 1) % 3);
        mLabels.append(label);
    }
    imgSpillOver = new QLabel(sheet);
    imgSpillOver->setObjectName(QStringLiteral("imgSpillOver"));
    imgSpillOver->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(24));
    imgSpillOver->setToolTip(QStringLiteral("Labels spill over onto the next page."));
    imgSpillOver->setCursor(Qt::PointingHandCursor);
    imgSpillOver->installEventFilter(this);
    mSheetGrid->addWidget(imgSpillOver, 21 / 3, 3, Qt::AlignLeft | Qt::AlignTop);
    mSheetGrid->setRowStretch(clsLabelSheet::ScreenCells / 3, 1);

    auto* scroll = new QScrollArea(box);
    scroll->setObjectName(QStringLiteral("lvwLabels"));
    scroll->setWidgetResizable(true);
    scroll->setWidget(sheet);

    auto* hints = new QLabel(box);
    hints->setObjectName(QStringLiteral("lblHint"));
    QStringList lines;
    for (const char* hint : kHints)
        lines << QString::fromLatin1(hint);
    hints->setText(lines.join(QLatin1Char('\n')));
    lblCount = new QLabel(box);
    lblCount->setObjectName(QStringLiteral("lblCount"));
    auto* clearAll = MakeLink(QStringLiteral("linkClearAll"), QStringLiteral("Clear All"), box);
    connect(clearAll, &usrHyperlink::Click, this, &frmReportsLabels::linkClearAll_Click);
    auto* counts = new QHBoxLayout;
    counts->addWidget(lblCount, 1);
    counts->addWidget(clearAll);

    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll, 1);
    layout->addLayout(counts);
    layout->addWidget(hints);
    return box;
}

QWidget* frmReportsLabels::MakeOptions() {
    auto* row = new QWidget(this);
    auto* sheets = new QGroupBox(QStringLiteral("Label sheet"), row);
    auto* sheetLayout = new QGridLayout(sheets);
    for (const int kind : clsLabelSheet::Kinds()) {
        opt[kind] = new QRadioButton(clsLabelSheet::Of(kind).Caption, sheets);
        opt[kind]->setObjectName(QStringLiteral("opt_%1").arg(kind));
        sheetLayout->addWidget(opt[kind], 0, kind);
        connect(opt[kind], &QRadioButton::toggled, this, [this, kind](bool on) {
            if (on)
                SetSheet(kind);
        });
    }
    lblPaper = new QLabel(sheets);
    lblPaper->setObjectName(QStringLiteral("lblPaper"));
    lblLabelSize = new QLabel(sheets);
    lblLabelSize->setObjectName(QStringLiteral("lblLabelSize"));
    sheetLayout->addWidget(lblPaper, 1, 0, 1, 2);
    sheetLayout->addWidget(lblLabelSize, 2, 0, 1, 2);

    auto* fonts = new QGroupBox(QStringLiteral("Font"), row);
    auto* fontLayout = new QGridLayout(fonts);
    linkFont = MakeLink(QStringLiteral("linkFont"), QString(), fonts);
    linkFontSize = MakeLink(QStringLiteral("linkFontSize"), QString(), fonts);
    linkFont->setToolTip(QStringLiteral("Click to choose the font of the labels."));
    linkFontSize->setToolTip(linkFont->toolTip());
    connect(linkFont, &usrHyperlink::Click, this, &frmReportsLabels::linkFont_Click);
    connect(linkFontSize, &usrHyperlink::Click, this, &frmReportsLabels::linkFont_Click);
    fontLayout->addWidget(linkFont, 0, 0, 1, 2);
    fontLayout->addWidget(new QLabel(QStringLiteral("Size:"), fonts), 1, 0);
    fontLayout->addWidget(linkFontSize, 1, 1, Qt::AlignLeft);

    auto* start = new QGroupBox(QStringLiteral("Part-used sheet"), row);
    auto* startLayout = new QHBoxLayout(start);
    spnStart = new QSpinBox(start);
    spnStart->setObjectName(QStringLiteral("spnStart"));
    spnStart->setRange(1, clsLabelSheet::ScreenCells);
    auto* fill = new QPushButton(QStringLiteral("&Fill from label"), start);
    fill->setObjectName(QStringLiteral("cmdFill"));
    fill->setToolTip(
        QStringLiteral("Places the selected addresses (all, when none is selected) in order from "
                       "this label on."));
    connect(fill, &QPushButton::clicked, this, [this] { FillFrom(spnStart->value()); });
    startLayout->addWidget(fill);
    startLayout->addWidget(spnStart);

    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(sheets, 2);
    layout->addWidget(fonts, 1);
    layout->addWidget(start, 1);
    return row;
}

QWidget* frmReportsLabels::MakeCommands() {
    auto* bar = new QWidget(this);
    cmdRun = new QPushButton(QStringLiteral("&Print"), bar);
    cmdRun->setObjectName(QStringLiteral("cmdRun"));
    cmdRun->setDefault(true);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"), bar);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    chkPdf = new QCheckBox(QStringLiteral("Save as P&DF (no word processor needed)"), bar);
    chkPdf->setObjectName(QStringLiteral("chkPdf"));
    connect(cmdRun, &QPushButton::clicked, this, &frmReportsLabels::cmdRun_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(chkPdf);
    layout->addStretch(1);
    layout->addWidget(cmdRun);
    layout->addWidget(cancel);
    return bar;
}

void frmReportsLabels::FillList() {
    mAddresses = RecordIO::Read([this] { return modLabels::Addresses(RPT_ROW, FilterEnum, CustomWhere); });
    lvw->clear();
    QList<QTreeWidgetItem*> items;
    for (qsizetype i = 0; i < mAddresses.size(); ++i) {
        const modLabels::Address& address = mAddresses[i];
        // The name has its column: the address column shows the label's further lines on one line.
        const qsizetype nameEnd = address.Text.indexOf(QLatin1String("\r\n"));
        QString lines = nameEnd < 0 ? QString() : address.Text.mid(nameEnd + 2);
        auto* item = new QTreeWidgetItem(
            {address.Name, lines.replace(QLatin1String("\r\n"), QLatin1String(", ")), address.Key});
        item->setData(0, IndexRole, int(i));
        items.append(item);
    }
    lvw->addTopLevelItems(items);
}

// ---- The sheet ----

int frmReportsLabels::Sheet() const {
    return opt[clsLabelSheet::AveryL7160]->isChecked() ? clsLabelSheet::AveryL7160 : clsLabelSheet::Avery8160;
}

// The cells are laid out anew at the height of the sheet's labels; on a sheet of fewer labels than
// cells the warning stands beside the first label of the next page.
void frmReportsLabels::SetSheet(int sheet) {
    const clsLabelSheet& kind = clsLabelSheet::Of(sheet);
    for (usrLabel* label : mLabels)
        label->setFixedHeight(kind.ScreenCellHeight / TwipsPerPixel);
    lblPaper->setText(kind.PaperText);
    lblLabelSize->setText(kind.LabelText);
    mSheetGrid->removeWidget(imgSpillOver);
    mSheetGrid->addWidget(imgSpillOver, kind.LabelsPerPage / 3, 3, Qt::AlignLeft | Qt::AlignTop);
    imgSpillOver->setVisible(kind.LabelsPerPage < clsLabelSheet::ScreenCells);
}

QList<clsLabel> frmReportsLabels::PlacedLabels() const {
    QList<clsLabel> labels;
    for (const usrLabel* label : mLabels)
        if (label->IsFilled())
            labels.append({QString::number(label->Number()), label->FULL_ADDRESS_TX()});
    return labels;
}

QStringList frmReportsLabels::SelectedTexts(bool allWhenNone) const {
    QStringList texts;
    for (int row = 0; row < lvw->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* item = lvw->topLevelItem(row);
        if (item->isSelected() || (allWhenNone && lvw->selectedItems().isEmpty()))
            texts << mAddresses.at(item->data(0, IndexRole).toInt()).Text;
    }
    return texts;
}

void frmReportsLabels::PlaceFrom(int number, const QStringList& texts) {
    for (qsizetype i = 0; i < texts.size() && number + i <= mLabels.size(); ++i)
        mLabels[number + i - 1]->setFULL_ADDRESS_TX(texts[i]);
    UpdateCounts();
}

void frmReportsLabels::DropAddresses(int number) {
    PlaceFrom(number, SelectedTexts(false));
}

void frmReportsLabels::FillFrom(int start) {
    PlaceFrom(start, SelectedTexts(true));
}

void frmReportsLabels::FillFreeLabels() {
    const QStringList texts = SelectedTexts(false);
    qsizetype next = 0;
    for (usrLabel* label : mLabels) {
        if (next == texts.size())
            break;
        if (!label->IsFilled())
            label->setFULL_ADDRESS_TX(texts[next++]);
    }
    UpdateCounts();
}

void frmReportsLabels::MoveLabel(int from, int to) {
    if (from < 1 || to < 1 || from > mLabels.size() || to > mLabels.size() || from == to)
        return;
    usrLabel* source = mLabels[from - 1];
    usrLabel* target = mLabels[to - 1];
    const QString moved = source->FULL_ADDRESS_TX();
    source->setFULL_ADDRESS_TX(target->FULL_ADDRESS_TX());
    target->setFULL_ADDRESS_TX(moved);
    SelectLabel(to);
    UpdateCounts();
}

void frmReportsLabels::ClearLabel(int number) {
    if (number < 1 || number > mLabels.size())
        return;
    mLabels[number - 1]->setFULL_ADDRESS_TX(QString());
    UpdateCounts();
}

void frmReportsLabels::SelectLabel(int number) {
    for (usrLabel* label : mLabels)
        label->setSelected(label->Number() == number);
}

void frmReportsLabels::linkSelectAll_Click() {
    lvw->selectAll();
    lvw->setFocus();
}

void frmReportsLabels::linkClearAll_Click() {
    for (usrLabel* label : mLabels)
        label->setFULL_ADDRESS_TX(QString());
    UpdateCounts();
}

void frmReportsLabels::UpdateCounts() {
    const QList<clsLabel> placed = PlacedLabels();
    lblCount->setText(QString::number(placed.size()) + QStringLiteral(" labels to print"));
    lblSelected->setText(QString::number(lvw->selectedItems().size()) + QStringLiteral(" of ") +
                         QString::number(lvw->topLevelItemCount()) + QStringLiteral(" selected"));
    cmdRun->setEnabled(!placed.isEmpty());
}

bool frmReportsLabels::eventFilter(QObject* watched, QEvent* event) {
    if (watched == imgSpillOver && event->type() == QEvent::MouseButtonRelease) {
        ShowMessage(QStringLiteral("Labels spill over onto the next page."), Msg::OKOnly, ProgramTitle());
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

// ---- Print ----

// The sheet is written and handed to the desktop as every report is; the form stays open for the next.
void frmReportsLabels::cmdRun_Click() {
    gRTFMasterTemp().A4 = Sheet() == clsLabelSheet::AveryL7160;
    clsRTFLabel labels;
    labels.Sheet = Sheet();
    labels.Pdf = chkPdf->isChecked();
    labels.Labels = PlacedLabels();
    labels.FONT_NAME = mFontName;
    labels.FONT_SIZE = mFontSize;
    mLastFile = labels.Build();
    ReportDialogs::ShowWritten(mLastFile);
}

// ---- Font and settings ----

void frmReportsLabels::linkFont_Click() {
    frmReportsFont form(mFontName, mFontSize, this);
    connect(&form, &frmReportsFont::FontChanged, this, &frmReportsLabels::SetFontLinks);
    form.exec();
}

void frmReportsLabels::SetFontLinks(const QString& fontName, const QString& fontSize) {
    mFontName = fontName;
    mFontSize = fontSize;
    ShowFontLinks(linkFont, linkFontSize, fontName, fontSize);
}

void frmReportsLabels::LoadSettings() {
    SetFontLinks(Setting("Font", "Verdana"), Setting("FontSize", "9"));
    const bool letter = Setting("opt0", "True").compare(QLatin1String("False"), Qt::CaseInsensitive) != 0;
    opt[letter ? clsLabelSheet::Avery8160 : clsLabelSheet::AveryL7160]->setChecked(true);
    SetSheet(Sheet());
    chkPdf->setChecked(Setting("Pdf", "0") == QLatin1String("1"));
}

void frmReportsLabels::SaveSettings() const {
    SaveSetting("Font", mFontName);
    SaveSetting("FontSize", mFontSize);
    SaveSetting("opt0",
                Sheet() == clsLabelSheet::Avery8160 ? QStringLiteral("True") : QStringLiteral("False"));
    SaveSetting("Pdf", chkPdf->isChecked() ? QStringLiteral("1") : QStringLiteral("0"));
}

void frmReportsLabels::done(int result) {
    SaveSettings();
    QDialog::done(result);
}
