#pragma once

#include <QString>

class CodeComboBox;
// "(none)" entry first when `none` is not empty, then a row an entry: description column, code column, by position.
void FillCombo(CodeComboBox& box, const QString& none, const QString& sql, const QString& failureLine,
               int descriptionField, int codeField);
