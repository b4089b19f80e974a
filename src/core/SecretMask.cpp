#include "core/SecretMask.h"

#include <QRegularExpression>
#include <QSet>
#include <vector>

#include "platform/ado/SqlTokens.h"
#include "schema/SecretColumns.h"

namespace {

const QString Mask = QStringLiteral("'***'");

// Walks the tokens of a text that may begin with words that are no SQL.
class Masker {
 public:
  // What stands in a comment is not understood, so it is masked whole.
  explicit Masker(std::vector<SqlToken> tokens) : tokens_(std::move(tokens)) {
    for (SqlToken& token : tokens_) {
      if (token.kind == SqlToken::Comment) token.text = Mask;
    }
  }

  QString Masked() {
    while (at_ < tokens_.size()) {
      if (IsWord("INSERT")) {
        Insert();
      } else if (IsName() && NamesSecretColumn(tokens_[at_].text)) {
        Comparison();
      } else {
        ++at_;
      }
    }
    return Join(tokens_);
  }

 private:
  bool AtEnd() const { return at_ >= tokens_.size(); }
  bool Is(SqlToken::Kind kind) const { return !AtEnd() && tokens_[at_].kind == kind; }
  bool IsSymbol(char symbol) const { return Is(SqlToken::Symbol) && tokens_[at_].text == QChar(symbol); }
  bool IsWord(const char* word) const {
    return Is(SqlToken::Word) && tokens_[at_].text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
  }
  bool IsName() const { return Is(SqlToken::Word) || Is(SqlToken::QuotedName); }
  bool IsLiteral() const {
    return Is(SqlToken::Literal) || Is(SqlToken::NationalLiteral) || Is(SqlToken::Unclosed) || Is(SqlToken::Number);
  }
  void SkipBlanks() {
    while (Is(SqlToken::Blank) || Is(SqlToken::Comment)) ++at_;
  }
  void Next() {
    ++at_;
    SkipBlanks();
  }
  void MaskHere() {
    SqlToken& token = tokens_[at_];
    token.text = (token.kind == SqlToken::NationalLiteral ? token.text.left(1) : QString()) + Mask;
  }

  // column = expression, column IN (...), column LIKE ...: literals up to the end of the expression.
  void Comparison() {
    Next();
    const bool compares = (Is(SqlToken::Symbol) && QStringLiteral("=<>!").contains(tokens_[at_].text.front())) ||
                          IsWord("LIKE") || IsWord("IN") || IsWord("NOT");
    if (compares) MaskExpression();
  }

  // Stops before what ends an expression: a comma or closing bracket outside of brackets, or a word of the statement.
  void MaskExpression() {
    int depth = 0;
    for (; !AtEnd() && !Is(SqlToken::Semicolon); ++at_) {
      if (IsSymbol('(')) ++depth;
      if (IsSymbol(')') && --depth < 0) return;
      if (depth == 0 && (IsSymbol(',') || EndsExpression())) return;
      if (IsLiteral()) MaskHere();
    }
  }

  bool EndsExpression() const {
    static const QSet<QString> words{"WHERE", "AND", "OR", "FROM", "ORDER", "GROUP", "UNION"};
    return Is(SqlToken::Word) && words.contains(tokens_[at_].text.toUpper());
  }

  // INSERT INTO table (columns) VALUES (...), (...) or SELECT ...
  void Insert() {
    Next();
    if (IsWord("INTO")) Next();
    while (IsName() || IsSymbol('.')) Next();
    if (!IsSymbol('(')) return;
    const std::vector<bool> secret = ReadColumns();
    SkipBlanks();
    if (IsWord("SELECT")) {
      Next();
      MaskList(secret);
      return;
    }
    if (!IsWord("VALUES")) return;
    do {
      Next();
      if (!IsSymbol('(')) return;
      Next();
      MaskList(secret);
      if (IsSymbol(')')) Next();
    } while (IsSymbol(','));
  }

  std::vector<bool> ReadColumns() {
    std::vector<bool> secret{false};
    for (Next(); !AtEnd() && !IsSymbol(')'); Next()) {
      if (IsSymbol(',')) {
        secret.push_back(false);
      } else if (IsName() && NamesSecretColumn(tokens_[at_].text)) {
        secret.back() = true;
      }
    }
    if (!AtEnd()) ++at_;
    return secret;
  }

  // The values by position; stops at the closing bracket, at FROM or at the end of the statement.
  void MaskList(const std::vector<bool>& secret) {
    size_t position = 0;
    int depth = 0;
    for (; !AtEnd() && !Is(SqlToken::Semicolon); ++at_) {
      if (IsSymbol('(')) ++depth;
      if (IsSymbol(')') && --depth < 0) return;
      if (depth == 0 && IsWord("FROM")) return;
      if (depth == 0 && IsSymbol(',')) ++position;
      if (position < secret.size() && secret[position] && IsLiteral()) MaskHere();
    }
  }

  std::vector<SqlToken> tokens_;
  size_t at_ = 0;
};

}  // namespace

QString MaskSecrets(const QString& sql) {
  if (!NamesSecretColumn(sql)) return sql;
  // Words before the statement may hold a single apostrophe, which must not open a literal.
  static const QRegularExpression verb("\\b(insert\\s+into|update\\s|select\\s|delete\\s)",
                                       QRegularExpression::CaseInsensitiveOption);
  const qsizetype start = qMax<qsizetype>(0, sql.indexOf(verb));
  return sql.left(start) + Masker(Tokenize(sql.mid(start))).Masked();
}
