#include "schema/SecretColumns.h"

#include <QStringList>
#include <algorithm>

bool NamesSecretColumn(const QString& text) {
  // CREDIT_CARD alone is the kind of card, a code of a table. A column of passwords that is added later is secret, too.
  static const QStringList words{"PASSWORD",        "CREDIT_CARD_NAME", "CREDIT_CARD_NUM",
                                 "CREDIT_CARD_EXP", "CREDIT_CARD_CODE", "NCIP_FROM_AGENCY_AUTH"};
  return std::any_of(words.begin(), words.end(),
                     [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}
