#include "support/Texts.h"
#include "tools/CarryDesk.h"

namespace {

class CompareTest : public CarryDesk {
 protected:
  // The lines of a comparison that finds something.
  QStringList Different(const QStringList& arguments) {
    return Done(QStringList{"compare"} + arguments, 1).split('\n');
  }
  void Export(const QString& tables) { Done({"export", "file.txt", "--tables", tables}); }
};

TEST_F(CompareTest, AFileEqualsTheDatabaseItCameFrom) {
  Done({"export", "file.txt", "--site", "Test"});
  EXPECT_TRUE(Done({"compare", "file.txt", "--site", "Test"}).startsWith("Equal: "));
  EXPECT_TRUE(Done({"compare", "file.txt", "--other-site", "Test"}).startsWith("Equal: "));
}

TEST_F(CompareTest, AnAddedRowIsShownWithItsValues) {
  Execute("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('Basement', 'lp0')");
  Export("ID_PRINTER");
  Execute("DELETE FROM ID_PRINTER WHERE PRINTER = 'Basement'");
  const QStringList lines = Different({"file.txt"});
  EXPECT_TRUE(lines.contains("ID_PRINTER: 1 added, 0 changed, 0 removed"));
  EXPECT_EQ(lines.indexOf("      DEVICE \"lp0\""), lines.indexOf("  + PRINTER \"Basement\"") + 1);
}

TEST_F(CompareTest, AChangedRowShowsBothValuesOfWhatDiffersAlone) {
  Execute("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('Basement', NULL)");
  Export("ID_PRINTER");
  Execute("UPDATE ID_PRINTER SET DEVICE = '' WHERE PRINTER = 'Basement'");
  const QStringList lines = Different({"file.txt"});
  EXPECT_TRUE(lines.contains("ID_PRINTER: 0 added, 1 changed, 0 removed"));
  EXPECT_EQ(lines.indexOf("      DEVICE \"\" -> NULL"), lines.indexOf("  ~ PRINTER \"Basement\"") + 1);
}

TEST_F(CompareTest, ARemovedRowIsNamed) {
  Export("ID_DEPARTMENT,ID_PRINTER");
  Execute("INSERT INTO ID_DEPARTMENT (LIBRARY_ID, DEPARTMENT) VALUES (9999999, 'a b')");
  const QStringList lines = Different({"file.txt"});
  EXPECT_TRUE(lines.contains("ID_DEPARTMENT: 0 added, 0 changed, 1 removed"));
  EXPECT_TRUE(lines.contains("  - LIBRARY_ID 9999999, DEPARTMENT \"a b\""));
  EXPECT_FALSE(lines.join('\n').contains("ID_PRINTER"));
}

TEST_F(CompareTest, RowsWithoutAKeyAreCountedWhole) {
  const QString row = "INSERT INTO ID_SERVICE_CODE (SERVICE_CODE, ITEM_TYPE) VALUES ('Q', %1)";
  for (const char* type : {"'A'", "'A'", "'A'", "NULL"}) Execute(row.arg(type));
  Export("ID_SERVICE_CODE");
  Execute("DELETE FROM ID_SERVICE_CODE WHERE SERVICE_CODE = 'Q'");
  for (const char* type : {"'A'", "''", "''"}) Execute(row.arg(type));
  const QStringList lines = Different({"file.txt"});
  EXPECT_TRUE(lines.contains("ID_SERVICE_CODE: 3 added, 0 changed, 2 removed"));
  EXPECT_EQ(lines.count("  + SERVICE_CODE \"Q\", ITEM_TYPE \"A\", DELIVERY_METHOD NULL, SERVICE_LEVEL NULL, "
                        "SYSTEM_SOURCE NULL, COUNTRY_REGION NULL"),
            2);
  EXPECT_EQ(lines.filter("  - SERVICE_CODE \"Q\", ITEM_TYPE \"\"").size(), 2);
}

TEST_F(CompareTest, AUniqueWithNullTellsRowsApart) {
  Execute("INSERT INTO ID_EMAIL_MESSAGE (LIBRARY_ID, EMAIL_MESSAGE_SUBJECT) VALUES (7, 'new')");
  Export("ID_EMAIL_MESSAGE");
  Execute("UPDATE ID_EMAIL_MESSAGE SET EMAIL_MESSAGE_SUBJECT = 'old' WHERE LIBRARY_ID = 7");
  const QStringList lines = Different({"file.txt"});
  EXPECT_TRUE(lines.contains("  ~ LIBRARY_ID 7, PATRON_ID NULL"));
  EXPECT_TRUE(lines.contains("      EMAIL_MESSAGE_SUBJECT \"old\" -> \"new\""));
}

TEST_F(CompareTest, LetterCaseBlanksAndAccentsAreDifferences) {
  Execute("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('p', 'café')");
  Export("ID_PRINTER");
  for (const char* device : {"CAFÉ", "cafe", "café "}) {
    Execute(QString("UPDATE ID_PRINTER SET DEVICE = '%1'").arg(device));
    Different({"file.txt"});
  }
  Execute("UPDATE ID_PRINTER SET DEVICE = 'café'");
  Done({"compare", "file.txt"});
}

TEST_F(CompareTest, ASecretIsComparedAndNotShown) {
  Execute("UPDATE ID_LIBRARY SET BL_PASSWORD = 'first7'");
  Done({"export", "file.txt", "--tables", "ID_LIBRARY", "--with-secrets"});
  Execute("UPDATE ID_LIBRARY SET BL_PASSWORD = 'second7', VORN_PASSWORD = 'third7'");
  const QString lines = Different({"file.txt"}).join('\n');
  EXPECT_TRUE(lines.contains("BL_PASSWORD *** -> ***"));
  EXPECT_TRUE(lines.contains("VORN_PASSWORD *** -> NULL"));
  for (const char* secret : {"first7", "second7", "third7"}) EXPECT_FALSE(lines.contains(secret));
}

TEST_F(CompareTest, ColumnsThatTheFileLeavesOutAreNotCompared) {
  Export("ID_LIBRARY,ID_PRINTER");
  Execute("UPDATE ID_LIBRARY SET BL_PASSWORD = 'x'");
  Done({"add-language", "ITA", "Italian"});
  Done({"compare", "file.txt"});
}

TEST_F(CompareTest, AColumnThatTheDatabaseLacksIsADifference) {
  Export("ID_EVENT");
  Execute("ALTER TABLE ID_EVENT DROP COLUMN EVENT_DESC_GER");
  EXPECT_TRUE(Different({"file.txt"}).contains("  column EVENT_DESC_GER is only in the first"));
}

TEST_F(CompareTest, TwoFilesNeedNoDatabase) {
  Done({"export", "one.txt", "--tables", "ID_PRINTER,ID_EVENT"});
  Done({"export", "two.txt", "--tables", "ID_EVENT"});
  Done({"export", "three.txt", "--tables", "ID_EVENT"});
  Edit("three.txt", "\"Delivered\"", "\"Handed over\"");
  WriteSettings("[Database]\nEngine=SQLITE\nName=none.db\n");
  EXPECT_TRUE(Different({"one.txt", "two.txt"}).contains("ID_PRINTER: only in the file one.txt"));
  EXPECT_TRUE(Different({"two.txt", "one.txt"}).contains("ID_PRINTER: only in the file one.txt"));
  EXPECT_TRUE(Different({"three.txt", "two.txt"}).contains("      EVENT_DESC \"Delivered\" -> \"Handed over\""));
  Done({"compare", "two.txt", "two.txt"});
}

TEST_F(CompareTest, TwoSitesAreComparedWithoutAFile) {
  EXPECT_TRUE(Different({"--other-site", "Test"}).contains("  - LIBRARY_ID 10000000"));
  Done({"compare", "--site", "Test", "--other-site", "Test"});
}

TEST_F(CompareTest, SecretsOfTwoSitesAreComparedWhenAskedFor) {
  Execute("UPDATE ID_LIBRARY SET BL_PASSWORD = 'here'");
  TestSite().Execute("UPDATE ID_LIBRARY SET BL_PASSWORD = 'there' WHERE LIBRARY_ID = 9999999");
  TestSite().Execute("UPDATE ID_LIBRARY SET DATE_ENTERED = NULL, LAST_MODIFIED = NULL");
  Execute("UPDATE ID_LIBRARY SET DATE_ENTERED = NULL, LAST_MODIFIED = NULL");
  const QStringList command{"--other-site", "Test", "--tables", "ID_LIBRARY"};
  EXPECT_FALSE(Different(command).join('\n').contains("BL_PASSWORD"));
  EXPECT_TRUE(Different(command + QStringList{"--with-secrets"}).contains("      BL_PASSWORD *** -> ***"));
}

TEST_F(CompareTest, WhatCannotBeComparedEndsWithStatusTwo) {
  Export("ID_PRINTER");
  for (const QStringList& arguments :
       {QStringList{}, QStringList{"file.txt", "file.txt", "file.txt"},
        QStringList{"file.txt", "file.txt", "--other-site", "Test"}, QStringList{"file.txt", "--tables", "ID_EVENT"},
        QStringList{"none.txt"}, QStringList{"Ostana.ini"}, QStringList{"--other-site", "South"},
        QStringList{"--other-site", "Test", "--tables", "ID_NONE"}}) {
    const Result refused = Run(QStringList{"compare"} + arguments);
    EXPECT_EQ(refused.exitCode, 2) << arguments.join(' ').toStdString();
    EXPECT_FALSE(refused.err.isEmpty());
  }
}

}  // namespace
