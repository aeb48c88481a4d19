#include "reports/ui/frmReportsSQL.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "platform/clsShell.h"
#include "reports/clsRTFSQL.h"
#include "reports/modReportRunner.h"
#include "reports/ui/modReportDialogs.h"
#include "shell/controls/usrHyperlink.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace {

enum GridColumn { ColName, ColSql, ColDateAdded, ColNotes };
constexpr int kItemRole = Qt::UserRole; // the position of a query in the catalogue; none on a category row

QLabel* Text(const QString& name, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    return label;
}

// The host the catalogue comes from, as the form names the maker's web site.
QString CatalogueHost() {
    const QString host = QUrl(gApp().CustomReportsURL()).host();
    return host.isEmpty() ? QUrl(gApp().HomePageURL()).host() : host;
}

} // namespace

frmReportsSQL::frmReportsSQL(QWidget* parent, bool downloadOnOpen) : QDialog(parent) {
    setObjectName(QStringLiteral("frmReportsSQL"));
    setWindowTitle(QStringLiteral("Custom Reports from Quill Software"));
    setSizeGripEnabled(true);
    connect(&mDownload, &clsCatalogueDownload::Finished, this, &frmReportsSQL::Download_Finished);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(MakeHeader());
    layout->addWidget(MakeTabs(), 1);
    layout->addWidget(MakeCommands());

    mCatalogue = clsSQLCatalogue::Current();
    FillGrid();
    if (downloadOnOpen && chkDownload->isChecked())
        QTimer::singleShot(0, this, &frmReportsSQL::cmdDownload_Click); // once the window stands
    resize(900, 640);
    grid->setFocus();
}

// ---- Building the form ----

QWidget* frmReportsSQL::MakeHeader() {
    auto* header = new QWidget(this);
    auto* title = new QLabel(QStringLiteral("Custom Reports"), header);
    title->setObjectName(QStringLiteral("lblHeader"));
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 1.5);
    big.setBold(true);
    title->setFont(big);
    linkForum = new usrHyperlink(QStringLiteral("Post a custom report request"), header);
    linkForum->setObjectName(QStringLiteral("linkForum"));
    linkForum->setToolTip(gApp().ForumsURL() + QStringLiteral("/forum_topics.asp?FID=12"));
    connect(linkForum, &usrHyperlink::Click, this,
            [] { gShell().OpenDocument(gApp().ForumsURL() + QStringLiteral("/forum_topics.asp?FID=12")); });

    QLabel* lblDesc3 = Text(QStringLiteral("lblDesc3"),
                            QStringLiteral("If you have a custom report request, please post your request on "
                                           "the Quill Software forum,"),
                            header);
    lblDesc3->setWordWrap(false);
    auto* forum = new QHBoxLayout;
    forum->addWidget(lblDesc3);
    forum->addWidget(linkForum);
    forum->addStretch(1);
    auto* layout = new QVBoxLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(title);
    layout->addWidget(Text(QStringLiteral("lblDesc1"),
                           QStringLiteral("This form retrieves an XML file from %1 that contains queries to "
                                          "help generate reports.")
                               .arg(CatalogueHost()),
                           header));
    layout->addWidget(Text(QStringLiteral("lblDesc2"),
                           QStringLiteral("This allows Quill Software to instantly deliver custom report "
                                          "requests to all of our customers."),
                           header));
    layout->addLayout(forum);
    return header;
}

QWidget* frmReportsSQL::MakeTabs() {
    tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("tabs"));

    grid = new QTreeWidget;
    grid->setObjectName(QStringLiteral("grid"));
    grid->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("SQL"), QStringLiteral("Date Added"),
                           QStringLiteral("Notes")});
    grid->setColumnHidden(ColNotes, true);
    grid->setColumnWidth(ColName, 270);
    grid->setColumnWidth(ColSql, 250);
    grid->setRootIsDecorated(false);
    grid->setUniformRowHeights(true);
    grid->setIconSize(QSize(20, 20));
    connect(grid, &QTreeWidget::itemSelectionChanged, this, &frmReportsSQL::grid_SelectionChanged);
    connect(grid, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
        if (item->data(ColName, kItemRole).isValid())
            cmdRun_Click();
    });
    txtDesc = new QPlainTextEdit;
    txtDesc->setObjectName(QStringLiteral("txtDesc"));
    txtDesc->setReadOnly(true);
    auto* list = new QSplitter(Qt::Horizontal);
    list->addWidget(grid);
    list->addWidget(txtDesc);
    list->setStretchFactor(0, 3);
    list->setStretchFactor(1, 1);
    tabs->addTab(list, QStringLiteral("Custom Reports"));

    txtSQL = new QPlainTextEdit;
    txtSQL->setObjectName(QStringLiteral("txtSQL"));
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setFamilies({QStringLiteral("Courier New"), fixed.family()});
    txtSQL->setFont(fixed);
    tabs->addTab(txtSQL, QStringLiteral("SQL"));
    return tabs;
}

QWidget* frmReportsSQL::MakeCommands() {
    auto* bar = new QWidget(this);
    cmdDownload = new QPushButton(QStringLiteral("Download Custom Reports"), bar);
    cmdDownload->setObjectName(QStringLiteral("cmdDownload"));
    chkDownload = new QCheckBox(QStringLiteral("Download custom reports automatically"), bar);
    chkDownload->setObjectName(QStringLiteral("chkDownload"));
    chkDownload->setChecked(gApp().ShowDownloadCommand());
    lblStatus = new QLabel(bar);
    lblStatus->setObjectName(QStringLiteral("lblStatus"));
    lblStatus->setWordWrap(true);
    lblStatus->setTextInteractionFlags(Qt::TextSelectableByMouse);
    cmdRun = new QPushButton(QStringLiteral("Run"), bar);
    cmdRun->setObjectName(QStringLiteral("cmdRun"));
    cmdRun->setDefault(true);
    cmdCancel = new QPushButton(QStringLiteral("Cancel"), bar);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(cmdDownload, &QPushButton::clicked, this, &frmReportsSQL::cmdDownload_Click);
    connect(chkDownload, &QCheckBox::toggled, this, [](bool on) { gApp().SetShowDownloadCommand(on); });
    connect(cmdRun, &QPushButton::clicked, this, &frmReportsSQL::cmdRun_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* download = new QHBoxLayout;
    download->addWidget(cmdDownload);
    download->addWidget(chkDownload);
    download->addStretch(1);
    auto* run = new QHBoxLayout;
    run->addWidget(lblStatus, 1);
    run->addWidget(cmdRun);
    run->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(download);
    layout->addLayout(run);
    return bar;
}

// ---- The list ----

void frmReportsSQL::FillGrid() {
    grid->clear();
    for (const QString& category : mCatalogue.Categories()) {
        auto* group = new QTreeWidgetItem(grid, {category});
        group->setFirstColumnSpanned(true);
        group->setFlags(Qt::ItemIsEnabled);
        QFont bold = group->font(ColName);
        bold.setBold(true);
        group->setFont(ColName, bold);
        for (qsizetype i = 0; i < mCatalogue.Items.size(); ++i) {
            const clsSQL_XML& item = mCatalogue.Items[i];
            if (item.SQL_CATEGORY != category)
                continue;
            if (group->icon(ColName).isNull() && !item.SQL_CATEGORY_ICON.isEmpty())
                group->setIcon(ColName, ReportIcons::Icon(item.SQL_CATEGORY_ICON));
            auto* row = new QTreeWidgetItem(group, {item.SQL_NAME, item.SQL, item.DATE_ADDED, item.SQL_DESC});
            row->setData(ColName, kItemRole, int(i));
            row->setToolTip(ColName, item.SQL_DESC);
        }
    }
    grid->expandAll();
    const int count = int(mCatalogue.Items.size());
    QString status = QStringLiteral("%1 custom report%2.").arg(count).arg(count == 1 ? "" : "s");
    const qsizetype problems = mCatalogue.Problems.size();
    if (problems > 0)
        status += QStringLiteral(" The catalogue has %1 problem%2 (point here for all): %3")
                      .arg(problems)
                      .arg(problems == 1 ? "" : "s", mCatalogue.Problems.first());
    SetStatus(status, mCatalogue.Problems.join(QLatin1Char('\n')));
}

const clsSQL_XML* frmReportsSQL::SelectedItem() const {
    const QList<QTreeWidgetItem*> selected = grid->selectedItems();
    if (selected.isEmpty())
        return nullptr;
    const QVariant position = selected.first()->data(ColName, kItemRole);
    return position.isValid() ? &mCatalogue.Items.at(position.toInt()) : nullptr;
}

void frmReportsSQL::grid_SelectionChanged() {
    const clsSQL_XML* item = SelectedItem();
    if (!item)
        return;
    txtDesc->setPlainText(item->SQL_DESC);
    txtSQL->setPlainText(
        clsDB::FormatSQL(item->SQL, false).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

// ---- Commands ----

void frmReportsSQL::cmdRun_Click() {
    const QString sql = txtSQL->toPlainText();
    if (!clsRTFSQL::IsSelectStatement(sql)) {
        ShowMessage(clsRTFSQL::NotSelectMessage(), Msg::OKOnly | Msg::Exclamation, ProgramTitle());
        return;
    }
    const clsSQL_XML* item = SelectedItem();
    const clsReportRoute route = item ? modReportRunner::CustomRoute(sql, item->SQL_NAME, item->SQL_DESC)
                                      : modReportRunner::CustomRoute(sql);
    SetStatus(QStringLiteral("Writing the report…"));
    mWrittenFile = ReportDialogs::BuildAndShow(route);
    SetStatus(ReportDialogs::WrittenStatus(mWrittenFile));
}

void frmReportsSQL::cmdDownload_Click() {
    cmdDownload->setEnabled(false);
    SetStatus(QStringLiteral("Downloading the custom reports from %1…").arg(CatalogueHost()));
    mDownload.Start(gApp().CustomReportsURL());
}

void frmReportsSQL::Download_Finished(bool ok, const QString& status) {
    cmdDownload->setEnabled(true);
    if (ok) {
        mCatalogue = clsSQLCatalogue::Current();
        FillGrid();
    }
    SetStatus(status, status);
}

void frmReportsSQL::SetStatus(const QString& text, const QString& details) {
    lblStatus->setText(text);
    lblStatus->setToolTip(details);
    lblStatus->repaint(); // before a report that takes a while
}
