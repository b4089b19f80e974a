// Reads of the library screens that fail: what was not read is not written, and the library in hand stays in hand.
#include <QLineEdit>
#include <QTest>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryDesk.h"
#include "shell/Screen.h"

namespace {

// One of the screens, a box whose change counts and its column.
struct Case {
  const char* form;
  const char* box;
  const char* column;
};

const Case Cases[] = {{"frmLibraryRegistration", "txtCity", "PRIME_CITY"},
                      {"frmLibraryContactInfo", "txtNote", "NOTE"},
                      {"frmLibraryLoginInfo", "txtPassword", "USER_PASSWORD"},
                      {"frmLibraryStatisticalInfo", "txtFD", "FD_SYMBOL"},
                      {"frmLibraryBillingInfo", "txtCity", "BILL_CITY"}};

std::string NameOf(const testing::TestParamInfo<Case>& info) {
  return std::string(info.param.form).substr(3);
}

const QString Failed = "An error has occurred.  Please Notify Support.";

class LibraryReadTest : public LibraryDesk, public testing::WithParamInterface<Case> {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    SetColumn(North, "USER_LOGIN", "'north'");
    SetColumn(South, "USER_LOGIN", "'south'");
    for (const qint32 id : {North, South}) SetColumn(id, GetParam().column, "'kept'");
  }
  QString Form() const { return GetParam().form; }
  void Change(const QString& text = "mine") {
    Type(GetParam().box, text);
    if (Form() == "frmLibraryLoginInfo") Type("txtConfirmPassword", text);
  }
  // The row of the libraries cannot be read.
  void Break() { Another("ALTER TABLE ID_LIBRARY RENAME COLUMN " + QString(GetParam().column) + " TO MOVED"); }
  void Mend() { Another("ALTER TABLE ID_LIBRARY RENAME COLUMN MOVED TO " + QString(GetParam().column)); }
  QString Stored(qint32 id) { return Column(GetParam().column, id); }
  void ChooseInSearch(qint32 id) {
    WhenShown("frmLibrarySearch", [id](Screen&) { gclsOF->SetLibraryId(id); });
    Click("cmdAdvanced");
  }
};
INSTANTIATE_TEST_SUITE_P(Screens, LibraryReadTest, testing::ValuesIn(Cases), NameOf);

TEST_P(LibraryReadTest, AFailedReadAfterAdvancedLeavesTheLibraryInHand) {
  OpenLibrary(Form(), North);
  Break();
  Prompt().Expect(Failed, MessageStyle::Stop);
  ChooseInSearch(South);
  Mend();
  EXPECT_EQ(gclsOF->LibraryId(), North);
  EXPECT_EQ(Text("txtLibrarySymbol"), "NORTH");
  EXPECT_TRUE(IsEnabled("cmdUpdate"));
  Change();
  Prompt().ExpectStart("Library ", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Stored(North), "mine");
  EXPECT_EQ(Stored(South), "kept");
}

TEST_P(LibraryReadTest, ALibraryThatIsGoneAfterAdvancedLeavesTheOneInHandAndNothingToPress) {
  OpenLibrary(Form(), North);
  ChooseInSearch(Gone);
  EXPECT_EQ(gclsOF->LibraryId(), North);
  for (const char* button : {"cmdUpdate", "cmdArticle", "cmdBook", "mnuOptionsUpdate"})
    EXPECT_FALSE(IsEnabled(button)) << button;
  if (Form() == "frmLibraryRegistration") {
    EXPECT_FALSE(IsEnabled("cmdDelete"));
  }
  // Its own record can still be saved on the way out.
  Change();
  Prompt().ExpectStart("The Library ", MessageStyle::Question, MessageAnswer::Yes);
  Prompt().ExpectStart("Library ", MessageStyle::Information);
  Click("cmdSearch");
  EXPECT_EQ(Stored(North), "mine");
}

TEST_P(LibraryReadTest, ARecordThatCouldNotBeReadAtTheOpeningIsNotWritten) {
  Begin(North);
  Break();
  Prompt().Expect(Failed, MessageStyle::Stop);
  Open(Form());
  Mend();
  EXPECT_FALSE(IsEnabled("cmdUpdate"));
  EXPECT_FALSE(IsEnabled("mnuOptionsUpdate"));
  Change();
  Statements();
  // Nothing that could be saved, nothing to ask.
  WhenShown("frmLibrarySearch", [](Screen&) {});
  Click("cmdAdvanced");
  EXPECT_TRUE(Writing().isEmpty());
  EXPECT_EQ(Stored(North), "kept");
  EXPECT_EQ(Text("txtLibrarySymbol"), "NORTH") << "the fault is gone, and the library is read";
  Change();
  Prompt().ExpectStart("Library ", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Stored(North), "mine");
}

TEST_P(LibraryReadTest, TheMessageNamesTheRecordAndNotTheTypedSymbol) {
  OpenLibrary(Form(), North);
  Change();
  Type("txtLibrarySymbol", "SOUTH");
  Prompt().ExpectStart("The Library ", MessageStyle::Question, MessageAnswer::Yes);
  QString told = "Library Symbol: (NORTH) has been updated.";
  if (Form() == "frmLibraryRegistration") told = "Library Symbol: 'NORTH' has been updated.";
  if (Form() == "frmLibraryLoginInfo") told = "Library  NORTH  has been updated.";
  Prompt().Expect(told, MessageStyle::Information);
  Click("cmdSearch");
  EXPECT_EQ(Stored(North), "mine");
}

TEST_P(LibraryReadTest, ARowThatAnotherClientDeletedIsToldAsMissing) {
  OpenLibrary(Form(), North);
  Change();
  Another("DELETE FROM ID_LIBRARY WHERE LIBRARY_ID = 101");
  Prompt().Expect("Record not found.", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_FALSE(IsEnabled("cmdUpdate"));
  EXPECT_EQ(gclsOF->LibraryId(), 0);
}

TEST_P(LibraryReadTest, ASymbolTypedIntoTheListOfMatchesIsReadBySearchOnly) {
  OpenLibrary(Form());
  Type("txtLibrarySymbol", "%O%TH");
  Click("cmdSearch");
  Choose("cmbLibrarySymbol", "SOUTH");
  Change();
  auto* const list = Find<CodeComboBox>("cmbLibrarySymbol");
  list->setFocus();
  list->lineEdit()->selectAll();
  QTest::keyClicks(list->lineEdit(), "NORTH");
  Statements();
  QTest::keyClick(list->lineEdit(), Qt::Key_Tab);
  EXPECT_TRUE(Statements().isEmpty());
  EXPECT_EQ(Text("txtInstitution"), "SOUTH INSTITUTE");
  EXPECT_EQ(Text(GetParam().box), "mine");
  Prompt().ExpectStart("The Library ", MessageStyle::Question, MessageAnswer::No);
  Click("cmdSearch");
  EXPECT_EQ(Text("txtInstitution"), "NORTH COLLEGE");
}

TEST_P(LibraryReadTest, AScreenKeepsTheRightsItWasOpenedUnder) {
  OpenLibrary(Form(), North);
  Another("UPDATE ID_USER_FUNCTION SET UPDATE_FLAG = 'N' WHERE FUNCTION_NAME = 'Patron Registration'");
  ASSERT_TRUE(gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), "Patron Registration"));
  ASSERT_FALSE(gclsOF->CanUpdate());
  Change();
  Prompt().ExpectStart("The Library ", MessageStyle::Question, MessageAnswer::Yes);
  Prompt().ExpectStart("Library ", MessageStyle::Information);
  Click("cmdSearch");
  EXPECT_EQ(Stored(North), "mine");
}

// --- Lists of codes ---

// A column that a list on the screen stands for, and a box of the screen that changes another one.
struct Coded {
  const char* form;
  const char* column;
  const char* table;
  const char* code;
  const char* box;
};

const Coded CodedColumns[] = {
    {"frmLibraryRegistration", "DELIV_METHOD_COPY", "ID_DELIV_METHOD", "O", "txtCity"},
    {"frmLibraryRegistration", "DELIV_METHOD_LOAN", "ID_DELIV_METHOD", "O", "txtCity"},
    {"frmLibraryRegistration", "MSG_METHOD", "ID_MSG_METHOD", "E", "txtCity"},
    {"frmLibraryRegistration", "FILE_FORMAT", "ID_FILE_FORMAT", "T", "txtCity"},
    {"frmLibraryRegistration", "MSG_FORMAT", "ID_MSG_FORMAT", "H", "txtCity"},
    {"frmLibraryLoginInfo", "LANGUAGE_CODE", "ID_LANGUAGE_CODE", "FRE", "txtUserID"},
    {"frmLibraryStatisticalInfo", "VORN_SERVICE", "ID_VORN_SERVICE", "1", "txtFD"},
    {"frmLibraryStatisticalInfo", "STATS_CAT_LIB1", "ID_STATS_CAT_LIB", "", "txtFD"},
    {"frmLibraryStatisticalInfo", "STATS_CAT_LIB2", "ID_STATS_CAT_LIB", "", "txtFD"},
    {"frmLibraryStatisticalInfo", "STATS_CAT_LIB3", "ID_STATS_CAT_LIB", "", "txtFD"},
    {"frmLibraryStatisticalInfo", "LIBRARY_CAT", "ID_LIBRARY_CAT", "", "txtFD"},
    {"frmLibraryStatisticalInfo", "LIBRARY_TYPE", "ID_LIBRARY_TYPE", "", "txtFD"},
    {"frmLibraryStatisticalInfo", "LOAN_CODE", "ID_LOAN_CODE", "", "txtFD"},
    {"frmLibraryBillingInfo", "BILLING_TYPE", "ID_BILLING_TYPE", "", "txtCity"},
    {"frmLibraryBillingInfo", "BILLING_RATE", "ID_BILLING_RATE", "", "txtCity"},
    {"frmLibraryBillingInfo", "CURRENCY_CODE", "ID_CURRENCY_CODE", "", "txtCity"},
};

std::string NameOfColumn(const testing::TestParamInfo<Coded>& info) {
  return info.param.column;
}

class LibraryCodesTest : public LibraryDesk, public testing::WithParamInterface<Coded> {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    for (const auto& [column, value] : {std::pair{"PRIME_ADDRESS1", "'1 Harbour Road'"},
                                        {"DELIV_EMAIL", "'a@b.org'"},
                                        {"MSG_EMAIL", "'a@b.org'"},
                                        {"ODYSSEY_ADDRESS", "'o'"},
                                        {"VORN_SYMBOL", "'V'"},
                                        {"USER_PASSWORD", "'p'"},
                                        {"DELIV_METHOD_COPY", "'M'"},
                                        {"DELIV_METHOD_LOAN", "'M'"},
                                        {"MSG_METHOD", "'M'"}})
      SetColumn(North, column, value);
    code_ = GetParam().code;
    const QString column = CodeColumn();
    if (code_.isEmpty()) code_ = Ask("SELECT " + column + " FROM " + Table() + " ORDER BY " + column + " DESC");
    ASSERT_FALSE(code_.isEmpty()) << "a code to store";
    SetColumn(North, GetParam().column, "'" + code_ + "'");
  }
  static QString Table() { return GetParam().table; }
  static QString CodeColumn() { return Table().mid(3); }
  void Save() {
    Type(GetParam().box, "mine");
    Prompt().ExpectStart("Library ", MessageStyle::Information);
    Click("cmdUpdate");
  }

  QString code_;
};
INSTANTIATE_TEST_SUITE_P(Columns, LibraryCodesTest, testing::ValuesIn(CodedColumns), NameOfColumn);

TEST_P(LibraryCodesTest, AListThatCouldNotBeFilledLosesNoCode) {
  Begin(North);
  Another("ALTER TABLE " + Table() + " RENAME TO ID_TEST_AWAY");
  Prompt().Expect("An error has occurred loading the drop down lists.  Please Notify Support.", MessageStyle::Stop);
  Open(GetParam().form);
  Another("ALTER TABLE ID_TEST_AWAY RENAME TO " + Table());
  Save();
  EXPECT_EQ(Column(GetParam().column), code_);
}

TEST_P(LibraryCodesTest, TheOtherListsAreFilledAllTheSame) {
  OpenLibrary(GetParam().form, North);
  QMap<QString, int> entries;
  for (const CodeComboBox* box : Window()->findChildren<CodeComboBox*>()) entries[box->objectName()] = box->Count();
  Begin(North);
  Another("ALTER TABLE " + Table() + " RENAME TO ID_TEST_AWAY");
  Prompt().Expect("An error has occurred loading the drop down lists.  Please Notify Support.", MessageStyle::Stop);
  Open(GetParam().form);
  Another("ALTER TABLE ID_TEST_AWAY RENAME TO " + Table());
  int fewer = 0;
  for (const CodeComboBox* box : Window()->findChildren<CodeComboBox*>())
    fewer += box->Count() < entries.value(box->objectName());
  EXPECT_EQ(fewer, Table() == "ID_DELIV_METHOD" ? 2 : Table() == "ID_STATS_CAT_LIB" ? 3 : 1);
  EXPECT_TRUE(LogHolds("***** SQL error on "));
}

class LibraryCodeTest : public LibraryDesk {};

TEST_F(LibraryCodeTest, ACodeThatIsNoLongerInItsTableIsShownAndKept) {
  SetColumn(North, "CURRENCY_CODE", "'OLD'");
  OpenLibrary("frmLibraryBillingInfo", North);
  EXPECT_EQ(Text("cmbCurrency"), "OLD");
  Type("txtCity", "York");
  Prompt().Expect("Library Symbol: (NORTH) has been updated.", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Column("CURRENCY_CODE"), "OLD");
}

TEST_F(LibraryCodeTest, AFormatThatIsNotInTheListIsNotTheOneOfTheLibraryBefore) {
  for (const qint32 id : {North, South})
    for (const auto& [column, value] : {std::pair{"PRIME_ADDRESS1", "'2 Hill'"},
                                        {"DELIV_METHOD_COPY", "'M'"},
                                        {"DELIV_METHOD_LOAN", "'M'"},
                                        {"MSG_METHOD", "'M'"},
                                        {"FILE_FORMAT", "'T'"},
                                        {"MSG_FORMAT", "'H'"}})
      SetColumn(id, column, value);
  OpenLibrary("frmLibraryRegistration", North);
  // Another client knows a new format by now.
  Another("INSERT INTO ID_FILE_FORMAT (FILE_FORMAT, FILE_FORMAT_DESC) VALUES ('X', 'New')");
  Another("INSERT INTO ID_MSG_FORMAT (MSG_FORMAT, MSG_FORMAT_DESC) VALUES ('Y', 'New')");
  SetColumn(South, "FILE_FORMAT", "'X'");
  SetColumn(South, "MSG_FORMAT", "'Y'");
  Type("txtLibrarySymbol", "SOUTH");
  Click("cmdSearch");
  EXPECT_EQ(Text("cboFileFormat"), "X");
  EXPECT_EQ(Text("cmbEmailMsgFormat"), "Y");
  Type("txtCity", "York");
  Prompt().Expect("Library Symbol: 'SOUTH' has been updated.", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Column("FILE_FORMAT", South), "X");
  EXPECT_EQ(Column("MSG_FORMAT", South), "Y");
}

TEST_F(LibraryCodeTest, ALibraryIsAddedWithTheUsualCodesWhereTheListsCouldNotBeFilled) {
  Begin();
  for (const QString table : {"ID_FILE_FORMAT", "ID_MSG_FORMAT", "ID_DELIV_METHOD", "ID_MSG_METHOD"})
    Another("ALTER TABLE " + table + " RENAME TO " + table + "_AWAY");
  Prompt().Expect("An error has occurred loading the drop down lists.  Please Notify Support.", MessageStyle::Stop);
  Open("frmLibraryRegistration");
  for (const QString table : {"ID_FILE_FORMAT", "ID_MSG_FORMAT", "ID_DELIV_METHOD", "ID_MSG_METHOD"})
    Another("ALTER TABLE " + table + "_AWAY RENAME TO " + table);
  Type("txtLibrarySymbol", "EAST");
  Type("txtInstitution", "EAST");
  Type("txtStreet1", "3 Quay");
  Prompt().Expect("Library Symbol: 'EAST' has been added.", MessageStyle::Information);
  Click("cmdAdd");
  EXPECT_EQ(Ask("SELECT FILE_FORMAT FROM ID_LIBRARY WHERE LIBRARY_SYMBOL = 'EAST'"), "P");
  EXPECT_EQ(Ask("SELECT MSG_FORMAT FROM ID_LIBRARY WHERE LIBRARY_SYMBOL = 'EAST'"), "T");
  EXPECT_EQ(Ask("SELECT DELIV_METHOD_COPY FROM ID_LIBRARY WHERE LIBRARY_SYMBOL = 'EAST'"), "M");
  EXPECT_EQ(Ask("SELECT MSG_METHOD FROM ID_LIBRARY WHERE LIBRARY_SYMBOL = 'EAST'"), "M");
}

}  // namespace
