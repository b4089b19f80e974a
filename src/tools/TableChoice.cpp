#include "tools/TableChoice.h"

#include <algorithm>

#include "schema/SecretColumns.h"

void TableChoice::AddOptions(CommandArguments& command) {
  command.AddOption({"tables",
                     "Only these tables, joined by commas. Without the option: all tables of settings, which are those "
                     "that hold no requests, users, patrons or counters.",
                     "TABLES"});
  command.AddOption({"secrets",
                     "Of the passwords and card data these columns too, joined by commas. Without the option they are "
                     "left out.",
                     "COLUMNS"});
  command.AddOption({"with-secrets", "All passwords and card data too."});
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

std::optional<Secrets> TableChoice::ChosenSecrets(const CommandArguments& command,
                                                  const std::vector<const SchemaTable*>& tables, const QString& name) {
  Secrets secrets{command.IsSet("with-secrets"), {}};
  for (const QString& word : command.Value("secrets").split(',', Qt::SkipEmptyParts)) {
    const QString column = word.trimmed().toUpper();
    const bool known = std::any_of(tables.begin(), tables.end(), [&](const SchemaTable* table) {
      const SchemaColumn* const found = table->Find(column);
      return found && NamesSecretColumn(found->name);
    });
    if (!known) {
      RefuseUsage("There is no password and no card data \"" + word.trimmed() + "\" in these tables.", name);
      return std::nullopt;
    }
    secrets.columns.append(column);
  }
  return secrets;
}

std::vector<TableContent> TableChoice::Read(Connection& connection, const std::vector<const SchemaTable*>& tables,
                                            const Secrets& secrets) {
  std::vector<TableContent> contents;
  for (const SchemaTable* table : tables) contents.push_back(Content::Read(connection, *table, secrets));
  return contents;
}

std::vector<TableContent> TableChoice::ReadLike(Connection& connection, const std::vector<TableContent>& contents) {
  std::vector<const SchemaTable*> tables;
  for (const TableContent& content : contents) tables.push_back(content.table);
  return Read(connection, tables, {true, {}});
}
