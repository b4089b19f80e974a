// Adding, updating and deleting ISO 18626 connections.
#include <QCheckBox>
#include <QLabel>

#include "interop/ISO18626Desk.h"

namespace {

class ISO18626EditTest : public ISO18626Desk {};

// --- Add ---

TEST_F(ISO18626EditTest, ANewConnectionIsStoredAndSelected) {
  OpenPicker();
  Fill("  O'Hara  ");
  Type("txtUrl", " /ill?a='b' ");
  Type("txtPort", "99999");
  Click("chkTransferEnabled");
  Click("chkPatronInfo");
  Click("chkPatronAddress");
  Click("chkActionRenew");
  Prompt().ExpectTitled("ISO 18626 Connection Id: 'O'Hara' successfully added", 64, Caption);
  Statements();
  Click("cmdAdd");
  const QStringList statements = Statements();
  ASSERT_GE(statements.size(), 2);
  EXPECT_EQ(statements[0],
            "SELECT ISO18626_CONNECTION_ID FROM ID_ISO18626_CONNECT WHERE ISO18626_CONNECTION_ID = N'O''Hara'");
  EXPECT_EQ(statements[1],
            "INSERT INTO ID_ISO18626_CONNECT (ISO18626_CONNECTION_ID, ILL_SYSTEM, ISO18626_CONNECT_TYPE, "
            "ISO18626_HOST_ADDRESS, ISO18626_HOST_URL, ISO18626_HOST_PORT, ISO18626_VERSION, ISO18626_AUTHN_TYPE, "
            "RT_RETRY, RST_TRANSFER_REQUEST, TRANSFER_PATRON_INFO, TRANSFER_PATRON_EMAIL, TRANSFER_PATRON_ADDRESS, "
            "ACTION_CANCEL, ACTION_RENEW, ACTION_NOTIFICATION, RFM_REQUEST_RESPONSE, RFM_NOTIFICATION) VALUES "
            "(N'O''Hara', N'TALVERNE', N'HTTPS', N'iso.example.org', N'/ill?a=''b''', 99999, N'1.2', N'BASIC', N'N', "
            "N'Y', N'Y', N'N', N'Y', N'N', N'Y', N'N', N'N', N'N')");
  ExpectSelected("O'Hara");
  EXPECT_EQ(Stored("ISO18626_HOST_URL", "O''Hara"), "/ill?a='b'");
  const QStringList log = Logged("frmISO18626Connect.cmdAdd_Click");
  ASSERT_EQ(log.size(), 3);
  EXPECT_TRUE(log[0].endsWith("cmdAdd_Click - Validating data for adding the new Connection Id"));
  EXPECT_TRUE(log[1].endsWith("cmdAdd_Click - Adding the ISO 18626 Connection Id: 'O'Hara'"));
  EXPECT_TRUE(log[2].endsWith("cmdAdd_Click - Connection Id: 'O'Hara' successfully added"));
}

TEST_F(ISO18626EditTest, WithoutTransferAllPatronColumnsAreNAndAnEmptyUrlIsNull) {
  OpenPicker();
  Fill("C1");
  // What no hand can do: the boxes are off.
  Find<QCheckBox>("chkPatronEmail")->setChecked(true);
  Prompt().ExpectStart("ISO 18626 Connection Id: 'C1'", 64);
  Click("cmdAdd");
  const QStringList writing = Writing();
  ASSERT_EQ(writing.size(), 1);
  EXPECT_TRUE(
      writing[0].endsWith("VALUES (N'C1', N'TALVERNE', N'HTTPS', N'iso.example.org', Null, 443, N'1.2', "
                          "N'BASIC', N'N', N'N', N'N', N'N', N'N', N'N', N'N', N'N', N'N', N'N')"))
      << writing[0].toStdString();
}

TEST_F(ISO18626EditTest, AListThatCouldNotBeFilledIsNoChoice) {
  Another("ALTER TABLE ID_ISO18626_VERSION RENAME TO ID_ISO18626_VERSION_AWAY");
  Prompt().Expect("An error has occurred loading from the database the information required by this Form.", 16);
  OpenPicker();
  Another("ALTER TABLE ID_ISO18626_VERSION_AWAY RENAME TO ID_ISO18626_VERSION");
  Type("txtConnectionID", "NEW");
  ChooseAt("cmbILLSystem", 1);
  Prompt().Expect("The Protocol Version is required. Please select a valid value", 48);
  Click("cmdAdd");
  EXPECT_EQ(Count("ID_ISO18626_CONNECT"), 0);
}

TEST_F(ISO18626EditTest, ACodeThatIsInNoListIsWrittenBack) {
  AddConnection("ONE");
  Another("ALTER TABLE ID_ISO18626_VERSION RENAME TO ID_ISO18626_VERSION_AWAY");
  Prompt().Expect("An error has occurred loading from the database the information required by this Form.", 16);
  OpenPicker("ONE");
  Another("ALTER TABLE ID_ISO18626_VERSION_AWAY RENAME TO ID_ISO18626_VERSION");
  EXPECT_EQ(Text("cmbVersion"), "1.2");
  Type("txtHostAddress", "other.example.org");
  Prompt().Expect("ISO 18626 Connection Id 'ONE' successfully updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Ask("SELECT ISO18626_VERSION FROM ID_ISO18626_CONNECT"), "1.2");
  EXPECT_EQ(Ask("SELECT ISO18626_AUTHN_TYPE FROM ID_ISO18626_CONNECT"), "BASIC");
}

TEST_F(ISO18626EditTest, TheRightsOfTheOpeningDecideWhatCanBePressed) {
  AddConnection("ONE");
  Another("UPDATE ID_USER_FUNCTION SET ADD_FLAG = 'N', UPDATE_FLAG = 'N', DELETE_FLAG = 'N'");
  ASSERT_TRUE(gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), gclsOF->CurrentFunction()));
  OpenPicker("ONE");
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete"}) EXPECT_FALSE(IsEnabled(button)) << button;
  EXPECT_TRUE(IsEnabled("cmdSelect"));
  Click("btnClear");
  EXPECT_FALSE(IsEnabled("cmdAdd"));
}

TEST_F(ISO18626EditTest, AnIdThatExistsIsRefused) {
  AddConnection("C1");
  OpenPicker();
  Fill("C1");
  Prompt().ExpectTitled(
      "The ISO 18626 Connection Id entered already exists. Please enter a different Connection Id and try again.", 48,
      Caption);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txtConnectionID");
  EXPECT_TRUE(Writing().isEmpty());
  EXPECT_EQ(LastLog(), "frmISO18626Connect.cmdAdd_Click - No record added. The Connection Id already existed");
}

TEST_F(ISO18626EditTest, MaintenanceAsksForAnotherOne) {
  OpenMaintenance();
  Fill("C1");
  Prompt().Expect("ISO 18626 Connection Id: 'C1' successfully added\nAdd another Connection Id?", 36,
                  MessageAnswer::Yes);
  Click("cmdAdd");
  ExpectNoSelection();
  EXPECT_EQ(Focus(), "txtConnectionID");
  Fill("C2");
  Prompt().Expect("ISO 18626 Connection Id: 'C2' successfully added\nAdd another Connection Id?", 36,
                  MessageAnswer::No);
  Click("cmdAdd");
  ExpectSelected("C2");
}

TEST_F(ISO18626EditTest, TheProgressShowsWhileTheStatementRuns) {
  OpenPicker();
  Fill("C1");
  QStringList shown;
  gclsOF->Connection().AddObserver([&](const StatementRecord& record) {
    const auto* const label = Window()->findChild<QLabel*>("lblProcessing");
    if (!record.text.startsWith("SELECT")) shown.append(label->isVisible() ? label->text() : "hidden");
  });
  Prompt().ExpectStart("ISO 18626 Connection Id: 'C1'", 64);
  Click("cmdAdd");
  EXPECT_FALSE(IsShown("lblProcessing"));
  Prompt().ExpectStart("ISO 18626 Connection Id 'C1'", 64);
  Click("cmdUpdate");
  Prompt().ExpectStart("ISO 18626 Connection Id: 'C1'", 64);
  Click("cmdDelete");
  EXPECT_FALSE(IsShown("lblProcessing"));
  EXPECT_EQ(shown, (QStringList{"Adding the new Connection Id...", "hidden", "Deleting the Connection Id..."}));
}

TEST_F(ISO18626EditTest, ARefusedInsertIsLoggedWithItsStatement) {
  OpenPicker();
  Fill("C1");
  Another("DELETE FROM ID_ISO18626_CONNECT_TYPE WHERE ISO18626_CONNECT_TYPE = 'HTTPS'");
  Prompt().ExpectTitled("An error has occurred trying to add the ISO 18626 Connection Id. Please Notify Support.", 16,
                        Caption);
  Click("cmdAdd");
  EXPECT_FALSE(IsShown("lblProcessing"));
  EXPECT_EQ(Text("txtConnectionID"), "C1");
  const QStringList lines = LogLines();
  const qsizetype first = lines.indexOf(lines.filter("cmdAdd_Click - Failed.").value(0));
  ASSERT_GE(first, 0);
  EXPECT_TRUE(lines[first].endsWith("  * frmISO18626Connect.cmdAdd_Click - Failed."));
  EXPECT_TRUE(lines[first + 1].mid(24).startsWith(
      "* ***** SQL error on ID_ISO18626_CONNECT (Insert) ***** --- SQL Query: INSERT INTO ID_ISO18626_CONNECT ("));
  EXPECT_EQ(lines[first + 2], "");
  EXPECT_TRUE(lines[first + 3].startsWith("Error: -2147217873 - ")) << lines[first + 3].toStdString();
}

TEST_F(ISO18626EditTest, AnInsertThatStoredNothingIsTold) {
  if (TestDatabase::TestEngine() != Engine::PostgreSql) GTEST_SKIP() << "needs a rule of the server";
  Another("CREATE RULE NO_INSERT AS ON INSERT TO ID_ISO18626_CONNECT DO INSTEAD NOTHING");
  OpenPicker();
  Fill("C1");
  Prompt().Expect("Unexpected error trying to add the ISO 18626 Connection Id. Please try again later", 64);
  Click("cmdAdd");
  EXPECT_EQ(LastLog(),
            "frmISO18626Connect.cmdAdd_ClickError trying to insert the Connection Id: 'C1' into the table "
            "ID_ISO18626_CONNECT. No record was inserted.");
}

// --- Update ---

TEST_F(ISO18626EditTest, AnUpdateWritesAllColumnsAndTheCellsOfTheRow) {
  AddConnection("B1", "'N', 'Y', 'Y', 'Y', 'Y', 'N', 'N', 'N', 'N', 'N'");
  AddConnection("A1");
  OpenPicker("B1");
  Choose("cmbILLSystem", "DOCLINE");
  Choose("cmbAuthType", "Client certificate");
  Type("txtHostAddress", "  new.example.org ");
  Type("txtUrl", "");
  Click("chkTransferEnabled");
  Click("chkReasonNotification");
  Statements();
  Prompt().ExpectTitled("ISO 18626 Connection Id 'B1' successfully updated", 64, Caption);
  Click("cmdUpdate");
  EXPECT_EQ(Statements(),
            QStringList{"UPDATE ID_ISO18626_CONNECT SET ISO18626_CONNECTION_ID= N'B1', ILL_SYSTEM = N'DOCLINE', "
                        "ISO18626_CONNECT_TYPE = N'HTTPS', ISO18626_HOST_ADDRESS = N'new.example.org', "
                        "ISO18626_HOST_URL = Null, ISO18626_HOST_PORT = 8443, ISO18626_VERSION = N'1.2', "
                        "ISO18626_AUTHN_TYPE = N'CERT', RT_RETRY = N'N', RST_TRANSFER_REQUEST = N'N', "
                        "TRANSFER_PATRON_INFO = N'N', TRANSFER_PATRON_EMAIL= N'N', TRANSFER_PATRON_ADDRESS= N'N', "
                        "ACTION_CANCEL = N'N', ACTION_RENEW = N'N', ACTION_NOTIFICATION = N'N', RFM_REQUEST_RESPONSE "
                        "= N'N', RFM_NOTIFICATION = N'Y' WHERE ISO18626_CONNECTION_ID = N'B1'"});
  EXPECT_EQ(Row(Grid1), 2);
  EXPECT_EQ(Cell(Grid1, 2, 2), "DOCLINE");
  EXPECT_EQ(Cell(Grid1, 2, 3), "Client certificate");
  EXPECT_EQ(Cell(Grid1, 2, 4), "new.example.org");
  EXPECT_EQ(Stored("TRANSFER_PATRON_EMAIL", "B1"), "N");
  EXPECT_EQ(LastLog(1), "frmISO18626Connect.cmdUpdate_Click - Updating the ISO 18626 Connection Id: 'B1'");
  EXPECT_EQ(LastLog(), "frmISO18626Connect.cmdUpdate_Click - Connection Id: 'B1' successfully updated");
}

TEST_F(ISO18626EditTest, AnUpdateKeepsThePatronColumnsOfATransfer) {
  AddConnection("C1", "'N', 'Y', 'Y', 'N', 'Y', 'N', 'N', 'N', 'N', 'N'");
  OpenPicker("C1");
  Click("chkPatronEmail");
  Prompt().ExpectStart("ISO 18626 Connection Id 'C1'", 64);
  Click("cmdUpdate");
  EXPECT_TRUE(Writing().value(0).contains(
      ", TRANSFER_PATRON_INFO = N'Y', TRANSFER_PATRON_EMAIL= N'Y', TRANSFER_PATRON_ADDRESS= N'Y', "));
  EXPECT_EQ(Stored("ISO18626_HOST_URL", "C1"), "/iso");
}

TEST_F(ISO18626EditTest, AfterAnUpdateTheGridIsNotSortedAgain) {
  AddConnection("A1");
  AddConnection("B1");
  OpenPicker("A1");
  SortBy(Grid1, 4);
  Type("txtHostAddress", "zzz.example.org");
  Prompt().ExpectStart("ISO 18626 Connection Id 'A1'", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Row(Grid1), 1);
  EXPECT_EQ(Cell(Grid1, 1, 4), "zzz.example.org");
}

TEST_F(ISO18626EditTest, AnUpdateOfARowThatIsGoneIsTold) {
  AddConnection("C1");
  OpenPicker("C1");
  Another("DELETE FROM ID_ISO18626_CONNECT");
  Prompt().ExpectTitled("Unexpected error trying to update the ISO 18626 Connection Id. Please try again later", 64,
                        Caption);
  Click("cmdUpdate");
  EXPECT_EQ(LastLog(),
            "frmISO18626Connect.cmdUpdate_ClickError trying to update the Connection Id: 'C1'. No record was "
            "updated.");
}

TEST_F(ISO18626EditTest, AnUpdateThatChangesNothingCountsAsOneRow) {
  AddConnection("C1");
  OpenPicker("C1");
  Prompt().ExpectStart("ISO 18626 Connection Id 'C1' successfully updated", 64);
  Click("cmdUpdate");
}

TEST_F(ISO18626EditTest, ARefusedUpdateIsTold) {
  AddConnection("C1");
  OpenPicker("C1");
  Choose("cmbConnectionType", "HTTP");
  Another("DELETE FROM ID_ISO18626_CONNECT_TYPE WHERE ISO18626_CONNECT_TYPE = 'HTTP'");
  Prompt().Expect("An error has occurred trying to update the ISO 18626 Connection Id. Please Notify Support.", 16);
  Click("cmdUpdate");
  EXPECT_EQ(Logged("***** SQL error on ID_ISO18626_CONNECT (Update) *****").size(), 1);
}

// --- Delete ---

TEST_F(ISO18626EditTest, AConnectionNobodyUsesIsDeletedWithoutAQuestion) {
  AddConnection("C1");
  OpenPicker("C1");
  Prompt().ExpectTitled("ISO 18626 Connection Id: 'C1' successfully deleted", 64, Caption);
  Click("cmdDelete");
  const QStringList statements = Statements();
  ASSERT_EQ(statements.size(), 4);
  EXPECT_EQ(statements[0], "SELECT TOP 1 LIBRARY_ID FROM ID_LIBRARY WHERE ISO18626_CONNECTION_ID = N'C1'");
  EXPECT_EQ(statements[1], "SELECT TOP 1 SUPPLIER_CODE FROM ID_SUPPLIER WHERE ISO18626_CONNECTION_ID = N'C1'");
  EXPECT_EQ(statements[2], "DELETE FROM ID_ISO18626_CONNECT WHERE ISO18626_CONNECTION_ID = N'C1'");
  ExpectNoSelection();
  EXPECT_EQ(Logged("cmdDelete_Click - Validating data for deleting the selected Connection Id").size(), 1);
  EXPECT_EQ(LastLog(1), "frmISO18626Connect.cmdDelete_Click - Deleting the Connection Id: 'C1'");
  EXPECT_EQ(LastLog(), "frmISO18626Connect.cmdDelete_Click - Connection Id: 'C1' successfully deleted");
}

TEST_F(ISO18626EditTest, DeletingTheIdHandedInReturnsAnEmptyId) {
  AddConnection("C1");
  OpenPicker("C1");
  Prompt().ExpectStart("ISO 18626 Connection Id: 'C1'", 64);
  Click("cmdDelete");
  Click("cmdClose");
  EXPECT_EQ(gstrISO18626ConnectionId, "");
}

TEST_F(ISO18626EditTest, AnotherIdHandedInStaysWhenOneIsDeleted) {
  AddConnection("C1");
  AddConnection("C2");
  OpenPicker("C2");
  SelectRowOf(Grid1, "C1");
  Prompt().ExpectStart("ISO 18626 Connection Id: 'C1'", 64);
  Click("cmdDelete");
  EXPECT_EQ(gstrISO18626ConnectionId, "C2");
}

TEST_F(ISO18626EditTest, ASupplierAloneBringsTheQuestionAndBothTablesAreCleared) {
  AddConnection("C1");
  Another("INSERT INTO ID_SUPPLIER (LIBRARY_ID, SUPPLIER_CODE, ISO18626_CONNECTION_ID) VALUES (101, 'SUP', 'C1')");
  OpenPicker("C1");
  const QString question =
      "The Connection Id: 'C1' is associated to one or more Library and/or Supplier record(s).\nAre you sure you want "
      "to delete this Connection Id?";
  Prompt().ExpectTitled(question, 52, Caption, MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_TRUE(Writing().isEmpty());
  ExpectSelected("C1");
  Prompt().Expect(question, 52, MessageAnswer::Yes);
  Prompt().ExpectStart("ISO 18626 Connection Id: 'C1' successfully deleted", 64);
  Click("cmdDelete");
  EXPECT_EQ(Writing(),
            (QStringList{"UPDATE ID_LIBRARY SET ISO18626_CONNECTION_ID = NULL WHERE ISO18626_CONNECTION_ID = N'C1'",
                         "UPDATE ID_SUPPLIER SET ISO18626_CONNECTION_ID = NULL WHERE ISO18626_CONNECTION_ID = N'C1'",
                         "DELETE FROM ID_ISO18626_CONNECT WHERE ISO18626_CONNECTION_ID = N'C1'"}));
  EXPECT_EQ(Count("ID_SUPPLIER", "SUPPLIER_CODE = 'SUP' AND ISO18626_CONNECTION_ID IS NULL"), 1);
}

TEST_F(ISO18626EditTest, ALibraryIsFoundFirstAndTheSuppliersAreNotAskedThen) {
  AddConnection("C1");
  Another("UPDATE ID_LIBRARY SET ISO18626_CONNECTION_ID = 'C1' WHERE LIBRARY_ID = 303");
  OpenPicker("C1");
  Prompt().ExpectStart("The Connection Id: 'C1' is associated", 52, MessageAnswer::Yes);
  Prompt().ExpectStart("ISO 18626 Connection Id: 'C1' successfully deleted", 64);
  Click("cmdDelete");
  EXPECT_TRUE(Statements().filter("SELECT TOP 1 SUPPLIER_CODE").isEmpty());
  EXPECT_EQ(Count("ID_LIBRARY", "ISO18626_CONNECTION_ID IS NOT NULL"), 0);
}

TEST_F(ISO18626EditTest, ReferencesStayClearedWhenTheLastStatementFails) {
  AddConnection("C1");
  Another("UPDATE ID_LIBRARY SET ISO18626_CONNECTION_ID = 'C1' WHERE LIBRARY_ID = 303");
  Another(
      "CREATE TABLE ID_TEST_USE (USED VARCHAR(50), FOREIGN KEY (USED) REFERENCES ID_ISO18626_CONNECT "
      "(ISO18626_CONNECTION_ID))");
  Another("INSERT INTO ID_TEST_USE (USED) VALUES ('C1')");
  OpenPicker("C1");
  Prompt().ExpectStart("The Connection Id: 'C1' is associated", 52, MessageAnswer::Yes);
  Prompt().ExpectTitled("An error has occurred trying to delete the ISO 18626 Connection Id. Please Notify Support.",
                        16, Caption);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_LIBRARY", "ISO18626_CONNECTION_ID IS NOT NULL"), 0);
  EXPECT_EQ(Count("ID_ISO18626_CONNECT"), 1);
  EXPECT_FALSE(IsShown("lblProcessing"));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(gstrISO18626ConnectionId, "C1");
  EXPECT_EQ(Logged("***** SQL error on ID_ISO18626_CONNECT (Delete) ***** --- SQL Query: DELETE FROM").size(), 1);
}

TEST_F(ISO18626EditTest, ADeleteOfARowThatIsGoneIsTold) {
  AddConnection("C1");
  OpenPicker("C1");
  Another("DELETE FROM ID_ISO18626_CONNECT");
  Prompt().Expect("Unexpected error trying to delete the ISO 18626 Connection Id. Please try again later", 64);
  Click("cmdDelete");
  EXPECT_EQ(LastLog(),
            "frmISO18626Connect.cmdDelete_ClickError trying to delete the Connection Id: 'C1' from the table "
            "ID_ISO18626_CONNECT. No record was deleted.");
}

}  // namespace
