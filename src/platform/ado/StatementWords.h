#pragma once

#include "platform/ado/TokenEdit.h"

// The single steps by which dialects carry a statement of the shared system to their engine. Each works on tokens,
// leaves what stands inside literals as it is, and changes nothing when it is applied again.
namespace StatementWords {

// The tokens of a statement, carried by the next five steps to what all engines but SQL Server understand.
Tokens InCommonSql(const QString& statement, const QString& ownerPrefix);
// N'x' becomes 'x', kept apart from a literal before it.
void PlainLiterals(Tokens& tokens);
// 'x' becomes N'x' where it holds a letter beyond ASCII: a server that keeps two kinds of texts would lose it.
void NationalLiterals(Tokens& tokens);
// [NAME] becomes NAME, or "a name" where it is no plain word.
void PlainNames(Tokens& tokens);
// Drops the owner, given with its closing point, from before names.
void DropOwner(Tokens& tokens, const QString& ownerPrefix);
// SELECT TOP n ... becomes SELECT ... LIMIT n, within parentheses too.
void LimitForTop(Tokens& tokens);
// A SELECT with TOP n, or as it stands when n is 0 or it has a TOP of its own.
QString WithTop(const QString& select, int n);
// DELETE t becomes DELETE FROM t, INSERT t becomes INSERT INTO t.
void FullVerbs(Tokens& tokens);
// Words beginning with ID_ become upper case: the form in which tables were created.
void UpperTableNames(Tokens& tokens);
// In CREATE TABLE and ALTER TABLE the column type `from` becomes `to`.
void ColumnType(Tokens& tokens, const char* from, const QString& to);

// The tables named behind FROM and JOIN of a SELECT, outside of subselects, upper case, without owner.
QStringList TablesOfSelect(const QString& select);
bool IsSelect(const QString& statement);        // SELECT, or WITH before one
bool IsModification(const QString& statement);  // INSERT, UPDATE, DELETE

}  // namespace StatementWords
