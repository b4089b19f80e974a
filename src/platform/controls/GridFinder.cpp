#include "platform/controls/GridFinder.h"

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QStyle>
#include <QToolButton>

#include "platform/controls/Grid.h"
#include "platform/controls/GridHeading.h"
#include "platform/controls/TextBox.h"

namespace {
// Below these widths (pixels) what is said elsewhere too gives way to the text.
constexpr int RoomForCount = 240, RoomForArrows = 300, RoomForWords = 420;
}  // namespace

GridFinder::GridFinder(Grid* grid, GridHeading* heading)
    : QWidget(heading),
      grid_(grid),
      heading_(heading),
      text_(new TextBox(this, QStringLiteral("qt_grid_find"))),
      previous_(Tool(QStringLiteral("qt_grid_previous"), Qt::UpArrow, tr("Previous match (Shift+F3)"))),
      next_(Tool(QStringLiteral("qt_grid_next"), Qt::DownArrow, tr("Next match (F3)"))),
      onlyMatches_(new QCheckBox(this)),
      count_(new QLabel(this)),
      close_(Tool(QStringLiteral("qt_grid_close"), Qt::NoArrow, tr("Close (Escape)"))) {
  setObjectName(QStringLiteral("qt_grid_bar"));
  setAutoFillBackground(true);
  hide();
  text_->setPlaceholderText(tr("Find"));
  text_->setAccessibleName(tr("Find in the rows"));
  text_->setMinimumWidth(60);
  onlyMatches_->setObjectName(QStringLiteral("qt_grid_only"));
  onlyMatches_->setAccessibleName(tr("Matching rows only"));
  onlyMatches_->setToolTip(tr("Matching rows only (Ctrl+Shift+F)"));
  count_->setObjectName(QStringLiteral("qt_grid_count"));
  close_->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(4, 2, 4, 2);
  row->setSpacing(4);
  row->addWidget(text_, 1);
  for (QWidget* widget : std::initializer_list<QWidget*>{count_, previous_, next_, onlyMatches_, close_})
    row->addWidget(widget);

  connect(text_, &TextBox::Change, this, &GridFinder::TextChanged);
  text_->SetEnterAction([this] { Next(1); });
  connect(previous_, &QToolButton::clicked, this, [this] { Next(-1); });
  connect(next_, &QToolButton::clicked, this, [this] { Next(1); });
  connect(close_, &QToolButton::clicked, this, &GridFinder::Close);
  connect(onlyMatches_, &QCheckBox::clicked, this, &GridFinder::Apply);
  connect(grid_, &Grid::FilterChanged, this, &GridFinder::Filtered);
  connect(grid_, &Grid::SelChange, this, [this] { Mark(0); });
  connect(grid_, &Grid::BeforeSort, this, [this] { Mark(0); });
  const QAbstractItemModel* const rows = grid_->model();
  for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
    connect(rows, signal, this, [this] {
      found_ = 0;
      Count();
    });
  connect(rows, &QAbstractItemModel::modelReset, this, [this] {
    found_ = 0;
    Count();
  });
}

QToolButton* GridFinder::Tool(const QString& name, Qt::ArrowType arrow, const QString& tip) {
  auto* const tool = new QToolButton(this);
  tool->setObjectName(name);
  tool->setArrowType(arrow);
  tool->setToolTip(tip);
  tool->setAccessibleName(tip);
  tool->setAutoRaise(true);
  tool->setFocusPolicy(Qt::TabFocus);
  return tool;
}

void GridFinder::Open(bool onlyMatches) {
  heading_->SetBar(this);
  if (onlyMatches && !onlyMatches_->isChecked()) {
    onlyMatches_->setChecked(true);
    Apply();
  }
  Count();
  text_->SelectAllAndFocus();
}

void GridFinder::LookFor(const QString& text) {
  heading_->SetBar(this);
  text_->SetText(text);
  Count();
}

void GridFinder::Close() {
  if (isHidden()) return;
  const bool hadFocus = isAncestorOf(QApplication::focusWidget());
  onlyMatches_->setChecked(false);
  Mark(0);
  heading_->SetBar(nullptr);
  grid_->SetFilter({});
  if (hadFocus) grid_->setFocus();
}

QString GridFinder::Sought() const {
  return isHidden() ? QString() : text_->Text();
}

bool GridFinder::Seeks() const {
  return !sought_.IsEmpty();
}

bool GridFinder::Matches(int row) const {
  if (grid_->RowHidden(row)) return false;
  const std::vector<int> columns = grid_->VisibleCols();
  return std::any_of(columns.begin(), columns.end(), [&](int col) { return sought_.IsIn(grid_->View(row, col)); });
}

int GridFinder::Match(int row, int step) const {
  const int rows = grid_->Rows() - 1;
  for (int tried = 0, at = row; Seeks() && tried < rows; ++tried, at += step) {
    if (at > rows) at = 1;
    if (at < 1) at = rows;
    if (Matches(at)) return at;
  }
  return 0;
}

void GridFinder::TextChanged() {
  sought_ = TextFolding::Sought(text_->Text());
  if (onlyMatches_->isChecked()) grid_->SetFilter(text_->Text());
  Mark(Match(std::max(grid_->Row(), 1), 1));
  Count();
}

void GridFinder::Apply() {
  grid_->SetFilter(onlyMatches_->isChecked() ? text_->Text() : QString());
  Count();
}

// The grid shows all rows again when the screen makes a hidden one current.
void GridFinder::Filtered() {
  if (grid_->Filter().isEmpty() && Seeks()) onlyMatches_->setChecked(false);
  Count();
}

void GridFinder::Next(int step) {
  // What is marked already is the first step.
  const int row = found_ != 0 ? found_ : Match(grid_->Row() == 0 && step < 0 ? 0 : grid_->Row() + step, step);
  if (row == 0) return QApplication::beep();
  QWidget* const focus = QApplication::focusWidget();
  const QPointer<QWidget> back = focus != nullptr && isAncestorOf(focus) ? focus : nullptr;
  const QPointer<GridFinder> self = this;
  Mark(0);
  grid_->SetRow(row);
  // A screen moves the focus to the record's first field; whoever looks for the next match is not done yet.
  if (!self.isNull() && !back.isNull() && back->isVisible()) back->setFocus();
}

void GridFinder::Mark(int row) {
  found_ = row == grid_->Row() ? 0 : row;
  if (row != 0) {
    int seen = 0;  // the row's place among those on screen
    for (int at = 1; at < row; ++at) seen += grid_->RowHidden(at) ? 0 : 1;
    const std::vector<int> columns = grid_->VisibleCols();
    if (!columns.empty()) grid_->scrollTo(grid_->model()->index(seen, columns.front()));
  }
  grid_->viewport()->update();
}

// In words: a reader of the screen hears it too.
void GridFinder::Count() {
  if (isHidden()) return;
  const int rows = grid_->Rows() - 1;
  int matches = rows;
  if (!grid_->Filter().isEmpty()) {
    matches = grid_->ShownRows();
  } else if (Seeks()) {
    matches = 0;
    for (int row = 1; row <= rows; ++row) matches += Matches(row) ? 1 : 0;
  }
  count_->setText(Seeks() ? tr("%1 of %2 rows").arg(matches).arg(rows) : tr("%1 rows").arg(rows));
  text_->setAccessibleDescription(count_->text());
}

void GridFinder::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) return Close();
  if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up) return Next(event->key() == Qt::Key_Down ? 1 : -1);
  // Enter means the bar's own text, never a button of the window.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return Next(1);
  QWidget::keyPressEvent(event);
}

void GridFinder::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  count_->setVisible(width() >= RoomForCount);
  previous_->setVisible(width() >= RoomForArrows);
  next_->setVisible(width() >= RoomForArrows);
  onlyMatches_->setText(width() >= RoomForWords ? onlyMatches_->accessibleName() : QString());
}
