#pragma once

#include <QMetaMethod>
#include <QTableView>
#include <functional>
#include <optional>
#include <span>
#include <vector>

class GridFinder;
class GridHeading;
class GridModel;
class QMenu;

// A grid of strings in the vocabulary the screens speak. Row 0 is the heading, data rows count from 1; column 0 is the
// narrow marker column. Row() is 0 when no row is current, whatever the view's own current index is. Rows stand in the
// order of the screen: a sort by a heading moves them for good, and a filter only hides them.
class Grid : public QTableView {
  Q_OBJECT

 public:
  Grid(QWidget* parent, const QString& name, int columns = 1);

  int Rows() const;  // heading included: 1 for an empty grid
  int Cols() const;
  // Drops all rows and widths when the count changes.
  void SetCols(int count);
  // Empties the grid to its heading. Row() becomes 0; no event.
  void Clear();

  int Row() const { return row_; }
  // Makes a row current; 0 is "no row". Emits SelChange when the row changes to another one or from another one. A row
  // that the filter hides lifts the filter: what a screen makes current is seen.
  void SetRow(int row);
  // As SetRow without any event.
  void SetRowQuietly(int row);

  QString Text(int row, int col) const;  // row 0: the heading's caption
  void SetText(int row, int col, const QString& text);
  // The same without a copy; good until the grid changes. For scans over many rows.
  QStringView View(int row, int col) const;
  // Adds a row at the end, or before row `at`; column 0 stays empty when `cells` begins at column 1. Returns its
  // number.
  int AddRow(const QStringList& cellsFromColumn1, int at = 0);
  // As AddRow for a long load: the rows are shown all at once by EndLoad, or when the event loop runs again where an
  // error kept EndLoad from being reached.
  void BeginLoad(int expectedRows = 0);
  void LoadRow(const QStringList& cellsFromColumn1);
  void LoadRow(std::span<const QStringView> cellsFromColumn1);
  void EndLoad();
  // The current row stays on its record; when it is removed itself there is no current row.
  void RemoveRow(int row);
  // First data row whose cell equals the text exactly, searching from `from`; 0 when there is none.
  int FindRow(const QString& text, int col, int from = 1) const;
  // First data row whose cells equal all texts: {{1, "AB"}, {7, "12"}}.
  int FindRow(const std::vector<std::pair<int, QString>>& cells, int from = 1) const;

  void SetHeading(int col, const QString& caption) { SetText(0, col, caption); }
  // Width in twips (1440 an inch); the column is never narrower than its heading. Where there is room beside all
  // columns, those whose texts are cut get of it what they lack, and the last visible column takes what is left.
  void SetColWidth(int col, int twips);
  int ColWidth(int col) const;  // in twips, as it was set
  // By the screen; a person may hide others from the menu of the headings, which is remembered.
  void HideCol(int col, bool hidden);
  bool ColHidden(int col) const;
  // Amounts and counts stand at the right, all else at the left.
  void AlignRight(int col, bool right = true);
  Qt::Alignment Alignment(int col) const;

  // Cells of this column can be edited in place; an empty list is a text editor of maxLength characters, otherwise a
  // drop-down of these entries.
  void SetEditable(int col, int maxLength, const QStringList& choices = {});
  void EditCell(int row, int col);

  // A number the screen keeps beside a row (it moves with the row on a sort); 0 when never set.
  void SetRowData(int row, qint64 data);
  qint64 RowData(int row) const;

  // Sorts by a column, equal cells keeping their order: by the locale's collation without regard to letter case, or
  // numeric: empty cells, numbers by value, other texts. Row() stays on its record. Emits BeforeSort and AfterSort. A
  // click on a heading sorts upwards, then downwards, numeric where the column holds nothing but numbers.
  void Sort(int col, Qt::SortOrder order, bool numeric = false);

  // Hides rows that do not hold the text in any visible cell (letter case and accents ignored); an empty text shows
  // all. Hidden rows keep their numbers and are found like all others.
  void SetFilter(const QString& text);
  const QString& Filter() const { return filter_; }
  bool RowHidden(int row) const;
  int ShownRows() const;  // those that the filter leaves
  // The row on screen before (-1) or after (1) the current one; 0 when there is none. Blank ones are none.
  int Neighbour(int step) const;
  // How many rows there are, in words: "12 rows", "39 of 20,010 rows". Blank ones at the end do not count.
  QString CountText() const;
  // Columns on screen, from the left, without the marker.
  std::vector<int> VisibleCols() const;

  // The bar under the headings: find as you type, or the same text as a filter.
  enum class Seek { Find, Filter };
  void OpenFinder(Seek seek);
  void CloseFinder();
  // The bar with this text, as if it were typed there; the focus stays where it is. An empty text closes it.
  void LookFor(const QString& text);
  QString Sought() const;  // empty while the bar is closed
  // The next or the previous row of the text in the bar becomes current, the first one after the last one.
  void FindNext(int step = 1);
  // The row that typing in the bar has found and that is not current yet; 0 when there is none.
  int FoundRow() const;

  // The grid that a person means in a window: the one with the focus, else the one used last, else the first on screen;
  // null when there is none.
  static Grid* InUse(const QWidget& window);

  // Somebody waits for RowEntered.
  bool HasRowEntered() const { return isSignalConnected(QMetaMethod::fromSignal(&Grid::RowEntered)); }

  // What the program adds to the menu of every grid.
  using MenuExtension = std::function<void(Grid& grid, QMenu& menu)>;
  static void ExtendMenus(MenuExtension extension);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  // The marker and the first column stay in sight while the others scroll sideways, where that leaves them room.
  QModelIndex indexAt(const QPoint& point) const override;
  QRect visualRect(const QModelIndex& index) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 Q_SIGNALS:
  // Another row became current, by hand or by SetRow. Not emitted for row 0 on clearing a grid.
  void SelChange();
  // A click on a data cell, after SelChange where the row changed.
  void CellClick(int row, int col);
  void CellDoubleClick(int row, int col);
  // Enter, or a double click on a cell that cannot be edited, or F2 in a grid without such cells: the row is meant.
  void RowEntered(int row);
  void BeforeSort(int col);
  void AfterSort(int col);
  // A cell was edited by hand and got another text, the editor being closed; `old` is what stood there.
  void AfterEdit(int row, int col, const QString& old);
  void FilterChanged();
  // CountText may say something else.
  void CountChanged();

 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  struct Column {
    int twips = 0;
    int pixels = 0;       // without its share of the room that is left
    int texts = 0;        // pixels of the widest of the texts that were looked at
    bool byHand = false;  // a person has drawn it since the last release of the mouse
    bool drawn = false;   // a person has drawn it, now or in an earlier window
    bool hidden = false;  // by the screen
    bool away = false;    // by a person
  };
  struct Edit {
    int row = 0, col = 0;
    QString old;
  };

  void SetUpHeaders();
  void SetUpShortcuts();
  void SetHeights();
  int HeightOf(int rows) const;
  void ResetColumns();
  void ShowCurrent(bool scroll);
  bool InStep() const;
  template <class BaseEvent>
  void ByHand(BaseEvent handle);
  void Adopt();
  void UserRow(int row);
  bool MoveByKey(int key);
  bool EditByKey();
  bool EnterRow();
  int LastFilledRow() const;
  void CopyRow() const;
  void HeadingClicked(int col);
  void ShowSorted();
  void FitHeading(int col);
  void FitAllHeadings();
  void MeasureTexts(int first, int last);
  void KeepWidths();
  void ShareRoom();
  int Needs(int col) const;
  QString SettingsKey(const char* group, int col) const;
  void RecallColumn(int col);
  void PutColumn(int col);
  void AddColumnChoices(QMenu& menu);
  void TakeAway(int col, bool away);
  void PaintFrozen();
  void RememberWidths();
  int FirstVisibleCol() const;
  int NextEditable(int col, int step) const;

  GridModel* model_;
  GridHeading* heading_;
  GridFinder* finder_ = nullptr;  // made when it is first called for
  QString filter_;
  std::vector<Column> columns_;
  int row_ = 0;
  bool quiet_ = false;  // what the view does now is no choice of the user
  bool loading_ = false;
  bool stretching_ = false;
  std::pair<int, int> pressed_;  // row and column of a press whose release is to come
  std::optional<std::pair<int, Qt::SortOrder>> sorted_;
  std::optional<Edit> edit_;  // of an editor that is about to close
};
