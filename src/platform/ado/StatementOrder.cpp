#include "platform/ado/StatementOrder.h"

#include <algorithm>

namespace StatementWords {

namespace {

// A stretch of tokens without the blanks around it; `last` is within.
struct Item {
  size_t first;
  size_t last;
};

bool EndsOrder(const SqlToken& token) {
  return IsOneOf(token, {"LIMIT", "OFFSET", "FETCH", "FOR", "UNION", "INTERSECT", "EXCEPT", "ROWS", "RANGE", "GROUPS"});
}

// The items of a list that begins at `index`, up to the end of its level or a word for which `ends` holds.
std::vector<Item> ItemsFrom(const Tokens& tokens, size_t index, bool (*ends)(const SqlToken&)) {
  std::vector<Item> items;
  const size_t levelEnd = EndOfLevel(tokens, index);
  size_t first = Nowhere, last = 0;
  int depth = 0;
  const auto finish = [&] {
    if (first != Nowhere) items.push_back({first, last});
    first = Nowhere;
  };
  for (size_t i = index; i < levelEnd; ++i) {
    if (tokens[i].kind == SqlToken::Blank) continue;
    if (IsSymbol(tokens[i], '(')) ++depth;
    if (IsSymbol(tokens[i], ')')) --depth;
    if (depth == 0 && ends(tokens[i])) break;
    if (depth == 0 && IsSymbol(tokens[i], ',')) {
      finish();
      continue;
    }
    if (first == Nowhere) first = i;
    last = i;
  }
  finish();
  return items;
}

bool NamesOrder(const Tokens& tokens, const Item& item) {
  const size_t before = PreviousOf(tokens, item.last);
  return IsOneOf(tokens[item.last], {"FIRST", "LAST"}) && before != Nowhere && Is(tokens[before], "NULLS");
}

// The clauses of a SELECT at its own level.
struct Clauses {
  size_t list = Nowhere;   // the first token behind SELECT and its words
  size_t from = Nowhere;   // FROM
  size_t order = Nowhere;  // ORDER
  size_t end = 0;          // behind the last token that is no blank, before LIMIT and its like
  bool distinct = false;
  bool own = false;  // rows of it are rows of its tables
};

bool Counts(const Tokens& tokens, size_t index) {
  const size_t next = NextOf(tokens, index);
  return IsOneOf(tokens[index], {"COUNT", "SUM", "MIN", "MAX", "AVG"}) && next < tokens.size() &&
         IsSymbol(tokens[next], '(');
}

Clauses ClausesOf(const Tokens& tokens) {
  Clauses clauses;
  const size_t verb = FirstOf(tokens);
  if (!IsWordAt(tokens, verb, "SELECT")) return clauses;
  clauses.own = true;
  clauses.list = NextOf(tokens, verb);
  if (IsWordAt(tokens, clauses.list, "DISTINCT") || IsWordAt(tokens, clauses.list, "ALL")) {
    clauses.distinct = Is(tokens[clauses.list], "DISTINCT");
    clauses.list = NextOf(tokens, clauses.list);
  }
  if (IsWordAt(tokens, clauses.list, "TOP")) clauses.list = NextOf(tokens, NextOf(tokens, clauses.list));

  int depth = 0;
  for (size_t i = clauses.list; i < tokens.size() && tokens[i].kind != SqlToken::Semicolon; i = NextOf(tokens, i)) {
    if (IsSymbol(tokens[i], '(')) ++depth;
    if (IsSymbol(tokens[i], ')')) --depth;
    if (clauses.from == Nowhere && Counts(tokens, i)) clauses.own = false;
    if (depth == 0) {
      if (IsOneOf(tokens[i], {"UNION", "INTERSECT", "EXCEPT", "GROUP", "HAVING", "INTO"})) clauses.own = false;
      if (IsOneOf(tokens[i], {"LIMIT", "OFFSET", "FETCH", "FOR"})) break;
      if (clauses.from == Nowhere && Is(tokens[i], "FROM")) clauses.from = i;
      if (Is(tokens[i], "ORDER") && IsWordAt(tokens, NextOf(tokens, i), "BY")) clauses.order = i;
    }
    clauses.end = i + 1;
  }
  if (clauses.from == Nowhere || depth != 0) clauses.own = false;
  return clauses;
}

QString Name(const SqlToken& token) {
  return token.text.toUpper();
}

// What an item of ORDER BY orders by, in upper case: "NAME", "T.NAME", a position, an expression.
QStringList OrderedBy(const Tokens& tokens, const std::vector<Item>& items) {
  QStringList ordered;
  for (Item item : items) {
    if (NamesOrder(tokens, item)) item.last = PreviousOf(tokens, PreviousOf(tokens, item.last));
    if (IsOneOf(tokens[item.last], {"ASC", "DESC"}) && item.last > item.first)
      item.last = PreviousOf(tokens, item.last);
    QString text;
    for (size_t i = item.first; i <= item.last; ++i) text += Name(tokens[i]);
    ordered += text;
  }
  return ordered;
}

// The columns of the keys that the order does not name yet.
QStringList MissingKeys(const Tokens& tokens, const QStringList& ordered,
                        const std::function<QStringList(const QString&)>& keyOf) {
  QStringList missing;
  const std::vector<Source> sources = SourcesOf(tokens);
  for (const Source& source : sources) {
    for (const QString& column : keyOf(source.table)) {
      const QString qualified = source.name + u'.' + column;
      if (ordered.contains(column) || ordered.contains(qualified.toUpper())) continue;
      missing += sources.size() == 1 ? column : qualified;
    }
  }
  return missing;
}

// The positions of the columns that the order does not name yet.
QStringList MissingPositions(const Tokens& tokens, const Clauses& clauses, const QStringList& ordered) {
  QStringList missing;
  const std::vector<Item> columns =
      ItemsFrom(tokens, clauses.list, [](const SqlToken& token) { return Is(token, "FROM"); });
  for (size_t i = 0; i < columns.size(); ++i) {
    if (IsSymbol(tokens[columns[i].last], '*')) return {};
    const QString position = QString::number(i + 1);
    const QString name = OrderedBy(tokens, {columns[i]}).front();
    const QString alias = Name(tokens[columns[i].last]);
    if (ordered.contains(position) || ordered.contains(name) || ordered.contains(alias)) continue;
    missing += position;
  }
  return missing;
}

}  // namespace

std::vector<Source> SourcesOf(const Tokens& tokens) {
  std::vector<Source> sources;
  int depth = 0;
  bool expected = false;  // a table's name may follow
  bool inFrom = false;
  for (size_t i = FirstOf(tokens); i < tokens.size(); i = NextOf(tokens, i)) {
    const SqlToken& token = tokens[i];
    if (IsSymbol(token, '(')) ++depth;
    if (IsSymbol(token, ')')) --depth;
    if (depth != 0) continue;
    if (IsOneOf(token, {"FROM", "JOIN"})) {
      expected = inFrom = true;
    } else if (IsOneOf(token, {"WHERE", "GROUP", "ORDER", "HAVING", "LIMIT", "UNION"})) {
      expected = inFrom = false;
    } else if (inFrom && IsSymbol(token, ',')) {
      expected = true;
    } else if (expected && token.kind == SqlToken::Word) {
      size_t next = NextOf(tokens, i);
      if (next < tokens.size() && IsSymbol(tokens[next], '.')) {
        i = next;  // the owner; its table follows
        continue;
      }
      sources.push_back({Name(token), token.text});
      if (IsWordAt(tokens, next, "AS")) next = NextOf(tokens, next);
      const bool alias = next < tokens.size() && tokens[next].kind == SqlToken::Word &&
                         !IsOneOf(tokens[next], {"WHERE", "GROUP", "ORDER", "HAVING",  "LIMIT", "UNION",  "ON",
                                                 "INNER", "LEFT",  "RIGHT", "FULL",    "OUTER", "CROSS",  "JOIN",
                                                 "USING", "WITH",  "FOR",   "NATURAL", "FETCH", "OFFSET", "EXCEPT"});
      if (alias) sources.back().name = tokens[next].text;
      expected = false;
    }
  }
  return sources;
}

void OrderTies(Tokens& tokens, const std::function<QStringList(const QString&)>& keyOf) {
  const Clauses clauses = ClausesOf(tokens);
  if (!keyOf || !clauses.own) return;
  std::vector<Item> items;
  if (clauses.order != Nowhere) items = ItemsFrom(tokens, NextOf(tokens, NextOf(tokens, clauses.order)), EndsOrder);
  const QStringList ordered = OrderedBy(tokens, items);
  const QStringList missing =
      clauses.distinct ? MissingPositions(tokens, clauses, ordered) : MissingKeys(tokens, ordered, keyOf);
  if (missing.isEmpty()) return;
  if (clauses.order == Nowhere) {
    InsertWords(tokens, clauses.end, QLatin1String("ORDER BY ") + missing.join(QLatin1String(", ")));
  } else if (!items.empty()) {
    InsertWords(tokens, items.back().last + 1, QLatin1String(", ") + missing.join(QLatin1String(", ")));
  }
}

void NullsFirst(Tokens& tokens) {
  for (size_t i = 0; i < tokens.size(); ++i) {
    const size_t by = NextOf(tokens, i);
    if (!Is(tokens[i], "ORDER") || !IsWordAt(tokens, by, "BY")) continue;
    std::vector<Item> items = ItemsFrom(tokens, NextOf(tokens, by), EndsOrder);
    std::reverse(items.begin(), items.end());
    for (const Item& item : items) {
      if (NamesOrder(tokens, item)) continue;
      const bool descends = Is(tokens[item.last], "DESC");
      InsertWords(tokens, item.last + 1, descends ? QStringLiteral("NULLS LAST") : QStringLiteral("NULLS FIRST"));
    }
  }
}

}  // namespace StatementWords
