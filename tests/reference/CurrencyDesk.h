#pragma once

#include <QLocale>

#include "reference/ReferenceDesk.h"

// Three currencies, the euro being the base, and what the cases of their dialog do again and again.
namespace Currencies {

inline const QString Form = "frmCurrencyCodes";
inline const QString Table = "grdCurrencyCode";
inline const QString BaseQuestion = "Are you sure you wish to change the base.";
inline const QString BaseMoved =
    "Base Currency is now set to first record in the table.\nTo change this, just click on the base column of the "
    "record you,\nwish to set as the base currency.";
inline constexpr int Code = 1, Description = 2, Base = 4, Rate = 5;

class CurrencyDesk : public ReferenceDesk {
 protected:
  void SetUp() override {
    ReferenceDesk::SetUp();
    Another("DELETE FROM ID_CURRENCY_CODE");
    // In order of description: euro, franc, dollar.
    Insert("USD", "US Dollar", "United States", "1.08", "$", "NULL");
    Insert("CHF", "Franc", "Switzerland", "0.95", "Fr", "NULL");
    Insert("EUR", "Euro", "European Union", "1", "€", "'*'");
  }
  void TearDown() override {
    QLocale::setDefault(QLocale::c());
    ReferenceDesk::TearDown();
  }
  void Insert(const QString& code, const QString& description, const QString& country, const QString& rate,
              const QString& symbol, const QString& base) {
    Another(
        "INSERT INTO ID_CURRENCY_CODE (CURRENCY_CODE, CURRENCY_CODE_DESC, CURRENCY_COUNTRY, CURRENCY_EXCHANGE, "
        "CURRENCY_SYMBOL, CURRENCY_BASE) VALUES ('" +
        code + "', '" + description + "', '" + country + "', " + rate + ", '" + symbol + "', " + base + ")");
  }
  void OpenIt() {
    Open(Form);
    Statements();
  }
  void Enter(const QString& code, const QString& description, const QString& country, const QString& rate,
             const QString& symbol) {
    Type("txtCurrencyCode", code);
    Type("txtDescription", description);
    Type("txtCountry", country);
    Type("txtExchangeRate", rate);
    Choose("cmbSymbol", symbol);
  }
  void MoveBase(int row, int answer = Say::Yes) {
    Prompt().Expect(BaseQuestion, Say::Question, answer);
    ClickCell(Table, row, Base);
  }
  // Codes of all rows that the table holds as base.
  std::string Bases() {
    QStringList codes;
    for (const char* code : {"CHF", "EUR", "JPY", "USD"})
      if (Count("ID_CURRENCY_CODE", QString("CURRENCY_BASE = '*' AND CURRENCY_CODE = '%1'").arg(code)) > 0)
        codes.append(code);
    return codes.join(' ').toStdString();
  }
  std::string RateOf(const QString& code) {
    return Told("SELECT CURRENCY_EXCHANGE FROM ID_CURRENCY_CODE WHERE CURRENCY_CODE = '" + code + "'");
  }
};

}  // namespace Currencies
