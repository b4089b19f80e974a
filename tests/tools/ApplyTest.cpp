#include "schema/SchemaModel.h"
#include "support/Texts.h"
#include "tools/CarryDesk.h"

namespace {

class ApplyTest : public CarryDesk {
 protected:
  void Export(const QString& tables) { Done({"export", "file.txt", "--tables", tables}); }
  // The file is refused; what is told.
  QString Refused(const QStringList& options = {}) {
    const Result refused = Run(QStringList{"apply", "file.txt"} + options);
    EXPECT_EQ(refused.exitCode, 1) << refused.out.toStdString();
    return refused.err;
  }
  // All settings, to see that nothing has changed.
  QString Everything() { return Done({"export", "-", "--with-secrets"}); }
  void AddLibrary(int id, const QString& symbol) {
    Execute(QString("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (%1, '%2', 'X')")
                .arg(QString::number(id), symbol));
  }
  QString Symbol(int id) { return Ask(QString("SELECT LIBRARY_SYMBOL FROM ID_LIBRARY WHERE LIBRARY_ID = %1").arg(id)); }
};

TEST_F(ApplyTest, ATestSiteIsCarriedWholeIntoAnEmptyOne) {
  Done({"add-language", "FRE", "French", "--legacy-columns"});
  Done({"export", "file.txt", "--site", "Test"});
  Done({"apply", "file.txt", "--delete"});
  Done({"compare", "file.txt"});
  Done({"export", "again.txt"});
  EXPECT_EQ(Text("again.txt"), Text("file.txt"));
  EXPECT_EQ(Count("ID_REQUEST"), 0);
  EXPECT_EQ(Count("ID_PATRON"), 0);
  EXPECT_TRUE(Done({"apply", "file.txt", "--delete"}).contains("Done: 0 rows added, 0 changed, 0 removed."));
}

TEST_F(ApplyTest, ALanguageThatTheDatabaseLacksIsAskedFor) {
  Done({"add-language", "ITA", "Italian", "--site", "Test"});
  Done({"export", "file.txt", "--tables", "ID_EVENT", "--site", "Test"});
  const QString told = Refused();
  EXPECT_TRUE(told.contains("lacks columns that the file names: ID_EVENT.EVENT_DESC_ITA.")) << told.toStdString();
  EXPECT_TRUE(told.contains("tabulon-db add-language"));
}

TEST_F(ApplyTest, HostileTextsArriveAsTheyWere) {
  const QStringList texts{"O'Neil",
                          "'; DELETE FROM ID_PRINTER; --",
                          "\\",
                          "\"\"",
                          "a\r\nb\n\tc",
                          " x ",
                          "漢字 😀 ğİı é e\u0301",
                          "%_[]",
                          "N'x'",
                          "NULL",
                          QString::fromUtf8("\u2028\u202e\u00a0")};
  const QString device = "UPDATE ID_PRINTER SET DEVICE = '%1' WHERE PRINTER = '%2'";
  for (int i = 0; i < texts.size(); ++i) {
    Execute(QString("INSERT INTO ID_PRINTER (PRINTER) VALUES ('%1')").arg(i));
    QString quoted = texts[i];
    Execute(device.arg(quoted.replace('\'', "''"), QString::number(i)));
  }
  Export("ID_PRINTER");
  Execute("DELETE FROM ID_PRINTER");
  Done({"apply", "file.txt"});
  for (int i = 0; i < texts.size(); ++i)
    EXPECT_EQ(Ask(QString("SELECT DEVICE FROM ID_PRINTER WHERE PRINTER = '%1'").arg(i)), texts[i]);
  Execute("UPDATE ID_PRINTER SET DEVICE = ''");
  Done({"apply", "file.txt"});
  Done({"compare", "file.txt"});
}

TEST_F(ApplyTest, HostileTextsOfTheKeyFindTheirRows) {
  for (const char* printer : {"a''b", "A''B", "a ", "a", "é", "e", "%", "\\"})
    Execute(QString("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('%1', 'new')").arg(printer));
  Export("ID_PRINTER");
  Execute("UPDATE ID_PRINTER SET DEVICE = 'old' WHERE PRINTER <> 'a'");
  Done({"apply", "file.txt"});
  Done({"compare", "file.txt"});
  Edit("file.txt", "\"a \"", "\"b\"");
  Done({"apply", "file.txt", "--delete"});
  EXPECT_EQ(Count("ID_PRINTER", "PRINTER = 'a'"), 1);
  Done({"compare", "file.txt"});
}

TEST_F(ApplyTest, RowsThatTheFileHasNotStayUnlessAskedFor) {
  Export("ID_PRINTER");
  Execute("INSERT INTO ID_PRINTER (PRINTER) VALUES ('ours')");
  const QString told = Done({"apply", "file.txt"});
  EXPECT_TRUE(told.contains("1 rows that the file has not stay")) << told.toStdString();
  EXPECT_EQ(Count("ID_PRINTER", "PRINTER = 'ours'"), 1);
  EXPECT_TRUE(Done({"apply", "file.txt", "--delete"}).contains("  - PRINTER \"ours\""));
  EXPECT_EQ(Count("ID_PRINTER", "PRINTER = 'ours'"), 0);
}

TEST_F(ApplyTest, TablesThatTheFileDoesNotNameStayAsTheyAre) {
  QStringList others;
  for (const SchemaTable& table : SchemaModel::Get().tables) others += table.name;
  for (const char* named : {"ID_CURRENCY_CODE", "ID_PRINTER"}) EXPECT_EQ(others.removeAll(named), 1);
  const QStringList look{"export", "-", "--tables", others.join(','), "--with-secrets", "--site", "Test"};
  const QString before = Done(look);
  EXPECT_GT(before.count("\n  row\n"), 500) << "a site with rows";
  Write("file.txt",
        "Tabulon settings, format 1\ntable ID_CURRENCY_CODE\n  column CURRENCY_CODE\n  column CURRENCY_CODE_DESC\n"
        "  row\n    CURRENCY_CODE \"XTS\"\n    CURRENCY_CODE_DESC \"For tests\"\n"
        "table ID_PRINTER\n  column PRINTER\n  row\n    PRINTER \"new\"\nend\n");
  Done({"apply", "file.txt", "--delete", "--site", "Test"});
  EXPECT_EQ(Done(look), before);
  Done({"compare", "file.txt", "--site", "Test"});
}

TEST_F(ApplyTest, ADryRunChangesNothing) {
  Export("ID_EVENT,ID_PRINTER");
  Edit("file.txt", "\"Delivered\"", "\"Handed over\"");
  Execute("INSERT INTO ID_PRINTER (PRINTER) VALUES ('ours')");
  const QString before = Everything();
  const QString told = Done({"apply", "file.txt", "--dry-run", "--delete"});
  EXPECT_TRUE(told.contains("      EVENT_DESC \"Delivered\" -> \"Handed over\""));
  EXPECT_TRUE(told.contains("  - PRINTER \"ours\""));
  EXPECT_TRUE(told.contains("Dry run, nothing was changed. It would be: 0 rows added, 1 changed, 1 removed."));
  EXPECT_EQ(Everything(), before);
}

TEST_F(ApplyTest, ADryRunMeetsRefusalsToo) {
  Export("ID_LOAN_CODE");
  AddLibrary(5, "A");
  Execute("INSERT INTO ID_LOAN_CODE (LOAN_CODE) VALUES ('7')");
  Execute("UPDATE ID_LIBRARY SET LOAN_CODE = '7' WHERE LIBRARY_ID = 5");
  const QString before = Everything();
  EXPECT_TRUE(
      Refused({"--dry-run", "--delete"}).contains("The row LOAN_CODE \"7\" of ID_LOAN_CODE cannot be removed."));
  EXPECT_EQ(Everything(), before);
}

TEST_F(ApplyTest, ARefusedRowTakesAllOthersBack) {
  AddLibrary(5, "A");
  AddLibrary(6, "B");
  Export("ID_LIBRARY,ID_PRINTER");
  Execute("DELETE FROM ID_LIBRARY WHERE LIBRARY_ID = 5");
  Edit("file.txt", "LIBRARY_TYPE NULL", "LIBRARY_TYPE \"#\"");
  Edit("file.txt", "table ID_PRINTER\n  column PRINTER\n  column DEVICE\n",
       "table ID_PRINTER\n  column PRINTER\n  column DEVICE\n  row\n    PRINTER \"new\"\n    DEVICE NULL\n");
  const QString before = Everything();
  const QString told = Refused();
  EXPECT_TRUE(told.contains("The row LIBRARY_ID 6 of ID_LIBRARY cannot be changed.")) << told.toStdString();
  EXPECT_TRUE(told.contains("REFERENCE"));
  EXPECT_TRUE(told.contains("Nothing was changed."));
  EXPECT_EQ(Everything(), before);
}

TEST_F(ApplyTest, ALaterRefusalTakesEarlierTablesBack) {
  Export("ID_EVENT,ID_PRINTER");
  Edit("file.txt", "\"Delivered\"", "\"Handed over\"");
  Edit("file.txt", "\nend\n", "  row\n    PRINTER \"" + QString(41, 'x') + "\"\n    DEVICE NULL\n\nend\n");
  const QString before = Everything();
  const QString told = Refused();
  EXPECT_TRUE(told.contains("of ID_PRINTER cannot be added.")) << told.toStdString();
  EXPECT_EQ(Everything(), before);
}

TEST_F(ApplyTest, ARowInUseIsNotRemoved) {
  Export("ID_LOAN_CODE");
  Execute("INSERT INTO ID_LOAN_CODE (LOAN_CODE) VALUES ('7')");
  AddLibrary(5, "A");
  Execute("UPDATE ID_LIBRARY SET LOAN_CODE = '7' WHERE LIBRARY_ID = 5");
  EXPECT_TRUE(Refused({"--delete"}).contains("REFERENCE"));
  EXPECT_EQ(Count("ID_LOAN_CODE", "LOAN_CODE = '7'"), 1);
}

TEST_F(ApplyTest, ARowMayGoWhenTheFileTakesItsLastUseAway) {
  AddLibrary(5, "A");
  Export("ID_LOAN_CODE,ID_LIBRARY");
  Execute("INSERT INTO ID_LOAN_CODE (LOAN_CODE) VALUES ('7')");
  Execute("UPDATE ID_LIBRARY SET LOAN_CODE = '7' WHERE LIBRARY_ID = 5");
  Done({"apply", "file.txt", "--delete"});
  Done({"compare", "file.txt"});
}

TEST_F(ApplyTest, NotesOfARemovedExceptionDoNotGoUnasked) {
  Export("ID_EXCEPTION_PROCESS");
  const QString code = Ask("SELECT MIN(EXCEPTION_CODE) FROM ID_EXCEPTION_CODE");
  const QString process = Ask("SELECT MIN(PROCESS_TYPE) FROM ID_PROCESS_TYPE");
  const QString pair = QString("'%1', '%2'").arg(code, process);
  Execute("INSERT INTO ID_EXCEPTION_PROCESS (EXCEPTION_CODE, PROCESS_TYPE) VALUES (" + pair + ')');
  Execute("INSERT INTO ID_EXCEPTION_NOTE (EXCEPTION_CODE, PROCESS_TYPE, EXCEPTION_NOTE_SEQ) VALUES (" + pair + ", 1)");
  EXPECT_TRUE(Refused({"--delete"}).contains("1 rows of ID_EXCEPTION_NOTE would go with it."));
  EXPECT_EQ(Count("ID_EXCEPTION_NOTE"), 1);
  Edit("file.txt", "\nend\n",
       "\ntable ID_EXCEPTION_NOTE\n  column EXCEPTION_CODE\n  column PROCESS_TYPE\n  column EXCEPTION_NOTE_SEQ\nend\n");
  Done({"apply", "file.txt", "--delete"});
  EXPECT_EQ(Count("ID_EXCEPTION_NOTE"), 0);
  EXPECT_EQ(Count("ID_EXCEPTION_PROCESS"), 0);
}

TEST_F(ApplyTest, NamesMayChangeHands) {
  AddLibrary(5, "A");
  AddLibrary(6, "B");
  AddLibrary(7, "C");
  Export("ID_LIBRARY");
  Execute("UPDATE ID_LIBRARY SET LIBRARY_SYMBOL = 'Z' WHERE LIBRARY_ID = 5");
  Execute("UPDATE ID_LIBRARY SET LIBRARY_SYMBOL = 'A' WHERE LIBRARY_ID = 6");
  Execute("UPDATE ID_LIBRARY SET LIBRARY_SYMBOL = 'B' WHERE LIBRARY_ID = 5");
  Execute("DELETE FROM ID_LIBRARY WHERE LIBRARY_ID = 7");
  AddLibrary(8, "C");
  Done({"apply", "file.txt", "--delete"});
  EXPECT_EQ(Symbol(5), "A");
  EXPECT_EQ(Symbol(6), "B");
  EXPECT_EQ(Symbol(7), "C");
  Done({"compare", "file.txt"});
}

TEST_F(ApplyTest, ANameThatStaysInUseIsRefused) {
  AddLibrary(7, "C");
  Export("ID_LIBRARY");
  Execute("DELETE FROM ID_LIBRARY WHERE LIBRARY_ID = 7");
  AddLibrary(8, "C");
  const QString told = Refused();
  EXPECT_TRUE(told.contains("The row LIBRARY_ID 7 of ID_LIBRARY cannot be added.")) << told.toStdString();
  EXPECT_TRUE(told.contains("duplicate"));
  EXPECT_EQ(Symbol(8), "C");
}

TEST_F(ApplyTest, LeftOutSecretsStayAsTheyAre) {
  AddLibrary(5, "A");
  Export("ID_LIBRARY");
  Execute("UPDATE ID_LIBRARY SET USER_PASSWORD = 'kept', CREDIT_CARD_NUM = '4711', NOTE = 'old'");
  Done({"apply", "file.txt", "--delete"});
  EXPECT_EQ(Ask("SELECT NOTE FROM ID_LIBRARY WHERE LIBRARY_ID = 5"), "(null)");
  EXPECT_EQ(Ask("SELECT USER_PASSWORD FROM ID_LIBRARY WHERE LIBRARY_ID = 5"), "kept");
  EXPECT_EQ(Ask("SELECT CREDIT_CARD_NUM FROM ID_LIBRARY WHERE LIBRARY_ID = 5"), "4711");
}

TEST_F(ApplyTest, SecretsAskedForAreCarriedAndNotShown) {
  AddLibrary(5, "A");
  Execute("UPDATE ID_LIBRARY SET USER_PASSWORD = 'carried' WHERE LIBRARY_ID = 5");
  Done({"export", "file.txt", "--tables", "ID_LIBRARY,ID_USER", "--with-secrets"});
  const QString record = Ask("SELECT USER_PASSWORD FROM ID_USER WHERE USER_ID = 'admin'");
  Execute("UPDATE ID_LIBRARY SET USER_PASSWORD = 'other'");
  Execute("UPDATE ID_USER SET USER_PASSWORD = 'other'");
  const QString told = Done({"apply", "file.txt"});
  EXPECT_TRUE(told.contains("USER_PASSWORD *** -> ***"));
  EXPECT_FALSE(told.contains("carried") || told.contains("other"));
  EXPECT_EQ(Ask("SELECT USER_PASSWORD FROM ID_LIBRARY WHERE LIBRARY_ID = 5"), "carried");
  EXPECT_EQ(Ask("SELECT USER_PASSWORD FROM ID_USER WHERE USER_ID = 'admin'"), record);
}

TEST_F(ApplyTest, ANewUserNeedsThePassword) {
  Done({"export", "file.txt", "--tables", "ID_USER"});
  Edit("file.txt", "\"admin\"", "\"eva\"");
  EXPECT_TRUE(Refused().contains("The row USER_ID \"eva\" of ID_USER cannot be added."));
  EXPECT_EQ(Count("ID_USER"), 1);
}

TEST_F(ApplyTest, LanguagesThatTheFileDoesNotKnowStay) {
  Execute("INSERT INTO ID_MSG_FORMAT (MSG_FORMAT, MSG_FORMAT_DESC, MSG_FORMAT_DESC_ENG) VALUES ('7', 'New', 'New')");
  Export("ID_MSG_FORMAT");
  Execute("DELETE FROM ID_MSG_FORMAT WHERE MSG_FORMAT = '7'");
  Done({"add-language", "ITA", "Italian"});
  Execute("UPDATE ID_MSG_FORMAT SET MSG_FORMAT_DESC_ITA = 'Testo', MSG_FORMAT_DESC = 'changed'");
  Done({"apply", "file.txt"});
  EXPECT_EQ(Count("ID_MSG_FORMAT", "MSG_FORMAT_DESC = 'changed'"), 0);
  EXPECT_EQ(Ask("SELECT DISTINCT MSG_FORMAT_DESC_ITA FROM ID_MSG_FORMAT WHERE MSG_FORMAT <> '7'"), "Testo");
  // A new row begins with its description in every language, as rows of the programs do.
  EXPECT_EQ(Ask("SELECT MSG_FORMAT_DESC_ITA FROM ID_MSG_FORMAT WHERE MSG_FORMAT = '7'"), "New");
}

TEST_F(ApplyTest, RowsWithoutAKeyBecomeAsManyAsTheFileHas) {
  const QString row = "INSERT INTO ID_SERVICE_CODE (SERVICE_CODE, ITEM_TYPE) VALUES ('%1', NULL)";
  for (const char* code : {"A", "A", "B"}) Execute(row.arg(code));
  Export("ID_SERVICE_CODE");
  Execute("DELETE FROM ID_SERVICE_CODE WHERE SERVICE_CODE IN ('A', 'B')");
  for (const char* code : {"A", "B", "B", "B", "C", "C"}) Execute(row.arg(code));
  Done({"apply", "file.txt", "--delete"});
  EXPECT_EQ(Count("ID_SERVICE_CODE", "SERVICE_CODE = 'A'"), 2);
  EXPECT_EQ(Count("ID_SERVICE_CODE", "SERVICE_CODE = 'B'"), 1);
  EXPECT_EQ(Count("ID_SERVICE_CODE", "SERVICE_CODE = 'C'"), 0);
  Done({"compare", "file.txt"});
}

TEST_F(ApplyTest, ATextOfTheWholeSystemIsChangedAndNotDoubled) {
  Execute("INSERT INTO ID_EMAIL_MESSAGE (LIBRARY_ID, EMAIL_MESSAGE_SUBJECT) VALUES (0, 'new')");
  Export("ID_EMAIL_MESSAGE");
  Execute("UPDATE ID_EMAIL_MESSAGE SET EMAIL_MESSAGE_SUBJECT = 'old'");
  Done({"apply", "file.txt"});
  EXPECT_EQ(Count("ID_EMAIL_MESSAGE", "LIBRARY_ID = 0"), 1);
  EXPECT_EQ(Ask("SELECT EMAIL_MESSAGE_SUBJECT FROM ID_EMAIL_MESSAGE WHERE LIBRARY_ID = 0"), "new");
}

TEST_F(ApplyTest, ACounterStaysOneRow) {
  Export("ID_NEXT_REQUEST");
  Execute("UPDATE ID_NEXT_REQUEST SET NEXT_REQUEST = 77");
  EXPECT_TRUE(Done({"apply", "file.txt"}).contains("  ~ its only row\n      NEXT_REQUEST 77 -> 1"));
  EXPECT_EQ(Count("ID_NEXT_REQUEST"), 1);
  EXPECT_EQ(Ask("SELECT NEXT_REQUEST FROM ID_NEXT_REQUEST"), "1");
}

TEST_F(ApplyTest, ACounterBehindTheNewLibrariesIsTold) {
  AddLibrary(20000000, "NEW");
  Export("ID_LIBRARY");
  Execute("DELETE FROM ID_LIBRARY WHERE LIBRARY_ID = 20000000");
  const Result told = Run({"apply", "file.txt"});
  EXPECT_EQ(told.exitCode, 0);
  EXPECT_TRUE(
      told.err.contains("library 20000000 was added, and the counter ID_NEXT_LIBRARY still gives out 10000000"));
  EXPECT_TRUE(Run({"apply", "file.txt"}).err.isEmpty());
}

TEST_F(ApplyTest, AFileComesFromAPipeToo) {
  Export("ID_EVENT");
  Edit("file.txt", "\"Delivered\"", "\"Handed over\"");
  EXPECT_EQ(Run({"apply", "-"}, Text("file.txt")).exitCode, 0);
  EXPECT_EQ(Ask("SELECT EVENT_DESC FROM ID_EVENT WHERE EVENT_ID = 9010"), "Handed over");
}

TEST_F(ApplyTest, ADamagedFileChangesNothing) {
  Export("ID_EVENT,ID_PRINTER");
  const QString text = Text("file.txt");
  const QString before = Everything();
  Write("file.txt", text.left(text.size() / 2));
  EXPECT_TRUE(Refused({"--delete"}).contains("The file \"file.txt\" cannot be used (Line "));
  EXPECT_EQ(Everything(), before);
  EXPECT_EQ(Run({"apply", "none.txt"}).exitCode, 1);
  EXPECT_EQ(Run({"apply"}).exitCode, 2);
}

}  // namespace
