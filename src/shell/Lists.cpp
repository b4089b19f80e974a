#include "shell/Lists.h"

#include "core/SqlText.h"
#include "platform/controls/CodeComboBox.h"

void FillCombo(CodeComboBox& box, const QString& none, const QString& sql, const QString& failureLine,
               int descriptionField, int codeField) {
  box.Clear();
  if (!none.isEmpty()) box.AddNone(none);
  ForEachRow(sql, failureLine,
             [&](Recordset& rows) { box.Add(Value(rows, descriptionField), Value(rows, codeField)); });
}
