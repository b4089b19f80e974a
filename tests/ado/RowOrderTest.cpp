#include "ado/TestDatabase.h"

namespace {

// A table of a description that ties and is missing, beside one of libraries.
class RowOrderTest : public AdoTest {
 protected:
  RowOrderTest() : ordered(WithKeys(database.Settings())) {
    ordered.Open();
    Run("CREATE TABLE ID_A (A INTEGER NOT NULL PRIMARY KEY, B VARCHAR(30), L INTEGER)");
    Run("CREATE TABLE ID_B (L INTEGER NOT NULL PRIMARY KEY, S VARCHAR(10))");
    for (const char* row : {"(5, N'x', 2)", "(3, NULL, 1)", "(4, N'a', 2)", "(1, N'x', 1)", "(2, NULL, 2)"})
      Run(QString("INSERT INTO ID_A VALUES") + row);
    for (const char* row : {"(2, N'S')", "(1, N'S')", "(3, N'T')"}) Run(QString("INSERT INTO ID_B VALUES") + row);
  }

  static ConnectionSettings WithKeys(ConnectionSettings settings) {
    settings.keyOf = [](const QString& table) {
      if (table == u"ID_A") return QStringList("A");
      return table == u"ID_B" ? QStringList("L") : QStringList();
    };
    return settings;
  }

  QString Rows(const QString& sql) {
    QStringList values;
    Recordset rows;
    for (rows.Open(ordered, sql); !rows.EOF_(); rows.MoveNext()) values += rows.Fields(0).Value();
    return values.join(u',');
  }

  Connection ordered;
};

TEST_F(RowOrderTest, RowsWithoutAValueStandFirst) {
  EXPECT_EQ(Column("SELECT A FROM ID_A ORDER BY B, A"), "2,3,4,1,5");
  EXPECT_EQ(Column("SELECT A FROM ID_A Order By B DESC, A DESC"), "5,1,4,3,2");
  EXPECT_EQ(Column("SELECT TOP 1 A FROM ID_A ORDER BY B, A"), "2");
  EXPECT_EQ(Column("SELECT A FROM ID_A WHERE A > (SELECT TOP 1 A FROM ID_A ORDER BY B, A) ORDER BY A DESC"), "5,4,3");
}

TEST_F(RowOrderTest, RowsThatTieStandInTheOrderOfTheirKey) {
  EXPECT_EQ(Rows("SELECT A FROM ID_A ORDER BY B"), "2,3,4,1,5");
  EXPECT_EQ(Rows("SELECT A FROM ID_A ORDER BY B DESC"), "1,5,4,2,3");
  EXPECT_EQ(Rows("SELECT   * FROM ID_A ORDER BY L "), "1,3,2,4,5");
  EXPECT_EQ(Rows("SELECT A.A FROM ID_A A, ID_B B WHERE A.L = B.L ORDER BY B.S"), "1,2,3,4,5");
  EXPECT_EQ(Rows("SELECT B.L FROM ID_B B LEFT JOIN ID_A A ON A.L = B.L ORDER BY B.S"), "1,1,2,2,2,3");
}

TEST_F(RowOrderTest, RowsOfNoOrderStandInTheOrderOfTheirKey) {
  EXPECT_EQ(Rows("SELECT A FROM ID_A"), "1,2,3,4,5");
  EXPECT_EQ(Rows("SELECT TOP 2 A FROM ID_A WHERE L = 2"), "2,4");
  EXPECT_EQ(Rows("SELECT DISTINCT B, L FROM ID_A"), ",,a,x,x");
  EXPECT_EQ(Rows("SELECT DISTINCT L, B FROM ID_A ORDER BY B"), "1,2,2,1,2");
}

TEST_F(RowOrderTest, WhatCountsOrUnitesRowsIsLeftAsItIs) {
  EXPECT_EQ(Rows("SELECT COUNT(*) FROM ID_A"), "5");
  EXPECT_EQ(Rows("SELECT MAX(A) FROM ID_A"), "5");
  EXPECT_EQ(Rows("SELECT COUNT(*) FROM ID_A GROUP BY L ORDER BY L"), "2,3");
  EXPECT_EQ(Rows("SELECT A FROM ID_A WHERE A = 1 UNION ALL SELECT L FROM ID_B WHERE L = 3 ORDER BY 1"), "1,3");
  EXPECT_EQ(Rows("SELECT 1"), "1");
}

TEST_F(RowOrderTest, ATableOfAnUnknownKeyHasTheOrderOfItsStatement) {
  Run("CREATE TABLE ID_C (A INTEGER NOT NULL PRIMARY KEY)");
  Run("INSERT INTO ID_C VALUES(1); INSERT INTO ID_C VALUES(2)", 2);
  EXPECT_EQ(Rows("SELECT A FROM ID_C ORDER BY A DESC"), "2,1");
}

}  // namespace
