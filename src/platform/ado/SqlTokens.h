#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// A token of a statement; joined in order the texts give the statement back, letter for letter.
struct SqlToken {
  enum Kind { Blank, Word, Number, Literal, NationalLiteral, QuotedName, Semicolon, Symbol, Comment, Unclosed };
  Kind kind;
  QString text;
};

std::vector<SqlToken> Tokenize(const QString& sql);
QString Join(const std::vector<SqlToken>& tokens);

// The statements of a text, split at ";" outside of literals, without empty ones.
QStringList SplitStatements(const QString& sql);

// Why a text may not be sent: a comment outside of literals, an unclosed literal, more than `allowed` statements or
// none, a control character U+0000, half of a surrogate pair, signs that engines read differently. Empty when it may.
QString WhyRefused(const QString& sql, int allowed);
