#include "shell/GridTable.h"

#include <optional>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/controls/Grid.h"

GridColumn Amount(const QString& heading, int width) {
  return {heading, width, false, true};
}

void ShapeGrid(Grid& grid, const GridLayout& layout) {
  const SkipGridEvents skip;
  grid.Clear();
  grid.SetCols(static_cast<int>(layout.columns.size()));
  for (int col = 0; col < grid.Cols(); ++col) {
    const GridColumn& column = layout.columns[static_cast<size_t>(col)];
    grid.SetHeading(col, column.heading);
    grid.HideCol(col, column.hidden);
    grid.AlignRight(col, column.amount);
    if (column.width > 0) grid.SetColWidth(col, column.width);
  }
}

namespace {

// A load in one piece, ended on every path.
class GridLoad {
 public:
  GridLoad(Grid& grid, qint64 expected) : grid_(grid) {
    grid_.Clear();
    grid_.BeginLoad(static_cast<int>(expected));
  }
  ~GridLoad() { grid_.EndLoad(); }
  GridLoad(const GridLoad&) = delete;
  GridLoad& operator=(const GridLoad&) = delete;

 private:
  Grid& grid_;
};

}  // namespace

void FillGridFrom(Grid& grid, Recordset& rows, const std::vector<QString>& fields) {
  const SkipGridEvents skip;
  std::vector<std::optional<Field>> columns;
  for (const QString& field : fields)
    columns.push_back(field.isEmpty() ? std::nullopt : std::optional<Field>(rows.Fields(field)));
  const GridLoad load(grid, rows.RecordCount());
  QStringList cells(static_cast<qsizetype>(columns.size()));
  for (; !rows.EOF_(); rows.MoveNext()) {
    for (size_t at = 0; at < columns.size(); ++at)
      if (columns[at]) cells[static_cast<qsizetype>(at)] = gclsOF->FieldValue(*columns[at]);
    grid.LoadRow(cells);
  }
}

void FillGrid(Grid& grid, const QString& statement, const QString& failureLine,
              const std::function<QStringList(Recordset&)>& cells) {
  const SkipGridEvents skip;
  grid.Clear();
  OpenRows(*grsTable, statement, failureLine);
  {
    const GridLoad load(grid, grsTable->RecordCount());
    for (; !grsTable->EOF_(); grsTable->MoveNext()) grid.LoadRow(cells(*grsTable));
  }
  grsTable->Close();
}
