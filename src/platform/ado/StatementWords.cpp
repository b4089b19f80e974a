#include "platform/ado/StatementWords.h"

#include <algorithm>

#include "platform/ado/StatementOrder.h"

namespace StatementWords {

namespace {

const SqlToken Space{SqlToken::Blank, QStringLiteral(" ")};

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

void NationalLiterals(Tokens& tokens) {
  for (size_t i = 0; i < tokens.size(); ++i) {
    const QString& text = tokens[i].text;
    const bool plain = std::all_of(text.begin(), text.end(), [](QChar letter) { return letter.unicode() < 0x80; });
    if (tokens[i].kind != SqlToken::Literal || plain) continue;
    tokens[i] = {SqlToken::NationalLiteral, u'N' + text};
    // LIKE'x' must not run together to one word.
    if (i > 0 && (tokens[i - 1].kind == SqlToken::Word || tokens[i - 1].kind == SqlToken::Number))
      InsertAt(tokens, i++, {Space});
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
  QStringList tables;
  for (const Source& source : SourcesOf(Tokenize(select))) tables += source.table;
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
