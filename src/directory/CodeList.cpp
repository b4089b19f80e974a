#include "directory/CodeList.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/controls/CodeComboBox.h"

void CodeList::Fill() const {
  for (CodeComboBox* box : boxes) {
    box->Clear();
    if (!none.isEmpty()) box->AddNone(none);
  }
  std::vector<std::pair<QString, QString>> entries;
  ForEachRow(select, failureLine, [&](Recordset& rows) { entries.emplace_back(Value(rows, 0), Value(rows, 1)); });
  for (const auto& [code, description] : entries)
    if (leftOut.isEmpty() || code != leftOut)
      for (CodeComboBox* box : boxes) box->Add(description, code);
}

QString SelectCodes(const QString& opening, const QString& code, const QString& table, const QString& where) {
  const QString description = code + "_DESC" + gclsOF->LanguageSuffix();
  return opening + code + ", " + description + " FROM " + Sql::Table(table) + " " + where + "ORDER BY " + description;
}
