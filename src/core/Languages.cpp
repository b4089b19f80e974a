#include "core/Languages.h"

#include "core/Failure.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"

void LoadLanguageCodes(const QString& suffix) {
  gstrErrorMessage.clear();
  const QString description = "LANGUAGE_CODE_DESC" + (suffix.isEmpty() ? gclsOF->LanguageSuffix() : suffix);
  const auto failure = Failure::Of([&] {
    QStringList codes, descriptions;
    QString defaultCode;
    ForEachRow("SELECT   LANGUAGE_CODE, LANGUAGE_CODE_DEFAULT, " + description + " FROM " +
                   Sql::Table("ID_LANGUAGE_CODE") + " ORDER BY " + description,
               "***** SQL error on ID_LANGUAGE_CODE (Select) *****", [&](Recordset& rows) {
                 codes.append(Value(rows, 0));
                 if (Value(rows, 1) == "Y") defaultCode = Value(rows, 0);
                 descriptions.append(Value(rows, 2));
               });
    gcolLanguageCode = codes;
    gcolLanguageDesc = descriptions;
    gstrDefaultLanguageCode = defaultCode;
  });
  if (failure) Failure::Log("frmTabulon.LoadLanguageCode", gstrErrorMessage, *failure);
}
