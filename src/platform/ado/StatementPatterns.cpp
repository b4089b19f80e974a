#include "platform/ado/StatementPatterns.h"

#include <algorithm>

namespace StatementWords {

namespace {

// Words that begin a new clause or end an operand.
bool EndsOperand(const SqlToken& token) {
  return IsOneOf(token, {"AND", "OR", "ORDER", "GROUP", "HAVING", "LIMIT", "UNION", "THEN", "WHEN", "ELSE", "ESCAPE",
                         "COLLATE", "LIKE", "END", "NOT"});
}

// Words that may stand before an operand, and before a parenthesis without calling a function.
bool PrecedesOperand(const SqlToken& token) {
  return EndsOperand(token) || IsOneOf(token, {"WHERE", "ON", "SELECT", "CASE", "IN", "BY", "FROM", "DISTINCT", "ALL"});
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

size_t OpeningOf(const Tokens& tokens, size_t closing) {
  int depth = 0;
  for (size_t i = closing + 1; i-- > 0;) {
    if (IsSymbol(tokens[i], ')')) ++depth;
    if (IsSymbol(tokens[i], '(') && --depth == 0) return i;
  }
  return Nowhere;
}

bool IsName(const SqlToken& token) {
  return token.kind == SqlToken::QuotedName || (token.kind == SqlToken::Word && !PrecedesOperand(token));
}

// Index of the first token of the operand that ends at `last`; Nowhere when it is none that can be told.
size_t StartOfOperand(const Tokens& tokens, size_t last) {
  if (tokens[last].kind == SqlToken::Literal || tokens[last].kind == SqlToken::NationalLiteral) return last;
  size_t start = last;
  if (IsSymbol(tokens[last], ')')) {
    start = OpeningOf(tokens, last);
    if (start == Nowhere) return Nowhere;
    const size_t name = PreviousOf(tokens, start);
    return name != Nowhere && IsName(tokens[name]) ? name : start;
  }
  if (!IsName(tokens[last])) return Nowhere;
  while (start >= 2 && IsSymbol(tokens[start - 1], '.') && IsName(tokens[start - 2])) start -= 2;
  return start;
}

bool BeginsWith(const Tokens& tokens, size_t index, const Tokens& words) {
  if (index + words.size() > tokens.size()) return false;
  return std::equal(words.begin(), words.end(), tokens.begin() + static_cast<Tokens::difference_type>(index),
                    [](const SqlToken& left, const SqlToken& right) {
                      return left.text.compare(right.text, Qt::CaseInsensitive) == 0;
                    });
}

// Both operands in the form's words, behind which the operator stands at the index that is given back.
size_t Enclose(Tokens& tokens, size_t operation, const PatternForm& form) {
  size_t last = PreviousOf(tokens, operation);
  if (last != Nowhere && Is(tokens[last], "NOT")) last = PreviousOf(tokens, last);
  const size_t start = last == Nowhere ? Nowhere : StartOfOperand(tokens, last);
  if (start == Nowhere || (!form.open.isEmpty() && BeginsWith(tokens, start, Tokenize(form.open)))) return operation;
  const size_t collate = PreviousOf(tokens, start);
  if (collate != Nowhere && Is(tokens[collate], "COLLATE")) return operation;
  size_t before = tokens.size();
  if (!form.open.isEmpty()) {
    const size_t pattern = NextOf(tokens, operation);
    InsertWords(tokens, EndOfOperand(tokens, pattern), form.close);
    InsertWords(tokens, pattern, form.open);
    before = tokens.size();
    InsertWords(tokens, last + 1, form.close);
    InsertWords(tokens, start, form.open);
  }
  if (!form.textCollation.isEmpty()) InsertWords(tokens, last + 1, QLatin1String("COLLATE ") + form.textCollation);
  return operation + (tokens.size() - before);
}

}  // namespace

void Patterns(Tokens& tokens, const PatternForm& form) {
  for (size_t i = 0; i < tokens.size(); ++i) {
    if (!Is(tokens[i], "LIKE") || EndOfOperand(tokens, NextOf(tokens, i)) <= i + 1) continue;
    i = Enclose(tokens, i, form);
    size_t end = EndOfOperand(tokens, NextOf(tokens, i));
    size_t next = NextOf(tokens, end - 1);
    if (IsWordAt(tokens, next, "COLLATE")) {
      const size_t name = NextOf(tokens, next);
      end = name < tokens.size() && IsName(tokens[name]) ? name + 1 : next + 1;
    } else if (!form.collation.isEmpty()) {
      end = InsertWords(tokens, end, QLatin1String("COLLATE ") + form.collation);
    }
    if (form.escape && !IsWordAt(tokens, NextOf(tokens, end - 1), "ESCAPE")) {
      InsertWords(tokens, end, QLatin1String("ESCAPE '") + *form.escape + u'\'');
    }
  }
}

}  // namespace StatementWords
