#include "interop/ListRewrite.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "interop/StatementReport.h"
#include "platform/controls/Grid.h"

void ListRewrite::Run(const Grid& grid, StatementReport& report) const {
  const QString from = Sql::Table(table);
  Transaction transaction(gclsOF->Connection());
  Execute(report.Note("DELETE FROM " + from + " WHERE LIBRARY_ID = " + Sql::Number(libraryId)), deleteFailed);
  for (int row = 1; row < grid.Rows(); ++row)
    Execute(report.Note("INSERT INTO " + from + " (" + columns + ") VALUES (" + valuesOf(row) + ")"), insertFailed);
  transaction.Commit();
}
