#pragma once

#include <QIcon>
#include <QList>
#include <QModelIndex>
#include <QString>

class QWidget;
class usrGrid;

// What every list page does with its grid, so that no page walks rows itself. Each routine takes the grid
// first and leaves it as it was when a column key is unknown or the grid has no rows. A row given as a
// QModelIndex may come from the view or from the grid's model.

// True when the selected row is a record row with a key other than 0; a group row never counts.
bool GridHasSelection(const usrGrid* grid);
// Moves the selected row one place inside its group and keeps it selected; false at the edge.
bool GridMoveRowUp(usrGrid* grid);
bool GridMoveRowDown(usrGrid* grid);
// The selected record rows whose cell in the column holds an "@".
int GridCountAddresses(const usrGrid* grid, int column);

// The file pictures, in the order of their index.
enum FileIconKind : int {
    FileIconBlank = 0,
    FileIconDocument,
    FileIconSpreadsheet,
    FileIconCsv,
    FileIconPdf,
    FileIconZip,
    FileIconWeb,
    FileIconSound,
    FileIconPhoto,
    FileIconPicture,
    FileIconCount
};
// The picture index of a file by its extension: the text behind the last of at most three dots.
int FileIconIndex(const QString& fileName);
// The picture of each FileIconKind, drawn for any screen density; give it to Model()->SetImages.
QList<QIcon> FileIcons();

// Places the grid around the control, 2 pixels beyond it on each side.
void GridFrameControl(usrGrid* grid, const QWidget* control);
// load false: stores each column's place ("CO" + key), visibility ("COVIS" + key) and, where the column
// names one, its width below the grid's registry key. load true: restores them; a column is shown where
// the store says so (default "1") or where forceVisible says so.
void GridLayout(usrGrid* grid, bool load, bool forceVisible = false);
// Selects row number 1 to the row count (group rows count), and brings it into view.
void GridSelectRow(usrGrid* grid, int rowNumber);
// Selects the first record row whose key is this one.
void GridSelectByKey(usrGrid* grid, qint64 key);
// Opens or closes every group as stored below the key by the group's text; with an empty key all open.
// The grid then stores the user's own opening and closing below the same key.
void GridRestoreGroups(usrGrid* grid, const QString& key);
void GridSetAllGroups(usrGrid* grid, bool expanded, const QString& key);
void GridToggleGroup(usrGrid* grid, const QModelIndex& row, const QString& key);
// Keeps the rows with a cell among the first columnCount columns (-1: all) that holds the text, in any
// case of letters, and the groups over them; icon columns are not looked at. An empty text shows every
// row. The number of matching records goes to count.
void GridSearch(usrGrid* grid, const QString& text, int columnCount, int& count);
int GridSearch(usrGrid* grid, const QString& text);
// Selects every record row, never a group row.
void GridSelectAll(usrGrid* grid);
// After a reload: the groups as stored, then the row with this key selected.
void GridRefreshAndKeep(usrGrid* grid, const QString& key, qint64 itemData);
