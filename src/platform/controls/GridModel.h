#pragma once

#include <QAbstractTableModel>
#include <span>
#include <vector>

#include "platform/controls/PackedRow.h"
#include "platform/controls/TextFolding.h"

// The rows behind a Grid, as packed strings. Rows are numbered from 1 as the screens number them; the view sees only
// the rows that were announced and that pass the filter, so its own row numbers are an affair between view and model.
class GridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit GridModel(QObject* parent);

  int Rows() const { return static_cast<int>(rows_.size()); }  // without the heading
  int Columns() const { return static_cast<int>(columns_.size()); }
  void SetColumns(int count);
  void Clear();

  bool Holds(int row, int col) const { return row >= 1 && row <= Rows() && col >= 0 && col < Columns(); }
  QStringView Cell(int row, int col) const;  // empty outside of the grid
  void SetCell(int row, int col, QStringView text);
  QString Heading(int col) const;
  void SetHeading(int col, const QString& caption);
  qint64 RowData(int row) const;
  void SetRowData(int row, qint64 data);

  void Reserve(int rows) { rows_.reserve(rows_.size() + static_cast<std::size_t>(rows)); }
  // Adds a row at the end that the view learns of with Announce. Missing cells are empty, cells too many are dropped.
  void Append(std::span<const QStringView> cellsFromColumn1);
  void Announce();
  void Insert(int row, std::span<const QStringView> cellsFromColumn1);
  void Remove(int row);

  // Where the row that stood at `row` stands afterwards.
  int Sort(int col, Qt::SortOrder order, bool numeric, int row);
  // True when the column has numbers and nothing else but empty cells.
  bool IsNumeric(int col) const;
  // Nothing stands in any of its cells.
  bool IsBlank(int row) const;
  // Only rows that hold the text in one of the columns are seen; an empty text shows all.
  void SetFilter(const QString& text, std::vector<int> columns);

  // Invalid when the view does not see the row.
  QModelIndex IndexOf(int row, int col) const;
  int RowOf(const QModelIndex& index) const;  // 0 for an invalid index

  void AlignRight(int col, bool right);
  bool IsAlignedRight(int col) const { return columns_.at(static_cast<std::size_t>(col)).alignRight; }
  void SetEditable(int col, int maxLength, const QStringList& choices);
  bool IsEditable(int col) const { return columns_.at(static_cast<std::size_t>(col)).editable; }
  int MaxLength(int col) const { return columns_.at(static_cast<std::size_t>(col)).maxLength; }
  const QStringList& Choices(int col) const { return columns_.at(static_cast<std::size_t>(col)).choices; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

 Q_SIGNALS:
  // A cell got another text through the view.
  void Edited(int row, int col, const QString& old);

 private:
  struct Column {
    QString heading;
    bool alignRight = false;
    bool editable = false;
    int maxLength = 0;
    QStringList choices;
  };

  PackedRow Pack(std::span<const QStringView> cellsFromColumn1);
  bool Passes(int position) const;
  void Permute(const std::vector<int>& order, const std::vector<int>& placeOf);

  // Positions count from 0, as the view does; row = position + 1.
  std::vector<PackedRow> rows_;
  std::vector<Column> columns_;
  std::vector<QStringView> scratch_;  // cells of the row that is being packed
  int announced_ = 0;
  TextFolding::Sought filter_;
  std::vector<int> filterColumns_;
  std::vector<int> shown_;  // positions that pass the filter, ascending; unused without a filter
};
