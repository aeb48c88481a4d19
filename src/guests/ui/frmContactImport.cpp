#include "guests/ui/frmContactImport.h"

#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "guests/ui/clsImportPreviewModel.h"
#include "guests/ui/frmContactImportDuplicate.h"
#include "platform/clsRegistry.h"
#include "shell/controls/usrHyperlink.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

namespace {

const QString kForm = QStringLiteral("frmContactImport");

QString DuplicateOption() {
    return gRegistry().GetSetting(FormRegistryKey(kForm), QStringLiteral("DuplicateOption"),
                                  QStringLiteral("1"));
}

} // namespace

frmContactImport::frmContactImport(QWidget* parent) : QDialog(parent) {
    setObjectName(kForm);
    setWindowTitle(QStringLiteral("Load Contacts from CSV"));
    mModel = new clsImportPreviewModel(this);
    mList = new QTableView(this);
    mList->setObjectName(QStringLiteral("lvwTop"));
    mList->setModel(mModel);
    mList->setSelectionBehavior(QAbstractItemView::SelectRows);
    mList->verticalHeader()->hide();
    mList->verticalHeader()->setDefaultSectionSize(mList->fontMetrics().height() + 6);
    mList->horizontalHeader()->setStretchLastSection(true);
    for (int column = 0; column < clsImportPreviewModel::ColumnCount; ++column)
        mList->setColumnHidden(column, clsImportPreviewModel::IsHidden(column));
    mList->setColumnWidth(clsImportPreviewModel::ICO, 44);
    mList->setColumnWidth(clsImportPreviewModel::Name, 170);
    mList->setColumnWidth(clsImportPreviewModel::Address, 260);
    connect(mModel, &clsImportPreviewModel::TicksChanged, this, &frmContactImport::ShowCount);

    auto* info = new QLabel(QStringLiteral("Attendee counts include the bride and groom."), this);
    info->setObjectName(QStringLiteral("lblInfo"));
    auto* infoIcon = new QLabel(this);
    infoIcon->setObjectName(QStringLiteral("imgInfo"));
    infoIcon->setPixmap(QApplication::style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(16, 16));
    auto* infoRow = new QHBoxLayout;
    infoRow->addWidget(infoIcon);
    infoRow->addWidget(info, 1);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* import = buttons->addButton(QStringLiteral("Import Contacts"), QDialogButtonBox::AcceptRole);
    import->setObjectName(QStringLiteral("cmdImport"));
    import->setDefault(true);
    QPushButton* cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(import, &QPushButton::clicked, this, &frmContactImport::ImportContacts);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* side = new QVBoxLayout;
    side->addWidget(SelectionTools());
    side->addWidget(Options());
    side->addStretch();
    auto* body = new QHBoxLayout;
    body->addLayout(side);
    body->addWidget(mList, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(body, 1);
    layout->addLayout(infoRow);
    layout->addWidget(buttons);
    resize(940, 560);
}

QWidget* frmContactImport::SelectionTools() {
    auto* box = new QGroupBox(QStringLiteral("Selection Tools"), this);
    auto* layout = new QVBoxLayout(box);
    const QStringList captions = {QStringLiteral("Select all"), QStringLiteral("Select none"),
                                  QStringLiteral("Invert selection")};
    for (int i = 0; i < captions.size(); ++i) {
        auto* link = new usrHyperlink(captions.at(i), box);
        link->setObjectName(QStringLiteral("linkAction_%1").arg(i));
        connect(link, &usrHyperlink::Click, this, [this, i] {
            if (i == 2)
                mModel->InvertTicks();
            else
                mModel->TickAll(i == 0);
        });
        layout->addWidget(link);
    }
    mCount = new QLabel(box);
    mCount->setObjectName(QStringLiteral("lblCount"));
    auto* selected = new QLabel(QStringLiteral("contacts selected"), box);
    selected->setObjectName(QStringLiteral("lblSelected"));
    layout->addSpacing(6);
    layout->addWidget(mCount);
    layout->addWidget(selected);
    return box;
}

QWidget* frmContactImport::Options() {
    auto* box = new QGroupBox(QStringLiteral("Duplicates"), this);
    auto* layout = new QVBoxLayout(box);
    auto* allow = new QRadioButton(QStringLiteral("Allow Duplicates"), box);
    allow->setObjectName(QStringLiteral("opt_0"));
    mReplace = new QRadioButton(QStringLiteral("Replace Duplicates"), box);
    mReplace->setObjectName(QStringLiteral("opt_1"));
    (DuplicateOption() == QLatin1String("0") ? allow : mReplace)->setChecked(true);
    connect(mReplace, &QRadioButton::toggled, this, [](bool replace) {
        gRegistry().SaveSetting(FormRegistryKey(kForm), QStringLiteral("DuplicateOption"),
                                replace ? QStringLiteral("1") : QStringLiteral("0"));
    });
    mFiveDigits = new QCheckBox(QStringLiteral("Ensure 5-digit zip code"), box);
    mFiveDigits->setObjectName(QStringLiteral("chk5Digit"));
    mFiveDigits->setChecked(gApp().Ensure5DigitZipCode());
    connect(mFiveDigits, &QCheckBox::toggled, this, [](bool on) { gApp().SetEnsure5DigitZipCode(on); });
    layout->addWidget(allow);
    layout->addWidget(mReplace);
    layout->addSpacing(6);
    layout->addWidget(mFiveDigits);
    return box;
}

bool frmContactImport::Load(const clsImportTable& table, bool csvRoute) {
    setWindowTitle(QStringLiteral("Load Contacts from ") +
                   (csvRoute ? QStringLiteral("CSV") : QStringLiteral("vCard")));
    QList<clsImportRow> rows;
    const bool read = RecordIO::Attempt([&] {
        rows = clsContactImport::Preview(table, csvRoute ? clsIMPORT_FIELD::OpenRecords(false)
                                                         : clsContactImport::SuggestedMapping(table.Headers));
        clsContactImport::MarkDuplicates(rows);
    });
    mModel->SetRows(std::move(rows));
    return read;
}

void frmContactImport::ShowCount() {
    mCount->setText(QStringLiteral("%1 of %2").arg(mModel->TickedCount()).arg(mModel->rowCount()));
}

int frmContactImport::exec() {
    QTimer::singleShot(0, this, &frmContactImport::WarnOfDuplicates);
    return QDialog::exec();
}

void frmContactImport::WarnOfDuplicates() {
    const int duplicates = mModel->DuplicateCount();
    if (duplicates == 0 || !gApp().ShowDuplicateWarning())
        return;
    frmContactImportDuplicate warning(duplicates, this);
    warning.exec();
}

bool frmContactImport::ImportContacts() {
    clsImportOptions options;
    options.ReplaceDuplicates = mReplace->isChecked();
    options.FiveDigitZip = mFiveDigits->isChecked();
    QProgressDialog progress(QStringLiteral("Importing contacts..."), QStringLiteral("Cancel"), 0,
                             mModel->rowCount(), this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(500);
    const bool done = RecordIO::Attempt([&] {
        mResult = clsContactImport::Import(mModel->Rows(), options, [&progress](int step, int) {
            progress.setValue(step);
            return !progress.wasCanceled();
        });
    });
    if (!done || mResult.Stopped)
        return false;
    accept();
    return true;
}
