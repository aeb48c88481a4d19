#pragma once

#include <QAbstractItemModel>
#include <QColor>
#include <QHash>
#include <QIcon>
#include <QList>
#include <QString>
#include <QVariant>
#include <QVector>
#include <any>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QDate;
class QTime;

// The data roles of the grid beside Qt's own.
namespace GridRole {
enum : int {
    ItemData = Qt::UserRole + 1, // the record's key (qint64); 0 for a group row
    IsGroup,                     // bool
    RowText,                     // the text shown under the row (notes)
    ColumnKey,                   // header data: the column's key
    Expanded,                    // bool, group rows
    SortValue,                   // what a record's cell sorts by: a number, a date, a time or its text
};
}

// What a column holds: icon columns are left out of the search, and numbers and money stand right.
// A cell sorts by the value it was given beside its text (clsGridCells), never by reading the text.
enum class GridColumnKind { Text, Icon, Number, Money, Date, Time };

// A column of a grid. A page names its columns by an enum and lists them in its order; the key is the
// name under which the settings keep the column's place and width:
//     enum Column : int { ICO, FULL_NM, GROUP, ColumnCount };
//     grid->SetColumns({clsGridColumn("ICO", "", 20).OfKind(GridColumnKind::Icon),
//                       clsGridColumn("FULL_NM", "Name", 200).StoreWidth(),
//                       clsGridColumn("GROUP", "", 0).NeverShown()});
struct clsGridColumn {
    clsGridColumn() = default;
    clsGridColumn(QString key, QString caption, int width) : Key(std::move(key)), Caption(std::move(caption)), Width(width) {}

    clsGridColumn& OfKind(GridColumnKind kind) {
        Kind = kind;
        if (kind == GridColumnKind::Number || kind == GridColumnKind::Money)
            Alignment = Qt::AlignRight | Qt::AlignVCenter;
        return *this;
    }
    clsGridColumn& AlignRight() { Alignment = Qt::AlignRight | Qt::AlignVCenter; return *this; }
    clsGridColumn& HiddenAtFirst() { Visible = false; return *this; }
    clsGridColumn& NeverShown() { Internal = true; Visible = false; return *this; }
    // Keeps the width under the column's key, or under another value name shared by several columns.
    clsGridColumn& StoreWidth(const QString& valueName = QString()) {
        WidthName = valueName.isEmpty() ? Key : valueName;
        return *this;
    }

    QString Key;
    QString Caption;
    int Width = 100;
    bool Visible = true;
    // A column the user never sees: grouping values, hidden data. Not offered for customising.
    bool Internal = false;
    GridColumnKind Kind = GridColumnKind::Text;
    Qt::Alignment Alignment = Qt::AlignLeft | Qt::AlignVCenter;
    // Value name under which the page keeps this column's width; empty: the width is not kept.
    QString WidthName;
};

// One row of the grid: a record row with its cells, or a group row heading the rows below it.
struct clsGridRow {
    bool IsGroup = false;
    bool Expanded = true;
    qint64 ItemData = 0;
    QVector<QString> Cells; // by column; an icon column holds the icon's index as text
    QVector<QVariant> Sorts; // by column, what a cell sorts by; empty while no cell was given a value
    QString RowText;
    std::any Record; // the record the row shows, when the page keeps it with the row
    // How a record row is drawn apart from the others: its text colour (invalid: the palette's) and a
    // line through its text.
    QColor Foreground;
    bool StrikeOut = false;
    clsGridRow* Parent = nullptr;
    int Row = 0; // place inside the parent
    std::vector<std::unique_ptr<clsGridRow>> Children;

    QString Cell(int column) const { return column >= 0 && column < Cells.size() ? Cells[column] : QString(); }
    // The cell's sort value, or its text when it was given none.
    QVariant SortValue(int column) const {
        const QVariant value = Sorts.value(column);
        return value.isValid() ? value : QVariant(Cell(column));
    }
};

class clsGridModel;

// Writes the cells of one record row: each cell by its column, with the value it sorts by. A page writes a
// record's row with one function of its own, both when it fills the grid and when it refreshes a row:
//     void WriteRow(clsGridCells& cells, const clsGIFT& g) {
//         cells.Set(FROM, g.FROM_TX).Date(RECEIVED_DT, g.Received()).Money(AMOUNT, g.Amount()).Keep(g);
//     }
class clsGridCells {
public:
    clsGridCells& Set(int column, const QString& text);
    clsGridCells& Set(int column, const QString& text, const QVariant& sortValue);
    // A whole number, written in digits.
    clsGridCells& Number(int column, qint64 value);
    // A number as the record holds it in text ("12"); it sorts by its value, an empty text first.
    clsGridCells& Number(int column, const QString& digits);
    // An amount, written in the currency format of the system.
    clsGridCells& Money(int column, double amount);
    // A date as "dd-mmm-yyyy" and a time in the program's time format; an empty one sorts first.
    clsGridCells& Date(int column, const QDate& date);
    clsGridCells& Time(int column, const QTime& time);
    clsGridCells& Icon(int column, int imageIndex);
    clsGridCells& Notes(const QString& text);
    clsGridCells& Look(const QColor& foreground, bool strikeOut);
    // Keeps the record with the row, for the page to take back with clsGridModel::RecordAt.
    template <typename T> clsGridCells& Keep(T record) {
        if (mRow != nullptr) mRow->Record = std::move(record);
        return *this;
    }

protected:
    explicit clsGridCells(clsGridModel& model, clsGridRow* row = nullptr) : mModel(model), mRow(row) {}
    friend class clsGridModel;

    clsGridModel& mModel;
    clsGridRow* mRow;
};

// All rows of a grid, with group rows on the top level and the records below them (or records on the top
// level when the grid is not grouped). Columns are addressed by key. Filling goes through clsGridFill,
// which resets the model once; single rows are added, changed and removed with the usual signals.
class clsGridModel : public QAbstractItemModel {
    Q_OBJECT

public:
    explicit clsGridModel(QObject* parent = nullptr);
    ~clsGridModel() override;

    // ---- Columns ----
    void SetColumns(const QList<clsGridColumn>& columns);
    const QList<clsGridColumn>& Columns() const { return mColumns; }
    const clsGridColumn& Column(int index) const { return mColumns.at(index); }
    // The column stored under this key; -1 for none.
    int ColumnIndex(const QString& key) const { return mColumnByKey.value(key, -1); }
    // The pictures of icon columns, by index (the shell's image list).
    void SetImages(const QList<QIcon>& images) { mImages = images; }
    QIcon Image(int index) const { return mImages.value(index); }

    // ---- Rows ----
    void Clear();
    bool HasGroups() const { return mGroupCount > 0; }
    bool HasRowText() const { return mRowTextCount > 0; }
    clsGridRow* RowAt(const QModelIndex& index) const;
    QModelIndex IndexOf(const clsGridRow* row, int column = 0) const;
    // The key of a record row; 0 for a group row or no row.
    qint64 KeyAt(const QModelIndex& index) const;
    // The record kept with a record row (clsGridCells::Keep); nullptr when it keeps none of that type.
    template <typename T> const T* RecordAt(const QModelIndex& index) const {
        const clsGridRow* row = RowAt(index);
        return row != nullptr ? std::any_cast<T>(&row->Record) : nullptr;
    }
    // The first record row with this key; invalid when there is none.
    QModelIndex FindRecord(qint64 itemData) const;
    const std::vector<std::unique_ptr<clsGridRow>>& TopRows() const { return mRoot.Children; }
    // Group rows and record rows in the order the grid shows them unfolded; numbers start at 1.
    int FlatRowCount() const;
    QModelIndex FlatRow(int number) const;
    // Calls visit for every row in flat order.
    template <typename Visit> void ForEachRow(Visit visit) const {
        for (const auto& top : mRoot.Children) {
            visit(*top);
            for (const auto& child : top->Children) visit(*child);
        }
    }

    // Adds one record row, in the group with this text (made when missing) or on the top level.
    QModelIndex AddRecord(qint64 itemData, const QString& groupText = QString());
    void RemoveRow(const QModelIndex& index);
    // Writes a record row's cells anew; the view is told once.
    void Rewrite(const QModelIndex& index, const std::function<void(clsGridCells&)>& write);
    void SetRowText(const QModelIndex& index, const QString& text);
    // The colour of a record row's text (invalid: the palette's) and whether a line goes through it.
    void SetRowLook(const QModelIndex& index, const QColor& foreground, bool strikeOut);
    // Moves a row one place up (-1) or down (+1) among its siblings; false at the edge.
    bool MoveRow(const QModelIndex& index, int step);
    void SetExpanded(clsGridRow& group, bool expanded) { group.Expanded = expanded; }

    // ---- QAbstractItemModel ----
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    friend class clsGridFill;
    friend class clsGridCells;
    clsGridRow* NewGroup(const QString& text);
    clsGridRow* NewRecord(clsGridRow* parent, qint64 itemData);
    const clsGridRow* ParentRow(const QModelIndex& parent) const;
    QVariant GroupData(const clsGridRow& row, int column, int role) const;
    QVariant RecordData(const clsGridRow& row, int column, int role) const;
    void CountRowText(const QString& before, const QString& after);
    static void Renumber(clsGridRow& parent, int from);

    QList<clsGridColumn> mColumns;
    QHash<QString, int> mColumnByKey;
    QList<QIcon> mImages;
    clsGridRow mRoot;
    QHash<QString, clsGridRow*> mGroupByText;
    int mGroupCount = 0;
    int mRowTextCount = 0;
};

// Fills a grid in one go: the model is reset once when the fill starts and once more when it ends, and no
// row sends a signal of its own.
//
//     clsGridFill fill(grid->Model());
//     for (const auto& c : contacts)
//         fill.Group(c.ROLE_TX).Row(c.CONTACT_ID.toLongLong()).Set(FULL_NM, c.ListName()).Icon(ICO, 1);
class clsGridFill : public clsGridCells {
public:
    explicit clsGridFill(clsGridModel& model);
    ~clsGridFill();
    clsGridFill(const clsGridFill&) = delete;
    clsGridFill& operator=(const clsGridFill&) = delete;

    // The rows that follow go into the group with this text; a text seen before continues that group.
    clsGridFill& Group(const QString& text);
    // Back to rows on the top level.
    clsGridFill& NoGroup();
    // A new record row; the cells then go into it.
    clsGridCells& Row(qint64 itemData);

private:
    clsGridRow* mGroup = nullptr;
};
