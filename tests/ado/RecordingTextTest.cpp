// The triggers of the recording as each engine gets them. Those of SQL Server are read here only: there is no such
// server.
#include <gtest/gtest.h>

#include "platform/ado/Dialect.h"
#include "platform/ado/Recording.h"
#include "platform/ado/SqlTokens.h"

namespace {

const Recording& Of(Engine engine) {
  return Dialect::For(engine).recording();
}

RecordedTable Login() {
  return {"ID_LOGIN", {{"LOGIN"}, {"NOTE"}, {"PASSWORD", true}}, {"LOGIN"}, {{"LOGIN"}}, {}};
}

QString Text(const RecordingObject& object) {
  return QString(object.text).replace(object.name, "NAME");
}

TEST(RecordingTextTest, SqlServerPairsTheRowsOfAStatementByTheirKey) {
  const auto triggers = Of(Engine::SqlServer).Triggers(Login(), "OSTANA.");
  ASSERT_EQ(triggers.size(), 1U);
  const QString open = Of(Engine::SqlServer).Routines("OSTANA.").front().name;
  const QString json =
      "CASE WHEN %1LOGIN IS NULL THEN '' ELSE CONCAT(',\"LOGIN\":', CONCAT('\"', "
      "STRING_ESCAPE(CONVERT(NVARCHAR(MAX), %1LOGIN, 121), 'json'), '\"')) END, "
      "CASE WHEN %1NOTE IS NULL THEN '' ELSE CONCAT(',\"NOTE\":', CONCAT('\"', "
      "STRING_ESCAPE(CONVERT(NVARCHAR(MAX), %1NOTE, 121), 'json'), '\"')) END, "
      "CASE WHEN %1PASSWORD IS NULL THEN '' ELSE CONCAT(',\"PASSWORD\":', 'true') END";
  const QString text = Text(triggers.front());
  EXPECT_TRUE(
      text.startsWith("CREATE TRIGGER OSTANA.NAME ON OSTANA.ID_LOGIN AFTER INSERT, UPDATE, DELETE AS BEGIN SET "
                      "NOCOUNT ON; "))
      << text.toStdString();
  EXPECT_TRUE(text.contains("DECLARE @transaction INTEGER; EXEC OSTANA." + open + " @transaction OUTPUT; "));
  EXPECT_TRUE(
      text.contains("SELECT @transaction, N'ID_LOGIN', COALESCE(CONVERT(NVARCHAR(MAX), d.LOGIN, 121), NCHAR(30)), "
                    "N'D', CONCAT('{', STUFF(CONCAT(" +
                    json.arg("d.") +
                    "), 1, 1, ''), '}'), NULL FROM deleted d WHERE NOT EXISTS (SELECT 1 FROM inserted i WHERE "
                    "EXISTS (SELECT d.LOGIN INTERSECT SELECT i.LOGIN))"));
  EXPECT_TRUE(
      text.contains("N'I', NULL, CONCAT('{', STUFF(CONCAT(" + json.arg("i.") + "), 1, 1, ''), '}') FROM inserted i"));
  EXPECT_TRUE(
      text.contains("FROM deleted d INNER JOIN inserted i ON EXISTS (SELECT d.LOGIN INTERSECT SELECT i.LOGIN) WHERE "
                    "NOT EXISTS (SELECT d.NOTE INTERSECT SELECT i.NOTE) OR NOT EXISTS (SELECT d.PASSWORD "
                    "INTERSECT SELECT i.PASSWORD)"));
}

TEST(RecordingTextTest, NoLiteralStaysOpenAndNoSecretIsRead) {
  for (const Engine engine : {Engine::Sqlite, Engine::MariaDb, Engine::SqlServer}) {
    for (const RecordingObject& object : Of(engine).Triggers(Login(), {})) {
      for (const SqlToken& token : Tokenize(object.text)) EXPECT_NE(token.kind, SqlToken::Unclosed);
      EXPECT_FALSE(object.text.contains("AS TEXT), 'PASSWORD") || object.text.contains("CAST(NEW.PASSWORD"));
      EXPECT_FALSE(object.text.contains("PASSWORD, 121"));
    }
  }
}

TEST(RecordingTextTest, ATriggerOfAnotherTextHasAnotherName) {
  RecordedTable wider = Login();
  wider.columns.push_back({"MORE"});
  for (const Engine engine : {Engine::Sqlite, Engine::MariaDb, Engine::SqlServer})
    EXPECT_NE(Of(engine).Triggers(Login(), {}).back().name, Of(engine).Triggers(wider, {}).back().name);
}

TEST(RecordingTextTest, AUserIsOneLiteral) {
  for (const Engine engine : {Engine::Sqlite, Engine::PostgreSql, Engine::MariaDb, Engine::SqlServer}) {
    const QString told = Of(engine).Told("O'Neill'; DROP TABLE x; --", "Tabulon").join('\n');
    EXPECT_TRUE(told.contains("'O''Neill''; DROP TABLE x; --'")) << told.toStdString();
  }
}

}  // namespace
