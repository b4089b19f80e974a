#include <QTest>

#include "interop/ISO18626Desk.h"

namespace {

class ISO18626ConnectTest : public ISO18626Desk {};

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
  Another("UPDATE ID_ILL_SYSTEM SET ILL_SYSTEM_DESC_FRE = 'Partage' WHERE ILL_SYSTEM = 'TALVERNE'");
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
  EXPECT_EQ(Text("cmbILLSystem"), "Talverne");
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
  Choose("cmbILLSystem", "Talverne");
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
