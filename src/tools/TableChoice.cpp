#include "tools/TableChoice.h"

#include <algorithm>

void TableChoice::AddOptions(CommandArguments& command) {
  command.AddOption({"tables",
                     "Only these tables, joined by commas. Without the option: all tables of settings, which are those "
                     "that hold no requests, users, patrons or counters.",
                     "TABLES"});
  command.AddOption({"with-secrets", "Passwords and card data too. Without the option they are left out."});
}

std::optional<std::vector<const SchemaTable*>> TableChoice::Chosen(const CommandArguments& command,
                                                                   const QString& name) {
  if (!command.IsSet("tables")) return Content::Configuration();
  std::vector<const SchemaTable*> chosen;
  for (const QString& word : command.Value("tables").split(',')) {
    const SchemaTable* const table = SchemaModel::Get().Find(word.trimmed());
    if (!table) {
      RefuseUsage("There is no table \"" + word.trimmed() + "\".", name);
      return std::nullopt;
    }
    chosen.push_back(table);
  }
  std::sort(chosen.begin(), chosen.end());  // as they lie in the schema
  chosen.erase(std::unique(chosen.begin(), chosen.end()), chosen.end());
  return chosen;
}

bool TableChoice::WithSecrets(const CommandArguments& command) {
  return command.IsSet("with-secrets");
}

std::vector<TableContent> TableChoice::Read(Connection& connection, const std::vector<const SchemaTable*>& tables,
                                            bool withSecrets) {
  std::vector<TableContent> contents;
  for (const SchemaTable* table : tables) contents.push_back(Content::Read(connection, *table, withSecrets));
  return contents;
}

std::vector<TableContent> TableChoice::ReadLike(Connection& connection, const std::vector<TableContent>& contents) {
  std::vector<const SchemaTable*> tables;
  for (const TableContent& content : contents) tables.push_back(content.table);
  return Read(connection, tables, true);
}
