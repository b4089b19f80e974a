#include "platform/ado/TokenEdit.h"

#include <algorithm>

namespace StatementWords {

bool Is(const SqlToken& token, const char* word) {
  return token.kind == SqlToken::Word && token.text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

bool IsOneOf(const SqlToken& token, std::initializer_list<const char*> words) {
  return std::any_of(words.begin(), words.end(), [&](const char* word) { return Is(token, word); });
}

bool IsSymbol(const SqlToken& token, char sign) {
  return token.kind == SqlToken::Symbol && token.text.at(0) == QLatin1Char(sign);
}

bool IsWordAt(const Tokens& tokens, size_t index, const char* word) {
  return index < tokens.size() && Is(tokens[index], word);
}

size_t NextOf(const Tokens& tokens, size_t index) {
  ++index;
  while (index < tokens.size() && tokens[index].kind == SqlToken::Blank) ++index;
  return index;
}

size_t FirstOf(const Tokens& tokens) {
  return tokens.empty() || tokens.front().kind != SqlToken::Blank ? 0 : NextOf(tokens, 0);
}

size_t PreviousOf(const Tokens& tokens, size_t index) {
  while (index > 0 && tokens[index - 1].kind == SqlToken::Blank) --index;
  return index == 0 ? Nowhere : index - 1;
}

size_t EndOfLevel(const Tokens& tokens, size_t index) {
  int depth = 0;
  for (size_t i = index; i < tokens.size(); ++i) {
    if (IsSymbol(tokens[i], '(')) ++depth;
    if (IsSymbol(tokens[i], ')') && --depth < 0) return i;
    if (tokens[i].kind == SqlToken::Semicolon && depth == 0) return i;
  }
  return tokens.size();
}

void InsertAt(Tokens& tokens, size_t index, std::initializer_list<SqlToken> added) {
  tokens.insert(tokens.begin() + static_cast<Tokens::difference_type>(index), added);
}

void Erase(Tokens& tokens, size_t from, size_t end) {
  tokens.erase(tokens.begin() + static_cast<Tokens::difference_type>(from),
               tokens.begin() + static_cast<Tokens::difference_type>(end));
}

size_t InsertWords(Tokens& tokens, size_t index, const QString& words) {
  static const SqlToken space{SqlToken::Blank, QStringLiteral(" ")};
  Tokens added = Tokenize(words);
  const size_t end = index + added.size();
  const auto apart = [](const SqlToken& token) {
    return token.kind == SqlToken::Blank || token.kind == SqlToken::Symbol || token.kind == SqlToken::Semicolon;
  };
  const bool behind = index < tokens.size() && !apart(tokens[index]) && !apart(added.back());
  const bool before = index > 0 && tokens[index - 1].kind != SqlToken::Blank && !IsSymbol(tokens[index - 1], '(') &&
                      added.front().kind != SqlToken::Blank && !IsSymbol(added.front(), ',');
  if (behind) added.push_back(space);
  if (before) added.insert(added.begin(), space);
  tokens.insert(tokens.begin() + static_cast<Tokens::difference_type>(index), added.begin(), added.end());
  return end + (before ? 1 : 0);
}

}  // namespace StatementWords
