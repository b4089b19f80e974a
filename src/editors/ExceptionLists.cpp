#include "editors/ExceptionLists.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/controls/CodeComboBox.h"

void ExceptionLists::FillRejectTypes(std::initializer_list<CodeComboBox*> boxes) {
  for (CodeComboBox* box : boxes) {
    box->Clear();
    box->AddNone();
  }
  const QString description = "EXCEPTION_CODE_DESC" + gclsOF->LanguageSuffix();
  ForEachRow("SELECT EXCEPTION_CODE, " + description + " FROM " + Sql::Table("ID_EXCEPTION_CODE") +
                 " WHERE EXCEPTION_TYPE NOT IN (N'N', N'T') " + "ORDER BY " + description,
             "***** SQL error on OSTANA.ID_EXCEPTION_CODE (SELECT) *****", [&](Recordset& codes) {
               for (CodeComboBox* box : boxes) box->Add(Value(codes, 1), Value(codes, 0));
             });
}
