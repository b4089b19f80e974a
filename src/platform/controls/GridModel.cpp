#include "platform/controls/GridModel.h"

#include <algorithm>
#include <numeric>

#include "platform/controls/GridOrder.h"

namespace {
std::size_t At(int index) {
  return static_cast<std::size_t>(index);
}
}  // namespace

GridModel::GridModel(QObject* parent) : QAbstractTableModel(parent), columns_(1) {}

void GridModel::SetColumns(int count) {
  beginResetModel();
  rows_.clear();
  shown_.clear();
  announced_ = 0;
  columns_.assign(At(std::max(count, 1)), {});
  endResetModel();
}

void GridModel::Clear() {
  beginResetModel();
  rows_.clear();
  rows_.shrink_to_fit();
  shown_.clear();
  announced_ = 0;
  endResetModel();
}

QStringView GridModel::Cell(int row, int col) const {
  return Holds(row, col) ? rows_[At(row - 1)].Cell(col) : QStringView();
}

void GridModel::SetCell(int row, int col, QStringView text) {
  if (!Holds(row, col)) return;
  rows_[At(row - 1)].SetCell(col, text);
  if (const QModelIndex index = IndexOf(row, col); index.isValid()) Q_EMIT dataChanged(index, index);
}

QString GridModel::Heading(int col) const {
  return col >= 0 && col < Columns() ? columns_[At(col)].heading : QString();
}

void GridModel::SetHeading(int col, const QString& caption) {
  if (col < 0 || col >= Columns()) return;
  columns_[At(col)].heading = caption;
  Q_EMIT headerDataChanged(Qt::Horizontal, col, col);
}

qint64 GridModel::RowData(int row) const {
  return Holds(row, 0) ? rows_[At(row - 1)].Data() : 0;
}

void GridModel::SetRowData(int row, qint64 data) {
  if (Holds(row, 0)) rows_[At(row - 1)].SetData(data);
}

PackedRow GridModel::Pack(std::span<const QStringView> cellsFromColumn1) {
  scratch_.assign(At(Columns()), {});
  const std::size_t given = std::min(cellsFromColumn1.size(), scratch_.size() - 1);
  std::copy_n(cellsFromColumn1.begin(), given, scratch_.begin() + 1);
  return PackedRow(scratch_);
}

void GridModel::Append(std::span<const QStringView> cellsFromColumn1) {
  rows_.push_back(Pack(cellsFromColumn1));
}

void GridModel::Announce() {
  if (announced_ == Rows()) return;
  if (filter_.IsEmpty()) {
    beginInsertRows({}, announced_, Rows() - 1);
    announced_ = Rows();
    endInsertRows();
    return;
  }
  std::vector<int> passing;
  for (int position = announced_; position < Rows(); ++position)
    if (Passes(position)) passing.push_back(position);
  announced_ = Rows();
  if (passing.empty()) return;
  beginInsertRows({}, static_cast<int>(shown_.size()), static_cast<int>(shown_.size() + passing.size()) - 1);
  shown_.insert(shown_.end(), passing.begin(), passing.end());
  endInsertRows();
}

void GridModel::Insert(int row, std::span<const QStringView> cellsFromColumn1) {
  Announce();
  const int position = row - 1;
  PackedRow packed = Pack(cellsFromColumn1);
  if (filter_.IsEmpty()) {
    beginInsertRows({}, position, position);
    rows_.insert(rows_.begin() + position, std::move(packed));
    ++announced_;
    endInsertRows();
    return;
  }
  rows_.insert(rows_.begin() + position, std::move(packed));
  ++announced_;
  const auto place = std::lower_bound(shown_.begin(), shown_.end(), position);
  std::for_each(place, shown_.end(), [](int& shown) { ++shown; });
  if (!Passes(position)) return;
  const int seenAt = static_cast<int>(place - shown_.begin());
  beginInsertRows({}, seenAt, seenAt);
  shown_.insert(place, position);
  endInsertRows();
}

void GridModel::Remove(int row) {
  Announce();
  const QModelIndex seen = IndexOf(row, 0);
  if (seen.isValid()) beginRemoveRows({}, seen.row(), seen.row());
  rows_.erase(rows_.begin() + (row - 1));
  --announced_;
  if (!filter_.IsEmpty()) {
    if (seen.isValid()) shown_.erase(shown_.begin() + seen.row());
    const auto behind = std::upper_bound(shown_.begin(), shown_.end(), row - 1);
    std::for_each(behind, shown_.end(), [](int& shown) { --shown; });
  }
  if (seen.isValid()) endRemoveRows();
}

int GridModel::Sort(int col, Qt::SortOrder order, bool numeric, int row) {
  Announce();
  std::vector<QStringView> cells;
  cells.reserve(rows_.size());
  for (const PackedRow& packed : rows_) cells.push_back(packed.Cell(col));
  const std::vector<int> placement = GridOrder::Order(cells, order, numeric);
  std::vector<int> placeOf(placement.size());
  for (int place = 0; place < Rows(); ++place) placeOf[At(placement[At(place)])] = place;

  Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
  const QModelIndexList before = persistentIndexList();
  std::vector<int> rowsBefore;
  rowsBefore.reserve(At(static_cast<int>(before.size())));
  for (const QModelIndex& index : before) rowsBefore.push_back(RowOf(index));
  Permute(placement, placeOf);
  QModelIndexList after;
  after.reserve(before.size());
  for (qsizetype i = 0; i < before.size(); ++i)
    after.append(IndexOf(placeOf[At(rowsBefore[static_cast<std::size_t>(i)] - 1)] + 1, before[i].column()));
  changePersistentIndexList(before, after);
  Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
  return row == 0 ? 0 : placeOf[At(row - 1)] + 1;
}

void GridModel::Permute(const std::vector<int>& order, const std::vector<int>& placeOf) {
  std::vector<PackedRow> sorted;
  sorted.reserve(rows_.size());
  for (const int from : order) sorted.push_back(std::move(rows_[At(from)]));
  rows_ = std::move(sorted);
  for (int& position : shown_) position = placeOf[At(position)];
  std::sort(shown_.begin(), shown_.end());
}

bool GridModel::IsNumeric(int col) const {
  const QChar separator = GridOrder::DecimalSeparator();
  bool any = false;
  for (const PackedRow& packed : rows_) {
    const QStringView cell = packed.Cell(col);
    if (cell.isEmpty()) continue;
    if (!GridOrder::Number(cell, separator)) return false;
    any = true;
  }
  return any;
}

bool GridModel::IsBlank(int row) const {
  return !Holds(row, 0) || rows_[At(row - 1)].Length() == 0;
}

bool GridModel::Passes(int position) const {
  const PackedRow& packed = rows_[At(position)];
  return std::any_of(filterColumns_.begin(), filterColumns_.end(),
                     [&](int col) { return col < packed.Cells() && filter_.IsIn(packed.Cell(col)); });
}

void GridModel::SetFilter(const QString& text, std::vector<int> columns) {
  Announce();
  beginResetModel();
  filter_ = TextFolding::Sought(text);
  filterColumns_ = std::move(columns);
  shown_.clear();
  if (!filter_.IsEmpty()) {
    for (int position = 0; position < Rows(); ++position)
      if (Passes(position)) shown_.push_back(position);
  }
  endResetModel();
}

QModelIndex GridModel::IndexOf(int row, int col) const {
  const int position = row - 1;
  if (!Holds(row, col) || position >= announced_) return {};
  if (filter_.IsEmpty()) return index(position, col);
  const auto place = std::lower_bound(shown_.begin(), shown_.end(), position);
  if (place == shown_.end() || *place != position) return {};
  return index(static_cast<int>(place - shown_.begin()), col);
}

int GridModel::RowOf(const QModelIndex& index) const {
  if (!index.isValid()) return 0;
  return (filter_.IsEmpty() ? index.row() : shown_[At(index.row())]) + 1;
}

void GridModel::AlignRight(int col, bool right) {
  if (col >= 0 && col < Columns()) columns_[At(col)].alignRight = right;
}

void GridModel::SetEditable(int col, int maxLength, const QStringList& choices) {
  if (col < 0 || col >= Columns()) return;
  Column& column = columns_[At(col)];
  column.editable = true;
  column.maxLength = maxLength;
  column.choices = choices;
}

int GridModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return filter_.IsEmpty() ? announced_ : static_cast<int>(shown_.size());
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : Columns();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  if (role == Qt::DisplayRole || role == Qt::EditRole) return Cell(RowOf(index), index.column()).toString();
  if (role == Qt::TextAlignmentRole && columns_[At(index.column())].alignRight)
    return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
  return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= Columns()) return {};
  const Column& column = columns_[At(section)];
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole || role == Qt::AccessibleTextRole) return column.heading;
  if (role == Qt::TextAlignmentRole && column.alignRight)
    return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
  return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const Qt::ItemFlags plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
  return columns_[At(index.column())].editable ? plain | Qt::ItemIsEditable : plain;
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !index.isValid() || !columns_[At(index.column())].editable) return false;
  const int row = RowOf(index);
  const QString old = Cell(row, index.column()).toString();
  const QString text = value.toString();
  if (text == old) return true;
  SetCell(row, index.column(), text);
  Q_EMIT Edited(row, index.column(), old);
  return true;
}
