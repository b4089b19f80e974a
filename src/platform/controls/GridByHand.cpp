// What a Grid does with keys, clicks and editors.
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QShortcut>

#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/GridExport.h"
#include "platform/controls/GridModel.h"

namespace {
constexpr QKeyCombination FilterKey = Qt::CTRL | Qt::SHIFT | Qt::Key_F;
}

// Always one whole row, never none: a press beside the rows and a release change nothing.
QItemSelectionModel::SelectionFlags Grid::selectionCommand(const QModelIndex& index, const QEvent* event) const {
  if (!index.isValid() || (event != nullptr && event->type() == QEvent::MouseButtonRelease))
    return QItemSelectionModel::NoUpdate;
  return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

void Grid::UserRow(int row) {
  if (row == row_ || row == 0) return;
  row_ = row;
  Q_EMIT SelChange();
}

// The row that the view itself made current, by assistive technology for instance.
void Grid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (!quiet_ && current.isValid()) UserRow(model_->RowOf(current));
}

// Lets the view handle an event first and tells of the row afterwards, so that a slot may show a message or load the
// grid anew without the view being in the middle of something.
template <class BaseEvent>
void Grid::ByHand(BaseEvent handle) {
  const QPointer<Grid> self = this;
  {
    const QScopedValueRollback quiet(quiet_, true);
    handle();
  }
  if (!self.isNull()) Adopt();
}

void Grid::Adopt() {
  const QModelIndexList selected = selectionModel()->selectedRows();
  const int chosen = selected.isEmpty() ? 0 : model_->RowOf(selected.front());
  const int before = row_;
  if (chosen != 0) row_ = chosen;
  if (!InStep() || currentIndex().column() == 0) ShowCurrent(false);
  if (row_ != before) Q_EMIT SelChange();
}

bool Grid::MoveByKey(int key) {
  const int rows = model_->rowCount();
  if (rows == 0) return false;
  const QModelIndex shown = row_ == 0 ? QModelIndex() : model_->IndexOf(row_, 0);
  const int page = std::max(1, viewport()->height() / std::max(1, verticalHeader()->defaultSectionSize()) - 1);
  int target = shown.isValid() ? shown.row() : 0;
  switch (key) {
    case Qt::Key_Up:
      target -= shown.isValid() ? 1 : 0;
      break;
    case Qt::Key_Down:
      target += shown.isValid() ? 1 : 0;
      break;
    case Qt::Key_PageUp:
      target -= shown.isValid() ? page : 0;
      break;
    case Qt::Key_PageDown:
      target += shown.isValid() ? page : 0;
      break;
    case Qt::Key_Home:
      target = 0;
      break;
    case Qt::Key_End:
      // Rows that wait for something to be entered are no end to go to.
      target = rows - 1;
      while (target > 0 && model_->IsBlank(model_->RowOf(model_->index(target, 0)))) --target;
      break;
    default:
      return false;
  }
  SetRow(model_->RowOf(model_->index(std::clamp(target, 0, rows - 1), 0)));
  return true;
}

int Grid::NextEditable(int col, int step) const {
  for (int next = col; next >= 1 && next < Cols(); next += step)
    if (model_->IsEditable(next) && !isColumnHidden(next)) return next;
  return 0;
}

bool Grid::EnterRow() {
  // Where nobody waits for it the key is the window's.
  if (row_ == 0 || !HasRowEntered()) return false;
  Q_EMIT RowEntered(row_);
  return true;
}

bool Grid::EditByKey() {
  if (row_ == 0) return false;
  const int current = currentIndex().column();
  const int col = current > 0 && model_->IsEditable(current) ? current : NextEditable(1, 1);
  if (col == 0) return EnterRow();
  EditCell(row_, col);
  return true;
}

void Grid::EditCell(int row, int col) {
  SetRow(row);
  const QModelIndex index = model_->IndexOf(row, col);
  if (!index.isValid() || isColumnHidden(col) || !model_->IsEditable(col)) return;
  {
    const QScopedValueRollback quiet(quiet_, true);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
  scrollTo(index);
  edit(index);
}

void Grid::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  const bool moves = hint == QAbstractItemDelegate::EditNextItem || hint == QAbstractItemDelegate::EditPreviousItem;
  const QPointer<Grid> self = this;
  QTableView::closeEditor(editor, moves ? QAbstractItemDelegate::NoHint : hint);
  if (edit_.has_value()) {
    const Edit done = *std::exchange(edit_, std::nullopt);
    Q_EMIT AfterEdit(done.row, done.col, done.old);
  }
  if (self.isNull() || !moves || state() == QAbstractItemView::EditingState || !hasFocus() || row_ == 0) return;
  // Tab goes on to the next cell of the row that can be edited.
  const int step = hint == QAbstractItemDelegate::EditNextItem ? 1 : -1;
  if (const int next = NextEditable(currentIndex().column() + step, step); next != 0) EditCell(row_, next);
}

void Grid::CopyRow() const {
  if (row_ == 0) return;
  QStringList cells;
  for (int col = 1; col < Cols(); ++col)
    if (!isColumnHidden(col)) cells.append(Text(row_, col));
  QApplication::clipboard()->setText(cells.join(u'\t'));
}

void Grid::keyPressEvent(QKeyEvent* event) {
  event->accept();
  if (event->matches(QKeySequence::Copy)) return CopyRow();
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const bool toEnds = event->key() == Qt::Key_Home || event->key() == Qt::Key_End;
  if ((modifiers == Qt::NoModifier || (toEnds && modifiers == Qt::ControlModifier)) && MoveByKey(event->key())) return;
  if (event->key() == Qt::Key_F2 && modifiers == Qt::NoModifier && EditByKey()) return;
  const QPointer<Grid> self = this;
  ByHand([&] { QTableView::keyPressEvent(event); });
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool enters = isEnter && modifiers == Qt::NoModifier && !self.isNull() && state() != EditingState;
  if (enters && EnterRow()) event->accept();
}

void Grid::mousePressEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  pressed_ = event->button() == Qt::LeftButton && index.isValid() ? std::pair(model_->RowOf(index), index.column())
                                                                  : std::pair(0, 0);
  ByHand([&] { QTableView::mousePressEvent(event); });
}

void Grid::mouseMoveEvent(QMouseEvent* event) {
  ByHand([&] { QTableView::mouseMoveEvent(event); });
}

void Grid::mouseReleaseEvent(QMouseEvent* event) {
  const auto [row, col] = std::exchange(pressed_, {});
  const QModelIndex index = indexAt(event->position().toPoint());
  const bool clicked =
      event->button() == Qt::LeftButton && row != 0 && model_->RowOf(index) == row && index.column() == col;
  const QPointer<Grid> self = this;
  ByHand([&] { QTableView::mouseReleaseEvent(event); });
  if (clicked && !self.isNull()) Q_EMIT CellClick(row, col);
}

void Grid::mouseDoubleClickEvent(QMouseEvent* event) {
  pressed_ = {};
  const QModelIndex index = indexAt(event->position().toPoint());
  const int row = model_->RowOf(index), col = index.column();
  const QPointer<Grid> self = this;
  ByHand([&] { QTableView::mouseDoubleClickEvent(event); });
  if (row == 0 || event->button() != Qt::LeftButton || self.isNull()) return;
  Q_EMIT CellDoubleClick(row, col);
  if (!self.isNull() && row_ == row && !model_->IsEditable(col)) EnterRow();
}

void Grid::HeadingClicked(int col) {
  // The heading has turned its own mark already; what counts is how the rows stand.
  if (col == 0) return ShowSorted();
  const bool downwards = sorted_ == std::pair(col, Qt::AscendingOrder);
  Sort(col, downwards ? Qt::DescendingOrder : Qt::AscendingOrder, model_->IsNumeric(col));
}

namespace {
Grid::MenuExtension& Extension() {
  static Grid::MenuExtension extension;
  return extension;
}
}  // namespace

void Grid::ExtendMenus(MenuExtension extension) {
  Extension() = std::move(extension);
}

// For those who work without the mouse (the menu key opens it), and for those who do not know the keys.
void Grid::contextMenuEvent(QContextMenuEvent* event) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  QAction* copy = menu->addAction(tr("&Copy row"), QKeySequence::Copy, this, &Grid::CopyRow);
  copy->setEnabled(row_ != 0);
  QMenu* sort = menu->addMenu(tr("&Sort by"));
  for (const int col : VisibleCols()) {
    if (model_->Heading(col).isEmpty()) continue;
    QString caption = model_->Heading(col);
    sort->addAction(caption.replace(u'&', QLatin1String("&&")), this, [this, col] { HeadingClicked(col); });
  }
  sort->setEnabled(!sort->isEmpty());
  AddColumnChoices(*menu->addMenu(tr("C&olumns")));
  menu->addSeparator();
  // The keys are only shown: those that act belong to the window.
  const auto shown = [](const QString& caption, const QKeySequence& key) {
    return caption + u'\t' + key.toString(QKeySequence::NativeText);
  };
  menu->addAction(shown(tr("&Find..."), QKeySequence::Find), this, [this] { OpenFinder(Seek::Find); });
  menu->addAction(shown(tr("Fi&lter rows..."), FilterKey), this, [this] { OpenFinder(Seek::Filter); });
  menu->addSeparator();
  const bool any = ShownRows() > 0;
  menu->addAction(tr("&Export to CSV..."), this, [this] { GridExport::AskAndSaveCsv(*this); })->setEnabled(any);
  menu->addAction(tr("Save as P&DF..."), this, [this] { GridExport::AskAndSavePdf(*this); })->setEnabled(any);
  menu->addAction(tr("&Print..."), this, [this] { GridExport::AskAndPrint(*this); })->setEnabled(any);
  if (Extension()) Extension()(*this, *menu);
  menu->popup(event->globalPos());
}

// --- Keys that work wherever the focus is in the window ---

namespace {
// The grid that had the focus last, of whatever window: selecting a row often moves the focus on to a field.
QPointer<Grid>& LastUsed() {
  static QPointer<Grid> grid;
  return grid;
}
}  // namespace

Grid* Grid::InUse(const QWidget& window) {
  for (QWidget* at = QApplication::focusWidget(); at != nullptr; at = at->parentWidget())
    if (auto* const grid = qobject_cast<Grid*>(at); grid != nullptr && grid->window() == &window) return grid;
  const QPointer<Grid>& last = LastUsed();
  if (!last.isNull() && last->isVisible() && last->window() == &window) return last.data();
  for (Grid* grid : window.findChildren<Grid*>())
    if (grid->isVisible() && grid->window() == &window) return grid;
  return nullptr;
}

void Grid::SetUpShortcuts() {
  const auto key = [this](const QKeySequence& keys, void (*act)(Grid&)) {
    auto* const shortcut = new QShortcut(keys, this);
    // Where several grids are on screen each of them has the key; any of them finds the one that is meant.
    for (const auto signal : {&QShortcut::activated, &QShortcut::activatedAmbiguously})
      connect(shortcut, signal, this, [this, act] { act(*InUse(*window())); });
  };
  key(QKeySequence::Find, [](Grid& grid) { grid.OpenFinder(Seek::Find); });
  key(FilterKey, [](Grid& grid) { grid.OpenFinder(Seek::Filter); });
  key(Qt::Key_F3, [](Grid& grid) { grid.FindNext(1); });
  key(Qt::SHIFT | Qt::Key_F3, [](Grid& grid) { grid.FindNext(-1); });
}

// The frame says where the focus is, since no single cell does.
void Grid::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  PaintFrozen();
  if (!hasFocus()) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

void Grid::focusInEvent(QFocusEvent* event) {
  LastUsed() = this;
  ByHand([&] { QTableView::focusInEvent(event); });
  viewport()->update();
}

void Grid::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  viewport()->update();
}

void Grid::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  SetHeights();
  FitAllHeadings();
}

void Grid::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  ShareRoom();
  // The current row does not slip out of sight with the lower edge.
  const QModelIndex current = row_ == 0 ? QModelIndex() : currentIndex();
  const QRect cell = visualRect(current);
  if (current.isValid() && cell.top() >= 0 && cell.top() < event->oldSize().height()) scrollTo(current);
}
