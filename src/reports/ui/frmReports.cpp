#include "reports/ui/frmReports.h"

#include "core/RecordIO.h"
#include "core/clsApp.h"
#include "core/clsVOWREN.h"
#include "core/modGeneral.h"
#include "platform/clsRegistry.h"
#include "platform/clsShell.h"
#include "reports/ui/frmReportsFont.h"
#include "reports/ui/modReportDialogs.h"
#include "shell/controls/usrColor.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/modFormPlace.h"

#include <QApplication>
#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

using C = clsReportCatalogue;

constexpr int KeyRole = Qt::UserRole;
constexpr int IndentRole = Qt::UserRole + 1;
constexpr int NotesGap = 14;       // between the right-aligned counts and the notes
constexpr int FirstColorIndex = 4; // the colours are rows 4, 5 and 6 of VOWREN
const char* const kColorCaptions[] = {"Header", "Subheader", "Border"};
const char* const kNotAvailable = "Not available yet";
const char* const kSectionNotAvailable = "The reports of this section are not available yet.";

// Moves a cell's text and icon right by the indent it carries.
class IndentDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const int indent = index.data(IndentRole).toInt();
        if (indent <= 0) {
            QStyledItemDelegate::paint(painter, option, index);
            return;
        }
        QStyleOptionViewItem whole = option;
        initStyleOption(&whole, index);
        const QWidget* widget = option.widget;
        QStyle* style = widget ? widget->style() : QApplication::style();
        style->drawPrimitive(QStyle::PE_PanelItemViewItem, &whole, painter, widget);
        QStyleOptionViewItem moved = option;
        moved.rect.setLeft(moved.rect.left() + indent);
        QStyledItemDelegate::paint(painter, moved, index);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        size.rwidth() += index.data(IndentRole).toInt();
        return size;
    }
};

QTreeWidget* MakeGrid(const QString& name, const QStringList& headers, QWidget* parent) {
    auto* grid = new QTreeWidget(parent);
    grid->setObjectName(name);
    grid->setColumnCount(int(headers.size()));
    grid->setHeaderLabels(headers);
    grid->setRootIsDecorated(false);
    grid->setUniformRowHeights(true);
    grid->setAllColumnsShowFocus(true);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    grid->setItemDelegate(new IndentDelegate(grid));
    grid->header()->setSectionsMovable(false);
    return grid;
}

usrHyperlink* MakeLink(const QString& name, QWidget* parent) {
    auto* link = new usrHyperlink(parent);
    link->setObjectName(name);
    link->setFocusPolicy(Qt::StrongFocus);
    return link;
}

QColor ToQColor(const clsColor& color) {
    return QColor(color.RedPart(), color.GreenPart(), color.BluePart());
}

clsColor FromQColor(const QColor& color) {
    return clsColor(color.red(), color.green(), color.blue());
}

QString Setting(const char* name, const char* defaultValue) {
    return gRegistry().GetSetting(FormRegistryKey(QStringLiteral("frmReports")), QString::fromLatin1(name),
                                  QString::fromLatin1(defaultValue));
}

void SaveSetting(const char* name, const QString& value) {
    gRegistry().SaveSetting(FormRegistryKey(QStringLiteral("frmReports")), QString::fromLatin1(name), value);
}

int IndexSetting(const char* name, int count) {
    bool ok = false;
    const int index = Setting(name, "0").toInt(&ok);
    return ok && index >= 0 && index < count ? index : 0;
}

} // namespace

frmReports::frmReports(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmReports"));
    setWindowTitle(QStringLiteral("Print Reports"));
    setSizeGripEnabled(true);
    modFormPlace::Remember(this);

    auto* options = new QHBoxLayout;
    options->addWidget(MakeReportType(), 3);
    options->addWidget(MakePaper(), 3);
    options->addWidget(MakeFont(), 2);
    options->addWidget(MakeColors(), 2);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(MakeGrids(), 1);
    layout->addLayout(options);
    layout->addWidget(MakeCommands());

    auto* reload = new QShortcut(QKeySequence(Qt::Key_F5), this);
    connect(reload, &QShortcut::activated, this, &frmReports::FillFilters);

    LoadSettings();
    FillReports();
    resize(920, 680);
}

// ---- Building the form ----

QWidget* frmReports::MakeGrids() {
    gridReport = MakeGrid(QStringLiteral("gridReport"), {QStringLiteral("Report")}, this);
    gridReport->setIconSize(QSize(20, 20));
    gridFilter =
        MakeGrid(QStringLiteral("gridFilter"),
                 {QStringLiteral("Filter"), QStringLiteral("Total records"), QStringLiteral("Notes")}, this);
    gridFilter->setColumnWidth(0, 220);
    gridFilter->setColumnWidth(1, 100);
    gridFilter->header()->setStretchLastSection(true);
    gridFilter->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    gridReport->installEventFilter(this);
    gridFilter->installEventFilter(this);

    connect(gridReport, &QTreeWidget::currentItemChanged, this, &frmReports::FillFilters);
    connect(gridFilter, &QTreeWidget::currentItemChanged, this, &frmReports::UpdateCommands);
    connect(gridFilter, &QTreeWidget::itemDoubleClicked, this, [this] {
        if (cmdRun->isEnabled())
            cmdRun_Click();
    });

    auto* splitter = new QSplitter(this);
    splitter->addWidget(gridReport);
    splitter->addWidget(gridFilter);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({190, 690});
    splitter->setChildrenCollapsible(false);
    return splitter;
}

QWidget* frmReports::MakeReportType() {
    auto* box = new QGroupBox(QStringLiteral("Report Type"), this);
    auto* layout = new QVBoxLayout(box);
    struct Choice {
        int Type;
        const char* Caption;
        const char* Icon;
    };
    const Choice choices[] = {{C::WordRtf, "Microsoft Word (.RTF)", "rtf"},
                              {C::CommaSeparated, "Comma Separated Values (.CSV)", "csv"},
                              {C::PortableDocument, "Portable Document Format (.PDF)", "pdf"},
                              {C::Labels, "Labels (.RTF)", "labels"}};
    for (const Choice& choice : choices) {
        QRadioButton*& button = opt[choice.Type];
        button = new QRadioButton(QString::fromLatin1(choice.Caption), box);
        button->setObjectName(QStringLiteral("opt_") + QString::number(choice.Type));
        button->setIcon(ReportIcons::Icon(QString::fromLatin1(choice.Icon)));
        button->setIconSize(QSize(22, 22));
        button->setChecked(choice.Type == C::WordRtf);
        connect(button, &QRadioButton::toggled, this, [this](bool on) {
            if (on)
                UpdateCommands();
        });
        layout->addWidget(button);
    }
    layout->addStretch();
    return box;
}

QWidget* frmReports::MakePaper() {
    auto* box = new QGroupBox(QStringLiteral("Paper"), this);
    cboPaperSize = new QComboBox(box);
    cboPaperSize->setObjectName(QStringLiteral("cboPaperSize"));
    cboPaperSize->addItems(
        {QStringLiteral("Letter (8.5\" x 11\")"), QStringLiteral("A4 (8.27\" x 11.69\")")});
    cboPaperOrientation = new QComboBox(box);
    cboPaperOrientation->setObjectName(QStringLiteral("cboPaperOrientation"));
    cboPaperOrientation->addItems({QStringLiteral("Landscape"), QStringLiteral("Portrait")});
    auto* layout = new QGridLayout(box);
    auto* size = new QLabel(QStringLiteral("Si&ze:"), box);
    size->setBuddy(cboPaperSize);
    auto* orientation = new QLabel(QStringLiteral("&Orientation:"), box);
    orientation->setBuddy(cboPaperOrientation);
    layout->addWidget(size, 0, 0);
    layout->addWidget(cboPaperSize, 0, 1);
    layout->addWidget(orientation, 1, 0);
    layout->addWidget(cboPaperOrientation, 1, 1);
    layout->setRowStretch(2, 1);
    layout->setColumnStretch(1, 1);
    return box;
}

QWidget* frmReports::MakeFont() {
    auto* box = new QGroupBox(QStringLiteral("Font"), this);
    linkFont = MakeLink(QStringLiteral("linkFont"), box);
    linkFontSize = MakeLink(QStringLiteral("linkFontSize"), box);
    linkFont->setToolTip(QStringLiteral("Click to choose the font of the reports."));
    linkFontSize->setToolTip(linkFont->toolTip());
    connect(linkFont, &usrHyperlink::Click, this, &frmReports::linkFont_Click);
    connect(linkFontSize, &usrHyperlink::Click, this, &frmReports::linkFont_Click);
    auto* layout = new QGridLayout(box);
    layout->addWidget(linkFont, 0, 0, 1, 2);
    layout->addWidget(new QLabel(QStringLiteral("Size:"), box), 1, 0);
    layout->addWidget(linkFontSize, 1, 1, Qt::AlignLeft);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(2, 1);
    return box;
}

QWidget* frmReports::MakeColors() {
    auto* box = new QGroupBox(QStringLiteral("Color"), this);
    auto* layout = new QVBoxLayout(box);
    for (int i = 0; i < 3; ++i) {
        usrColors[i] = new usrColor(box);
        usrColors[i]->setObjectName(QStringLiteral("usrColor_") + QString::number(FirstColorIndex + i));
        usrColors[i]->setCaption(QString::fromLatin1(kColorCaptions[i]));
        connect(usrColors[i], &usrColor::ColorChanged, this,
                [this, i](const QColor& color) { usrColor_ColorChanged(i, color); });
        layout->addWidget(usrColors[i]);
    }
    layout->addStretch();
    return box;
}

QWidget* frmReports::MakeCommands() {
    auto* bar = new QWidget(this);
    linkAction = MakeLink(QStringLiteral("linkAction"), bar);
    linkAction->setCaption(QStringLiteral("Open reports folder"));
    linkAction->setPicture(ReportIcons::Icon(QStringLiteral("folder")));
    linkAction->setToolTip(gApp().ReportPath());
    connect(linkAction, &usrHyperlink::Click, this, &frmReports::linkAction_Click);

    lblStatus = new QLabel(bar);
    lblStatus->setObjectName(QStringLiteral("lblStatus"));
    lblStatus->setTextInteractionFlags(Qt::TextSelectableByMouse);

    cmdRun = new QPushButton(QStringLiteral("Run"), bar);
    cmdRun->setObjectName(QStringLiteral("cmdRun"));
    cmdRun->setDefault(true);
    cmdPreview = new QPushButton(QStringLiteral("Preview"), bar);
    cmdPreview->setObjectName(QStringLiteral("cmdPreview"));
    cmdPreview->setAutoDefault(false);
    cmdPrint = new QPushButton(QStringLiteral("Print…"), bar);
    cmdPrint->setObjectName(QStringLiteral("cmdPrint"));
    cmdPrint->setAutoDefault(false);
    cmdCancel = new QPushButton(QStringLiteral("Cancel"), bar);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->setAutoDefault(false);
    connect(cmdRun, &QPushButton::clicked, this, &frmReports::cmdRun_Click);
    connect(cmdPreview, &QPushButton::clicked, this, &frmReports::cmdPreview_Click);
    connect(cmdPrint, &QPushButton::clicked, this, &frmReports::cmdPrint_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(linkAction);
    layout->addWidget(lblStatus, 1);
    layout->addWidget(cmdPreview);
    layout->addWidget(cmdPrint);
    layout->addWidget(cmdRun);
    layout->addWidget(cmdCancel);
    return bar;
}

// ---- Grids ----

void frmReports::FillReports() {
    const QSignalBlocker blocker(gridReport);
    gridReport->clear();
    for (const C::Section& section : C::Sections()) {
        auto* item = new QTreeWidgetItem(gridReport, {section.Caption});
        item->setData(0, KeyRole, section.Key);
        item->setData(0, IndentRole, section.Indent);
        item->setIcon(0, ReportIcons::SectionIcon(section.Key));
    }
}

void frmReports::FillFilters() {
    const int section = SectionKey();
    gridFilter->setUpdatesEnabled(false);
    {
        const QSignalBlocker blocker(gridFilter);
        gridFilter->clear();
        mRows = RecordIO::Read([section] { return C::FilterRows(section); });
        for (qsizetype i = 0; i < mRows.size(); ++i) {
            const C::FilterRow& row = mRows[i];
            auto* item = new QTreeWidgetItem(gridFilter, {row.FILTER, row.COUNT, row.NOTES_TX});
            item->setData(0, KeyRole, row.Key);
            item->setData(0, IndentRole, row.Indent);
            item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
            item->setData(2, IndentRole, NotesGap);
            if (row.Icon == C::CustomFilterIcon)
                item->setIcon(0, ReportIcons::Icon(QStringLiteral("filter")));
            if (row.Head) {
                QFont bold = item->font(0);
                bold.setBold(true);
                for (int column = 0; column < 3; ++column)
                    item->setFont(column, bold);
            }
            if (!ReportDialogs::RouteAvailable(C::Route(section, mRows, int(i)))) {
                item->setFlags(Qt::ItemNeverHasChildren);
                item->setText(2, QString::fromLatin1(kNotAvailable));
                item->setToolTip(0, QString::fromLatin1(kNotAvailable));
            }
        }
        // The first row that can be run is selected.
        for (int i = 0; i < gridFilter->topLevelItemCount(); ++i) {
            QTreeWidgetItem* item = gridFilter->topLevelItem(i);
            if (item->flags() & Qt::ItemIsEnabled) {
                gridFilter->setCurrentItem(item);
                break;
            }
        }
    }
    gridFilter->setUpdatesEnabled(true);
    UpdateCommands();
}

void frmReports::SelectOpening() {
    const C::Selection selection = C::OpeningSelection(RPT_ROW, FilterIndex);
    gridReport->setCurrentItem(gridReport->topLevelItem(selection.SectionIndex));
    if (gridReport->currentItem() == nullptr)
        gridReport->setCurrentItem(gridReport->topLevelItem(0));
    QTreeWidgetItem* row = gridFilter->topLevelItem(selection.RowIndex);
    if (row && (row->flags() & Qt::ItemIsEnabled))
        gridFilter->setCurrentItem(row);
    gridFilter->scrollToItem(gridFilter->currentItem());
}

int frmReports::SectionKey() const {
    const QTreeWidgetItem* item = gridReport->currentItem();
    return item ? item->data(0, KeyRole).toInt() : 0;
}

int frmReports::FilterRowIndex() const {
    QTreeWidgetItem* item = gridFilter->currentItem();
    if (!item || !(item->flags() & Qt::ItemIsEnabled))
        return -1;
    return gridFilter->indexOfTopLevelItem(item);
}

// ---- Commands ----

void frmReports::UpdateCommands() {
    const bool labelDesk = ReportDialogs::LabelDeskActive();
    const bool labelDialog = ReportDialogs::Exists(labelDesk ? QStringLiteral("clsLabelDesk")
                                                             : QStringLiteral("frmReportsLabels"));
    const int section = SectionKey();
    const int row = FilterRowIndex();
    int type = CheckedReportType();
    if (type == C::Labels && !labelDialog)
        type = C::WordRtf;
    const C::Commands commands = C::CommandState(section, mRows, row, type, labelDesk);

    opt[C::Labels]->setText(commands.LabelsCaption);
    opt[C::Labels]->setEnabled(commands.LabelsEnabled && labelDialog);
    opt[C::Labels]->setToolTip(labelDialog ? QString() : QString::fromLatin1(kNotAvailable));
    if (!opt[commands.ReportType]->isChecked()) {
        const QSignalBlocker blocker(opt[commands.ReportType]);
        opt[commands.ReportType]->setChecked(true);
    }
    cmdRun->setEnabled(commands.RunEnabled);
    cmdPreview->setEnabled(commands.RunEnabled && CanLayOut());
    cmdPrint->setEnabled(cmdPreview->isEnabled());
    if (row < 0 && !mRows.isEmpty())
        SetStatus(QString::fromLatin1(kSectionNotAvailable));
    else if (lblStatus->text() == QLatin1String(kSectionNotAvailable))
        SetStatus(QString());
    cmdRun->setText(commands.RunCaption);
}

int frmReports::CheckedReportType() const {
    for (int type = 0; type < int(std::size(opt)); ++type)
        if (opt[type]->isChecked())
            return type;
    return C::WordRtf;
}

bool frmReports::CanLayOut() const {
    if (CheckedReportType() == C::Labels || FilterRowIndex() < 0)
        return false;
    const clsReportRoute route = C::Route(SectionKey(), mRows, FilterRowIndex());
    return route.Dialog.isEmpty() && ReportDialogs::RouteAvailable(route) && !route.ClassName.isEmpty();
}

clsReportCatalogue::Choices frmReports::Choices() const {
    C::Choices choices;
    choices.ReportType = CheckedReportType();
    choices.FontName = mFontName;
    choices.FontSize = mFontSize;
    choices.PaperSizeIndex = cboPaperSize->currentIndex();
    choices.PaperOrientationIndex = cboPaperOrientation->currentIndex();
    choices.Header = FromQColor(usrColors[0]->FillColor());
    choices.SubHeader = FromQColor(usrColors[1]->FillColor());
    choices.Border = FromQColor(usrColors[2]->FillColor());
    return choices;
}

void frmReports::cmdRun_Click() {
    const int section = SectionKey();
    const int row = FilterRowIndex();
    if (row < 0)
        return;
    if (opt[C::Labels]->isChecked()) {
        const bool labelDesk = ReportDialogs::LabelDeskActive();
        ReportDialogs::Open(this, C::LabelRoute(section, mRows, row, labelDesk));
        return;
    }
    C::TakeSettings(Choices(), gRTFMasterTemp());
    RunRoute(C::Route(section, mRows, row));
}

clsReportRoute frmReports::TakeRoute() const {
    C::TakeSettings(Choices(), gRTFMasterTemp());
    return C::Route(SectionKey(), mRows, FilterRowIndex());
}

void frmReports::cmdPreview_Click() {
    if (CanLayOut())
        ReportDialogs::Preview(this, TakeRoute());
}

void frmReports::cmdPrint_Click() {
    if (CanLayOut())
        ReportDialogs::Print(this, TakeRoute());
}

void frmReports::RunRoute(const clsReportRoute& route) {
    if (!route.Dialog.isEmpty()) {
        ReportDialogs::Open(this, route);
        return;
    }
    if (route.ClassName.isEmpty()) {
        ReportDialogs::ShowPicture(route);
        return;
    }
    SetStatus(QStringLiteral("Writing the report…"));
    mWrittenFile = ReportDialogs::BuildAndShow(route);
    SetStatus(ReportDialogs::WrittenStatus(mWrittenFile));
}

void frmReports::SetStatus(const QString& text) {
    lblStatus->setText(text);
    lblStatus->repaint();
}

void frmReports::linkAction_Click() {
    gApp().MakeReportPath();
    gShell().OpenDocument(gApp().ReportPath());
}

// ---- Font and colours ----

void frmReports::linkFont_Click() {
    frmReportsFont form(mFontName, mFontSize, this);
    connect(&form, &frmReportsFont::FontChanged, this, &frmReports::mfrmReportsFont_FontChanged);
    form.exec();
}

void frmReports::mfrmReportsFont_FontChanged(const QString& rsFONT_NAME, const QString& rsFONT_SIZE) {
    SetFontLinks(rsFONT_NAME, rsFONT_SIZE);
}

// Each link shows its value in that very font; the size is shown within what the form can hold.
void frmReports::SetFontLinks(const QString& fontName, const QString& fontSize) {
    mFontName = fontName;
    mFontSize = fontSize;
    ShowFontLinks(linkFont, linkFontSize, fontName, fontSize);
}

// A colour travels with the data: it is written at once.
void frmReports::usrColor_ColorChanged(int index, const QColor& color) {
    const QString rgb = QString::number(FromQColor(color).RGBValue());
    RecordIO::Attempt([index, &rgb] { gVowren().QuickUpdate(FirstColorIndex + index, rgb); });
}

// ---- Settings ----

void frmReports::LoadSettings() {
    SetFontLinks(Setting("Font", "Verdana"), Setting("FontSize", "9"));
    cboPaperSize->setCurrentIndex(IndexSetting("PaperSize", cboPaperSize->count()));
    cboPaperOrientation->setCurrentIndex(IndexSetting("PaperOrientation", cboPaperOrientation->count()));
    opt[IndexSetting("ReportType", int(std::size(opt)))]->setChecked(true);
    if (!gVowren().Contains(QString::number(FirstColorIndex)))
        RecordIO::Read([] { return gVowren().OpenRecords(); });
    const clsColor defaults[] = {clsRTFMasterTemp::DefaultHeaderColor(),
                                 clsRTFMasterTemp::DefaultSubHeaderColor(),
                                 clsRTFMasterTemp::DefaultBorderColor()};
    for (int i = 0; i < 3; ++i) {
        const int id = FirstColorIndex + i;
        const QString stored =
            gVowren().Contains(QString::number(id)) ? gVowren().Get_VOWREN_TX(id) : QString();
        usrColors[i]->setFillColor(ToQColor(clsColor::FromRGBText(stored, defaults[i])));
    }
}

void frmReports::SaveSettings() const {
    SaveSetting("Font", mFontName);
    SaveSetting("FontSize", mFontSize);
    SaveSetting("PaperSize", QString::number(cboPaperSize->currentIndex()));
    SaveSetting("PaperOrientation", QString::number(cboPaperOrientation->currentIndex()));
    SaveSetting("ReportType", QString::number(CheckedReportType()));
}

// ---- Form events ----

void frmReports::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (mOpened)
        return;
    mOpened = true;
    SelectOpening();
    gridFilter->setFocus();
}

void frmReports::done(int result) {
    SaveSettings();
    QDialog::done(result);
}

// Right in the sections goes to the filter rows, Left in the filter rows goes back.
bool frmReports::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (watched == gridReport && key == Qt::Key_Right) {
            gridFilter->setFocus();
            return true;
        }
        if (watched == gridFilter && key == Qt::Key_Left) {
            gridReport->setFocus();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
