#include "platform/ado/SqlTokens.h"

namespace {

bool IsBlank(QChar c) {
  return c == u' ' || (c >= u'\t' && c <= u'\r');
}
bool IsDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}
bool StartsWord(QChar c) {
  return c.isLetter() || c == u'_';
}
bool InsideWord(QChar c) {
  return c.isLetterOrNumber() || c == u'_' || c == u'$';
}

// Reads one token after the other. A position behind the end reads as U+0000, which ends every kind of token: a text
// that really holds one is refused by WhyRefused and must only come back whole from Join.
class Scanner {
 public:
  explicit Scanner(const QString& sql) : sql_(sql) {}

  bool AtEnd() const { return position_ >= sql_.size(); }

  SqlToken Next() {
    start_ = position_;
    const SqlToken::Kind kind = Scan();
    return {kind, sql_.mid(start_, position_ - start_)};
  }

 private:
  QChar Peek(qsizetype ahead = 0) const {
    return position_ + ahead < sql_.size() ? sql_.at(position_ + ahead) : QChar(u'\0');
  }

  template <class Predicate>
  SqlToken::Kind While(Predicate inside, SqlToken::Kind kind) {
    while (!AtEnd() && inside(Peek())) ++position_;
    return kind;
  }

  // Up to the closing sign; the sign doubled stands for itself.
  SqlToken::Kind Quoted(QChar closing, SqlToken::Kind kind) {
    ++position_;
    while (!AtEnd()) {
      if (Peek() == closing) {
        if (Peek(1) != closing) {
          ++position_;
          return kind;
        }
        ++position_;
      }
      ++position_;
    }
    return SqlToken::Unclosed;
  }

  SqlToken::Kind LineComment() {
    return While([](QChar c) { return c != u'\n'; }, SqlToken::Comment);
  }

  SqlToken::Kind BlockComment() {
    const qsizetype end = sql_.indexOf(QLatin1String("*/"), position_ + 2);
    position_ = end < 0 ? sql_.size() : end + 2;
    return end < 0 ? SqlToken::Unclosed : SqlToken::Comment;
  }

  SqlToken::Kind Scan() {
    const QChar c = Peek();
    if (IsBlank(c)) return While(IsBlank, SqlToken::Blank);
    if (c == u'\'') return Quoted(u'\'', SqlToken::Literal);
    if (c == u'"') return Quoted(u'"', SqlToken::QuotedName);
    if (c == u'[') return Quoted(u']', SqlToken::QuotedName);
    if (c == u'#' || (c == u'-' && Peek(1) == u'-')) return LineComment();
    if (c == u'/' && Peek(1) == u'*') return BlockComment();
    if ((c == u'N' || c == u'n') && Peek(1) == u'\'') {
      ++position_;
      return Quoted(u'\'', SqlToken::NationalLiteral);
    }
    if (StartsWord(c)) return While(InsideWord, SqlToken::Word);
    if (IsDigit(c)) return While([](QChar d) { return InsideWord(d) || d == u'.'; }, SqlToken::Number);
    ++position_;
    return c == u';' ? SqlToken::Semicolon : SqlToken::Symbol;
  }

  const QString& sql_;
  qsizetype position_ = 0;
  qsizetype start_ = 0;
};

}  // namespace

std::vector<SqlToken> Tokenize(const QString& sql) {
  std::vector<SqlToken> tokens;
  for (Scanner scanner(sql); !scanner.AtEnd();) tokens.push_back(scanner.Next());
  return tokens;
}

QString Join(const std::vector<SqlToken>& tokens) {
  QString text;
  for (const SqlToken& token : tokens) text += token.text;
  return text;
}

QStringList SplitStatements(const QString& sql) {
  QStringList statements;
  QString statement;
  const auto finish = [&] {
    statement = statement.trimmed();
    if (!statement.isEmpty()) statements += statement;
    statement.clear();
  };
  for (const SqlToken& token : Tokenize(sql)) {
    if (token.kind == SqlToken::Semicolon) {
      finish();
    } else {
      statement += token.text;
    }
  }
  finish();
  return statements;
}

QString WhyRefused(const QString& sql, int allowed) {
  if (sql.contains(QChar(u'\0'))) return QStringLiteral("The statement holds the character U+0000.");
  // A field's limit can cut a character of two halves; no engine would store the half that is left.
  if (!sql.isValidUtf16()) return QStringLiteral("The statement holds half of a character.");
  const std::vector<SqlToken> tokens = Tokenize(sql);
  for (size_t i = 0; i < tokens.size(); ++i) {
    const SqlToken& token = tokens[i];
    if (token.kind == SqlToken::Comment) return QStringLiteral("The statement holds a comment.");
    if (token.kind == SqlToken::Unclosed) return QStringLiteral("The statement holds a literal that is not closed.");
    // Some engines read text behind these with other rules than this tokenizer: it would end at another place.
    for (const QChar sign : {u'`', u'$'}) {
      const bool ends = token.kind == SqlToken::Symbol || token.kind == SqlToken::Number;
      if (!ends || !token.text.contains(sign)) continue;
      return QStringLiteral("The statement holds the character %1 outside of a literal.").arg(sign);
    }
    if (token.kind == SqlToken::Literal && i > 0 &&
        tokens[i - 1].text.compare(QLatin1String("E"), Qt::CaseInsensitive) == 0) {
      return QStringLiteral("The statement holds a literal with escape sequences.");
    }
  }
  const int count = int(SplitStatements(sql).size());
  if (count == 0) return QStringLiteral("The statement is empty.");
  if (count > allowed) {
    return QStringLiteral("The text holds %1 statements where %2 may stand.").arg(count).arg(allowed);
  }
  return {};
}
