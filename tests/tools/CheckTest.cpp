#include <QFile>

#include "support/Texts.h"
#include "tools/ToolDesk.h"

namespace {

class CheckTest : public ToolDesk {
 protected:
  void SetUp() override {
    ToolDesk::SetUp();
    UseDatabase();
  }

  // The check finds this gap and says so by its exit status.
  void ExpectGap(const QString& gap) {
    const Result found = Run({"check"});
    EXPECT_EQ(found.exitCode, 1);
    EXPECT_TRUE(found.out.split('\n').contains(gap)) << found.out.toStdString() << found.err.toStdString();
  }
};

TEST_F(CheckTest, AWholeDatabasePasses) {
  const Result found = Run({"check"});
  EXPECT_EQ(found.exitCode, 0) << found.out.toStdString();
  EXPECT_TRUE(found.out.contains("The database holds everything that the programs use."));
}

TEST_F(CheckTest, AMissingTableIsNamed) {
  Execute("DROP TABLE ID_KEYWORD_TITLE");
  ExpectGap("Table ID_KEYWORD_TITLE is missing.");
}

TEST_F(CheckTest, AMissingColumnIsNamed) {
  Execute("ALTER TABLE ID_DEPARTMENT DROP COLUMN NCIP_DEPARTMENT");
  ExpectGap("Column ID_DEPARTMENT.NCIP_DEPARTMENT is missing.");
}

TEST_F(CheckTest, AMissingLanguageColumnIsNamed) {
  Execute("ALTER TABLE ID_EVENT DROP COLUMN EVENT_DESC_GER");
  ExpectGap("Column ID_EVENT.EVENT_DESC_GER is missing.");
}

TEST_F(CheckTest, ALanguageWithoutColumnsIsAGapOfManyColumns) {
  Execute("INSERT INTO ID_LANGUAGE_CODE (LANGUAGE_CODE, LANGUAGE_CODE_DESC) VALUES ('ITA', 'Italian')");
  ExpectGap("Column ID_TABLES.TABLES_DESC_ITA is missing.");
  EXPECT_TRUE(Run({"check"}).err.contains("The database has 49 gaps."));
}

TEST_F(CheckTest, ASiteOfOneLanguageNeedsNoLanguageColumns) {
  Execute("ALTER TABLE ID_EVENT DROP COLUMN EVENT_DESC_GER");
  WriteSettings(TestDatabase::IniSection(Client().Settings()) + "[System]\nSingleLanguage=Y\n");
  EXPECT_EQ(Run({"check"}).exitCode, 0);
}

TEST_F(CheckTest, ANarrowColumnIsNamedWithBothSizes) {
  Execute("DROP TABLE ID_PRINTER");
  Execute("CREATE TABLE ID_PRINTER (PRINTER VARCHAR(40) NOT NULL, DEVICE VARCHAR(30), PRIMARY KEY (PRINTER))");
  ExpectGap("Column ID_PRINTER.DEVICE holds 30 characters; the programs write up to 80.");
}

TEST_F(CheckTest, ATextWhereNumbersBelongIsNamedAndTheOtherWayRound) {
  Execute("DROP TABLE ID_KEYWORD_CALL_NO");
  Execute("CREATE TABLE ID_KEYWORD_CALL_NO (KEYWORD INTEGER, REQUEST_NUMBER VARCHAR(15))");
  ExpectGap("Column ID_KEYWORD_CALL_NO.KEYWORD holds numbers or dates instead of text.");
  Execute("DROP TABLE ID_ANNOTATION");
  Execute(
      "CREATE TABLE ID_ANNOTATION (LIBRARY_ID INTEGER, PATRON_ID VARCHAR(25), USE_ANNOTATION VARCHAR(1), ANNOTATION "
      "VARCHAR(200), TEXT_FONT_SIZE VARCHAR(5), TEXT_ORIENTATION VARCHAR(20))");
  ExpectGap("Column ID_ANNOTATION.TEXT_FONT_SIZE holds text instead of numbers or dates.");
}

TEST_F(CheckTest, ACounterHoldsOneRow) {
  Execute("DELETE FROM ID_NEXT_LIBRARY");
  ExpectGap("Table ID_NEXT_LIBRARY holds 0 rows instead of one.");
  Execute("INSERT INTO ID_NEXT_REQUEST (NEXT_REQUEST) VALUES (7)");
  ExpectGap("Table ID_NEXT_REQUEST holds 2 rows instead of one.");
}

TEST_F(CheckTest, ADefaultLanguageIsMarked) {
  Execute("UPDATE ID_LANGUAGE_CODE SET LANGUAGE_CODE_DEFAULT = NULL");
  ExpectGap("No language of ID_LANGUAGE_CODE is marked as the default.");
  Execute("UPDATE ID_LANGUAGE_CODE SET LANGUAGE_CODE_DEFAULT = 'Y'");
  const Result found = Run({"check"});
  EXPECT_EQ(found.exitCode, 0);
  EXPECT_TRUE(found.out.contains("Note: More than one language"));
}

TEST_F(CheckTest, ColumnsOfTheTwoOldStatementsAreANoteAndNoGap) {
  const Result found = Run({"check"});
  EXPECT_TRUE(found.out.contains("Note: Column ID_STAT_FUNCTION.STAT_LOCATION_DESC_FRE is missing"));
  EXPECT_TRUE(found.out.contains("Note: Column ID_ISO_NAMESPACE.CURRENCY_CODE_DESC_ENG is missing"));
}

TEST_F(CheckTest, RequestsOfNobodyNeedTheirLibrary) {
  Execute("DELETE FROM ID_LIBRARY WHERE LIBRARY_ID = 9999999");
  const Result found = Run({"check"});
  EXPECT_EQ(found.exitCode, 0);
  EXPECT_TRUE(found.out.contains("Note: Library 9999999"));
}

class EmptyDatabaseTest : public ToolDesk {};

TEST_F(EmptyDatabaseTest, ADatabaseWithoutTablesIsNoSite) {
  const ConnectionSettings settings = UseFreshDatabase();
  if (settings.engine != Engine::Sqlite) {
    EXPECT_EQ(Run({"check"}).exitCode, 1);
    return;
  }
  EXPECT_TRUE(Run({"check"}).err.contains("does not exist. Create the database with tabulon-db create"));
  QFile file(settings.name);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  const Result found = Run({"check"});
  EXPECT_EQ(found.exitCode, 1);
  EXPECT_TRUE(found.err.contains("The database holds no tables of Ostana."));
}

}  // namespace
