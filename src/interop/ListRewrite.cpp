#include "interop/ListRewrite.h"

#include <stdexcept>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/controls/Grid.h"

void ListRewrite::Run(const Grid& grid, const Record& list) const {
  if (!list.MayBeWritten()) throw std::logic_error("A list that was not read whole replaces nothing.");
  const QString from = Sql::Table(table);
  Transaction transaction(gclsOF->Connection());
  Execute("DELETE FROM " + from + " WHERE LIBRARY_ID = " + Sql::Number(libraryId), deleteFailed);
  for (int row = 1; row < grid.Rows(); ++row)
    Execute("INSERT INTO " + from + " (" + columns + ") VALUES (" + valuesOf(row) + ")", insertFailed);
  transaction.Commit();
}
