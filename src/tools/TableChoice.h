#pragma once

#include "tools/Command.h"
#include "tools/TableContent.h"

// The options --tables and --with-secrets, which the commands on settings share.
namespace TableChoice {

void AddOptions(CommandArguments& command);
// The tables of --tables in the order of the schema, all of the configuration without it. Nothing when a name is
// unknown (told already).
std::optional<std::vector<const SchemaTable*>> Chosen(const CommandArguments& command, const QString& name);
bool WithSecrets(const CommandArguments& command);

std::vector<TableContent> Read(Connection& connection, const std::vector<const SchemaTable*>& tables, bool withSecrets);
// The tables of these contents as the database has them.
std::vector<TableContent> ReadLike(Connection& connection, const std::vector<TableContent>& contents);

}  // namespace TableChoice
