#include "ado/AdoTest.h"

namespace {

class ConnectionTest : public AdoTest {
 protected:
  ConnectionTest() {
    Run("CREATE TABLE ID_AUDIT_CODE (AUDIT_CODE VARCHAR(3) NOT NULL PRIMARY KEY, AUDIT_DESC VARCHAR(50))");
    connection.AddObserver([this](const StatementRecord& record) { seen.push_back(record); });
  }
  std::vector<StatementRecord> seen;
};

TEST_F(ConnectionTest, StateTellsOpenAndClosed) {
  EXPECT_EQ(connection.State(), Connection::Opened);
  connection.Close();
  EXPECT_EQ(connection.State(), Connection::Closed);
  connection.Open("", "", "", -1);
  EXPECT_EQ(connection.State(), 1);
}

TEST_F(ConnectionTest, OpenTwiceIsAnError) {
  EXPECT_EQ(ErrorOf([&] { connection.Open(); }).Number(), AdoNumber::Unspecified);
}

TEST_F(ConnectionTest, ClosedBetweenTwoStatementsIsReopened) {
  Run("INSERT INTO ID_AUDIT_CODE VALUES('A', 'One')");
  connection.Close();
  EXPECT_EQ(Value("SELECT AUDIT_DESC FROM ID_AUDIT_CODE"), "One");
  connection.Close();
  connection.EnsureOpen();
  EXPECT_EQ(Run("DELETE FROM ID_AUDIT_CODE"), 1);
}

TEST_F(ConnectionTest, ExecuteTellsRowsFoundAlsoWhenNothingChanges) {
  Run("INSERT INTO ID_AUDIT_CODE VALUES('A', 'One')");
  Run("INSERT INTO ID_AUDIT_CODE VALUES('B', 'Two')");
  EXPECT_EQ(Run("UPDATE ID_AUDIT_CODE SET AUDIT_DESC = 'Two' WHERE AUDIT_CODE = 'B'"), 1);
  EXPECT_EQ(Run("UPDATE ID_AUDIT_CODE SET AUDIT_DESC = 'Two'"), 2);
  EXPECT_EQ(Run("UPDATE ID_AUDIT_CODE SET AUDIT_DESC = 'x' WHERE AUDIT_CODE = 'C'"), 0);
  EXPECT_EQ(Run("DELETE FROM ID_AUDIT_CODE"), 2);
}

TEST_F(ConnectionTest, ObserverGetsTheComposedText) {
  const QString text = "INSERT  ID_AUDIT_CODE  VALUES(N'A', N'Quote '' and N''x''')";
  Run(text);
  ASSERT_EQ(seen.size(), 1u);
  EXPECT_EQ(seen[0].text, text);
  EXPECT_EQ(seen[0].affectedRows, 1);
  EXPECT_GE(seen[0].milliseconds, 0);
  EXPECT_FALSE(seen[0].failed);
  EXPECT_EQ(Value("SELECT AUDIT_DESC FROM ID_AUDIT_CODE"), "Quote ' and N'x'");
}

TEST_F(ConnectionTest, ObserverGetsFailedAndRefusedStatements) {
  ErrorOf([&] { Run("INSERT INTO ID_NOT_THERE VALUES('A')"); });
  ErrorOf([&] { Run("DELETE FROM ID_AUDIT_CODE -- all"); });
  Value("SELECT COUNT(*) FROM ID_AUDIT_CODE");
  ASSERT_EQ(seen.size(), 3u);
  EXPECT_TRUE(seen[0].failed);
  EXPECT_EQ(seen[0].affectedRows, -1);
  EXPECT_TRUE(seen[1].failed);
  EXPECT_FALSE(seen[2].failed);
  EXPECT_EQ(seen[2].affectedRows, -1);
}

TEST_F(ConnectionTest, RefusedTextsAreNotSent) {
  Run("INSERT INTO ID_AUDIT_CODE VALUES('A', 'One')");
  for (const QString& text :
       {QString("DELETE FROM ID_AUDIT_CODE -- x"), QString("DELETE FROM ID_AUDIT_CODE /* x */"),
        QString("DELETE FROM ID_AUDIT_CODE # x"), QString("DELETE FROM ID_AUDIT_CODE WHERE AUDIT_CODE <> 'x"),
        QString("DELETE FROM ID_AUDIT_CODE; DELETE FROM ID_AUDIT_CODE"), QString(" ; "), QString(),
        QString("DELETE FROM ID_AUDIT_CODE WHERE AUDIT_CODE <> 'x") + QChar(u'\0') + "'"}) {
    EXPECT_EQ(ErrorOf([&] { Run(text); }).Number(), AdoNumber::TextRefused) << text.toStdString();
  }
  EXPECT_EQ(Count("ID_AUDIT_CODE"), 1);
}

TEST_F(ConnectionTest, TablesAreListedInUpperCase) {
  Run("CREATE TABLE id_second (A INTEGER)");
  Run("CREATE TABLE OTHER_TABLE (A INTEGER)");
  EXPECT_EQ(connection.Tables(), QStringList({"ID_AUDIT_CODE", "ID_SECOND"}));
}

TEST_F(ConnectionTest, ColumnsFollowAChangeOfTheTable) {
  EXPECT_EQ(connection.Columns("ID_AUDIT_CODE").size(), 2u);
  Run("ALTER TABLE ID_AUDIT_CODE ADD AUDIT_DESC_FRE VARCHAR(50)");
  ASSERT_EQ(connection.Columns("id_audit_code").size(), 3u);
  EXPECT_EQ(connection.Columns("ID_AUDIT_CODE")[2].name, "AUDIT_DESC_FRE");
}

TEST_F(ConnectionTest, ColumnsOfAnAbsentTableAreEmpty) {
  EXPECT_TRUE(connection.Columns("ID_NOT_THERE").empty());
  EXPECT_TRUE(connection.Columns("it's; \"odd\"").empty());
}

TEST_F(ConnectionTest, LowerCaseTableNamesFindTheTable) {
  Run("insert into id_audit_code values('A', 'id_audit_code')");
  EXPECT_EQ(Value("select audit_desc from id_audit_code"), "id_audit_code");
}

TEST_F(ConnectionTest, OwnerPrefixIsUnderstood) {
  ConnectionSettings settings = database.Settings();
  settings.ownerPrefix = "OSTANA.";
  Connection owned(settings);
  owned.Open();
  owned.Execute("INSERT INTO OSTANA.ID_AUDIT_CODE VALUES('A', 'OSTANA.ID_AUDIT_CODE')");
  EXPECT_EQ(Value(owned,
                  "SELECT A.AUDIT_DESC FROM OSTANA.ID_AUDIT_CODE A, ostana.ID_AUDIT_CODE B "
                  "WHERE A.AUDIT_CODE = B.AUDIT_CODE"),
            "OSTANA.ID_AUDIT_CODE");
}

TEST_F(ConnectionTest, AThousandOpeningsLeaveNothingBehind) {
  for (int i = 0; i < 1000; ++i) {
    if (TestDatabase::TestEngine() != Engine::Sqlite && i == 50) break;  // a server's session costs milliseconds
    Connection other(database.Settings());
    other.Open();
  }
  EXPECT_EQ(connection.State(), 1);
}

}  // namespace
