#pragma once

#include <QString>
#include <QStringList>

class CodeComboBox;

// Drop-down lists of the connection and profile screens: descriptions of a code table in the working language behind
// "(None)". A code whose row is gone shows as itself, so that saving the record keeps it.
namespace CodeLists {

inline const QString None = "(None)";

// How a code table is read, without its ending by language: {"LOAN_CODE", "ID_LOAN_CODE"} reads LOAN_CODE and
// LOAN_CODE_DESC.
QString DescriptionColumn(const QString& code);

// Fills the box with the rows of a statement, codes and descriptions trimmed; the none entry is chosen.
void Fill(CodeComboBox& box, const QString& sql, const QString& failureLine, const QString& code);
// The same with the descriptions in the order of the alphabet behind the none entry.
void FillSorted(CodeComboBox& box, const QString& sql, const QString& failureLine, const QString& code);

// The entries of another list.
void Copy(const CodeComboBox& from, CodeComboBox& to);

// An empty code is the none entry.
void ShowCode(CodeComboBox& box, const QString& code);

}  // namespace CodeLists
