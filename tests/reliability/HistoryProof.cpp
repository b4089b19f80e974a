#include "reliability/HistoryProof.h"

#include <stdexcept>

#include "schema/ExportText.h"
#include "schema/History.h"
#include "schema/SecretColumns.h"
#include "site/FormerState.h"

WholeContent WholeContentOf(Connection& connection) {
  WholeContent whole;
  for (const SchemaTable& table : SchemaModel::Get().tables)
    whole.emplace(table.name, Content::Read(connection, table, {true, {}}));
  return whole;
}

QStringList Differences(const WholeContent& one, const WholeContent& other, bool butSecrets) {
  const auto rows = [&](const TableContent& content) {
    std::vector<Row> kept = content.rows;
    for (size_t column = 0; butSecrets && column < content.columns.size(); ++column)
      if (NamesSecretColumn(content.columns[column].name))
        for (Row& row : kept) row[column].reset();
    return kept;
  };
  QStringList tables;
  for (const auto& [name, content] : one)
    if (rows(content) != rows(other.at(name))) tables += name;
  return tables;
}

std::vector<TableContent> HistoryProof::Recorded(Connection& connection) {
  std::vector<TableContent> contents;
  for (const SchemaTable* table : History::Tables()) contents.push_back(Content::Read(connection, *table, {}));
  return contents;
}

HistoryProof::HistoryProof(Connection& connection) : then_(Recorded(connection)), moment_(History::Now(connection)) {
  while (History::Now(connection) <= moment_) continue;  // what comes has another moment
}

QString HistoryProof::WhyNot(Connection& connection) const {
  try {
    const std::vector<TableContent> before = FormerState::At(connection, Recorded(connection), moment_);
    for (size_t i = 0; i < before.size(); ++i)
      if (before[i].rows != then_[i].rows) return before[i].table->name + " is not what it was";
    return {};
  } catch (const std::runtime_error& error) {
    return QString::fromUtf8(error.what());
  }
}
