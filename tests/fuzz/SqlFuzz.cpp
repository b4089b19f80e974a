// The tokenizer and the dialects. Input: a line with the owner, then a text of statements.
#include <algorithm>

#include "Property.h"
#include "platform/ado/Dialect.h"
#include "platform/ado/SqlTokens.h"
#include "platform/ado/StatementWords.h"

namespace {

constexpr int AnyNumber = 1'000'000;  // of statements
constexpr int LongestValue = 100;     // longer ones cost time and tell nothing new

const Engine Engines[] = {Engine::Sqlite, Engine::PostgreSql, Engine::MariaDb, Engine::SqlServer};

// Values as the engine reads them: with the signs around them, without the N.
QStringList LiteralsOf(const QString& sql) {
  QStringList literals;
  for (const SqlToken& token : Tokenize(sql)) {
    if (token.kind == SqlToken::Literal) literals += token.text;
    if (token.kind == SqlToken::NationalLiteral) literals += token.text.mid(1);
  }
  return literals;
}

// Names in brackets or quotes, as the name itself.
QStringList QuotedNamesOf(const QString& sql) {
  QStringList names;
  for (const SqlToken& token : Tokenize(sql)) {
    if (token.kind != SqlToken::QuotedName) continue;
    const QString closing = token.text.startsWith(u'[') ? QStringLiteral("]") : QStringLiteral("\"");
    QString name = token.text.mid(1, token.text.size() - 2);
    names += name.replace(closing + closing, closing);
  }
  return names;
}

bool Holds(const QString& sql, std::initializer_list<const char*> words) {
  for (const SqlToken& token : Tokenize(sql)) {
    for (const char* word : words) {
      if (StatementWords::Is(token, word)) return true;
    }
  }
  return false;
}

void CheckTokens(const QString& sql) {
  const std::vector<SqlToken> tokens = Tokenize(sql);
  Must(Join(tokens) == sql, "the tokens give the text back", {sql, Join(tokens)});
  for (const SqlToken& token : tokens) {
    const std::vector<SqlToken> alone = Tokenize(token.text);
    Must(alone.size() == 1 && alone.front().kind == token.kind, "a token alone is the same token", {token.text});
  }
}

void CheckSplit(const QString& sql, const QStringList& statements) {
  Must(SplitStatements(statements.join(QLatin1String("; "))) == statements, "the statements joined are the same ones",
       {sql});
  for (const QString& statement : statements) {
    Must(SplitStatements(statement) == QStringList(statement), "a statement is one", {statement});
    Must(WhyRefused(statement, 1).isEmpty(), "what may be sent together may be sent alone", {statement});
  }
}

// The literals of the statement in their order; between them stand those that a dialect gives to patterns.
void CheckLiterals(const QString& statement, const QString& carried, const QStringList& ofPatterns = {}) {
  const QStringList before = LiteralsOf(statement);
  QStringList added = LiteralsOf(carried);
  qsizetype from = 0;
  for (const QString& literal : before) {
    from = added.indexOf(literal, from);
    Must(from >= 0, "every literal is carried, in its place", {statement, carried, literal});
    added.removeAt(from);
  }
  for (const QString& literal : added) {
    Must(ofPatterns.contains(literal), "no literal is made but for a pattern", {statement, carried, literal});
  }
  Must(added.isEmpty() || Holds(statement, {"LIKE"}), "a pattern belongs to LIKE", {statement, carried});
}

// What the dialects of the other three engines take off, and nothing else.
QStringList WordsOf(const QString& sql) {
  QStringList words;
  for (const SqlToken& token : Tokenize(sql)) {
    switch (token.kind) {
      case SqlToken::Blank:
        break;
      case SqlToken::NationalLiteral:
        words += token.text.mid(1);
        break;
      case SqlToken::QuotedName:
        words += QuotedNamesOf(token.text).front();
        break;
      default:
        words += token.text;
    }
  }
  return words;
}

void CheckNames(const QString& statement, const QString& carried, Engine engine) {
  if (engine == Engine::SqlServer) {
    const bool ascii = std::all_of(statement.begin(), statement.end(), [](QChar c) { return c.unicode() < 0x80; });
    Must(carried == statement || !ascii || Holds(statement, {"CREATE", "ALTER", "NVARCHAR", "LIKE", "SELECT"}),
         "text goes to SQL Server as it is", {statement, carried});
    return;
  }
  for (const SqlToken& token : Tokenize(carried)) {
    Must(token.kind != SqlToken::NationalLiteral && !(token.kind == SqlToken::QuotedName && token.text[0] == u'['),
         "no sign of SQL Server is left", {statement, carried});
  }
  for (const QString& name : QuotedNamesOf(carried)) {
    Must(QuotedNamesOf(statement).contains(name) || name == u"und-x-icu", "a name stays itself",
         {statement, carried, name});
  }
}

// No engine takes another one; where its clauses end cannot be said.
bool IsBalanced(const QString& statement) {
  int depth = 0;
  for (const SqlToken& token : Tokenize(statement)) {
    if (token.text == u"(") ++depth;
    if (token.text == u")" && --depth < 0) return false;
  }
  return depth == 0;
}

void CheckCarried(const QString& statement, Engine engine, const ConnectionSettings& settings) {
  const Dialect& dialect = Dialect::For(engine);
  const QString carried = dialect.Carry(statement, settings);
  Must(WhyRefused(carried, 1).isEmpty(), "one statement is carried to one that may be sent",
       {statement, carried, WhyRefused(carried, 1)});
  CheckLiterals(statement, carried,
                LiteralsOf(dialect.Carry(QStringLiteral("SELECT A FROM B WHERE C LIKE D"), settings)));
  CheckNames(statement, carried, engine);
  const QString again = dialect.Carry(carried, settings);
  Must(again == carried || !IsBalanced(statement), "carried again nothing changes", {statement, carried, again});

  const bool changed =
      Holds(statement, {"TOP", "LIKE", "SELECT", "ORDER", "INSERT", "DELETE", "CREATE", "ALTER", "NVARCHAR"}) ||
      statement.contains(QLatin1String("ID_"), Qt::CaseInsensitive) || !settings.ownerPrefix.isEmpty();
  Must(changed || WordsOf(carried) == WordsOf(statement), "a statement of no such words keeps its own",
       {statement, carried});
}

// A value of any letters, in a statement as the system composes them.
void CheckValue(const QString& value, const ConnectionSettings& settings) {
  for (const Engine engine : Engines) {
    const Dialect& dialect = Dialect::For(engine);
    const QString literal = u'\'' + dialect.Escape(value) + u'\'';
    const QString sql = QStringLiteral("INSERT ") + settings.ownerPrefix + QStringLiteral("ID_A VALUES(N") + literal +
                        QStringLiteral(", ") + literal + u')';
    if (!WhyRefused(sql, 1).isEmpty()) {
      Must(value.contains(QChar(u'\0')) || !value.isValidUtf16(), "every whole text is a value", {value});
      continue;
    }
    Must(LiteralsOf(sql).mid(LiteralsOf(sql).size() - 2) == QStringList({literal, literal}), "a value is one literal",
         {sql});
    CheckCarried(sql, engine, settings);
  }
}

// As the settings give it: names with points behind them.
QString Owner(const QString& text) {
  if (text.contains(QChar(u'\0'))) return {};
  for (const SqlToken& token : Tokenize(text)) {
    const bool name = token.kind == SqlToken::Word || token.kind == SqlToken::QuotedName;
    if (!name && token.text != u".") return {};
  }
  return text.isEmpty() || text.endsWith(u'.') ? text : text + u'.';
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size) {
  const auto [first, rest] = PartsOf(data, size);
  // Half of a character, which a box can hand over but UTF-8 cannot write.
  const QString sql = QString::fromUtf8(rest).replace(QChar(0xE000), QChar(0xD83D));
  ConnectionSettings settings;
  settings.ownerPrefix = Owner(QString::fromUtf8(first).trimmed());
  settings.keyOf = [](const QString& table) {
    return table.startsWith(u"ID_") ? QStringList({QStringLiteral("A"), QStringLiteral("K")}) : QStringList();
  };
  CheckTokens(sql);
  CheckValue(sql.left(LongestValue), settings);
  StatementWords::TablesOfSelect(sql);
  if (!WhyRefused(sql, AnyNumber).isEmpty()) return 0;

  const QStringList statements = SplitStatements(sql);
  CheckSplit(sql, statements);
  for (const QString& statement : statements) {
    for (const Engine engine : Engines) CheckCarried(statement, engine, settings);
    CheckLiterals(statement, StatementWords::WithTop(statement, 7));
  }
  return 0;
}
