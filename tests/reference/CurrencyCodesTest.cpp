#include "reference/CurrencyDesk.h"
#include "shell/NumericFields.h"

namespace {

using namespace Currencies;
class CurrencyCodesTest : public CurrencyDesk {};

// --- Load ---

TEST_F(CurrencyCodesTest, ShowsTheFirstRowInOrderOfDescription) {
  Open(Form);
  EXPECT_EQ(Statements().last().toStdString(), "SELECT   * FROM ID_CURRENCY_CODE ORDER BY CURRENCY_CODE_DESC");
  EXPECT_EQ(Window()->windowTitle().toStdString(), "Ostana - Currency Codes");
  EXPECT_EQ(Shown("txtCurrencyCode"), "EUR");
  EXPECT_EQ(Shown("txtExchangeRate"), "1.0000");
  EXPECT_EQ(Shown("cmbSymbol"), "€");
  EXPECT_EQ(At(Table, 1, Base), "*");
  EXPECT_EQ(At(Table, 2, Code), "CHF");
  EXPECT_EQ(At(Table, 2, Rate), "0.9500");
  EXPECT_EQ(At(Table, 3, Description), "US Dollar");
  Picture("frmCurrencyCodes");
}

TEST_F(CurrencyCodesTest, ReadsAndWritesTheDescriptionOfTheWorkingLanguage) {
  Another("UPDATE ID_CURRENCY_CODE SET CURRENCY_CODE_DESC_FRE = 'Dollar' WHERE CURRENCY_CODE = 'USD'");
  Another("UPDATE ID_CURRENCY_CODE SET CURRENCY_CODE_DESC_FRE = 'Zeuro' WHERE CURRENCY_CODE = 'EUR'");
  Another("UPDATE ID_CURRENCY_CODE SET CURRENCY_CODE_DESC_FRE = 'Franc suisse' WHERE CURRENCY_CODE = 'CHF'");
  gclsOF->SetLanguageSuffix("_FRE");
  Open(Form);
  EXPECT_EQ(Statements().last().toStdString(), "SELECT   * FROM ID_CURRENCY_CODE ORDER BY CURRENCY_CODE_DESC_FRE");
  EXPECT_EQ(Shown("txtDescription"), "Dollar");
  Append("txtDescription", " US");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Told("SELECT CURRENCY_CODE_DESC_FRE FROM ID_CURRENCY_CODE WHERE CURRENCY_CODE = 'USD'"), "Dollar US");
  EXPECT_EQ(Told("SELECT CURRENCY_CODE_DESC FROM ID_CURRENCY_CODE WHERE CURRENCY_CODE = 'USD'"), "US Dollar");
}

TEST_F(CurrencyCodesTest, EmptyTableIsToldOnceInAShowing) {
  Another("DELETE FROM ID_CURRENCY_CODE");
  Prompt().ExpectTitled("The Currency Code table has not been initialized.", Say::Stop, "Ostana - Currency Codes");
  Screen& screen = Open(Form);
  dynamic_cast<ActivatedForm&>(screen).Form_Activate();
  EXPECT_EQ(Shown("cmbSymbol"), "");
  EXPECT_TRUE(Logged("The Currency Code table has not been initialized."));
}

TEST_F(CurrencyCodesTest, LoadFailureNamesAnotherTableInTheLog) {
  Another("DROP TABLE ID_CURRENCY_CODE");
  Prompt().ExpectStart("An error has occurred loading the form.  Please Notify Support.\n\n", Say::Stop);
  Prompt().Expect("The Currency Code table has not been initialized.", Say::Stop);
  Open(Form);
  EXPECT_TRUE(Logged("frmCurrencyCodes.PopulateForm"));
  EXPECT_TRUE(Logged("***** SQL error on ID_ISO_CURRENCY_CODE (Select) *****"));
}

TEST_F(CurrencyCodesTest, TheSymbolsAreThereAlsoWhenTheCurrenciesCannotBeRead) {
  Another("ALTER TABLE ID_CURRENCY_CODE RENAME TO ID_CURRENCY_CODE_AWAY");
  Prompt().ExpectStart("An error has occurred loading the form.  Please Notify Support.\n\n", Say::Stop);
  Prompt().Expect("The Currency Code table has not been initialized.", Say::Stop);
  Open(Form);
  EXPECT_EQ(Find<CodeComboBox>("cmbSymbol")->Count(), 5);
}

TEST_F(CurrencyCodesTest, ADeleteThatFindsNoRowIsToldAsWhatItIs) {
  OpenIt();
  SelectRowOf(Table, "USD");
  Another("DELETE FROM ID_CURRENCY_CODE WHERE CURRENCY_CODE = 'USD'");
  Prompt().Expect("Are you sure you want to delete this record?", Say::Question, Say::Yes);
  Prompt().Expect("Nothing was deleted.  Make sure you have a valid record selected.", 48);
  Click("cmdDelete");
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
}

// --- Entry ---

TEST_F(CurrencyCodesTest, CodeIsUpperCasedTypedAndPasted) {
  OpenIt();
  Type("txtCurrencyCode", "jpyx");
  EXPECT_EQ(Shown("txtCurrencyCode"), "JPY");
  Paste("txtCurrencyCode", "nok");
  EXPECT_EQ(Shown("txtCurrencyCode"), "NOK");
}

TEST_F(CurrencyCodesTest, RateTakesNumbersUpToItsHighest) {
  OpenIt();
  Type("txtExchangeRate", "1a2.3.4");
  EXPECT_EQ(Shown("txtExchangeRate"), "12.34");
  EXPECT_EQ(Prompt().Beeps(), 2);
  Type("txtExchangeRate", "10000");
  Prompt().Expect("Exchange Rate: may not be greater than 9999.9999", Say::Stop);
  Press("txtExchangeRate", Qt::Key_Tab);
  EXPECT_EQ(Focus().toStdString(), "txtExchangeRate");
  Type("txtExchangeRate", "9999.9999");
  Press("txtExchangeRate", Qt::Key_Tab);
  EXPECT_EQ(Focus().toStdString(), "cmbSymbol");
  EXPECT_EQ(Shown("txtExchangeRate"), "9999.9999");
}

// --- Add ---

TEST_F(CurrencyCodesTest, AddTestsItsFieldsInOrder) {
  Another("DELETE FROM ID_CURRENCY_CODE");
  Prompt().Expect("The Currency Code table has not been initialized.", Say::Stop);
  OpenIt();
  const auto refused = [this](const QString& text, const QString& focus) {
    Prompt().Expect(text, Say::Stop);
    Click("cmdAdd");
    EXPECT_EQ(Focus().toStdString(), focus.toStdString());
  };
  Type("txtCurrencyCode", " jp");
  refused("Currency Code is required and must be 3 characters long.", "txtCurrencyCode");
  Type("txtCurrencyCode", "JPY");
  Type("txtDescription", "  ");
  refused("Description is a required field.", "txtDescription");
  Type("txtDescription", "Yen");
  refused("Country is a required field.", "txtCountry");
  Type("txtCountry", "Japan");
  refused("Exchange Rate is a required field.", "txtExchangeRate");
  Type("txtExchangeRate", "-");
  refused("Exchange Rate is a required field.", "txtExchangeRate");
  Type("txtExchangeRate", "163");
  refused("Symbol is a required field.", "cmbSymbol");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(CurrencyCodesTest, AddRefusesEqualCodeOrDescriptionAndNamesIt) {
  OpenIt();
  Enter("usd", "Another", "Land", "1", "$");
  Prompt().Expect("This record already exists.\nUSD", Say::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Focus().toStdString(), "txtCurrencyCode");
  Enter("JPY", " Franc ", "Land", "1", "$");
  Prompt().Expect("This record already exists.\nFranc", Say::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Focus().toStdString(), "txtDescription");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(CurrencyCodesTest, AddWritesNationalLiteralsAndEveryLanguage) {
  OpenIt();
  Enter("jpy", "Yen's \\ -- 😀", "Japan", "163", "¥");
  Prompt().Expect(Say::Added, Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(Wrote(),
            "INSERT INTO ID_CURRENCY_CODE (CURRENCY_CODE, CURRENCY_CODE_DESC, CURRENCY_COUNTRY, CURRENCY_EXCHANGE, "
            "CURRENCY_SYMBOL, CURRENCY_CODE_DESC_ENG, CURRENCY_CODE_DESC_FRE, CURRENCY_CODE_DESC_GER) VALUES(N'JPY', "
            "N'Yen''s \\ -- 😀', N'Japan', 163.0000, N'¥', N'Yen''s \\ -- 😀', N'Yen''s \\ -- 😀', N'Yen''s \\ -- 😀')");
  EXPECT_EQ(At(Table, 4, Code), "JPY");
  EXPECT_EQ(At(Table, 4, Base), "");
  EXPECT_EQ(Row(Table), 4);
  EXPECT_EQ(Told("SELECT CURRENCY_CODE_DESC_GER FROM ID_CURRENCY_CODE WHERE CURRENCY_CODE = 'JPY'"), "Yen's \\ -- 😀");
  ExpectInStep(Form, Table);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
}

TEST_F(CurrencyCodesTest, RateWithADecimalCommaReachesTheTableWithAPoint) {
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  SetDecimalSeparator();
  OpenIt();
  EXPECT_EQ(At(Table, 2, Rate), "0,9500");
  Enter("JPY", "Yen", "Japan", "1,5", "¥");
  Prompt().Expect(Say::Added, Say::Info);
  Click("cmdAdd");
  EXPECT_TRUE(QString::fromStdString(Wrote()).contains("N'Japan', 1.5000, N'¥'"));
  EXPECT_EQ(RateOf("JPY"), "1.5000");
  Type("txtExchangeRate", "2,25");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(RateOf("JPY"), "2.2500");
  ExpectInStep(Form, Table);
}

TEST_F(CurrencyCodesTest, AddThatTheDatabaseRefusesIsToldUnderItsOwnLogName) {
  OpenIt();
  Insert("JPY", "Yen of another client", "Japan", "163", "¥", "NULL");
  Enter("JPY", "Yen", "Japan", "163", "¥");
  Prompt().ExpectStart("Unable to Add a new record.\n\n", Say::Stop);
  Click("cmdAdd");
  EXPECT_TRUE(Prompt().Shown().last().contains("duplicate", Qt::CaseInsensitive));
  EXPECT_EQ(Focus().toStdString(), "txtCurrencyCode");
  EXPECT_TRUE(Logged("frm.CurrencyCodes.cmdAdd_Click"));
  EXPECT_TRUE(Logged("***** SQL error on ID_CURRENCY_CODE (Insert) *****"));
  EXPECT_EQ(Rows(Table), 4);
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
}

TEST_F(CurrencyCodesTest, AddLeavesAMovedBaseToBeStored) {
  OpenIt();
  MoveBase(2);
  Enter("JPY", "Yen", "Japan", "163", "¥");
  Prompt().Expect(Say::Added, Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(Bases(), "EUR");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Bases(), "CHF");
  ExpectInStep(Form, Table);
}

// --- Update ---

TEST_F(CurrencyCodesTest, UpdateWithoutAChange) {
  OpenIt();
  Prompt().Expect(Say::Nothing, Say::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(CurrencyCodesTest, UpdateRefusesAnUnknownCodeBeforeTheFieldTests) {
  OpenIt();
  Type("txtCurrencyCode", "");
  Append("txtDescription", "x");
  Prompt().Expect(Say::NoSuchCode, Say::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Focus().toStdString(), "txtCurrencyCode");
  Type("txtCurrencyCode", "EUR");
  Type("txtDescription", "Franc");
  Prompt().Expect("Description already exists in table.", Say::Stop);
  Click("cmdUpdate");
  Type("txtDescription", "");
  Prompt().Expect("Description is a required field.", Say::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(CurrencyCodesTest, UpdateWritesNationalLiterals) {
  OpenIt();
  SelectRowOf(Table, "CHF");
  Enter("chf", "Swiss Franc", "Helvetia", "0.9", "$");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(),
            "UPDATE ID_CURRENCY_CODE SET      CURRENCY_CODE = N'CHF', CURRENCY_CODE_DESC = N'Swiss Franc', "
            "CURRENCY_COUNTRY = N'Helvetia', CURRENCY_EXCHANGE = 0.9000, CURRENCY_SYMBOL = N'$' "
            "WHERE    CURRENCY_CODE = N'CHF'");
  EXPECT_EQ(RateOf("CHF"), "0.9000");
  ExpectInStep(Form, Table);
}

TEST_F(CurrencyCodesTest, RateOfZeroPassesUpdate) {
  OpenIt();
  Type("txtExchangeRate", "0");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(RateOf("EUR"), "0.0000");
}

TEST_F(CurrencyCodesTest, UpdateOfARowThatAnotherClientDeletedIsNoSuccess) {
  OpenIt();
  SelectRowOf(Table, "USD");
  Type("txtExchangeRate", "2");
  Another("DELETE FROM ID_CURRENCY_CODE WHERE CURRENCY_CODE = 'USD'");
  Prompt().Expect("This code does not exist in the table. Please select a valid code to update.", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Focus().toStdString(), "txtCurrencyCode");
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
}

TEST_F(CurrencyCodesTest, ConnectionClosedBetweenTwoStatementsIsOpenedAgain) {
  OpenIt();
  Type("txtExchangeRate", "3");
  gclsOF->Connection().Close();
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(RateOf("EUR"), "3.0000");
}

TEST_F(CurrencyCodesTest, KilledSessionLosesNothingAndTheNextPressWrites) {
  if (gclsOF->DatabaseType() != 2) GTEST_SKIP() << "only a server's session can be killed";
  OpenIt();
  MoveBase(2);
  Type("txtExchangeRate", "3");
  Ask("SELECT COUNT(pg_terminate_backend(pid)) FROM pg_stat_activity WHERE datname = current_database() AND pid <> "
      "pg_backend_pid()");
  Prompt().Expect("An error has occurred.  Please Notify Support.", Say::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Bases(), "EUR");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Bases(), "CHF");
  EXPECT_EQ(RateOf("CHF"), "3.0000");
  ExpectInStep(Form, Table);
}

// --- Selection ---

TEST_F(CurrencyCodesTest, LeavingAnEditedRowAsksAndUpdatesIt) {
  OpenIt();
  Type("txtExchangeRate", "1.1");
  Prompt()
      .ExpectTitled(Say::Modified, Say::Question, "Ostana - Currency Codes", Say::Yes)
      .Expect(Say::Updated, Say::Info);
  SelectRow(Table, 3);
  EXPECT_EQ(RateOf("EUR"), "1.1000");
  EXPECT_EQ(Shown("txtCurrencyCode"), "USD");
  Prompt().Expect(Say::Nothing, Say::Stop);
  Click("cmdUpdate");
  ExpectInStep(Form, Table);
}

TEST_F(CurrencyCodesTest, LeavingAnEditedRowWithNoDropsTheEdit) {
  OpenIt();
  Append("txtCountry", "!");
  Prompt().Expect(Say::Modified, Say::Question, Say::No);
  SelectRow(Table, 2);
  EXPECT_EQ(Shown("txtCurrencyCode"), "CHF");
  EXPECT_EQ(Wrote(), "");
  ExpectInStep(Form, Table);
}

// --- Close ---

TEST_F(CurrencyCodesTest, CloseWithoutAnEditAsksNothing) {
  OpenIt();
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
}

TEST_F(CurrencyCodesTest, MovedBaseAloneAsksNothingOnClose) {
  OpenIt();
  MoveBase(2);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Bases(), "EUR");
}

TEST_F(CurrencyCodesTest, CloseAnsweredWithNoLeavesTheTable) {
  OpenIt();
  Type("txtExchangeRate", "5");
  Prompt().Expect(Say::Modified, Say::Question, Say::No);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(RateOf("EUR"), "1.0000");
}

TEST_F(CurrencyCodesTest, CloseWritesPlainLiteralsWithoutSuffixAndKeepsTheBase) {
  gclsOF->SetLanguageSuffix("_FRE");
  Another("UPDATE ID_CURRENCY_CODE SET CURRENCY_CODE_DESC_FRE = 'Devise ' || CURRENCY_CODE");
  OpenIt();
  MoveBase(2);
  Type("txtDescription", "L'euro");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(Say::Updated, Say::Info);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Wrote(),
            "UPDATE ID_CURRENCY_CODE SET      CURRENCY_CODE = 'EUR', CURRENCY_CODE_DESC = 'L''euro', "
            "CURRENCY_COUNTRY = 'European Union', CURRENCY_EXCHANGE = 1.0000, CURRENCY_SYMBOL = '€' "
            "WHERE    CURRENCY_CODE = 'EUR'");
  EXPECT_EQ(Bases(), "EUR");
}

TEST_F(CurrencyCodesTest, CloseRefusesARateOfZeroAndStaysOpen) {
  OpenIt();
  Type("txtExchangeRate", "0");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes);
  Prompt().Expect("Exchange Rate value must be greater than 0 and less than 100000", Say::Stop);
  Click("cmdClose");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Focus().toStdString(), "txtExchangeRate");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(CurrencyCodesTest, CloseRepeatsTheTestsAndStaysOpen) {
  OpenIt();
  Type("txtCurrencyCode", "ZZZ");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(Say::NoSuchCode, Say::Stop);
  Click("cmdClose");
  Type("txtCurrencyCode", "EUR");
  Type("txtDescription", "Franc");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect("Description already exists in table.", Say::Stop);
  Click("cmdClose");
  Type("txtDescription", "Euro");
  Type("txtCountry", "");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect("Country is a required field.", Say::Stop);
  Click("cmdClose");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Wrote(), "");
}

TEST_F(CurrencyCodesTest, EscapeClosesLikeTheButton) {
  OpenIt();
  Append("txtCountry", "!");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(Say::Updated, Say::Info);
  Press("txtCountry", Qt::Key_Escape);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Told("SELECT CURRENCY_COUNTRY FROM ID_CURRENCY_CODE WHERE CURRENCY_CODE = 'EUR'"), "European Union!");
}

TEST_F(CurrencyCodesTest, CloseOfARowThatIsGoneStaysOpen) {
  OpenIt();
  Append("txtCountry", "!");
  Another("DELETE FROM ID_CURRENCY_CODE WHERE CURRENCY_CODE = 'EUR'");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes);
  Prompt().Expect("This code does not exist in the table. Please select a valid code to update.", 48);
  Click("cmdClose");
  EXPECT_TRUE(IsOpen());
}

}  // namespace
