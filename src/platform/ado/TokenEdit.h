#pragma once

#include <initializer_list>

#include "platform/ado/SqlTokens.h"

// Finding and changing tokens of one statement: what the steps of the dialects are made of.
namespace StatementWords {

using Tokens = std::vector<SqlToken>;

inline constexpr size_t Nowhere = size_t(-1);

bool Is(const SqlToken& token, const char* word);  // a word, letter case does not count
bool IsOneOf(const SqlToken& token, std::initializer_list<const char*> words);
bool IsSymbol(const SqlToken& token, char sign);
bool IsWordAt(const Tokens& tokens, size_t index, const char* word);  // false behind the last token

// Index of the next token behind `index` that is no blank; tokens.size() when there is none.
size_t NextOf(const Tokens& tokens, size_t index);
size_t FirstOf(const Tokens& tokens);
// Index of the last token before `index` that is no blank; Nowhere when there is none.
size_t PreviousOf(const Tokens& tokens, size_t index);
// Index of the parenthesis that closes the level of `index`, or the place behind the last token of the text.
size_t EndOfLevel(const Tokens& tokens, size_t index);

void InsertAt(Tokens& tokens, size_t index, std::initializer_list<SqlToken> added);
void Erase(Tokens& tokens, size_t from, size_t end);
// Kept apart from what stands before and behind. Gives the place behind the words.
size_t InsertWords(Tokens& tokens, size_t index, const QString& words);

}  // namespace StatementWords
