#include "ado/AdoTest.h"

namespace {

class RecordsetTest : public AdoTest {
 protected:
  RecordsetTest() {
    Run("CREATE TABLE ID_A (A INTEGER NOT NULL PRIMARY KEY, B VARCHAR(30), C VARCHAR(10))");
    Run("INSERT INTO ID_A VALUES(1, N'One', NULL); INSERT INTO ID_A VALUES(2, N'Two', N''); "
        "INSERT INTO ID_A VALUES(3, N'Three', N'c')",
        3);
  }
};

TEST_F(RecordsetTest, WalksThroughItsRows) {
  Recordset rows;
  rows.Source = "SELECT A, B FROM ID_A ORDER BY A";
  rows.Open(connection);
  EXPECT_TRUE(rows.IsOpen());
  EXPECT_FALSE(rows.EOF_());
  rows.MoveLast();
  EXPECT_EQ(rows.Fields(1).Value(), "Three");
  rows.MoveFirst();
  EXPECT_EQ(rows.RecordCount(), 3);
  QStringList seen;
  for (; !rows.EOF_(); rows.MoveNext()) seen += rows.Fields("b").Value();
  EXPECT_EQ(seen, QStringList({"One", "Two", "Three"}));
  rows.Close();
  EXPECT_FALSE(rows.IsOpen());
}

TEST_F(RecordsetTest, NullIsNotTheEmptyText) {
  Recordset rows;
  rows.Open(connection, "SELECT C FROM ID_A ORDER BY A");
  EXPECT_TRUE(rows.Fields(0).IsNull());
  EXPECT_TRUE(rows.Fields(0).Value().isNull());
  rows.MoveNext();
  EXPECT_FALSE(rows.Fields(0).IsNull());
  EXPECT_FALSE(rows.Fields(0).Value().isNull());
  EXPECT_EQ(rows.Fields(0).Value(), "");
  rows.MoveNext();
  EXPECT_EQ(rows.Fields(0).Value(), "c");
}

TEST_F(RecordsetTest, ColumnsThatAnotherClientAddedAreRead) {
  Value("SELECT A FROM ID_A");
  Connection other(database.Settings());
  other.Open();
  for (const char* name : {"D", "E", "F"}) other.Execute(QString("ALTER TABLE ID_A ADD %1 VARCHAR(10)").arg(name));
  Recordset rows;
  rows.Open(connection, "SELECT * FROM ID_A ORDER BY A");
  EXPECT_EQ(rows.FieldCount(), 6);
  EXPECT_TRUE(rows.Fields("F").IsNull());
  EXPECT_EQ(rows.Fields("B").Value(), "One");
}

TEST_F(RecordsetTest, FieldsByNameAndPosition) {
  Recordset rows;
  rows.Open(connection, "select a, b as Described, count(*) from id_a group by a, b order by a");
  EXPECT_EQ(rows.FieldCount(), 3);
  EXPECT_EQ(rows.Fields(0).Name(), "A");
  EXPECT_EQ(rows.Fields(1).Name(), "DESCRIBED");
  EXPECT_EQ(rows.Fields("described").Value(), "One");
  EXPECT_EQ(rows.Fields(2).Value(), "1");
  EXPECT_TRUE(rows.HasField("A"));
  EXPECT_FALSE(rows.HasField("B"));
  EXPECT_EQ(ErrorOf([&] { rows.Fields("B"); }).Number(), AdoNumber::ItemNotFound);
  EXPECT_EQ(ErrorOf([&] { rows.Fields(3); }).Number(), AdoNumber::ItemNotFound);
  EXPECT_EQ(ErrorOf([&] { rows.Fields(-1); }).Number(), AdoNumber::ItemNotFound);
}

TEST_F(RecordsetTest, OfTwoFieldsOfOneNameTheFirstCounts) {
  Recordset rows;
  rows.Open(connection, "SELECT X.A, Y.A, X.B FROM ID_A X, ID_A Y WHERE X.A = 1 AND Y.A = 2");
  EXPECT_EQ(rows.Fields("A").Value(), "1");
  EXPECT_EQ(rows.Fields(1).Value(), "2");
}

TEST_F(RecordsetTest, WithoutRowsItStandsAtItsEnd) {
  Recordset rows;
  rows.Open(connection, "SELECT A FROM ID_A WHERE A > 10");
  EXPECT_TRUE(rows.EOF_());
  EXPECT_EQ(rows.RecordCount(), 0);
  rows.MoveFirst();
  rows.MoveLast();
  EXPECT_TRUE(rows.EOF_());
  EXPECT_EQ(rows.FieldCount(), 1);
  EXPECT_EQ(ErrorOf([&] { rows.Fields(0).Value(); }).Number(), AdoNumber::NoCurrentRow);
  EXPECT_EQ(ErrorOf([&] { rows.MoveNext(); }).Number(), AdoNumber::NoCurrentRow);
}

TEST_F(RecordsetTest, ClosedItRefusesEverything) {
  Recordset rows;
  EXPECT_EQ(ErrorOf([&] { rows.EOF_(); }).Number(), AdoNumber::ObjectClosed);
  EXPECT_EQ(ErrorOf([&] { rows.MoveFirst(); }).Number(), AdoNumber::ObjectClosed);
  EXPECT_EQ(ErrorOf([&] { rows.RecordCount(); }).Number(), AdoNumber::ObjectClosed);
  EXPECT_EQ(ErrorOf([&] { rows.Fields("A"); }).Number(), AdoNumber::ObjectClosed);
  rows.Close();
}

TEST_F(RecordsetTest, OpenedAgainItHoldsTheNewRows) {
  Recordset rows;
  rows.Open(connection, "SELECT A, B FROM ID_A");
  rows.MoveLast();
  rows.Open(connection, "SELECT B FROM ID_A WHERE A = 1");
  EXPECT_EQ(rows.RecordCount(), 1);
  EXPECT_EQ(rows.Fields(0).Value(), "One");
  EXPECT_FALSE(rows.HasField("A"));
}

TEST_F(RecordsetTest, AFailedOpenLeavesItClosed) {
  Recordset rows;
  rows.Open(connection, "SELECT A FROM ID_A");
  ErrorOf([&] { rows.Open(connection, "SELECT NO_COLUMN FROM ID_A"); });
  EXPECT_FALSE(rows.IsOpen());
}

// The second of three rows cannot be computed: half a result must not pass for a whole one.
TEST_F(RecordsetTest, AReadingThatBreaksOffIsAnError) {
  const QString broken = TestDatabase::TestEngine() == Engine::Sqlite
                             ? "CASE WHEN A = 2 THEN abs(-9223372036854775807 - 1) ELSE A END"
                             : "CASE WHEN A = 2 THEN (SELECT X.A FROM ID_A X) ELSE A END";
  Recordset rows;
  ErrorOf([&] { rows.Open(connection, "SELECT " + broken + " FROM ID_A ORDER BY A"); });
  EXPECT_FALSE(rows.IsOpen());
  EXPECT_EQ(connection.State(), 1);
}

TEST_F(RecordsetTest, OnlyASelectIsItsSource) {
  Recordset rows;
  EXPECT_EQ(ErrorOf([&] { rows.Open(connection, "DELETE FROM ID_A"); }).Number(), AdoNumber::TextRefused);
  EXPECT_EQ(Count("ID_A"), 3);
}

TEST_F(RecordsetTest, WritesAndReadsWhileAnotherIsOpen) {
  Recordset outer;
  for (outer.Open(connection, "SELECT A FROM ID_A ORDER BY A"); !outer.EOF_(); outer.MoveNext()) {
    Recordset inner;
    inner.Open(connection, "SELECT B FROM ID_A WHERE A = " + outer.Fields(0).Value());
    EXPECT_EQ(Run("UPDATE ID_A SET C = N'" + inner.Fields(0).Value() + "' WHERE A = " + outer.Fields(0).Value()), 1);
  }
  EXPECT_EQ(Column("SELECT C FROM ID_A ORDER BY A"), "One,Two,Three");
}

TEST_F(RecordsetTest, TopGivesTheFirstRows) {
  EXPECT_EQ(Column("SELECT TOP 1 A FROM ID_A ORDER BY A DESC "), "3");
  EXPECT_EQ(Column("SELECT A FROM ID_A WHERE A IN (SELECT A FROM ID_A WHERE A < 3) ORDER BY A"), "1,2");
}

TEST_F(RecordsetTest, MaxRecordsLimitsTheRows) {
  QStringList seen;
  connection.AddObserver([&](const StatementRecord& record) { seen += record.text; });
  Recordset rows;
  rows.MaxRecords = 2;
  for (const char* const select : {"SELECT   A FROM ID_A ORDER BY A", "SELECT DISTINCT A FROM ID_A ORDER BY A"}) {
    rows.Open(connection, select);
    EXPECT_EQ(rows.RecordCount(), 2);
    EXPECT_EQ(rows.Fields(0).Value(), "1");
    EXPECT_EQ(seen.last(), select);
  }
  rows.Open(connection, "SELECT TOP 1 A FROM ID_A ORDER BY A");
  EXPECT_EQ(rows.RecordCount(), 1);
  rows.MaxRecords = 0;
  rows.Open(connection, "SELECT A FROM ID_A");
  EXPECT_EQ(rows.RecordCount(), 3);
}

TEST_F(RecordsetTest, ManyRowsComeWhole) {
  Run("CREATE TABLE ID_B (A INTEGER NOT NULL PRIMARY KEY, B VARCHAR(40))");
  for (int block = 0; block < 10; ++block) {
    QStringList values;
    for (int i = 0; i < 500; ++i) {
      const int id = block * 500 + i;
      values += QStringLiteral("(%1, '%2')").arg(id).arg(QString(id % 40, u'x'));
    }
    Run("INSERT INTO ID_B VALUES " + values.join(", "));
  }
  Recordset rows;
  rows.Open(connection, "SELECT A, B FROM ID_B ORDER BY A");
  ASSERT_EQ(rows.RecordCount(), 5000);
  for (int id = 0; !rows.EOF_(); rows.MoveNext(), ++id) {
    ASSERT_EQ(rows.Fields(0).Value().toInt(), id);
    ASSERT_EQ(rows.Fields(1).Value().size(), id % 40);
  }
}

// --- Changing a row ---

class PessimisticTest : public RecordsetTest {
 protected:
  PessimisticTest() {
    rows.CursorType = Recordset::Keyset;
    rows.LockType = Recordset::Pessimistic;
    rows.Source = "SELECT   A, B, C FROM ID_A WHERE A = 1";
  }
  Recordset rows;
};

TEST_F(PessimisticTest, UpdateWritesTheChangedFields) {
  QStringList seen;
  rows.Open(connection);
  connection.AddObserver([&](const StatementRecord& record) { seen += record.text; });
  rows.SetValue("b", "It's new");
  EXPECT_EQ(rows.Fields("B").Value(), "It's new");
  rows.Update();
  EXPECT_EQ(seen, QStringList("UPDATE ID_A SET B = N'It''s new' WHERE A = 1 AND B = N'One' AND C IS NULL"));
  EXPECT_EQ(Value("SELECT B FROM ID_A WHERE A = 1"), "It's new");
  rows.SetValue("B", QString());
  rows.Update();
  EXPECT_EQ(Value("SELECT B FROM ID_A WHERE A = 1"), "(null)");
}

TEST_F(PessimisticTest, ARowChangedMeanwhileIsNotOverwritten) {
  rows.Open(connection);
  Connection other(database.Settings());
  other.Open();
  other.Execute("UPDATE ID_A SET C = N'z' WHERE A = 1");
  rows.SetValue("B", "mine");
  EXPECT_EQ(ErrorOf([&] { rows.Update(); }).Number(), AdoNumber::RowChanged);
  EXPECT_EQ(Value("SELECT B FROM ID_A WHERE A = 1"), "One");
  rows.CancelUpdate();
  EXPECT_EQ(rows.Fields("B").Value(), "One");
  rows.Close();
  rows.Open(connection);
  rows.SetValue("B", "mine");
  rows.Update();
  EXPECT_EQ(Value("SELECT B FROM ID_A WHERE A = 1"), "mine");
}

TEST_F(PessimisticTest, ANumberIsTakenByCompareAndSet) {
  Recordset second;
  second.LockType = Recordset::Pessimistic;
  rows.Open(connection, "SELECT A FROM ID_A WHERE A = 3");
  second.Open(connection, "SELECT A FROM ID_A WHERE A = 3");
  rows.SetValue("A", "4");
  rows.Update();
  second.SetValue("A", "4");
  EXPECT_EQ(ErrorOf([&] { second.Update(); }).Number(), AdoNumber::RowChanged);
}

TEST_F(PessimisticTest, RowChangedDoesNotBreakATransaction) {
  Transaction transaction(connection);
  rows.Open(connection);
  Run("UPDATE ID_A SET C = N'z' WHERE A = 1");
  rows.SetValue("B", "mine");
  ErrorOf([&] { rows.Update(); });
  rows.Open(connection);
  rows.SetValue("B", "mine");
  rows.Update();
  transaction.Commit();
  EXPECT_EQ(Value("SELECT B FROM ID_A WHERE A = 1"), "mine");
}

TEST_F(PessimisticTest, AValueThatIsNoNumberIsRefusedAndNotRun) {
  rows.Open(connection);
  rows.SetValue("A", "1, B = 'x'");
  if (TestDatabase::TestEngine() != Engine::Sqlite) {
    ErrorOf([&] { rows.Update(); });
  } else {
    rows.CancelUpdate();
  }
  EXPECT_EQ(Value("SELECT B FROM ID_A WHERE A = 1"), "One");
}

TEST_F(PessimisticTest, OnlyALockedRecordsetOfOneTableIsChanged) {
  rows.LockType = Recordset::ReadOnly;
  rows.Open(connection);
  ErrorOf([&] { rows.SetValue("B", "x"); });
  rows.LockType = Recordset::Pessimistic;
  rows.Open(connection, "SELECT X.B FROM ID_A X, ID_A Y");
  ErrorOf([&] { rows.SetValue("B", "x"); });
}

}  // namespace
