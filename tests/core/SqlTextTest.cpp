#include "core/SqlText.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "support/Desk.h"

namespace {

class SqlTextTest : public Desk {};

TEST_F(SqlTextTest, ValuesPassTheEscapeAndEmptyTextsTakeTheWordOfTheirStatement) {
  Logon();
  EXPECT_EQ(Sql::Plain("O'Neill"), "'O''Neill'");
  EXPECT_EQ(Sql::National("O'Neill \\"), "N'O''Neill \\'");
  EXPECT_EQ(Sql::NationalOr("", "Null"), "Null");
  EXPECT_EQ(Sql::PlainOr("", "NULL"), "NULL");
  EXPECT_EQ(Sql::NumberOr(" 1,5 ", "NULL"), "1.5");
  EXPECT_EQ(Sql::NumberOr("  ", "NULL"), "NULL");
  for (const char* text : {".", ",", "-", "-."}) EXPECT_EQ(Sql::NumberOr(text, "NULL"), "NULL") << text;
}

TEST_F(SqlTextTest, EachLanguageGetsAColumnAndTheSameValue) {
  Logon();
  const Sql::LanguagePieces pieces = Sql::LanguageColumns("DEPARTMENT_DESC_", "N'Loans'");
  EXPECT_EQ(pieces.columns, ", DEPARTMENT_DESC_ENG, DEPARTMENT_DESC_FRE, DEPARTMENT_DESC_GER");
  EXPECT_EQ(pieces.values, ", N'Loans', N'Loans', N'Loans'");
}

TEST_F(SqlTextTest, OnASiteOfOneLanguageThereAreNoLanguageColumns) {
  Setting("System", "SingleLanguage", "Y");
  Logon();
  EXPECT_EQ(Sql::LanguageColumns("DEPARTMENT_DESC_", "N'Loans'").columns, "");
}

TEST_F(SqlTextTest, StatementsAreValidWithAndWithoutAnOwner) {
  Logon();
  EXPECT_EQ(Sql::Table("ID_PRINTER"), "ID_PRINTER");
  Another("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('Desk', 'lp0')");
  EXPECT_EQ(FirstValue("SELECT DEVICE FROM " + Sql::Table("ID_PRINTER"), "line"), "lp0");
}

TEST_F(SqlTextTest, AnOwnerStandsBeforeEveryTable) {
  Setting("Database", "OwnerPrefix", "OSTANA.");
  Logon();
  EXPECT_EQ(Sql::Table("ID_PRINTER"), "OSTANA.ID_PRINTER");
  Another("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('Desk', 'lp0')");
  EXPECT_EQ(FirstValue("SELECT P.DEVICE FROM " + Sql::Table("ID_PRINTER P"), "line"), "lp0");
}

TEST_F(SqlTextTest, TheFailureLineStandsWhileAStatementFailsAndIsClearedAfterASuccess) {
  Logon();
  EXPECT_THROW(Execute("UPDATE ID_NOWHERE SET A = 1", "***** the line *****"), AdoError);
  EXPECT_EQ(gstrErrorMessage, "***** the line *****");
  Execute("DELETE FROM ID_PRINTER", "***** another *****");
  EXPECT_EQ(gstrErrorMessage, "");
}

TEST_F(SqlTextTest, AFailedExecuteLeavesNoOpenTransaction) {
  Logon();
  EXPECT_THROW(ExecuteInTransaction("UPDATE ID_NOWHERE SET A = 1", "line"), AdoError);
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
}

TEST_F(SqlTextTest, AConnectionClosedBetweenTwoStatementsIsReopened) {
  Logon();
  Execute("DELETE FROM ID_PRINTER", "line");
  gclsOF->Connection().Close();
  EXPECT_EQ(Execute("INSERT INTO ID_PRINTER (PRINTER) VALUES ('Desk')", "line"), 1);
}

}  // namespace
