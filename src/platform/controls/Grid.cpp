#include "platform/controls/Grid.h"

#include <QHeaderView>
#include <QLocale>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>
#include <numeric>

#include "platform/controls/GridDelegate.h"
#include "platform/controls/GridFinder.h"
#include "platform/controls/GridHeading.h"
#include "platform/controls/GridModel.h"
#include "platform/controls/GridStyle.h"

namespace {
constexpr int DefaultTwips = 960;
constexpr int NarrowestGrid = 160, WidestGrid = 900;  // pixels asked of a layout
constexpr int FewestRows = 3, UsualRows = 8;
std::size_t At(int index) {
  return static_cast<std::size_t>(index);
}

std::vector<QStringView> Views(const QStringList& cells) {
  return std::vector<QStringView>(cells.begin(), cells.end());
}
}  // namespace

Grid::Grid(QWidget* parent, const QString& name, int columns)
    : QTableView(parent), model_(new GridModel(this)), heading_(new GridHeading(this)) {
  setObjectName(name);
  setHorizontalHeader(heading_);
  setModel(model_);
  setItemDelegate(new GridDelegate(this, model_));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::DoubleClicked);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setShowGrid(false);
  SetUpHeaders();
  SetUpShortcuts();
  connect(model_, &GridModel::Edited, this, [this](int row, int col, const QString& old) {
    edit_ = Edit{row, col, old};
  });
  for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
    connect(model_, signal, this, &Grid::CountChanged);
  connect(model_, &QAbstractItemModel::modelReset, this, &Grid::CountChanged);
  connect(model_, &QAbstractItemModel::dataChanged, this, &Grid::CountChanged);
  SetCols(columns);
  setStyle(GridStyle::Instance());
  heading_->setStyle(GridStyle::Instance());
}

void Grid::SetUpHeaders() {
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(1);
  QHeaderView* const heading = heading_;
  heading->setMinimumSectionSize(8);
  heading->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  heading->setHighlightSections(false);
  heading->setSectionsClickable(true);
  heading->setTextElideMode(Qt::ElideRight);
  SetHeights();
  connect(heading, &QHeaderView::sectionClicked, this, &Grid::HeadingClicked);
  connect(heading, &QHeaderView::sectionResized, this, [this](int col, int, int width) {
    if (stretching_ || width == 0) return;
    if (heading_->IsPressed()) {
      KeepWidths();
      columns_[At(col)].byHand = columns_[At(col)].drawn = true;
    }
    columns_[At(col)].pixels = width;
    ShareRoom();
  });
  connect(heading_, &GridHeading::Released, this, &Grid::RememberWidths);
  heading_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(heading_, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    AddColumnChoices(*menu);
    menu->popup(heading_->viewport()->mapToGlobal(at));
  });
}

void Grid::SetHeights() {
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  heading_->SetCaptionHeight(fontMetrics().height() + 10);
}

int Grid::HeightOf(int rows) const {
  return horizontalHeader()->height() + rows * verticalHeader()->defaultSectionSize() + 2 * frameWidth();
}

QSize Grid::sizeHint() const {
  const int columns = std::accumulate(columns_.begin(), columns_.end(), 0,
                                      [](int sum, const Column& column) { return sum + column.pixels; });
  const int width = columns + 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
  return {std::clamp(width, NarrowestGrid, WidestGrid), HeightOf(UsualRows)};
}

QSize Grid::minimumSizeHint() const {
  return {NarrowestGrid, HeightOf(FewestRows)};
}

int Grid::Rows() const {
  return model_->Rows() + 1;
}

int Grid::Cols() const {
  return model_->Columns();
}

void Grid::SetCols(int count) {
  if (count == static_cast<int>(columns_.size())) return;
  const QScopedValueRollback quiet(quiet_, true);
  // What was looked for in the columns before says nothing in the new ones.
  CloseFinder();
  SetFilter({});
  model_->SetColumns(count);
  row_ = 0;
  ResetColumns();
}

void Grid::ResetColumns() {
  columns_.assign(At(Cols()), {});
  sorted_.reset();
  ShowSorted();
  for (int col = 0; col < Cols(); ++col) {
    HideCol(col, false);
    SetColWidth(col, DefaultTwips);
  }
}

void Grid::Clear() {
  const QScopedValueRollback quiet(quiet_, true);
  loading_ = false;
  row_ = 0;
  model_->Clear();
  sorted_.reset();
  ShowSorted();
}

void Grid::SetRow(int row) {
  const int before = row_;
  SetRowQuietly(row);
  if (row_ != before) Q_EMIT SelChange();
}

void Grid::SetRowQuietly(int row) {
  EndLoad();
  row_ = model_->Holds(row, 0) ? row : 0;
  if (RowHidden(row_)) return SetFilter({});
  ShowCurrent(true);
}

QString Grid::Text(int row, int col) const {
  return row == 0 ? model_->Heading(col) : View(row, col).toString();
}

QStringView Grid::View(int row, int col) const {
  return model_->Cell(row, col);
}

void Grid::SetText(int row, int col, const QString& text) {
  if (row != 0) {
    model_->SetCell(row, col, text);
    return MeasureTexts(row, row);
  }
  model_->SetHeading(col, text);
  FitHeading(col);
}

int Grid::AddRow(const QStringList& cellsFromColumn1, int at) {
  EndLoad();
  const int row = at >= 1 && at < Rows() ? at : Rows();
  const QScopedValueRollback quiet(quiet_, true);
  model_->Insert(row, Views(cellsFromColumn1));
  MeasureTexts(row, row);
  if (row_ >= row) ++row_;
  ShowCurrent(false);
  return row;
}

void Grid::BeginLoad(int expectedRows) {
  EndLoad();
  loading_ = true;
  if (expectedRows > 0) model_->Reserve(expectedRows);
  QTimer::singleShot(0, this, &Grid::EndLoad);
}

void Grid::LoadRow(const QStringList& cellsFromColumn1) {
  LoadRow(std::span<const QStringView>(Views(cellsFromColumn1)));
}

void Grid::LoadRow(std::span<const QStringView> cellsFromColumn1) {
  model_->Append(cellsFromColumn1);
  if (!loading_) {
    loading_ = true;
    EndLoad();
  }
}

void Grid::EndLoad() {
  if (!loading_) return;
  loading_ = false;
  const QScopedValueRollback quiet(quiet_, true);
  model_->Announce();
  for (Column& column : columns_) column.texts = 0;
  MeasureTexts(1, Rows() - 1);
  ShowCurrent(false);
}

void Grid::RemoveRow(int row) {
  if (!model_->Holds(row, 0)) return;
  EndLoad();
  const QScopedValueRollback quiet(quiet_, true);
  model_->Remove(row);
  if (row_ == row)
    row_ = 0;
  else if (row_ > row)
    --row_;
  ShowCurrent(false);
}

int Grid::FindRow(const QString& text, int col, int from) const {
  return FindRow({{col, text}}, from);
}

int Grid::FindRow(const std::vector<std::pair<int, QString>>& cells, int from) const {
  for (int row = std::max(from, 1); row < Rows(); ++row) {
    const bool found = std::all_of(cells.begin(), cells.end(),
                                   [&](const auto& cell) { return model_->Cell(row, cell.first) == cell.second; });
    if (found) return row;
  }
  return 0;
}

void Grid::AlignRight(int col, bool right) {
  model_->AlignRight(col, right);
}

Qt::Alignment Grid::Alignment(int col) const {
  return model_->IsAlignedRight(col) ? Qt::AlignRight : Qt::AlignLeft;
}

void Grid::SetEditable(int col, int maxLength, const QStringList& choices) {
  model_->SetEditable(col, maxLength, choices);
}

void Grid::SetRowData(int row, qint64 data) {
  model_->SetRowData(row, data);
}

qint64 Grid::RowData(int row) const {
  return model_->RowData(row);
}

void Grid::Sort(int col, Qt::SortOrder order, bool numeric) {
  if (col < 0 || col >= Cols()) return;
  EndLoad();
  Q_EMIT BeforeSort(col);
  {
    const QScopedValueRollback quiet(quiet_, true);
    row_ = model_->Sort(col, order, numeric, row_);
    sorted_ = {col, order};
    ShowSorted();
    ShowCurrent(true);
  }
  Q_EMIT AfterSort(col);
}

void Grid::ShowSorted() {
  horizontalHeader()->setSortIndicatorShown(sorted_.has_value());
  const auto [col, order] = sorted_.value_or(std::pair(-1, Qt::AscendingOrder));
  horizontalHeader()->setSortIndicator(col, order);
}

void Grid::SetFilter(const QString& text) {
  EndLoad();
  {
    const QScopedValueRollback quiet(quiet_, true);
    model_->SetFilter(text, VisibleCols());
    ShowCurrent(true);
  }
  filter_ = text;
  Q_EMIT FilterChanged();
}

bool Grid::RowHidden(int row) const {
  return model_->Holds(row, 0) && !model_->IndexOf(row, 0).isValid();
}

int Grid::ShownRows() const {
  return model_->rowCount();
}

int Grid::LastFilledRow() const {
  int row = Rows() - 1;
  while (row > 0 && model_->IsBlank(row)) --row;
  return row;
}

int Grid::Neighbour(int step) const {
  int row = row_ == 0 && step < 0 ? Rows() : row_;
  do row += step;
  while (model_->Holds(row, 0) && (RowHidden(row) || model_->IsBlank(row)));
  return model_->Holds(row, 0) ? row : 0;
}

QString Grid::CountText() const {
  const int all = LastFilledRow();
  const QLocale here;
  const QString rows = all == 1 ? tr("%1 row") : tr("%1 rows");
  return filter_.isEmpty() ? rows.arg(here.toString(all))
                           : tr("%1 of %2").arg(here.toString(ShownRows()), rows.arg(here.toString(all)));
}

std::vector<int> Grid::VisibleCols() const {
  std::vector<int> columns;
  for (int col = 1; col < Cols(); ++col)
    if (!isColumnHidden(col)) columns.push_back(col);
  return columns;
}

void Grid::OpenFinder(Seek seek) {
  if (finder_ == nullptr) finder_ = new GridFinder(this, heading_);
  finder_->Open(seek == Seek::Filter);
}

void Grid::CloseFinder() {
  if (finder_ != nullptr) finder_->Close();
}

void Grid::FindNext(int step) {
  if (finder_ == nullptr || !finder_->Seeks()) return OpenFinder(Seek::Find);
  finder_->Next(step);
}

QString Grid::Sought() const {
  return finder_ == nullptr ? QString() : finder_->Sought();
}

void Grid::LookFor(const QString& text) {
  if (text.isEmpty()) return CloseFinder();
  if (finder_ == nullptr) finder_ = new GridFinder(this, heading_);
  finder_->LookFor(text);
}

int Grid::FoundRow() const {
  return finder_ == nullptr ? 0 : finder_->Found();
}

int Grid::FirstVisibleCol() const {
  for (int col = 1; col < Cols(); ++col)
    if (!isColumnHidden(col)) return col;
  return 0;
}

bool Grid::InStep() const {
  const QModelIndexList selected = selectionModel()->selectedRows();
  const QModelIndex current = currentIndex();
  if (!current.isValid()) return model_->rowCount() == 0;
  const QModelIndex shown = row_ == 0 ? QModelIndex() : model_->IndexOf(row_, 0);
  if (!shown.isValid()) return selected.isEmpty() && current.row() == 0;
  return selected.size() == 1 && selected.front().row() == shown.row() && current.row() == shown.row();
}

// Brings the view in step with Row(). Without a current row nothing is highlighted, yet the view keeps a current index
// on its first row: assistive technology asks a table with rows for one.
void Grid::ShowCurrent(bool scroll) {
  const QScopedValueRollback quiet(quiet_, true);
  const int col = currentIndex().isValid() && currentIndex().column() > 0 && !isColumnHidden(currentIndex().column())
                      ? currentIndex().column()
                      : FirstVisibleCol();
  const QModelIndex shown = row_ == 0 ? QModelIndex() : model_->IndexOf(row_, col);
  if (shown.isValid()) {
    if (!InStep() || currentIndex().column() != col)
      selectionModel()->setCurrentIndex(shown, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (scroll) scrollTo(shown);
    return;
  }
  selectionModel()->clearSelection();
  if (model_->rowCount() > 0) selectionModel()->setCurrentIndex(model_->index(0, col), QItemSelectionModel::NoUpdate);
}
