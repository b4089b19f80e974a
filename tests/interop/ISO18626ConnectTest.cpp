#include <QCheckBox>
#include <QLabel>
#include <QTest>

#include "interop/InteropDesk.h"

namespace {

const QString Caption = "Ostana - ISO 18626 Connection Configuration and Selection";
const QString Grid1 = "grdISO18626Connections";

class ISO18626ConnectTest : public InteropDesk {
 protected:
  void AddConnection(const QString& id, const QString& flags = "'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N'",
                     const QString& system = "RESHARE") {
    Another(
        "INSERT INTO ID_ISO18626_CONNECT (ISO18626_CONNECTION_ID, ILL_SYSTEM, ISO18626_CONNECT_TYPE, "
        "ISO18626_HOST_ADDRESS, ISO18626_HOST_URL, ISO18626_HOST_PORT, ISO18626_VERSION, ISO18626_AUTHN_TYPE, "
        "RT_RETRY, RST_TRANSFER_REQUEST, TRANSFER_PATRON_INFO, TRANSFER_PATRON_EMAIL, TRANSFER_PATRON_ADDRESS, "
        "ACTION_CANCEL, ACTION_RENEW, ACTION_NOTIFICATION, RFM_REQUEST_RESPONSE, RFM_NOTIFICATION) VALUES ('" +
        id + "', '" + system + "', 'HTTPS', 'iso.example.org', '/iso', 8443, '1.2', 'BASIC', " + flags + ")");
  }
  void OpenPicker(const QString& id = {}) {
    gstrISO18626ConnectionId = id;
    Open("frmISO18626Connect");
    Statements();
  }
  void OpenMaintenance() {
    gbISO18626SelectionMode = false;
    OpenPicker();
  }
  void Fill(const QString& id) {
    Type("txtConnectionID", id);
    Choose("cmbILLSystem", "ReShare");
    Choose("cmbVersion", "ISO 18626:2021");
    Choose("cmbAuthType", "User and password");
    Choose("cmbConnectionType", "HTTPS");
    Type("txtHostAddress", "iso.example.org");
  }
  QString Stored(const QString& column, const QString& id) {
    return Ask("SELECT " + column + " FROM ID_ISO18626_CONNECT WHERE ISO18626_CONNECTION_ID = '" + id + "'");
  }
  void ExpectNoSelection() {
    EXPECT_EQ(Row(Grid1), 0);
    EXPECT_TRUE(IsEnabled("txtConnectionID"));
    EXPECT_TRUE(IsEnabled("cmdAdd"));
    for (const char* button : {"cmdUpdate", "cmdSelect", "cmdDelete"}) EXPECT_FALSE(IsEnabled(button)) << button;
  }
  void ExpectSelected(const QString& id) {
    EXPECT_EQ(Cell(Grid1, Row(Grid1), 1), id);
    EXPECT_EQ(Text("txtConnectionID"), id);
    EXPECT_FALSE(IsEnabled("txtConnectionID"));
    EXPECT_FALSE(IsEnabled("cmdAdd"));
    for (const char* button : {"cmdUpdate", "cmdSelect", "cmdDelete"}) EXPECT_TRUE(IsEnabled(button)) << button;
  }
};

// --- Loading ---

TEST_F(ISO18626ConnectTest, TheListsAndTheConnectionsAreReadInThisOrder) {
  Open("frmISO18626Connect");
  EXPECT_EQ(
      Statements(),
      (QStringList{
          "SELECT   ILL_SYSTEM, ILL_SYSTEM_DESC FROM ID_ILL_SYSTEM ORDER BY ILL_SYSTEM ",
          "SELECT   ISO18626_VERSION, ISO18626_VERSION_DESC FROM ID_ISO18626_VERSION ORDER BY ISO18626_VERSION ",
          "SELECT   ISO18626_AUTHN_TYPE, ISO18626_AUTHN_TYPE_DESC FROM ID_ISO18626_AUTHN_TYPE ORDER BY "
          "ISO18626_AUTHN_TYPE ",
          "SELECT   ISO18626_CONNECT_TYPE, ISO18626_CONNECT_TYPE_DESC FROM ID_ISO18626_CONNECT_TYPE ORDER BY "
          "ISO18626_CONNECT_TYPE ",
          "SELECT DISTINCT C.ISO18626_CONNECTION_ID, C.ISO18626_HOST_ADDRESS, SY.ILL_SYSTEM, SY.ILL_SYSTEM_DESC, "
          "A.ISO18626_AUTHN_TYPE, A.ISO18626_AUTHN_TYPE_DESC FROM ID_ISO18626_CONNECT C INNER JOIN ID_ILL_SYSTEM SY "
          "ON C.ILL_SYSTEM = SY.ILL_SYSTEM INNER JOIN ID_ISO18626_AUTHN_TYPE A ON C.ISO18626_AUTHN_TYPE = "
          "A.ISO18626_AUTHN_TYPE ORDER BY C.ISO18626_CONNECTION_ID "}));
}

TEST_F(ISO18626ConnectTest, TheScreenStartsEmptyWithThePortOfHttps) {
  OpenPicker();
  for (const char* box : {"txtConnectionID", "txtHostAddress", "txtUrl"}) EXPECT_EQ(Text(box), "") << box;
  EXPECT_EQ(Text("txtPort"), "443");
  for (const char* box : {"cmbILLSystem", "cmbVersion", "cmbAuthType", "cmbConnectionType"})
    EXPECT_EQ(Text(box), "(None)") << box;
  for (const char* box : {"chkPatronInfo", "chkPatronEmail", "chkPatronAddress"}) EXPECT_FALSE(IsEnabled(box)) << box;
  ExpectNoSelection();
  EXPECT_EQ(Focus(), "txtConnectionID");
  EXPECT_FALSE(IsShown("lblProcessing"));
  for (const auto& [col, twips] : std::map<int, int>{{0, 405}, {1, 1995}, {2, 1995}, {3, 2445}, {4, 2805}})
    EXPECT_EQ(Find<Grid>(Grid1)->ColWidth(col), twips) << col;
}

TEST_F(ISO18626ConnectTest, ListsAreSortedBehindNoneAndKeepTheirCodes) {
  Another("INSERT INTO ID_ILL_SYSTEM (ILL_SYSTEM, ILL_SYSTEM_DESC) VALUES ('ZZZ', 'abacus')");
  Another("INSERT INTO ID_ILL_SYSTEM (ILL_SYSTEM, ILL_SYSTEM_DESC) VALUES ('AAA', 'Zebra')");
  OpenPicker();
  const auto* const systems = Find<CodeComboBox>("cmbILLSystem");
  EXPECT_EQ(systems->TextAt(0), "(None)");
  EXPECT_EQ(systems->TextAt(1), "abacus");
  EXPECT_EQ(systems->CodeAt(1), "ZZZ");
  EXPECT_EQ(systems->TextAt(systems->Count() - 1), "Zebra");
  EXPECT_EQ(systems->CodeAt(systems->Count() - 1), "AAA");
}

TEST_F(ISO18626ConnectTest, DescriptionsComeInTheWorkingLanguage) {
  Another("UPDATE ID_ILL_SYSTEM SET ILL_SYSTEM_DESC_FRE = 'Partage' WHERE ILL_SYSTEM = 'RESHARE'");
  AddConnection("C1");
  gclsOF->SetLanguageSuffix("_FRE");
  OpenPicker("C1");
  EXPECT_EQ(Cell(Grid1, 1, 2), "Partage");
  EXPECT_EQ(Text("cmbILLSystem"), "Partage");
}

TEST_F(ISO18626ConnectTest, TheSelectButtonShowsInThePickerOnlyAndTheOperationsMakeRoom) {
  OpenMaintenance();
  EXPECT_FALSE(IsShown("cmdSelect"));
  QApplication::processEvents();
  const int left = Find<QWidget>("fraOperations")->x();
  Click("cmdClose");
  EXPECT_TRUE(gbISO18626SelectionMode);
  OpenPicker();
  EXPECT_TRUE(IsShown("cmdSelect"));
  QApplication::processEvents();
  EXPECT_GT(Find<QWidget>("fraOperations")->x(), left);
}

TEST_F(ISO18626ConnectTest, AConnectionWhoseSystemOrAuthenticationIsGoneIsNotListed) {
  AddConnection("C1");
  AddConnection("C2", "'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N'", "GONE");
  Another(
      "INSERT INTO ID_ISO18626_CONNECT SELECT 'C3', ILL_SYSTEM, ISO18626_CONNECT_TYPE, ISO18626_HOST_ADDRESS, "
      "ISO18626_HOST_URL, ISO18626_HOST_PORT, ISO18626_VERSION, 'LOST', RT_RETRY, RST_TRANSFER_REQUEST, "
      "TRANSFER_PATRON_INFO, TRANSFER_PATRON_EMAIL, TRANSFER_PATRON_ADDRESS, ACTION_CANCEL, ACTION_RENEW, "
      "ACTION_NOTIFICATION, RFM_REQUEST_RESPONSE, RFM_NOTIFICATION FROM ID_ISO18626_CONNECT WHERE "
      "ISO18626_CONNECTION_ID = 'C1'");
  OpenPicker("C2");
  EXPECT_EQ(Rows(Grid1), 2);
  EXPECT_EQ(Cell(Grid1, 1, 1), "C1");
  ExpectNoSelection();
}

TEST_F(ISO18626ConnectTest, TheIdHandedInIsSelectedByItsExactLetters) {
  AddConnection("ab");
  AddConnection("AB");
  OpenPicker("AB");
  ExpectSelected("AB");
  EXPECT_EQ(Text("txtHostAddress"), "iso.example.org");
  EXPECT_EQ(Text("txtUrl"), "/iso");
  EXPECT_EQ(Text("txtPort"), "8443");
  EXPECT_EQ(Text("cmbILLSystem"), "ReShare");
  EXPECT_EQ(Text("cmbVersion"), "ISO 18626:2021");
  EXPECT_EQ(Text("cmbAuthType"), "User and password");
  EXPECT_EQ(Text("cmbConnectionType"), "HTTPS");
  Click("cmdClose");
  OpenPicker("Ab");
  ExpectNoSelection();
}

TEST_F(ISO18626ConnectTest, AFailedLoadIsToldAndLoggedWithItsStatement) {
  gclsOF->SetLanguageSuffix("_XXX");
  Prompt().ExpectTitled("An error has occurred loading from the database the information required by this Form.", 16,
                        Caption);
  Prompt().Expect(
      "An error has occurred loading from the database the data of the ISO 18626 Connection Ids. Please "
      "Notify Support.",
      16);
  Open("frmISO18626Connect");
  const QStringList lines = LogLines();
  const qsizetype first = lines.indexOf(lines.filter("PopulateComboBoxes - Failed.").value(0));
  ASSERT_GE(first, 0);
  EXPECT_TRUE(lines[first].endsWith("  * frmISO18626Connect.PopulateComboBoxes - Failed."));
  EXPECT_EQ(lines[first + 1].mid(24),
            "* ***** SQL error on ID_ILL_SYSTEM  (Select) ***** --- SQL Query: SELECT   ILL_SYSTEM, "
            "ILL_SYSTEM_DESC_XXX FROM ID_ILL_SYSTEM ORDER BY ILL_SYSTEM ");
  EXPECT_EQ(lines[first + 2], "");
  EXPECT_TRUE(lines[first + 3].startsWith("Error: -2147217900 - ")) << lines[first + 3].toStdString();
  EXPECT_EQ(lines.filter("***** SQL error on ID_ISO18626_CONNECT, ID_LIBRARY, ID_SUPPLIER (Select) *****").size(), 1);
}

TEST_F(ISO18626ConnectTest, WithoutTracingNothingIsLogged) {
  Setting("System", "Tracing", "N");
  Logon();
  gclsOF->SetLanguageSuffix("_XXX");
  Prompt().ExpectStart("An error has occurred loading", 16).ExpectStart("An error has occurred loading", 16);
  Open("frmISO18626Connect");
  EXPECT_TRUE(Logged("frmISO18626Connect").isEmpty());
}

// --- Selecting ---

TEST_F(ISO18626ConnectTest, SelectingARowShowsItAndClearGoesBack) {
  AddConnection("C1");
  OpenPicker();
  SelectRowOf(Grid1, "C1");
  EXPECT_EQ(Statements(), QStringList{"SELECT * FROM ID_ISO18626_CONNECT WHERE ISO18626_CONNECTION_ID = N'C1'"});
  ExpectSelected("C1");
  Click("btnClear");
  ExpectNoSelection();
  EXPECT_EQ(Text("txtConnectionID"), "");
  EXPECT_EQ(Text("txtPort"), "443");
  EXPECT_EQ(Focus(), "txtConnectionID");
}

TEST_F(ISO18626ConnectTest, ARowThatIsGoneLeavesTheButtonsOff) {
  AddConnection("O''1");
  OpenPicker();
  Another("DELETE FROM ID_ISO18626_CONNECT");
  Prompt().ExpectTitled("Unable to find the data of the ISO 18626 Connection Id: 'O'1'", 48, Caption);
  SelectRow(Grid1, 1);
  for (const char* button : {"cmdUpdate", "cmdSelect", "cmdDelete"}) EXPECT_FALSE(IsEnabled(button)) << button;
  EXPECT_EQ(Text("txtHostAddress"), "");
}

TEST_F(ISO18626ConnectTest, PatronBoxesFollowTheBoxTheyDependOn) {
  AddConnection("NOTRANSFER", "'Y', 'N', 'Y', 'Y', 'Y', 'Y', 'Y', 'Y', 'Y', 'Y'");
  AddConnection("NOINFO", "'N', 'Y', 'N', 'Y', 'Y', 'N', 'N', 'N', 'N', 'N'");
  AddConnection("BOTH", "'N', 'Y', 'Y', 'Y', 'N', 'N', 'N', 'N', 'N', 'N'");
  OpenPicker("NOTRANSFER");
  for (const char* box : {"chkPatronInfo", "chkPatronEmail", "chkPatronAddress"}) {
    EXPECT_FALSE(IsChecked(box)) << box;
    EXPECT_FALSE(IsEnabled(box)) << box;
  }
  for (const char* box : {"chkRetryEnabled", "chkActionCancel", "chkActionRenew", "chkActionNotification",
                          "chkReasonRequestResponse", "chkReasonNotification"})
    EXPECT_TRUE(IsChecked(box)) << box;
  SelectRowOf(Grid1, "NOINFO");
  EXPECT_TRUE(IsEnabled("chkPatronInfo"));
  for (const char* box : {"chkPatronEmail", "chkPatronAddress"}) {
    EXPECT_FALSE(IsChecked(box)) << box;
    EXPECT_FALSE(IsEnabled(box)) << box;
  }
  EXPECT_FALSE(IsChecked("chkRetryEnabled"));
  SelectRowOf(Grid1, "BOTH");
  EXPECT_TRUE(IsChecked("chkPatronInfo"));
  EXPECT_TRUE(IsChecked("chkPatronEmail"));
  EXPECT_FALSE(IsChecked("chkPatronAddress"));
  EXPECT_TRUE(IsEnabled("chkPatronAddress"));
}

TEST_F(ISO18626ConnectTest, UncheckingTransferUnchecksAllThatHangsOnIt) {
  OpenPicker();
  Click("chkTransferEnabled");
  EXPECT_TRUE(IsEnabled("chkPatronInfo"));
  EXPECT_FALSE(IsEnabled("chkPatronEmail"));
  Click("chkPatronInfo");
  Click("chkPatronEmail");
  Click("chkPatronAddress");
  Click("chkPatronInfo");
  EXPECT_FALSE(IsChecked("chkPatronEmail"));
  EXPECT_FALSE(IsEnabled("chkPatronAddress"));
  Click("chkPatronInfo");
  Click("chkPatronEmail");
  Click("chkTransferEnabled");
  EXPECT_FALSE(IsChecked("chkPatronInfo"));
  EXPECT_FALSE(IsEnabled("chkPatronInfo"));
  EXPECT_FALSE(IsChecked("chkPatronEmail"));
  EXPECT_FALSE(IsEnabled("chkPatronEmail"));
}

// --- Tests of the entry ---

TEST_F(ISO18626ConnectTest, EachRequiredFieldIsAskedForInItsOrder) {
  OpenPicker();
  const auto refused = [this](const QString& text, const QString& focus) {
    Prompt().ExpectTitled(text, 48, Caption);
    Click("cmdAdd");
    EXPECT_EQ(Focus(), focus);
  };
  Type("txtConnectionID", "   ");
  refused("The Connection Id is required.", "txtConnectionID");
  Type("txtConnectionID", "C1");
  refused("The ILL System is required. Please select a valid value", "cmbILLSystem");
  Choose("cmbILLSystem", "ReShare");
  refused("The Protocol Version is required. Please select a valid value", "cmbVersion");
  Choose("cmbVersion", "ISO 18626:2021");
  refused("The Authentication Type is required. Please select a valid value", "cmbAuthType");
  Choose("cmbAuthType", "User and password");
  refused("The Connection Type is required. Please select a valid value", "cmbConnectionType");
  Choose("cmbConnectionType", "HTTPS");
  Type("txtHostAddress", " ");
  refused("The Host Address is required.", "txtHostAddress");
  EXPECT_TRUE(Statements().isEmpty());
}

TEST_F(ISO18626ConnectTest, APortLeftEmptyPutsTheCaretIntoTheHostAddress) {
  OpenPicker();
  Fill("C1");
  Type("txtPort", "");
  Prompt().Expect("The Host Port is required.", 48);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txtHostAddress");
}

TEST_F(ISO18626ConnectTest, ThePortTakesFiveDigitsAndBeepsAtAnythingElse) {
  OpenPicker();
  Type("txtPort", "9x9-9 99");
  EXPECT_EQ(Text("txtPort"), "99999");
  EXPECT_EQ(Prompt().Beeps(), 3);
  Paste("txtPort", "12; DROP");
  EXPECT_EQ(Text("txtPort"), "12");
  Press("txtPort", Qt::Key_Backspace);
  EXPECT_EQ(Text("txtPort"), "1");
}

TEST_F(ISO18626ConnectTest, NothingIsLongerThanItsColumn) {
  OpenPicker();
  for (const auto& [box, limit] :
       std::map<QString, int>{{"txtConnectionID", 50}, {"txtHostAddress", 80}, {"txtUrl", 80}, {"txtPort", 5}})
    EXPECT_EQ(Find<TextBox>(box)->maxLength(), limit) << box.toStdString();
}

// --- Add ---

TEST_F(ISO18626ConnectTest, ANewConnectionIsStoredAndSelected) {
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
            "(N'O''Hara', N'RESHARE', N'HTTPS', N'iso.example.org', N'/ill?a=''b''', 99999, N'1.2', N'BASIC', N'N', "
            "N'Y', N'Y', N'N', N'Y', N'N', N'Y', N'N', N'N', N'N')");
  ExpectSelected("O'Hara");
  EXPECT_EQ(Stored("ISO18626_HOST_URL", "O''Hara"), "/ill?a='b'");
  const QStringList log = Logged("frmISO18626Connect.cmdAdd_Click");
  ASSERT_EQ(log.size(), 3);
  EXPECT_TRUE(log[0].endsWith("cmdAdd_Click - Validating data for adding the new Connection Id"));
  EXPECT_TRUE(log[1].endsWith("cmdAdd_Click - Adding the ISO 18626 Connection Id: 'O'Hara'"));
  EXPECT_TRUE(log[2].endsWith("cmdAdd_Click - Connection Id: 'O'Hara' successfully added"));
}

TEST_F(ISO18626ConnectTest, WithoutTransferAllPatronColumnsAreNAndAnEmptyUrlIsNull) {
  OpenPicker();
  Fill("C1");
  // What no hand can do: the boxes are off.
  Find<QCheckBox>("chkPatronEmail")->setChecked(true);
  Prompt().ExpectStart("ISO 18626 Connection Id: 'C1'", 64);
  Click("cmdAdd");
  const QStringList writing = Writing();
  ASSERT_EQ(writing.size(), 1);
  EXPECT_TRUE(
      writing[0].endsWith("VALUES (N'C1', N'RESHARE', N'HTTPS', N'iso.example.org', Null, 443, N'1.2', "
                          "N'BASIC', N'N', N'N', N'N', N'N', N'N', N'N', N'N', N'N', N'N', N'N')"))
      << writing[0].toStdString();
}

TEST_F(ISO18626ConnectTest, AnIdThatExistsIsRefused) {
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

TEST_F(ISO18626ConnectTest, MaintenanceAsksForAnotherOne) {
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

TEST_F(ISO18626ConnectTest, TheProgressShowsWhileTheStatementRuns) {
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

TEST_F(ISO18626ConnectTest, ARefusedInsertIsLoggedWithItsStatement) {
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

TEST_F(ISO18626ConnectTest, AnInsertThatStoredNothingIsTold) {
  if (TestDatabase::TestEngine() != Engine::PostgreSql) GTEST_SKIP() << "needs a rule of the server";
  Another("CREATE RULE NO_INSERT AS ON INSERT TO ID_ISO18626_CONNECT DO INSTEAD NOTHING");
  OpenPicker();
  Fill("C1");
  Prompt().Expect("Unexpected error trying to add the ISO 18626 Connection Id. Please try again later", 64);
  Click("cmdAdd");
  EXPECT_EQ(LastLog(),
            "frmISO18626Connect.cmdAdd_Click - Error trying to insert the Connection Id: 'C1' into the table "
            "ID_ISO18626_CONNECT. No record was inserted.");
}

// --- Update ---

TEST_F(ISO18626ConnectTest, AnUpdateWritesAllColumnsAndTheCellsOfTheRow) {
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

TEST_F(ISO18626ConnectTest, AnUpdateKeepsThePatronColumnsOfATransfer) {
  AddConnection("C1", "'N', 'Y', 'Y', 'N', 'Y', 'N', 'N', 'N', 'N', 'N'");
  OpenPicker("C1");
  Click("chkPatronEmail");
  Prompt().ExpectStart("ISO 18626 Connection Id 'C1'", 64);
  Click("cmdUpdate");
  EXPECT_TRUE(Writing().value(0).contains(
      ", TRANSFER_PATRON_INFO = N'Y', TRANSFER_PATRON_EMAIL= N'Y', TRANSFER_PATRON_ADDRESS= N'Y', "));
  EXPECT_EQ(Stored("ISO18626_HOST_URL", "C1"), "/iso");
}

TEST_F(ISO18626ConnectTest, AfterAnUpdateTheGridIsNotSortedAgain) {
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

TEST_F(ISO18626ConnectTest, AnUpdateOfARowThatIsGoneIsTold) {
  AddConnection("C1");
  OpenPicker("C1");
  Another("DELETE FROM ID_ISO18626_CONNECT");
  Prompt().ExpectTitled("Unexpected error trying to update the ISO 18626 Connection Id. Please try again later", 64,
                        Caption);
  Click("cmdUpdate");
  EXPECT_EQ(LastLog(),
            "frmISO18626Connect.cmdUpdate_Click - Error trying to update the Connection Id: 'C1'. No record was "
            "updated.");
}

TEST_F(ISO18626ConnectTest, AnUpdateThatChangesNothingCountsAsOneRow) {
  AddConnection("C1");
  OpenPicker("C1");
  Prompt().ExpectStart("ISO 18626 Connection Id 'C1' successfully updated", 64);
  Click("cmdUpdate");
}

TEST_F(ISO18626ConnectTest, ARefusedUpdateIsTold) {
  AddConnection("C1");
  OpenPicker("C1");
  Choose("cmbConnectionType", "HTTP");
  Another("DELETE FROM ID_ISO18626_CONNECT_TYPE WHERE ISO18626_CONNECT_TYPE = 'HTTP'");
  Prompt().Expect("An error has occurred trying to update the ISO 18626 Connection Id. Please Notify Support.", 16);
  Click("cmdUpdate");
  EXPECT_EQ(Logged("***** SQL error on ID_ISO18626_CONNECT (Update) *****").size(), 1);
}

// --- Delete ---

TEST_F(ISO18626ConnectTest, AConnectionNobodyUsesIsDeletedWithoutAQuestion) {
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

TEST_F(ISO18626ConnectTest, DeletingTheIdHandedInReturnsAnEmptyId) {
  AddConnection("C1");
  OpenPicker("C1");
  Prompt().ExpectStart("ISO 18626 Connection Id: 'C1'", 64);
  Click("cmdDelete");
  Click("cmdClose");
  EXPECT_EQ(gstrISO18626ConnectionId, "");
}

TEST_F(ISO18626ConnectTest, AnotherIdHandedInStaysWhenOneIsDeleted) {
  AddConnection("C1");
  AddConnection("C2");
  OpenPicker("C2");
  SelectRowOf(Grid1, "C1");
  Prompt().ExpectStart("ISO 18626 Connection Id: 'C1'", 64);
  Click("cmdDelete");
  EXPECT_EQ(gstrISO18626ConnectionId, "C2");
}

TEST_F(ISO18626ConnectTest, ASupplierAloneBringsTheQuestionAndBothTablesAreCleared) {
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

TEST_F(ISO18626ConnectTest, ALibraryIsFoundFirstAndTheSuppliersAreNotAskedThen) {
  AddConnection("C1");
  Another("UPDATE ID_LIBRARY SET ISO18626_CONNECTION_ID = 'C1' WHERE LIBRARY_ID = 303");
  OpenPicker("C1");
  Prompt().ExpectStart("The Connection Id: 'C1' is associated", 52, MessageAnswer::Yes);
  Prompt().ExpectStart("ISO 18626 Connection Id: 'C1' successfully deleted", 64);
  Click("cmdDelete");
  EXPECT_TRUE(Statements().filter("SELECT TOP 1 SUPPLIER_CODE").isEmpty());
  EXPECT_EQ(Count("ID_LIBRARY", "ISO18626_CONNECTION_ID IS NOT NULL"), 0);
}

TEST_F(ISO18626ConnectTest, ReferencesStayClearedWhenTheLastStatementFails) {
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

TEST_F(ISO18626ConnectTest, ADeleteOfARowThatIsGoneIsTold) {
  AddConnection("C1");
  OpenPicker("C1");
  Another("DELETE FROM ID_ISO18626_CONNECT");
  Prompt().Expect("Unexpected error trying to delete the ISO 18626 Connection Id. Please try again later", 64);
  Click("cmdDelete");
  EXPECT_EQ(LastLog(),
            "frmISO18626Connect.cmdDelete_Click - Error trying to delete the Connection Id: 'C1' from the table "
            "ID_ISO18626_CONNECT. No record was deleted.");
}

// --- The picker ---

TEST_F(ISO18626ConnectTest, TheChoiceGoesBackAndCloseLeavesItAlone) {
  AddConnection("C1");
  AddConnection("C2");
  OpenPicker("C1");
  SelectRowOf(Grid1, "C2");
  Click("cmdClose");
  EXPECT_EQ(gstrISO18626ConnectionId, "C1");
  OpenPicker("C1");
  SelectRowOf(Grid1, "C2");
  Click("cmdSelect");
  EXPECT_EQ(gstrISO18626ConnectionId, "C2");
  EXPECT_FALSE(IsOpen());
}

TEST_F(ISO18626ConnectTest, AllOfItCanBeDoneWithTheKeyboard) {
  AddConnection("C1");
  AddConnection("C2");
  OpenPicker();
  EXPECT_EQ(TabStops("txtConnectionID", 9),
            (QStringList{"txtConnectionID", "cmbILLSystem", "cmbVersion", "cmbAuthType", "cmbConnectionType",
                         "txtHostAddress", "txtUrl", "txtPort", "chkRetryEnabled"}));
  Press(Grid1, Qt::Key_Down);
  EXPECT_EQ(Text("txtConnectionID"), "C1");
  Press(Grid1, Qt::Key_Down);
  EXPECT_EQ(Text("txtConnectionID"), "C2");
  Press(Grid1, Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([] { return gstrISO18626ConnectionId == "C2"; }));
}

TEST_F(ISO18626ConnectTest, APictureOfIt) {
  AddConnection("ISO-PARTNER", "'Y', 'Y', 'Y', 'Y', 'N', 'Y', 'N', 'Y', 'N', 'Y'");
  AddConnection("ISO-SECOND");
  OpenPicker("ISO-PARTNER");
  Picture("frmISO18626Connect-picker");
}

}  // namespace
