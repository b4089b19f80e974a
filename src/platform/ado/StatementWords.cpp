#include "platform/ado/StatementWords.h"

#include <algorithm>
#include <array>

namespace StatementWords {

namespace {

const SqlToken Space{SqlToken::Blank, QStringLiteral(" ")};

bool IsSymbol(const SqlToken& token, char sign) {
  return token.kind == SqlToken::Symbol && token.text.at(0) == QLatin1Char(sign);
}

// A list of what begins a new clause or ends an operand.
bool EndsOperand(const SqlToken& token) {
  static constexpr std::array words{"AND",  "OR",   "ORDER", "GROUP",  "HAVING",  "LIMIT", "UNION", "THEN",
                                    "WHEN", "ELSE", "END",   "ESCAPE", "COLLATE", "LIKE",  "ILIKE"};
  return std::any_of(words.begin(), words.end(), [&](const char* word) { return Is(token, word); });
}

bool IsName(const SqlToken& token) {
  return token.kind == SqlToken::QuotedName || (token.kind == SqlToken::Word && !EndsOperand(token));
}

void InsertAt(Tokens& tokens, size_t index, std::initializer_list<SqlToken> added) {
  tokens.insert(tokens.begin() + static_cast<Tokens::difference_type>(index), added);
}

void Erase(Tokens& tokens, size_t from, size_t end) {
  tokens.erase(tokens.begin() + static_cast<Tokens::difference_type>(from),
               tokens.begin() + static_cast<Tokens::difference_type>(end));
}

// Kept apart from what stands before and behind. Gives the place behind the words.
size_t InsertWords(Tokens& tokens, size_t index, const QString& words) {
  Tokens added = Tokenize(words);
  const size_t end = index + added.size();
  const auto apart = [](const SqlToken& token) {
    return token.kind == SqlToken::Blank || token.kind == SqlToken::Symbol || token.kind == SqlToken::Semicolon;
  };
  const bool behind = index < tokens.size() && !apart(tokens[index]);
  const bool before = index > 0 && tokens[index - 1].kind != SqlToken::Blank;
  if (behind) added.push_back(Space);
  if (before) added.insert(added.begin(), Space);
  tokens.insert(tokens.begin() + static_cast<Tokens::difference_type>(index), added.begin(), added.end());
  return end + (before ? 1 : 0);
}

// A plain word needs no quotes anywhere.
bool IsPlainName(const QString& name) {
  const Tokens tokens = Tokenize(name);
  return tokens.size() == 1 && tokens.front().kind == SqlToken::Word;
}

// [NAME] without its brackets.
SqlToken PlainName(const SqlToken& bracketed) {
  QString name = bracketed.text.mid(1, bracketed.text.size() - 2);
  name.replace(QLatin1String("]]"), QLatin1String("]"));
  if (IsPlainName(name)) return {SqlToken::Word, name};
  name.replace(QLatin1Char('"'), QLatin1String("\"\""));
  return {SqlToken::QuotedName, u'"' + name + u'"'};
}

// Index just behind the last token of the operand that begins at `index`.
size_t EndOfOperand(const Tokens& tokens, size_t index) {
  size_t end = index;
  int depth = 0;
  for (size_t i = index; i < tokens.size(); ++i) {
    if (tokens[i].kind == SqlToken::Blank) continue;
    if (tokens[i].kind == SqlToken::Semicolon) break;
    if (IsSymbol(tokens[i], '(')) ++depth;
    if (IsSymbol(tokens[i], ')') && --depth < 0) break;
    if (depth == 0 && (EndsOperand(tokens[i]) || IsSymbol(tokens[i], ','))) break;
    end = i + 1;
  }
  return end;
}

// Index of the parenthesis that closes the level of `index`, or the place behind the last token of the text.
size_t EndOfLevel(const Tokens& tokens, size_t index) {
  int depth = 0;
  for (size_t i = index; i < tokens.size(); ++i) {
    if (IsSymbol(tokens[i], '(')) ++depth;
    if (IsSymbol(tokens[i], ')') && --depth < 0) return i;
    if (tokens[i].kind == SqlToken::Semicolon && depth == 0) return i;
  }
  return tokens.size();
}

// TOP n of the SELECT at the index, to the end of its level as LIMIT n. False when it has none.
bool MoveTop(Tokens& tokens, size_t select) {
  size_t top = NextOf(tokens, select);
  if (top < tokens.size() && (Is(tokens[top], "DISTINCT") || Is(tokens[top], "ALL"))) top = NextOf(tokens, top);
  if (top >= tokens.size() || !Is(tokens[top], "TOP")) return false;
  const size_t count = NextOf(tokens, top);
  if (count >= tokens.size() || tokens[count].kind != SqlToken::Number) return false;
  const QString number = tokens[count].text;
  Erase(tokens, top, NextOf(tokens, count));
  size_t end = EndOfLevel(tokens, top);
  while (end > top && tokens[end - 1].kind == SqlToken::Blank) --end;
  InsertWords(tokens, end, QLatin1String("LIMIT ") + number);
  return true;
}

}  // namespace

bool Is(const SqlToken& token, const char* word) {
  return token.kind == SqlToken::Word && token.text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

size_t NextOf(const Tokens& tokens, size_t index) {
  ++index;
  while (index < tokens.size() && tokens[index].kind == SqlToken::Blank) ++index;
  return index;
}

size_t FirstOf(const Tokens& tokens) {
  return tokens.empty() || tokens.front().kind != SqlToken::Blank ? 0 : NextOf(tokens, 0);
}

Tokens InCommonSql(const QString& statement, const QString& ownerPrefix) {
  Tokens tokens = Tokenize(statement);
  PlainLiterals(tokens);
  PlainNames(tokens);
  DropOwner(tokens, ownerPrefix);
  LimitForTop(tokens);
  FullVerbs(tokens);
  return tokens;
}

void PlainLiterals(Tokens& tokens) {
  for (size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind != SqlToken::NationalLiteral) continue;
    tokens[i] = {SqlToken::Literal, tokens[i].text.mid(1)};
    // 'a'N'b' must not run together to the one literal 'a''b'.
    if (i > 0 && tokens[i - 1].kind == SqlToken::Literal) InsertAt(tokens, i++, {Space});
  }
}

void PlainNames(Tokens& tokens) {
  const auto isWord = [](const SqlToken& token) {
    return token.kind == SqlToken::Word || token.kind == SqlToken::Number;
  };
  for (size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind != SqlToken::QuotedName || !tokens[i].text.startsWith(u'[')) continue;
    tokens[i] = PlainName(tokens[i]);
    const bool plain = tokens[i].kind == SqlToken::Word;
    const auto runsTogether = [&](const SqlToken& neighbour) {
      return plain ? isWord(neighbour) : neighbour.kind == SqlToken::QuotedName;
    };
    // A name N before a literal would turn it into N'...'.
    if (i + 1 < tokens.size() && (runsTogether(tokens[i + 1]) || (plain && tokens[i + 1].kind == SqlToken::Literal))) {
      InsertAt(tokens, i + 1, {Space});
    }
    if (i > 0 && runsTogether(tokens[i - 1])) InsertAt(tokens, i++, {Space});
  }
}

void DropOwner(Tokens& tokens, const QString& ownerPrefix) {
  const Tokens owner = Tokenize(ownerPrefix);
  if (owner.empty()) return;
  const auto same = [](const SqlToken& left, const SqlToken& right) {
    return left.kind == right.kind && left.text.compare(right.text, Qt::CaseInsensitive) == 0;
  };
  const auto standsAt = [&](size_t i) {
    if (i + owner.size() >= tokens.size()) return false;
    const bool qualified = i > 0 && IsSymbol(tokens[i - 1], '.');
    const SqlToken& name = tokens[i + owner.size()];
    if (qualified || (name.kind != SqlToken::Word && name.kind != SqlToken::QuotedName)) return false;
    return std::equal(owner.begin(), owner.end(), tokens.begin() + static_cast<Tokens::difference_type>(i), same);
  };
  for (size_t i = 0; i < tokens.size(); ++i) {
    while (standsAt(i)) Erase(tokens, i, i + owner.size());
  }
}

void LimitForTop(Tokens& tokens) {
  for (size_t i = 0; i < tokens.size(); ++i) {
    if (!Is(tokens[i], "SELECT")) continue;
    while (MoveTop(tokens, i)) {
    }
  }
}

QString WithTop(const QString& select, int n) {
  Tokens tokens = Tokenize(select);
  size_t verb = FirstOf(tokens);
  if (n <= 0 || verb >= tokens.size() || !Is(tokens[verb], "SELECT")) return select;
  size_t next = NextOf(tokens, verb);
  if (next < tokens.size() && (Is(tokens[next], "DISTINCT") || Is(tokens[next], "ALL"))) {
    verb = next;
    next = NextOf(tokens, verb);
  }
  if (next < tokens.size() && Is(tokens[next], "TOP")) return select;
  InsertWords(tokens, verb + 1, QStringLiteral("TOP %1").arg(n));
  return Join(tokens);
}

void FullVerbs(Tokens& tokens) {
  const size_t verb = FirstOf(tokens);
  if (verb >= tokens.size()) return;
  const size_t object = NextOf(tokens, verb);
  if (object >= tokens.size()) return;
  if (Is(tokens[verb], "DELETE") && !Is(tokens[object], "FROM")) InsertWords(tokens, object, QStringLiteral("FROM"));
  if (Is(tokens[verb], "INSERT") && !Is(tokens[object], "INTO")) InsertWords(tokens, object, QStringLiteral("INTO"));
}

void UpperTableNames(Tokens& tokens) {
  for (SqlToken& token : tokens) {
    if (token.kind == SqlToken::Word && token.text.startsWith(QLatin1String("ID_"), Qt::CaseInsensitive)) {
      token.text = token.text.toUpper();
    }
  }
}

void Patterns(Tokens& tokens, const QString& operation, const QString& collation, const QString& escape) {
  for (size_t i = 0; i < tokens.size(); ++i) {
    if (!Is(tokens[i], "LIKE") && !Is(tokens[i], "ILIKE")) continue;
    tokens[i].text = operation;
    size_t end = EndOfOperand(tokens, NextOf(tokens, i));
    size_t next = NextOf(tokens, end - 1);
    if (next < tokens.size() && Is(tokens[next], "COLLATE")) {
      const size_t name = NextOf(tokens, next);
      end = name < tokens.size() && IsName(tokens[name]) ? name + 1 : next + 1;
    } else if (!collation.isEmpty()) {
      end = InsertWords(tokens, end, QLatin1String("COLLATE ") + collation);
    }
    next = NextOf(tokens, end - 1);
    if (next >= tokens.size() || !Is(tokens[next], "ESCAPE")) {
      InsertWords(tokens, end, QLatin1String("ESCAPE '") + escape + u'\'');
    }
  }
}

void ColumnType(Tokens& tokens, const char* from, const QString& to) {
  const size_t verb = FirstOf(tokens);
  if (verb >= tokens.size() || (!Is(tokens[verb], "CREATE") && !Is(tokens[verb], "ALTER"))) return;
  const size_t object = NextOf(tokens, verb);
  if (object >= tokens.size() || !Is(tokens[object], "TABLE")) return;
  // A type follows the name of its column; the same word in the place of a name stays.
  size_t before = object;
  for (size_t i = NextOf(tokens, object); i < tokens.size(); before = i, i = NextOf(tokens, i)) {
    const bool behindName = tokens[before].kind == SqlToken::Word || tokens[before].kind == SqlToken::QuotedName;
    if (behindName && before != object && Is(tokens[i], from)) tokens[i].text = to;
  }
}

QStringList TablesOfSelect(const QString& select) {
  const Tokens tokens = Tokenize(select);
  QStringList tables;
  int depth = 0;
  bool expected = false;  // a table's name may follow
  bool inFrom = false;
  for (size_t i = FirstOf(tokens); i < tokens.size(); i = NextOf(tokens, i)) {
    const SqlToken& token = tokens[i];
    if (IsSymbol(token, '(')) ++depth;
    if (IsSymbol(token, ')')) --depth;
    if (depth != 0) continue;
    if (Is(token, "FROM") || Is(token, "JOIN")) {
      expected = inFrom = true;
    } else if (Is(token, "WHERE") || Is(token, "GROUP") || Is(token, "ORDER") || Is(token, "HAVING") ||
               Is(token, "LIMIT") || Is(token, "UNION")) {
      expected = inFrom = false;
    } else if (inFrom && IsSymbol(token, ',')) {
      expected = true;
    } else if (expected && token.kind == SqlToken::Word) {
      const size_t next = NextOf(tokens, i);
      if (next < tokens.size() && IsSymbol(tokens[next], '.')) {
        i = next;  // the owner; its table follows
        continue;
      }
      tables += token.text.toUpper();
      expected = false;
    }
  }
  return tables;
}

namespace {

bool BeginsWithOneOf(const QString& statement, std::initializer_list<const char*> verbs) {
  const Tokens tokens = Tokenize(statement);
  const size_t first = FirstOf(tokens);
  return first < tokens.size() &&
         std::any_of(verbs.begin(), verbs.end(), [&](const char* verb) { return Is(tokens[first], verb); });
}

}  // namespace

bool IsSelect(const QString& statement) {
  return BeginsWithOneOf(statement, {"SELECT", "WITH"});
}

bool IsModification(const QString& statement) {
  return BeginsWithOneOf(statement, {"INSERT", "UPDATE", "DELETE"});
}

}  // namespace StatementWords
