#include "ado/AdoTest.h"
#include "platform/ado/DeclaredType.h"

namespace {

TEST(DeclaredTypes, WordsOfAllCatalogues) {
  struct Expected {
    const char* declared;
    int type, size, scale;
  };
  const Expected expected[] = {{"VARCHAR(3)", AdoType::VarWChar, 3, 0},
                               {"character varying(50)", AdoType::VarWChar, 50, 0},
                               {"nvarchar(25)", AdoType::VarWChar, 25, 0},
                               {"text", AdoType::VarWChar, 0, 0},
                               {"character(2)", AdoType::WChar, 2, 0},
                               {"CHAR(1)", AdoType::WChar, 1, 0},
                               {"NUMERIC(6,2)", AdoType::Numeric, 6, 2},
                               {"decimal(8, 4)", AdoType::Numeric, 8, 4},
                               {"numeric", AdoType::Numeric, 0, 0},
                               {"INTEGER", AdoType::Integer, 10, 0},
                               {"int(11)", AdoType::Integer, 10, 0},
                               {"smallint", AdoType::Integer, 5, 0},
                               {"bigint(20) unsigned", AdoType::Integer, 19, 0},
                               {"DATE", AdoType::Date, 0, 0},
                               {"timestamp without time zone", AdoType::TimeStamp, 0, 0},
                               {"timestamp(0) without time zone", AdoType::TimeStamp, 0, 0},
                               {"datetime", AdoType::TimeStamp, 0, 0},
                               {"datetime2", AdoType::TimeStamp, 0, 0},
                               {"", AdoType::VarWChar, 0, 0}};
  for (const Expected& e : expected) {
    const ColumnInfo column = DeclaredType(e.declared);
    EXPECT_EQ(column.type, e.type) << e.declared;
    EXPECT_EQ(column.definedSize, e.size) << e.declared;
    EXPECT_EQ(column.scale, e.scale) << e.declared;
  }
}

class FieldTypes : public AdoTest {
 protected:
  FieldTypes() {
    Run("CREATE TABLE ID_TYPES (ID INTEGER NOT NULL, CODE VARCHAR(3), PRICE NUMERIC(8,2), BORN DATE, CHANGED "
        "TIMESTAMP)");
  }
  void Insert(const QString& values) { Run("INSERT INTO ID_TYPES VALUES(" + values + ")"); }
};

TEST_F(FieldTypes, ColumnsOfTheCatalogue) {
  const auto& columns = connection.Columns("ID_TYPES");
  ASSERT_EQ(columns.size(), 5u);
  const int types[] = {AdoType::Integer, AdoType::VarWChar, AdoType::Numeric, AdoType::Date, AdoType::TimeStamp};
  const char* const names[] = {"ID", "CODE", "PRICE", "BORN", "CHANGED"};
  for (size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(columns[i].name, names[i]);
    EXPECT_EQ(columns[i].type, types[i]);
    EXPECT_EQ(columns[i].nullable, i != 0);
  }
  EXPECT_EQ(columns[1].definedSize, 3);
  EXPECT_EQ(columns[2].definedSize, 8);
  EXPECT_EQ(columns[2].scale, 2);
}

TEST_F(FieldTypes, FieldsTellTypeAndSizeWithoutRows) {
  Recordset rows;
  rows.Open(connection, "SELECT   * FROM ID_TYPES WHERE ID = 99");
  EXPECT_EQ(rows.Fields("CODE").Type(), AdoType::VarWChar);
  EXPECT_EQ(rows.Fields("CODE").DefinedSize(), 3);
  EXPECT_EQ(rows.Fields("PRICE").Type(), AdoType::Numeric);
  EXPECT_EQ(rows.Fields("BORN").Type(), AdoType::Date);
  EXPECT_EQ(rows.Fields("CHANGED").Type(), AdoType::TimeStamp);
}

TEST_F(FieldTypes, AWidthIsCountedInCharacters) {
  Insert(QString("1, '\u4e2d\u6587\u00e9', NULL, NULL, NULL"));
  EXPECT_EQ(Value("SELECT CODE FROM ID_TYPES").size(), 3);
}

TEST_F(FieldTypes, ExpressionsHaveATypeToo) {
  Insert("1, 'a', 1, NULL, NULL");
  Recordset rows;
  rows.Open(connection, "SELECT COUNT(*) AS N, MAX(CODE) AS T FROM ID_TYPES");
  EXPECT_EQ(rows.Fields("N").Type(), AdoType::Integer);
  EXPECT_EQ(rows.Fields("N").Value(), "1");
  EXPECT_EQ(rows.Fields("T").Type(), AdoType::VarWChar);
}

TEST_F(FieldTypes, FieldsOfAJoinAreFoundInItsTables) {
  Run("CREATE TABLE ID_OTHER (ID INTEGER NOT NULL, NAME VARCHAR(40), FEE NUMERIC(5,3))");
  Insert("1, 'a', 1.5, NULL, NULL");
  Run("INSERT INTO ID_OTHER VALUES(1, 'x', 2.5)");
  Recordset rows;
  rows.Open(connection, "SELECT T.PRICE, O.NAME, O.FEE FROM ID_TYPES T, ID_OTHER O WHERE T.ID = O.ID");
  EXPECT_EQ(rows.Fields("NAME").DefinedSize(), 40);
  EXPECT_EQ(rows.Fields("PRICE").Value(), "1.50");
  EXPECT_EQ(rows.Fields("FEE").Value(), "2.500");
}

TEST_F(FieldTypes, MoneyKeepsItsDigits) {
  for (const auto& [written, read] :
       std::initializer_list<std::pair<const char*, const char*>>{{"0", "0.00"},
                                                                  {"5", "5.00"},
                                                                  {"1.1", "1.10"},
                                                                  {"0.07", "0.07"},
                                                                  {"-3.5", "-3.50"},
                                                                  {"999999.99", "999999.99"},
                                                                  {"19.99", "19.99"},
                                                                  {"4.35", "4.35"}}) {
    Run("DELETE FROM ID_TYPES");
    Insert(QStringLiteral("1, 'a', %1, NULL, NULL").arg(written));
    EXPECT_EQ(Value("SELECT PRICE FROM ID_TYPES"), read);
    EXPECT_EQ(Run(QStringLiteral("UPDATE ID_TYPES SET ID = 1 WHERE PRICE = %1").arg(read)), 1);
  }
}

TEST_F(FieldTypes, DatesAreTextAndNullStaysNull) {
  Insert("1, 'a', NULL, " + connection.dialect().DateLiteral(QDate(2024, 2, 29)) + ", " +
         connection.dialect().DateTimeLiteral(QDateTime(QDate(2024, 2, 29), QTime(23, 5, 9))));
  Recordset rows;
  rows.Open(connection, "SELECT BORN, CHANGED, PRICE FROM ID_TYPES");
  EXPECT_EQ(rows.Fields("BORN").Value(), "2024-02-29");
  EXPECT_EQ(rows.Fields("CHANGED").Value(), "2024-02-29 23:05:09");
  EXPECT_TRUE(rows.Fields("PRICE").IsNull());
}

TEST_F(FieldTypes, AMomentInADateColumnIsADate) {
  Insert("1, 'a', NULL, '2024-02-29 12:00:00', '2024-02-29'");
  EXPECT_EQ(Value("SELECT BORN FROM ID_TYPES"), "2024-02-29");
  EXPECT_EQ(Value("SELECT CHANGED FROM ID_TYPES"), "2024-02-29 00:00:00");
}

// The hour that the clocks leap over in spring and the one that comes twice in autumn, on a machine in central Europe.
TEST_F(FieldTypes, MomentsDoNotDependOnTheClockOfTheMachine) {
  const QByteArray before = qgetenv("TZ");
  qputenv("TZ", "Europe/Berlin");
  tzset();
  for (const char* moment :
       {"2024-03-31 02:30:00", "2024-10-27 02:30:00", "2024-07-01 00:00:00", "1950-01-01 00:00:01"}) {
    Run("DELETE FROM ID_TYPES");
    Insert(QStringLiteral("1, 'a', NULL, NULL, '%1'").arg(moment));
    EXPECT_EQ(Value("SELECT CHANGED FROM ID_TYPES"), moment);
  }
  before.isEmpty() ? qunsetenv("TZ") : qputenv("TZ", before);
  tzset();
}

TEST_F(FieldTypes, ARowWithMoneyAndDatesCanBeChanged) {
  Insert("1, 'a', 1.5, '2024-03-31', '2024-03-31 02:30:00'");
  Recordset rows;
  rows.LockType = Recordset::Pessimistic;
  rows.Open(connection, "SELECT * FROM ID_TYPES");
  rows.SetValue("PRICE", "2.75");
  rows.SetValue("BORN", "2024-04-01");
  rows.Update();
  rows.SetValue("CHANGED", QString());
  rows.Update();
  EXPECT_EQ(Value("SELECT PRICE FROM ID_TYPES"), "2.75");
  EXPECT_EQ(Value("SELECT BORN FROM ID_TYPES"), "2024-04-01");
  EXPECT_EQ(Value("SELECT CHANGED FROM ID_TYPES"), "(null)");
}

}  // namespace
