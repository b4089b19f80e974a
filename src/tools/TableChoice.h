#pragma once

#include "schema/TableContent.h"
#include "tools/Command.h"

// The options --tables, --secrets and --with-secrets, which the commands on settings share.
namespace TableChoice {

void AddOptions(CommandArguments& command);
// The tables of --tables in the order of the schema, all of the configuration without it. Nothing when a name is
// unknown (told already).
std::optional<std::vector<const SchemaTable*>> Chosen(const CommandArguments& command, const QString& name);
// The secrets that --secrets names, or all of them. Nothing when a name is no secret of these tables (told already).
std::optional<Secrets> ChosenSecrets(const CommandArguments& command, const std::vector<const SchemaTable*>& tables,
                                     const QString& name);

std::vector<TableContent> Read(Connection& connection, const std::vector<const SchemaTable*>& tables,
                               const Secrets& secrets);
// The tables of these contents as the database has them.
std::vector<TableContent> ReadLike(Connection& connection, const std::vector<TableContent>& contents);

}  // namespace TableChoice
