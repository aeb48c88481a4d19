#include "shell/grid/modGrid.h"

#include "platform/clsRegistry.h"
#include "shell/grid/clsGridProxy.h"
#include "shell/grid/usrGrid.h"

#include <QHash>
#include <QHeaderView>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace {

clsGridRow* SelectedRecord(const usrGrid* grid) {
    clsGridRow* row = grid->Model()->RowAt(grid->SelectedRow());
    return row != nullptr && !row->IsGroup ? row : nullptr;
}

bool MoveSelectedRow(usrGrid* grid, int step) {
    clsGridRow* row = SelectedRecord(grid);
    if (row == nullptr || !grid->Model()->MoveRow(grid->Model()->IndexOf(row), step)) return false;
    grid->SelectOnly(grid->Model()->IndexOf(row));
    return true;
}

} // namespace

bool GridHasSelection(const usrGrid* grid) {
    const clsGridRow* row = SelectedRecord(grid);
    return row != nullptr && row->ItemData != 0;
}

bool GridMoveRowUp(usrGrid* grid) { return MoveSelectedRow(grid, -1); }

bool GridMoveRowDown(usrGrid* grid) { return MoveSelectedRow(grid, +1); }

int GridCountAddresses(const usrGrid* grid, int column) {
    int count = 0;
    for (const QModelIndex& index : grid->SelectedRows()) {
        const clsGridRow* row = grid->Model()->RowAt(index);
        if (row != nullptr && !row->IsGroup && row->Cell(column).contains(QLatin1Char('@'))) ++count;
    }
    return count;
}

// ---- File pictures -------------------------------------------------------------------------------------

int FileIconIndex(const QString& fileName) {
    int dot = -1;
    for (int seen = 0; seen < 3; ++seen) {
        const int next = fileName.indexOf(QLatin1Char('.'), dot + 1);
        if (next < 0) break;
        dot = next;
    }
    if (dot < 0) return FileIconBlank;
    static const QHash<QString, int> kinds = {
        {"DOC", FileIconDocument},    {"DOCX", FileIconDocument}, {"RTF", FileIconDocument},
        {"XLS", FileIconSpreadsheet}, {"XLSX", FileIconSpreadsheet}, {"CSV", FileIconCsv},
        {"PDF", FileIconPdf},         {"ZIP", FileIconZip},       {"HTM", FileIconWeb},
        {"HTML", FileIconWeb},        {"MP3", FileIconSound},     {"WAV", FileIconSound},
        {"WMA", FileIconSound},       {"ACC", FileIconSound},     {"M4P", FileIconSound},
        {"JPG", FileIconPhoto},       {"JPEG", FileIconPhoto},    {"BMP", FileIconPhoto},
        {"GIF", FileIconPicture},     {"PNG", FileIconPicture},
    };
    return kinds.value(fileName.mid(dot + 1).toUpper(), FileIconBlank);
}

namespace {

// A sheet with a folded corner and, for known kinds, a coloured band with a short label.
QPixmap DrawFileIcon(int kind, int size, qreal ratio) {
    struct Look { QColor band; const char* label; };
    static const Look looks[FileIconCount] = {
        {QColor(), ""},          {QColor(43, 87, 154), "W"},  {QColor(33, 115, 70), "X"},
        {QColor(90, 140, 60), "CSV"}, {QColor(200, 40, 35), "PDF"}, {QColor(150, 110, 40), "ZIP"},
        {QColor(30, 130, 190), "www"}, {QColor(140, 70, 160), "\u266A"}, {QColor(220, 120, 30), "JPG"},
        {QColor(0, 150, 150), "PNG"},
    };
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal s = size;
    const qreal fold = s * 0.28;
    QPainterPath sheet;
    sheet.moveTo(s * 0.15, s * 0.05);
    sheet.lineTo(s * 0.85 - fold, s * 0.05);
    sheet.lineTo(s * 0.85, s * 0.05 + fold);
    sheet.lineTo(s * 0.85, s * 0.95);
    sheet.lineTo(s * 0.15, s * 0.95);
    sheet.closeSubpath();
    p.setPen(QPen(QColor(120, 120, 120), s / 16.0));
    p.setBrush(Qt::white);
    p.drawPath(sheet);
    p.drawLine(QPointF(s * 0.85 - fold, s * 0.05), QPointF(s * 0.85 - fold, s * 0.05 + fold));
    p.drawLine(QPointF(s * 0.85 - fold, s * 0.05 + fold), QPointF(s * 0.85, s * 0.05 + fold));
    const Look& look = looks[std::clamp(kind, 0, int(FileIconCount) - 1)];
    if (!look.band.isValid()) return pixmap;
    const QRectF band(s * 0.02, s * 0.48, s * 0.96, s * 0.40);
    p.setPen(Qt::NoPen);
    p.setBrush(look.band);
    p.drawRoundedRect(band, s / 16.0, s / 16.0);
    QFont font;
    font.setBold(true);
    font.setPixelSize(std::max(4, int(s * (qstrlen(look.label) > 2 ? 0.30 : 0.36))));
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(band, Qt::AlignCenter, QString::fromUtf8(look.label));
    return pixmap;
}

} // namespace

QList<QIcon> FileIcons() {
    QList<QIcon> icons;
    for (int kind = 0; kind < FileIconCount; ++kind) {
        QIcon icon;
        for (const int size : {16, 24, 32, 48}) icon.addPixmap(DrawFileIcon(kind, size, 2.0));
        icons.append(icon);
    }
    return icons;
}

// ---- Placing and layout --------------------------------------------------------------------------------

void GridFrameControl(usrGrid* grid, const QWidget* control) {
    if (control == nullptr || grid->parentWidget() == nullptr) return;
    const QPoint topLeft = control->mapTo(grid->window(), QPoint(0, 0));
    const QPoint inParent = grid->parentWidget()->mapFrom(grid->window(), topLeft);
    grid->setGeometry(QRect(inParent, control->size()).adjusted(-2, -2, 2, 2));
}

namespace {

void StoreLayout(usrGrid* grid, const QString& key) {
    const clsGridModel* model = grid->Model();
    clsRegistryStore& store = gRegistry();
    for (int column = 0; column < model->columnCount(); ++column) {
        const clsGridColumn& definition = model->Column(column);
        const bool shown = grid->ColumnShown(column);
        store.SaveSetting(key, "CO" + definition.Key, QString::number(grid->header()->visualIndex(column)));
        store.SaveSetting(key, "COVIS" + definition.Key, shown ? QStringLiteral("-1") : QStringLiteral("0"));
        if (shown && !definition.WidthName.isEmpty())
            store.SaveSetting(key, definition.WidthName, QString::number(grid->columnWidth(column)));
    }
}

void LoadLayout(usrGrid* grid, const QString& key, bool forceVisible) {
    const clsGridModel* model = grid->Model();
    clsRegistryStore& store = gRegistry();
    QList<std::pair<int, int>> places; // stored place, column
    for (int column = 0; column < model->columnCount(); ++column) {
        const clsGridColumn& definition = model->Column(column);
        const int current = grid->header()->visualIndex(column);
        bool ok = false;
        const int stored = store.GetSetting(key, "CO" + definition.Key, QString::number(current)).toInt(&ok);
        places.append({ok ? stored : current, column});
        if (!definition.WidthName.isEmpty()) {
            const int width = store.GetSetting(key, definition.WidthName, QString::number(definition.Width)).toInt();
            grid->setColumnWidth(column, width > 3 ? width : definition.Width);
        }
        const bool shown = forceVisible || store.GetSetting(key, "COVIS" + definition.Key, "1") != QLatin1String("0");
        grid->ShowColumn(column, shown);
    }
    std::stable_sort(places.begin(), places.end());
    QList<int> order;
    for (const auto& place : places) order.append(place.second);
    grid->SetColumnOrder(order);
}

} // namespace

void GridLayout(usrGrid* grid, bool load, bool forceVisible) {
    const QString key = grid->RegistryKey();
    if (key.isEmpty()) return;
    if (load)
        LoadLayout(grid, key, forceVisible);
    else
        StoreLayout(grid, key);
}

// ---- Selection -----------------------------------------------------------------------------------------

void GridSelectRow(usrGrid* grid, int rowNumber) {
    if (rowNumber < 1 || rowNumber > grid->Model()->FlatRowCount()) return;
    grid->SelectOnly(grid->Model()->FlatRow(rowNumber));
}

void GridSelectByKey(usrGrid* grid, qint64 key) {
    const QModelIndex found = grid->Model()->FindRecord(key);
    if (found.isValid()) grid->SelectOnly(found);
}

void GridSelectAll(usrGrid* grid) { grid->selectAll(); }

void GridRefreshAndKeep(usrGrid* grid, const QString& key, qint64 itemData) {
    GridRestoreGroups(grid, key);
    GridSelectByKey(grid, itemData);
}

// ---- Groups --------------------------------------------------------------------------------------------

namespace {

template <typename Decide> void SetGroups(usrGrid* grid, const QString& key, Decide expandedOf) {
    grid->SetGroupKey(key);
    for (const auto& top : grid->Model()->TopRows())
        if (top->IsGroup) grid->Model()->SetExpanded(*top, expandedOf(*top));
    grid->ApplyGroupState();
}

} // namespace

void GridRestoreGroups(usrGrid* grid, const QString& key) {
    SetGroups(grid, key, [&](const clsGridRow& group) {
        return key.isEmpty() || gRegistry().GetSetting(key, group.Cell(0), "1") != QLatin1String("0");
    });
}

void GridSetAllGroups(usrGrid* grid, bool expanded, const QString& key) {
    grid->SetGroupKey(key);
    for (const auto& top : grid->Model()->TopRows())
        if (top->IsGroup) grid->SetGroupExpanded(*top, expanded);
}

void GridToggleGroup(usrGrid* grid, const QModelIndex& row, const QString& key) {
    clsGridRow* group = grid->Model()->RowAt(grid->ToSource(row));
    if (group == nullptr || !group->IsGroup) return;
    grid->SetGroupKey(key);
    grid->SetGroupExpanded(*group, !group->Expanded);
}

// ---- Search --------------------------------------------------------------------------------------------

void GridSearch(usrGrid* grid, const QString& text, int columnCount, int& count) {
    grid->Proxy()->SetSearch(text, columnCount);
    count = grid->Proxy()->ShownRecords();
}

int GridSearch(usrGrid* grid, const QString& text) {
    int count = 0;
    GridSearch(grid, text, -1, count);
    return count;
}
