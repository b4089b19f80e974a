#include <QDir>

#include "core/ModuleState.h"
#include "platform/files/WideTextFile.h"
#include "support/Desk.h"

namespace {

const QString DeleteQuestion = "Are you sure you wish to Delete this record?";

class AutoRejectsTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Lists({"CALL_NUMBER", "LIBRARY_SYMBOL"});
    Another("INSERT INTO ID_REJ_CALL_NUMBER (CALL_NUMBER, EXCEPTION_CODE) VALUES ('QA 76', 'ONL')");
    Another("INSERT INTO ID_REJ_CALL_NUMBER (CALL_NUMBER, EXCEPTION_CODE) VALUES ('Z 699', 'NOH')");
  }
  void Lists(const QStringList& fields) {
    Setting("Tables", "NumberOfRejectTables", QString::number(fields.size()));
    for (qsizetype index = 0; index < fields.size(); ++index)
      Setting("Tables", "AutoRejectField" + QString::number(index + 1), fields[index]);
  }
  void Enter() {
    Start();
    SelectTab("sstabtables", frmTabulon::AutoRejectsTab);
    Statements();
  }
  void EnterList(const QString& list) {
    Enter();
    Choose("cmb4Tables", list);
    Statements();
  }
  QStringList Entries() const {
    QStringList entries;
    auto* const tables = Find<CodeComboBox>("cmb4Tables");
    for (int index = 0; index < tables->Count(); ++index) entries.append(tables->TextAt(index));
    return entries;
  }
  // As the list shows an exception code.
  QString Reject(const QString& code) const { return Find<CodeComboBox>("cmb4RejectType")->DescriptionOf(code); }
  void Fill(const QString& value, const QString& reject) {
    Type("txt4Code", value);
    Choose("cmb4RejectType", Reject(reject));
  }
};

TEST_F(AutoRejectsTest, TheTabListsTheTablesOfTheSettingsFile) {
  Start();
  Statements();
  SelectTab("sstabtables", frmTabulon::AutoRejectsTab);
  EXPECT_EQ(Statements(), QStringList{"SELECT   EXCEPTION_CODE, EXCEPTION_CODE_DESC FROM ID_EXCEPTION_CODE WHERE    "
                                      "EXCEPTION_TYPE IN (N'B', N'L', N'R') ORDER BY EXCEPTION_CODE"});
  EXPECT_EQ(Entries(), (QStringList{"(none)", "Call Number", "Library Symbol"}));
  EXPECT_EQ(Text("cmb4Tables"), "(none)");
  EXPECT_EQ(Text("cmb4RejectType"), "(none)");
  auto* const rejects = Find<CodeComboBox>("cmb4RejectType");
  EXPECT_EQ(rejects->Count(), Count("ID_EXCEPTION_CODE", "EXCEPTION_TYPE IN ('B', 'L', 'R')") + 1);
  EXPECT_EQ(rejects->IndexOfCode("CPY"), -1);
  EXPECT_EQ(Cell("grd4AutoReject", 0, 1), "Reject Field");
  EXPECT_EQ(Cell("grd4AutoReject", 0, 2), "Reject Type");
  EXPECT_TRUE(Find<Grid>("grd4AutoReject")->ColHidden(3));
  EXPECT_EQ(Rows("grd4AutoReject"), 1);
}

TEST_F(AutoRejectsTest, WithoutATableTheWritingButtonsAreOff) {
  Enter();
  for (const char* name :
       {"cmdAdd", "cmdUpdate", "cmdDelete", "mnuOptionsAdd", "mnuOptionsUpdate", "mnuOptionsDelete"}) {
    EXPECT_TRUE(IsShown(name)) << name;
    EXPECT_FALSE(IsEnabled(name)) << name;
  }
  EXPECT_TRUE(IsEnabled("cmdClear"));
  Choose("cmb4Tables", "Call Number");
  for (const char* name : {"cmdAdd", "cmdUpdate", "cmdDelete", "mnuOptionsAdd"}) EXPECT_TRUE(IsEnabled(name)) << name;
  Choose("cmb4Tables", "(none)");
  EXPECT_FALSE(IsEnabled("cmdAdd"));
  // Another tab has its buttons back.
  SelectTab("sstabtables", frmTabulon::PrintersTab);
  EXPECT_TRUE(IsEnabled("cmdAdd"));
}

TEST_F(AutoRejectsTest, AMissingRightStaysMissingWhateverTableIsChosen) {
  Another("UPDATE ID_USER_FUNCTION SET DELETE_FLAG = 'N' WHERE FUNCTION_NAME = 'Tabulon'");
  Enter();
  Choose("cmb4Tables", "Call Number");
  EXPECT_TRUE(IsEnabled("cmdAdd"));
  EXPECT_FALSE(IsEnabled("cmdDelete"));
  EXPECT_FALSE(IsEnabled("mnuOptionsDelete"));
}

TEST_F(AutoRejectsTest, NoRejectTablesLeaveOnlyNone) {
  Setting("Tables", "NumberOfRejectTables", "0");
  Enter();
  EXPECT_EQ(Entries(), QStringList{"(none)"});
}

TEST_F(AutoRejectsTest, AnUnknownFieldAddsNoEntryAndShiftsNothing) {
  Lists({"SHELFMARK", "LIBRARY_SYMBOL"});
  Enter();
  EXPECT_EQ(Entries(), (QStringList{"(none)", "Library Symbol"}));
  Choose("cmb4Tables", "Library Symbol");
  Fill("abc", "ONL");
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_REJ_LIB_SYMBOL VALUES('ABC', 'ONL')"});
}

TEST_F(AutoRejectsTest, ACountThatIsNoneIsTakenForNothing) {
  Start();
  for (const auto& [count, entries] : {std::pair{"", 1}, {"many", 1}, {"-3", 1}, {"99999999999", 3}, {"1", 2}}) {
    Setting("Tables", "NumberOfRejectTables", count);
    SelectTab("sstabtables", frmTabulon::LoansTab);
    SelectTab("sstabtables", frmTabulon::AutoRejectsTab);
    EXPECT_EQ(Entries().size(), entries) << count;
  }
}

TEST_F(AutoRejectsTest, TheSettingsAreThoseOfTheCurrentDirectoryInAnyLetters) {
  Start();
  const QDir folder(Folder());
  ASSERT_TRUE(QDir(Folder()).mkdir("elsewhere"));
  ASSERT_TRUE(QDir::setCurrent(folder.filePath("elsewhere")));
  Prompt().Expect("The settings file Ostana.INI was not found in the current directory.", 16);
  SelectTab("sstabtables", frmTabulon::AutoRejectsTab);
  EXPECT_EQ(Entries(), QStringList{"(none)"});
  EXPECT_FALSE(IsEnabled("cmdAdd"));
  ASSERT_TRUE(QDir::setCurrent(Folder()));
  const QStringList log = WideTextFile::ReadLines(folder.filePath("elsewhere/Logs/Tabulon.log"));
  ASSERT_FALSE(log.isEmpty());
  EXPECT_EQ(log.last().mid(24), "* Error: 53 - File not found");
  SelectTab("sstabtables", frmTabulon::PrintersTab);
  SelectTab("sstabtables", frmTabulon::AutoRejectsTab);
  EXPECT_EQ(Entries().size(), 3);
}

TEST_F(AutoRejectsTest, AChosenTableIsJoinedWithTheExceptions) {
  Enter();
  Choose("cmb4Tables", "Call Number");
  EXPECT_EQ(Statements(),
            QStringList{"SELECT   TB.CALL_NUMBER, RT.EXCEPTION_CODE_DESC, TB.EXCEPTION_CODE FROM ID_EXCEPTION_CODE RT, "
                        "ID_REJ_CALL_NUMBER TB WHERE    RT.EXCEPTION_CODE = TB.EXCEPTION_CODE ORDER BY "
                        "TB.CALL_NUMBER"});
  EXPECT_EQ(Rows("grd4AutoReject"), 3);
  EXPECT_EQ(Row("grd4AutoReject"), 1);
  EXPECT_EQ(Cell("grd4AutoReject", 1, 1), "QA 76");
  EXPECT_EQ(Cell("grd4AutoReject", 1, 2), Reject("ONL"));
  EXPECT_EQ(Cell("grd4AutoReject", 1, 3), "ONL");
  EXPECT_EQ(Text("txt4Code"), "QA 76");
  EXPECT_EQ(Text("cmb4RejectType"), Reject("ONL"));
  EXPECT_FALSE(gbRecordModified);
  // An empty list shows its none in capitals.
  Choose("cmb4Tables", "Library Symbol");
  EXPECT_EQ(Rows("grd4AutoReject"), 1);
  EXPECT_EQ(Text("txt4Code"), "");
  EXPECT_EQ(Text("cmb4RejectType"), "(NONE)");
  Choose("cmb4Tables", "(none)");
  EXPECT_EQ(Text("cmb4RejectType"), "(NONE)");
  EXPECT_EQ(Rows("grd4AutoReject"), 1);
}

TEST_F(AutoRejectsTest, AMissingTableFailsAloneWithItsMessage) {
  Another("ALTER TABLE ID_REJ_LIB_SYMBOL RENAME TO ID_REJ_AWAY");
  Enter();
  Prompt().Expect("***** SQL error on OSTANA.ID_REJECT_TYPE OR ID_REJ_LIB_SYMBOL (Select) *****", 16);
  Choose("cmb4Tables", "Library Symbol");
  EXPECT_EQ(Rows("grd4AutoReject"), 1);
  Choose("cmb4Tables", "Call Number");
  EXPECT_EQ(Rows("grd4AutoReject"), 3);
}

TEST_F(AutoRejectsTest, AddStoresTheCodeInCapitals) {
  EnterList("Call Number");
  Fill(" hb 1'a ", "NOH");
  EXPECT_TRUE(gbRecordModified);
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_REJ_CALL_NUMBER VALUES('HB 1''A', 'NOH')"});
  EXPECT_EQ(Cell("grd4AutoReject", Row("grd4AutoReject"), 1), "HB 1'A");
  EXPECT_EQ(Rows("grd4AutoReject"), 4);
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(AutoRejectsTest, AddRefusesAnEmptyCodeAndNoType) {
  EnterList("Library Symbol");
  Type("txt4Code", " ");
  Prompt().Expect("Please enter a Valid Code.", 48);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txt4Code");
  Type("txt4Code", "abc");
  EXPECT_EQ(Text("cmb4RejectType"), "(NONE)");
  Prompt().Expect("Please choose a Reject Type", 48);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "cmb4RejectType");
  Choose("cmb4RejectType", "(none)");
  Prompt().Expect("Please choose a Reject Type", 48);
  Click("cmdAdd");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(AutoRejectsTest, TheDuplicateScanRunsBeforeTheCodeBecomesCapitals) {
  EnterList("Call Number");
  Fill("QA 76", "NOH");
  Prompt().Expect("This record already exists", 48);
  Click("cmdAdd");
  EXPECT_EQ(Text("txt4Code"), "");
  EXPECT_EQ(Text("cmb4RejectType"), "(none)");
  EXPECT_EQ(Focus(), "txt4Code");
  EXPECT_TRUE(Writing().isEmpty());
  // In small letters it passes the scan, and the database refuses it.
  Fill("qa 76", "NOH");
  Prompt().Expect("A database error has occurred.  Please verify your data entry\nand your Database structure.", 16);
  Click("cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_REJ_CALL_NUMBER VALUES('QA 76', 'NOH')"});
  EXPECT_EQ(LogLines().at(LogLines().size() - 2).mid(24),
            "* ***** SQL error on OSTANA.ID_REJ_CALL_NUMBER (INSERT INTO) *****");
  EXPECT_EQ(Text("txt4Code"), "QA 76");
  EXPECT_EQ(Text("cmb4RejectType"), Reject("NOH"));
}

TEST_F(AutoRejectsTest, UpdateWritesBothFieldsOfTheRow) {
  EnterList("Call Number");
  SelectRowOf("grd4AutoReject", "Z 699");
  Fill("z 700", "ONL");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{"UPDATE  ID_REJ_CALL_NUMBER SET CALL_NUMBER = 'Z 700', EXCEPTION_CODE = 'ONL' where "
                                   "CALL_NUMBER = 'Z 699' and EXCEPTION_CODE = 'NOH'"});
  EXPECT_EQ(Ask("SELECT EXCEPTION_CODE FROM ID_REJ_CALL_NUMBER WHERE CALL_NUMBER = 'Z 700'"), "ONL");
  EXPECT_EQ(Rows("grd4AutoReject"), 3);
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(AutoRejectsTest, ATypeChosenByHandIsAChangeOnlyWhenItDiffers) {
  EnterList("Call Number");
  Choose("cmb4RejectType", Reject("NOH"));
  EXPECT_TRUE(gbRecordModified);
  Choose("cmb4RejectType", Reject("ONL"));
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(AutoRejectsTest, UpdateRefusesInItsOrder) {
  EnterList("Call Number");
  Type("txt4Code", " qa 76 ");
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Text("txt4Code"), "QA 76");
  Type("txt4Code", " ");
  Prompt().Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", 16);
  Click("cmdUpdate");
  SelectRowOf("grd4AutoReject", "QA 76");
  Fill("Z 699", "NOH");
  Prompt().Expect("This record already exists.", 48);
  Click("cmdUpdate");
  SelectRowOf("grd4AutoReject", "QA 76");
  Choose("cmb4RejectType", "(none)");
  Prompt().Expect("Please choose a Reject Type", 48);
  Click("cmdUpdate");
  Click("cmdClear");
  Fill("QA 76", "NOH");
  Prompt().Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", 16);
  Click("cmdUpdate");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(AutoRejectsTest, ARowWhoseExceptionRejectsNoMoreCannotBeUpdated) {
  Another("INSERT INTO ID_REJ_CALL_NUMBER (CALL_NUMBER, EXCEPTION_CODE) VALUES ('A 1', 'CPY')");
  EnterList("Call Number");
  SelectRowOf("grd4AutoReject", "A 1");
  EXPECT_EQ(Text("cmb4RejectType"), "Copy supplied");
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
  Type("txt4Code", "A 2");
  Prompt().Expect("This record does not exists.", 48);
  Click("cmdUpdate");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(AutoRejectsTest, AFailedUpdateNamesItsTable) {
  EnterList("Call Number");
  Another("INSERT INTO ID_REJ_CALL_NUMBER (CALL_NUMBER, EXCEPTION_CODE) VALUES ('NEW', 'ONL')");
  Type("txt4Code", "new");
  Prompt().Expect("***** SQL error on OSTANA.ID_REJ_CALL_NUMBER (UPDATE) *****", 16);
  Click("cmdUpdate");
  EXPECT_EQ(Cell("grd4AutoReject", Row("grd4AutoReject"), 1), "QA 76");
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(AutoRejectsTest, DeleteTakesTheCodeOutOfItsList) {
  EnterList("Call Number");
  Prompt().Expect(DeleteQuestion, 36, MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_EQ(Focus(), "txt4Code");
  EXPECT_TRUE(Writing().isEmpty());
  Prompt().Expect(DeleteQuestion, 36, MessageAnswer::Yes).Expect("Record Deleted", 64);
  Click("cmdDelete");
  EXPECT_EQ(Writing(), QStringList{"DELETE FROM ID_REJ_CALL_NUMBER WHERE CALL_NUMBER = 'QA 76'"});
  EXPECT_EQ(Rows("grd4AutoReject"), 2);
  EXPECT_EQ(Text("cmb4RejectType"), "(none)");
}

TEST_F(AutoRejectsTest, WhatCannotBeDeletedIsSaid) {
  EnterList("Call Number");
  Type("txt4Code", " ");
  Prompt().Expect("Please choose a record to be Deleted", 48);
  Click("cmdDelete");
  Type("txt4Code", "B 2");
  Prompt().Expect("Please select a valid record from the table.", 16);
  Click("cmdDelete");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(AutoRejectsTest, AFailedDeleteNamesItsTableInTheLog) {
  EnterList("Call Number");
  Another("ALTER TABLE ID_REJ_CALL_NUMBER RENAME TO ID_REJ_AWAY");
  Prompt()
      .Expect(DeleteQuestion, 36, MessageAnswer::Yes)
      .Expect("An error has occurred while attempting to delete the record.\n\nIf the error persists notify support.",
              16);
  Click("cmdDelete");
  EXPECT_EQ(LogLines().at(LogLines().size() - 2).mid(24),
            "* ***** SQL error on OSTANA.ID_REJ_CALL_NUMBER (DELETE) *****");
}

TEST_F(AutoRejectsTest, ClearLeavesTheListOfTheTable) {
  EnterList("Call Number");
  Click("cmdClear");
  EXPECT_EQ(Text("txt4Code"), "");
  EXPECT_EQ(Text("cmb4RejectType"), "(none)");
  EXPECT_EQ(Text("cmb4Tables"), "Call Number");
  EXPECT_EQ(Row("grd4AutoReject"), 0);
  EXPECT_EQ(Rows("grd4AutoReject"), 3);
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(AutoRejectsTest, TheNextVisitBeginsWithoutATable) {
  EnterList("Call Number");
  SelectTab("sstabtables", frmTabulon::PrintersTab);
  SelectTab("sstabtables", frmTabulon::AutoRejectsTab);
  EXPECT_EQ(Text("cmb4Tables"), "(none)");
  EXPECT_EQ(Rows("grd4AutoReject"), 1);
  EXPECT_EQ(Text("txt4Code"), "");
}

TEST_F(AutoRejectsTest, Looks) {
  EnterList("Call Number");
  Picture("auto-rejects");
}

TEST_F(AutoRejectsTest, ATypeThatIsInNoListIsKeptWithItsCode) {
  Another("UPDATE ID_EXCEPTION_CODE SET EXCEPTION_TYPE = 'N' WHERE EXCEPTION_CODE = 'ONL'");
  EnterList("Call Number");
  EXPECT_EQ(Text("cmb4RejectType"), Cell("grd4AutoReject", 1, 2));
  EXPECT_FALSE(Text("cmb4RejectType").isEmpty());
  Type("txt4Code", "NEW");
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_REJ_CALL_NUMBER VALUES('NEW', 'ONL')"});
}

TEST_F(AutoRejectsTest, AListThatCouldNotBeFilledLosesNoCode) {
  Start();
  Another("ALTER TABLE ID_EXCEPTION_CODE RENAME TO ID_AWAY");
  Prompt().Expect("***** SQL error on OSTANA.ID_EXCEPTION_CODE (SELECT) *****", 16);
  SelectTab("sstabtables", frmTabulon::AutoRejectsTab);
  Another("ALTER TABLE ID_AWAY RENAME TO ID_EXCEPTION_CODE");
  Choose("cmb4Tables", "Call Number");
  Statements();
  Type("txt4Code", "NEW");
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_REJ_CALL_NUMBER VALUES('NEW', 'ONL')"});
}

TEST_F(AutoRejectsTest, ARefusedUpdateStaysChangedWhateverWasTrimmed) {
  Another("INSERT INTO ID_REJ_CALL_NUMBER (CALL_NUMBER, EXCEPTION_CODE) VALUES ('ZZ', 'ONL')");
  EnterList("Call Number");
  SelectRowOf("grd4AutoReject", "ZZ");
  // The type differs, the code differs by a blank that is trimmed.
  Choose("cmb4RejectType", Reject("NOH"));
  Type("txt4Code", "ZZ ");
  Another("DELETE FROM ID_REJ_CALL_NUMBER WHERE CALL_NUMBER = 'ZZ'");
  Prompt().Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", 16);
  Click("cmdUpdate");
  EXPECT_TRUE(gbRecordModified);
  Prompt().Expect(DeleteQuestion, 36, MessageAnswer::Yes).Expect("Please select a valid record from the table.", 16);
  Click("cmdDelete");
}

}  // namespace
