#include <QFileInfo>

#include "schema/TableContent.h"
#include "support/Texts.h"
#include "tools/CarryDesk.h"
#include "tools/DatabaseBuilder.h"

namespace {

class ExportTest : public CarryDesk {};

TEST_F(ExportTest, AllTablesOfSettingsAreWrittenAndNoOthers) {
  const QString told = Done({"export", "all.txt", "--site", "Test"});
  EXPECT_TRUE(told.contains(" rows of 80 tables.")) << told.toStdString();
  const QString text = Text("all.txt");
  for (const SchemaTable& table : SchemaModel::Get().tables)
    EXPECT_EQ(text.contains("\ntable " + table.name + '\n'), Content::IsConfiguration(table))
        << table.name.toStdString();
  for (const char* table :
       {"ID_USER", "ID_USER_FUNCTION", "ID_NEXT_LIBRARY", "ID_NEXT_REQUEST", "ID_PATRON", "ID_REQUEST", "ID_DELIVERY",
        "ID_QUEUE", "ID_KEYWORD_TITLE", "ID_KEYWORD_AUTHOR", "ID_KEYWORD_CALL_NO"})
    EXPECT_FALSE(text.contains(QString("table %1\n").arg(table))) << table;
}

TEST_F(ExportTest, TheSameRowsGiveTheSameBytesOnEveryEngine) {
  Done({"export", "here.txt", "--site", "Test", "--with-secrets"});
  ConnectionSettings file;
  file.engine = Engine::Sqlite;
  file.name = Path("sample.db");
  DatabaseBuilder::MakeMissing(file);
  {
    Connection connection(file);
    connection.Open();
    DatabaseBuilder::Create(connection, DatabaseBuilder::Rows::Sample, {{"FRE", "French"}, {"GER", "German"}});
  }
  UseAsTestSite(file);
  Done({"export", "file.txt", "--site", "Test", "--with-secrets"});
  EXPECT_EQ(Text("here.txt"), Text("file.txt"));
}

TEST_F(ExportTest, ChosenTablesStandInTheOrderOfTheirKeys) {
  Done({"export", "some.txt", "--tables", "id_event, ID_LOAN_CODE,ID_EVENT"});
  const QString text = Text("some.txt");
  EXPECT_EQ(text.count("\ntable "), 2);
  EXPECT_LT(text.indexOf("table ID_LOAN_CODE\n"), text.indexOf("table ID_EVENT\n"));
  Done({"export", "requests.txt", "--tables", "ID_QUEUE,ID_REQUEST", "--site", "Test"});
  EXPECT_LT(Text("requests.txt").indexOf("table ID_REQUEST\n"), Text("requests.txt").indexOf("table ID_QUEUE\n"));
}

TEST_F(ExportTest, NumbersAreInTheOrderOfTheirSize) {
  Execute("DELETE FROM ID_EVENT");
  for (const char* event : {"100", "20", "3"})
    Execute(QString("INSERT INTO ID_EVENT (EVENT_ID, EVENT_DESC) VALUES (%1, 'x')").arg(event));
  Done({"export", "events.txt", "--tables", "ID_EVENT"});
  const QString text = Text("events.txt");
  EXPECT_LT(text.indexOf("EVENT_ID 3\n"), text.indexOf("EVENT_ID 20\n"));
  EXPECT_LT(text.indexOf("EVENT_ID 20\n"), text.indexOf("EVENT_ID 100\n"));
}

TEST_F(ExportTest, NumbersHaveTheirScaleAndDatesTheirForm) {
  Execute(
      "UPDATE ID_LIBRARY SET MAX_COST = 5, WEIGHTING_FACTOR = 0.5, NOTICE_SDATE = '2024-03-31', DATE_ENTERED = "
      "'2024-03-31 02:30:00', QUOTA_TOTAL = 12");
  Done({"export", "library.txt", "--tables", "ID_LIBRARY"});
  const QString text = Text("library.txt");
  for (const char* line : {"MAX_COST 5.00", "WEIGHTING_FACTOR 0.50", "NOTICE_SDATE 2024-03-31",
                           "DATE_ENTERED 2024-03-31 02:30:00", "QUOTA_TOTAL 12", "NOTICE_EDATE NULL"})
    EXPECT_TRUE(text.contains(QString("    %1\n").arg(line))) << line;
}

TEST_F(ExportTest, SecretsAreLeftOutUnlessAskedFor) {
  const QStringList secrets{"USER_PASSWORD",    "VORN_PASSWORD",   "RAPID_PASSWORD",  "BL_PASSWORD",
                            "CREDIT_CARD_NAME", "CREDIT_CARD_NUM", "CREDIT_CARD_EXP", "CREDIT_CARD_CODE"};
  for (const QString& column : secrets) Execute("UPDATE ID_LIBRARY SET " + column + " = 'x9z'");
  Done({"export", "open.txt", "--tables", "ID_LIBRARY,ID_USER"});
  for (const QString& column : secrets) EXPECT_FALSE(Text("open.txt").contains(column)) << column.toStdString();
  EXPECT_FALSE(Text("open.txt").contains("x9z"));
  EXPECT_TRUE(Text("open.txt").contains("    CREDIT_CARD NULL\n"));

  const Result told = Run({"export", "secret.txt", "--tables", "ID_LIBRARY,ID_USER", "--with-secrets"});
  EXPECT_TRUE(told.err.contains("holds passwords"));
  for (const QString& column : secrets)
    EXPECT_TRUE(Text("secret.txt").contains("    " + column + " \"x9z\"\n")) << column.toStdString();
#ifndef Q_OS_WIN
  EXPECT_FALSE(QFileInfo(Path("secret.txt")).permissions() & (QFileDevice::ReadGroup | QFileDevice::ReadOther));
#endif
}

TEST_F(ExportTest, ASecretIsAskedForByItsName) {
  for (const char* column : {"VORN_PASSWORD", "BL_PASSWORD", "CREDIT_CARD_NUM"})
    Execute(QString("UPDATE ID_LIBRARY SET %1 = 'of %1'").arg(column));
  const Result told =
      Run({"export", "file.txt", "--tables", "ID_LIBRARY", "--secrets", "bl_password, CREDIT_CARD_NUM"});
  EXPECT_TRUE(told.err.contains("holds passwords"));
  EXPECT_TRUE(Text("file.txt").contains("    BL_PASSWORD \"of BL_PASSWORD\"\n"));
  EXPECT_TRUE(Text("file.txt").contains("    CREDIT_CARD_NUM \"of CREDIT_CARD_NUM\"\n"));
  EXPECT_FALSE(Text("file.txt").contains("VORN_PASSWORD"));
  const Result refused = Run({"export", "other.txt", "--tables", "ID_LIBRARY", "--secrets", "VORN_SYMBOL"});
  EXPECT_EQ(refused.exitCode, 2);
  EXPECT_TRUE(refused.err.contains("\"VORN_SYMBOL\"")) << refused.err.toStdString();
  EXPECT_FALSE(QFile::exists(Path("other.txt")));
}

// A server of a partner takes it for a password.
TEST_F(ExportTest, TheAuthenticationOfAnAgencyIsASecretToo) {
  Execute("UPDATE ID_NCIP_CONNECT SET NCIP_FROM_AGENCY_AUTH = 'x9z'");
  Done({"export", "open.txt", "--tables", "ID_NCIP_CONNECT"});
  EXPECT_FALSE(Text("open.txt").contains("NCIP_FROM_AGENCY_AUTH"));
  Done({"export", "named.txt", "--tables", "ID_NCIP_CONNECT", "--secrets", "NCIP_FROM_AGENCY_AUTH"});
  EXPECT_TRUE(Text("named.txt").contains("NCIP_FROM_AGENCY_AUTH"));
}

TEST_F(ExportTest, TheTerminalGetsTheFileAndNothingElse) {
  Done({"export", "printers.txt", "--tables", "ID_PRINTER", "--site", "Test"});
  EXPECT_EQ(Done({"export", "-", "--tables", "ID_PRINTER", "--site", "Test"}), Text("printers.txt"));
}

TEST_F(ExportTest, WhatCannotBeWrittenIsTold) {
  EXPECT_TRUE(Run({"export", "missing/x.txt"}).err.contains("cannot be written"));
  EXPECT_EQ(Run({"export", "missing/x.txt"}).exitCode, 1);
  EXPECT_TRUE(Run({"export", "x.txt", "--tables", "ID_NONE"}).err.contains("There is no table \"ID_NONE\"."));
  Done({"export", "x.txt", "--tables", "ID_NONE"}, 2);
  Done({"export"}, 2);
  EXPECT_FALSE(QFileInfo::exists(Path("x.txt")));
}

TEST_F(ExportTest, AMissingTableIsNamed) {
  Execute("DROP TABLE ID_KEYWORD_TITLE");
  const Result refused = Run({"export", "x.txt", "--tables", "ID_KEYWORD_TITLE"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.err.contains("lacks the table ID_KEYWORD_TITLE")) << refused.err.toStdString();
}

}  // namespace
