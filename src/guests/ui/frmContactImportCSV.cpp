#include "guests/ui/frmContactImportCSV.h"

#include "core/clsApp.h"
#include "core/clsColor.h"
#include "guests/clsContactImport.h"
#include "guests/ui/frmContactImportDashboard.h"
#include "guests/ui/frmImportCSVDelimiter.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrHyperlink.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

QString DelimiterText(const QString& delimiter) {
    return delimiter == QLatin1String("\t") ? QStringLiteral("Tab") : delimiter;
}

} // namespace

frmContactImportCSV::frmContactImportCSV(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmContactImportCSV"));
    setWindowTitle(QStringLiteral("Load Contacts from CSV"));
    auto* layout = new QVBoxLayout(this);
    QLabel* header = modLayout::HeaderLabel(this);
    header->setText(QStringLiteral("Match the columns of your file"));
    layout->addWidget(header);

    auto* pick = new usrHyperlink(QStringLiteral("Choose the CSV file..."), this);
    pick->setObjectName(QStringLiteral("link"));
    connect(pick, &usrHyperlink::Click, this, &frmContactImportCSV::PickFile);
    mFileLabel = new QLabel(QStringLiteral("No file chosen"), this);
    mFileLabel->setObjectName(QStringLiteral("lblFile"));
    mFileLabel->setTextFormat(Qt::PlainText);
    mDelimiter = new usrHyperlink(this);
    mDelimiter->setObjectName(QStringLiteral("linkDelimiter"));
    connect(mDelimiter, &usrHyperlink::Click, this, &frmContactImportCSV::EditDelimiter);
    ShowDelimiter();
    layout->addWidget(pick);
    layout->addWidget(mFileLabel);
    layout->addWidget(mDelimiter);

    mGrid = new QTableWidget(static_cast<int>(clsIMPORT_FIELD::SystemFields().size()), 2, this);
    mGrid->setObjectName(QStringLiteral("grid"));
    mGrid->setHorizontalHeaderLabels({QStringLiteral("Vowren Actual Field"), QStringLiteral("CSV")});
    mGrid->verticalHeader()->hide();
    mGrid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    mGrid->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    mGrid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    mGrid->setSelectionMode(QAbstractItemView::NoSelection);
    layout->addWidget(mGrid, 1);

    auto* buttons = new QDialogButtonBox(this);
    mContinue = buttons->addButton(QStringLiteral("Continue"), QDialogButtonBox::AcceptRole);
    mContinue->setObjectName(QStringLiteral("cmdContinue"));
    mContinue->setEnabled(false);
    QPushButton* cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(mContinue, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(buttons);
    FillGrid();
    resize(520, 640);
}

void frmContactImportCSV::PickFile() {
    const QString file = frmContactImportDashboard::ChooseFile(
        this, QStringLiteral("Open CSV File"), QStringLiteral("CSV files (*.csv *.txt);;All files (*)"));
    if (!file.isEmpty())
        LoadFile(file);
}

bool frmContactImportCSV::LoadFile(const QString& path) {
    const QString delimiter = gApp().Delimiter();
    clsImportTable table;
    const bool read = RecordIO::Attempt([&] {
        table = clsContactImport::ReadFile(path, delimiter.isEmpty() ? QChar(',') : delimiter.at(0));
        clsContactImport::SaveMapping(clsContactImport::SuggestedMapping(table.Headers));
    });
    if (!read)
        return false;
    mTable = std::move(table);
    mFile = path;
    mFileLabel->setText(QDir::toNativeSeparators(path));
    mContinue->setEnabled(true);
    FillGrid();
    return true;
}

void frmContactImportCSV::EditDelimiter() {
    frmImportCSVDelimiter dialog(this);
    connect(&dialog, &frmImportCSVDelimiter::Refresh, this, [this] {
        ShowDelimiter();
        if (!mFile.isEmpty())
            LoadFile(mFile);
    });
    dialog.exec();
}

void frmContactImportCSV::ShowDelimiter() {
    mDelimiter->setCaption(QStringLiteral("Delimiter = ") + DelimiterText(gApp().Delimiter()));
}

void frmContactImportCSV::Choose(int row, const QString& column) {
    const QString field = clsIMPORT_FIELD::SystemFields().at(row).Field;
    RecordIO::Attempt([&] {
        QList<clsIMPORT_FIELD> mapping = clsIMPORT_FIELD::OpenRecords(false);
        clsContactImport::MapColumn(mapping, column, field);
        clsContactImport::SaveMapping(mapping);
    });
    FillGrid();
}

void frmContactImportCSV::FillGrid() {
    const QList<clsIMPORT_FIELD> mapping = RecordIO::Read([] { return clsIMPORT_FIELD::OpenRecords(false); });
    QStringList free;
    for (const clsIMPORT_FIELD& column : mapping) {
        if (column.MAP_IMPORT_FIELD_NM.isEmpty())
            free << column.IMPORT_FIELD_NM;
    }
    const clsColor gray = clsColor::Gray();
    for (int row = 0; row < mGrid->rowCount(); ++row) {
        const clsIMPORT_FIELD::SystemField& field = clsIMPORT_FIELD::SystemFields().at(row);
        QString current;
        for (const clsIMPORT_FIELD& column : mapping) {
            if (column.MAP_IMPORT_FIELD_NM == field.Field)
                current = column.IMPORT_FIELD_NM;
        }
        auto* caption = new QTableWidgetItem(field.Caption);
        if (current.isEmpty())
            caption->setBackground(QColor(gray.RedPart(), gray.GreenPart(), gray.BluePart()));
        mGrid->setItem(row, 0, caption);
        ShowColumns(row, current, free);
    }
}

void frmContactImportCSV::ShowColumns(int row, const QString& current, const QStringList& free) {
    auto* box = qobject_cast<QComboBox*>(mGrid->cellWidget(row, 1));
    if (!box) {
        box = new QComboBox(mGrid);
        box->setObjectName(QStringLiteral("usr_%1").arg(row));
        mGrid->setCellWidget(row, 1, box);
        // Queued: the choice fills every drop-down anew, this one too.
        connect(box, &QComboBox::currentTextChanged, this, [this, row](const QString& column) {
            QMetaObject::invokeMethod(
                this, [this, row, column] { Choose(row, column); }, Qt::QueuedConnection);
        });
    }
    QStringList choices = free;
    if (!current.isEmpty())
        choices << current;
    choices.sort(Qt::CaseInsensitive);
    const QSignalBlocker quiet(box);
    box->clear();
    box->addItem(QString());
    box->addItems(choices);
    box->setCurrentText(current);
}
