#include "guests/ui/clsImportPreviewModel.h"

#include <QApplication>
#include <QStyle>

namespace {

// The caption and the field of each column after the first, in order.
struct ColumnSource {
    const char* Caption;
    const char* Field; // "" for the display texts
};

const ColumnSource kColumns[clsImportPreviewModel::ColumnCount] = {
    {"", ""},
    {"Name", ""},
    {"HiddenTitle", "TITLE_TX"},
    {"HiddenFirst", "FIRST_NM"},
    {"HiddenMiddle", "MIDDLE_NM"},
    {"HiddenLast", "LAST_NM"},
    {"HiddenSuffix", "SUFFIX_TX"},
    {"Address", ""},
    {"HiddenAddress", "ADDRESS_TX"},
    {"HiddenCity", "CITY_TX"},
    {"HiddenState", "STATE_TX"},
    {"HiddenZip", "ZIP_TX"},
    {"HiddenCountry", "COUNTRY_TX"},
    {"Nickname", "NICK_NM"},
    {"E-mail", "EMAIL_TX"},
    {"Phone", "PHONE_TX"},
    {"Phone 2", "PHONE2_TX"},
    {"A-B", "AB_LIST_CD"},
    {"Friend Of", "FRIEND_OF_CD"},
    {"Gender", "GENDER_FG"},
    {"Child", "CHILD_FG"},
    {"Out of Towner", "OUT_OF_TOWNER_FG"},
    {"Notes", "NOTES_TX"},
    {"RSVP ID", "RSVP_ID"},
};

} // namespace

clsImportPreviewModel::clsImportPreviewModel(QObject* parent)
    : QAbstractTableModel(parent),
      mDuplicate(QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning)) {}

void clsImportPreviewModel::SetRows(QList<clsImportRow> rows) {
    beginResetModel();
    mRows = std::move(rows);
    endResetModel();
    emit TicksChanged();
}

int clsImportPreviewModel::TickedCount() const {
    return static_cast<int>(
        std::count_if(mRows.begin(), mRows.end(), [](const clsImportRow& r) { return r.Ticked; }));
}

int clsImportPreviewModel::DuplicateCount() const {
    return static_cast<int>(std::count_if(mRows.begin(), mRows.end(),
                                          [](const clsImportRow& r) { return !r.DuplicateOf.isEmpty(); }));
}

void clsImportPreviewModel::TickAll(bool ticked) {
    for (clsImportRow& row : mRows)
        row.Ticked = ticked;
    TicksRewritten();
}

void clsImportPreviewModel::InvertTicks() {
    for (clsImportRow& row : mRows)
        row.Ticked = !row.Ticked;
    TicksRewritten();
}

void clsImportPreviewModel::TicksRewritten() {
    if (!mRows.isEmpty())
        emit dataChanged(index(0, ICO), index(rowCount() - 1, ICO), {Qt::CheckStateRole});
    emit TicksChanged();
}

bool clsImportPreviewModel::IsHidden(int column) {
    return QByteArray(kColumns[column].Caption).startsWith("Hidden");
}

int clsImportPreviewModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(mRows.size());
}

int clsImportPreviewModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QString clsImportPreviewModel::Text(const clsImportRow& row, int column) const {
    if (column == Name)
        return row.Name();
    if (column == Address)
        return row.Address();
    return row.Field(QLatin1String(kColumns[column].Field));
}

QVariant clsImportPreviewModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const clsImportRow& row = mRows.at(index.row());
    if (index.column() == ICO) {
        if (role == Qt::CheckStateRole)
            return row.Ticked ? Qt::Checked : Qt::Unchecked;
        if (role == Qt::DecorationRole && !row.DuplicateOf.isEmpty())
            return mDuplicate;
        if (role == Qt::ToolTipRole && !row.DuplicateOf.isEmpty())
            return QStringLiteral("Duplicate record");
        return {};
    }
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return Text(row, index.column());
    return {};
}

bool clsImportPreviewModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || index.column() != ICO || role != Qt::CheckStateRole)
        return false;
    mRows[index.row()].Ticked = value.toInt() == Qt::Checked;
    emit dataChanged(index, index, {Qt::CheckStateRole});
    emit TicksChanged();
    return true;
}

QVariant clsImportPreviewModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return {};
    return QString::fromLatin1(kColumns[section].Caption);
}

Qt::ItemFlags clsImportPreviewModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.column() == ICO)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}
