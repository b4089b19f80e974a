#pragma once

#include <functional>

#include "platform/ado/TokenEdit.h"

// The order of a statement's rows, which engines leave open or decide in their own way.
namespace StatementWords {

// A table of FROM, upper case and without its owner, and the name that columns of it are qualified with.
struct Source {
  QString table;
  QString name;
};
// The tables of a SELECT outside of subselects.
std::vector<Source> SourcesOf(const Tokens& select);

// Rows of a SELECT that tie stand in the order of the keys of its tables, those of a DISTINCT in the order of its
// columns; so do all rows when it has no ORDER BY. What groups or counts rows, or unites SELECTs, stays as it is.
// `keyOf` gives the columns of a table's key, empty where it is not known.
void OrderTies(Tokens& tokens, const std::function<QStringList(const QString&)>& keyOf);
// Rows without a value stand first, last where the order descends, in each ORDER BY that does not say so itself.
void NullsFirst(Tokens& tokens);

}  // namespace StatementWords
