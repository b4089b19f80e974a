#include <QSet>
#include <stdexcept>

#include "schema/Languages.h"
#include "schema/SchemaModel.h"
#include "schema/SchemaStatements.h"
#include "schema/SqlScript.h"
#include "support/Texts.h"

namespace {

QString ErrorOf(const QString& schema) {
  try {
    SchemaModel::Parse(schema);
  } catch (const std::runtime_error& error) {
    return QString::fromUtf8(error.what());
  }
  return {};
}

TEST(SchemaModelTest, ATableIsReadWithEverythingThatStandsThere) {
  const SchemaModel model = SchemaModel::Parse(
      "-- Head of the file.\n\n-- Colours of\n-- things\nCREATE TABLE ID_COLOUR (\n  COLOUR VARCHAR(3) NOT NULL,\n"
      "  COLOUR_DESC VARCHAR(50), -- language\n  WEIGHT NUMERIC(6,2),\n  MADE DATE,\n  SEEN TIMESTAMP,\n  RANK "
      "INTEGER,\n"
      "  PRIMARY KEY (COLOUR),\n  UNIQUE (COLOUR_DESC, RANK)\n);\n"
      "CREATE TABLE ID_THING (COLOUR VARCHAR(3), FOREIGN KEY (COLOUR) REFERENCES ID_COLOUR (COLOUR) ON DELETE CASCADE "
      "ON "
      "UPDATE CASCADE);\nCREATE INDEX IX_RANK ON ID_COLOUR (RANK);");
  ASSERT_EQ(model.tables.size(), 2u);
  const SchemaTable& colour = model.tables[0];
  EXPECT_EQ(colour.description, "Colours of things");
  ASSERT_EQ(colour.columns.size(), 6u);
  EXPECT_TRUE(colour.columns[0].required);
  EXPECT_EQ(colour.columns[0].size, 3);
  EXPECT_FALSE(colour.columns[0].language);
  EXPECT_TRUE(colour.columns[1].language);
  EXPECT_FALSE(colour.columns[2].language);
  EXPECT_EQ(colour.columns[2].scale, 2);
  EXPECT_EQ(colour.columns[3].type, SchemaColumn::Date);
  EXPECT_EQ(colour.columns[4].type, SchemaColumn::TimeStamp);
  EXPECT_EQ(colour.primaryKey, QStringList{"COLOUR"});
  EXPECT_EQ(colour.uniqueKeys[0], (QStringList{"COLOUR_DESC", "RANK"}));
  const SchemaForeignKey& key = model.tables[1].foreignKeys[0];
  EXPECT_EQ(key.table, "ID_COLOUR");
  EXPECT_EQ(key.actions, "ON DELETE CASCADE ON UPDATE CASCADE");
  EXPECT_EQ(model.indexes[0].columns, QStringList{"RANK"});
}

TEST(SchemaModelTest, WhatCannotBeReadIsToldWithItsPlace) {
  EXPECT_TRUE(ErrorOf("CREATE TABLE ID_X (A BLOB);").contains("ID_X.A the unknown type BLOB"));
  EXPECT_TRUE(ErrorOf("CREATE TABLE ID_X (A INTEGER").contains("is expected"));
  EXPECT_TRUE(ErrorOf("DROP TABLE ID_X;").contains("CREATE is expected"));
}

TEST(SchemaModelTest, TheSchemaHoldsEveryTableOfTheSystem) {
  const SchemaModel& model = SchemaModel::Get();
  EXPECT_EQ(model.tables.size(), 91u);
  for (const SchemaTable& table : model.tables) {
    EXPECT_FALSE(table.description.isEmpty()) << table.name.toStdString() << " has no description";
    EXPECT_TRUE(table.name.startsWith("ID_"));
  }
}

TEST(SchemaModelTest, ForeignKeysNameKeysOfTablesThatComeBefore) {
  QSet<QString> before;
  for (const SchemaTable& table : SchemaModel::Get().tables) {
    for (const SchemaForeignKey& key : table.foreignKeys) {
      EXPECT_TRUE(before.contains(key.table)) << table.name.toStdString() << " refers to " << key.table.toStdString();
      const SchemaTable* const other = SchemaModel::Get().Find(key.table);
      ASSERT_NE(other, nullptr);
      EXPECT_EQ(key.references, other->primaryKey) << table.name.toStdString();
      for (int i = 0; i < key.columns.size(); ++i) {
        const SchemaColumn* const own = table.Find(key.columns[i]);
        const SchemaColumn* const referenced = other->Find(key.references[i]);
        ASSERT_TRUE(own && referenced) << table.name.toStdString();
        EXPECT_EQ(own->type, referenced->type);
        EXPECT_EQ(own->size, referenced->size) << table.name.toStdString() << '.' << own->name.toStdString();
      }
    }
    before.insert(table.name);
  }
}

TEST(SchemaModelTest, KeysAreColumnsAndPrimaryOnesAreRequired) {
  for (const SchemaTable& table : SchemaModel::Get().tables) {
    for (const QString& column : table.primaryKey) {
      ASSERT_NE(table.Find(column), nullptr) << table.name.toStdString();
      EXPECT_TRUE(table.Find(column)->required) << table.name.toStdString() << '.' << column.toStdString();
    }
    for (const QStringList& key : table.uniqueKeys)
      for (const QString& column : key) EXPECT_NE(table.Find(column), nullptr) << table.name.toStdString();
  }
}

// What the screens rely on not being refused.
TEST(SchemaModelTest, RowsMayOutliveWhatTheyNameWhereTheScreensSaySo) {
  const auto refers = [](const QString& table, const QString& column) {
    for (const SchemaForeignKey& key : SchemaModel::Get().Find(table)->foreignKeys)
      if (key.columns.contains(column)) return true;
    return false;
  };
  EXPECT_FALSE(refers("ID_LIBRARY", "CURRENCY_CODE"));
  EXPECT_FALSE(refers("ID_LIBRARY", "NCIP_SERVER_LIBRARY_ID"));
  EXPECT_FALSE(refers("ID_SERVICE_CODE", "ITEM_TYPE"));
  EXPECT_FALSE(refers("ID_ACCESS_ITEM_TYPE", "ITEM_TYPE"));
  EXPECT_FALSE(refers("ID_PATRON_MESSAGE", "PATRON_RESPONSE_EXCEPTION"));
  EXPECT_FALSE(refers("ID_NCIP_LIBRARY", "UNIT_LIBRARY_ID"));
  EXPECT_FALSE(refers("ID_ISO18626_CONNECT", "ILL_SYSTEM"));
  EXPECT_FALSE(refers("ID_ISO18626_CONNECT", "ISO18626_AUTHN_TYPE"));
  EXPECT_FALSE(refers("ID_EMAIL_MESSAGE", "LIBRARY_ID"));
  EXPECT_FALSE(refers("ID_ANNOTATION", "LIBRARY_ID"));
  EXPECT_TRUE(refers("ID_REQUEST", "LIBRARY_ID"));
  EXPECT_EQ(SchemaModel::Get().Find("ID_ISO_SERVICE_LEVEL")->columns.size(), 4u);
}

TEST(SchemaStatementsTest, SqlServerGetsNationalTextAndItsOwnWords) {
  const SchemaStatements statements(Engine::SqlServer, "OSTANA.");
  const SchemaTable& library = *SchemaModel::Get().Find("ID_LIBRARY");
  const QString text = statements.Create(library, {"ENG"});
  EXPECT_TRUE(text.startsWith("CREATE TABLE OSTANA.ID_LIBRARY (LIBRARY_ID INTEGER NOT NULL, "));
  EXPECT_TRUE(text.contains("LIBRARY_SYMBOL NVARCHAR(25) COLLATE Latin1_General_100_BIN2 NOT NULL"));
  EXPECT_TRUE(text.contains("DATE_ENTERED DATETIME2(0)"));
  EXPECT_TRUE(text.contains("[NOTE] NVARCHAR(100)"));
  EXPECT_TRUE(text.contains("REFERENCES OSTANA.ID_FILE_FORMAT (FILE_FORMAT)"));
  EXPECT_FALSE(text.contains("CHECK"));
  const SchemaTable& function = *SchemaModel::Get().Find("ID_STAT_FUNCTION");
  EXPECT_EQ(statements.AddColumn(function.name, InLanguage(function.columns[1], "FRE")),
            "ALTER TABLE OSTANA.ID_STAT_FUNCTION ADD STAT_FUNCTION_DESC_FRE NVARCHAR(50) COLLATE "
            "Latin1_General_100_BIN2");
}

// A UNIQUE of SQL Server takes one NULL only; those of the other engines any number.
TEST(SchemaStatementsTest, SqlServerKeepsAKeyWithColumnsThatMayBeNullAsAnIndexOfTheOtherRows) {
  const SchemaModel& model = SchemaModel::Get();
  const SchemaStatements statements(Engine::SqlServer, "OSTANA.");
  EXPECT_FALSE(statements.Create(*model.Find("ID_DEPARTMENT"), {}).contains("UNIQUE"));
  EXPECT_TRUE(statements.Create(*model.Find("ID_LIBRARY"), {}).contains("UNIQUE (LIBRARY_SYMBOL)"));
  EXPECT_TRUE(statements.CreateIndexes(model).contains(
      "CREATE UNIQUE INDEX UQ_DEPARTMENT_1 ON OSTANA.ID_DEPARTMENT (LIBRARY_ID, DEPARTMENT_DESC) WHERE DEPARTMENT_DESC "
      "IS NOT NULL"));
  for (const Engine engine : {Engine::Sqlite, Engine::PostgreSql, Engine::MariaDb}) {
    const SchemaStatements others(engine, {});
    EXPECT_TRUE(others.Create(*model.Find("ID_DEPARTMENT"), {}).contains("UNIQUE (LIBRARY_ID, DEPARTMENT_DESC)"));
    EXPECT_TRUE(others.CreateIndexes(model).filter("UNIQUE").isEmpty());
  }
}

TEST(SchemaStatementsTest, LanguageColumnsStandBehindAllOthers) {
  const SchemaTable& type = *SchemaModel::Get().Find("ID_SERVICE_TYPE");
  EXPECT_EQ(
      SchemaStatements(Engine::PostgreSql, {}).Create(type, {"ENG", "FRE"}),
      "CREATE TABLE ID_SERVICE_TYPE (SERVICE_TYPE VARCHAR(1) COLLATE \"C\" NOT NULL, SERVICE_TYPE_DESC VARCHAR(50) "
      "COLLATE \"C\", DELIVERY_TYPE VARCHAR(1) COLLATE \"C\", WEB_FLAG VARCHAR(1) COLLATE \"C\", "
      "SERVICE_TYPE_DESC_ENG VARCHAR(50) COLLATE \"C\", SERVICE_TYPE_DESC_FRE VARCHAR(50) COLLATE \"C\", PRIMARY KEY "
      "(SERVICE_TYPE))");
}

TEST(LanguageCodeTest, ThreeLettersOrDigitsWithALetterFirst) {
  for (const char* code : {"FRE", "A12", "GER"}) EXPECT_TRUE(Languages::IsCode(code)) << code;
  for (const char* code : {"", "FR", "FREN", "1AB", "F-R", "F R", "fre"}) EXPECT_FALSE(Languages::IsCode(code)) << code;
}

TEST(SqlScriptTest, CommentsGoAndLiteralsStay) {
  EXPECT_EQ(SqlScript::Statements("-- one\nINSERT 'a -- b; c'; -- two\n\nDELETE x;\n"),
            (QStringList{"INSERT 'a -- b; c'", "DELETE x"}));
}

}  // namespace
