// What the contact screen links to: the NCIP server of another library, the ISO 18626 connection.
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryContactDesk.h"
#include "shell/Screen.h"

namespace {

class LibraryContactLinksTest : public LibraryContactDesk {};

// --- NCIP ---

TEST_F(LibraryContactLinksTest, TheOwnSymbolEnablesTheServerButtonsAndAnyOtherDisablesThem) {
  OpenScreen();
  const auto expect = [this](const QString& text, bool enabled) {
    Type("txtNCIPServerLibrary", text);
    EXPECT_EQ(IsEnabled("cmdUnitLibraries"), enabled) << text.toStdString();
    EXPECT_EQ(IsEnabled("cmdConfigureNCIPServer"), enabled) << text.toStdString();
  };
  expect(" NORTH ", true);
  expect("NORTH2", false);
  expect("SOUTH", false);
  expect("north", false);
  expect("NORTH", true);
  expect("", false);
  EXPECT_TRUE(IsEnabled("cmdStatusCodes"));
  EXPECT_TRUE(IsEnabled("cmdUpdateProfile"));
}

TEST_F(LibraryContactLinksTest, TheServerButtonsAreComputedAnewAfterEachRead) {
  SetColumn(North, "NCIP_SERVER_LIBRARY_ID", "101");
  SetColumn(South, "NCIP_SERVER_LIBRARY_ID", "101");
  OpenScreen();
  EXPECT_TRUE(IsEnabled("cmdUnitLibraries"));
  Type("txtLibrarySymbol", "SOUTH");
  Click("cmdSearch");
  EXPECT_EQ(Text("txtNCIPServerLibrary"), "NORTH") << "the same text for another library";
  EXPECT_FALSE(IsEnabled("cmdUnitLibraries"));
  Type("txtLibrarySymbol", "NORTH");
  Click("cmdSearch");
  EXPECT_TRUE(IsEnabled("cmdUnitLibraries"));
}

TEST_F(LibraryContactLinksTest, TheDialogsWorkOnTwoLibrariesOnPurpose) {
  OpenScreen(South);
  Type("txtNCIPServerLibrary", "SOUTH");
  Statements();
  const std::pair<const char*, const char*> doors[] = {{"cmdConfigureNCIPServer", "frmNCIPServerConnection"},
                                                       {"cmdUnitLibraries", "frmNCIPUnitLibraryMapping"},
                                                       {"cmdStatusCodes", "frmNCIPStatusCodes"},
                                                       {"cmdUpdateProfile", "frmNCIPProfile"}};
  for (const auto& [button, form] : doors) {
    gbSettingsChanged = true;
    glngNCIPLibraryId = 0;
    WhenShown(form, [](Screen&) {
      EXPECT_EQ(glngNCIPLibraryId, South);
      EXPECT_EQ(glngFoundLibraryId, South);
      EXPECT_FALSE(gbSettingsChanged);
    });
    Click(button);
    EXPECT_EQ(Statements().value(0),
              "SELECT LIBRARY_SYMBOL, LIBRARY_ID FROM  ID_LIBRARY WHERE LIBRARY_SYMBOL = N'SOUTH'");
  }
}

TEST_F(LibraryContactLinksTest, AContactWhoseSymbolIsAnotherLibrary) {
  AddServer(North);
  Another("INSERT INTO ID_NCIP_STATUS (LIBRARY_ID, NCIP_STATUS, NCIP_ALLOW_ILL) VALUES (101, 'OF NORTH', 'Y')");
  Another("INSERT INTO ID_NCIP_STATUS (LIBRARY_ID, NCIP_STATUS, NCIP_ALLOW_ILL) VALUES (102, 'OF SOUTH', 'Y')");
  Another("INSERT INTO ID_NCIP_LIBRARY (LIBRARY_ID, NCIP_LIBRARY, UNIT_LIBRARY_ID) VALUES (101, 'UNIT OF NORTH', 102)");
  // South uses the server of North, whose own server is configured.
  SetColumn(North, "NCIP_SERVER_LIBRARY_ID", "101");
  OpenScreen(South);
  WhenShown("frmLibraryRegistration", [this](Screen&) {
    Type("txtLibrarySymbol", "NORTH");
    Click("cmdSearch");
    Click("cmdClose");
  });
  Click("cmdFindLibrary");
  EXPECT_EQ(Text("txtNCIPServerLibrary"), "NORTH");
  EXPECT_EQ(gclsOF->LibraryId(), South);
  EXPECT_TRUE(IsEnabled("cmdConfigureNCIPServer")) << "switched on after the text was set";
  WhenShown("frmNCIPServerConnection", [this](Screen&) { EXPECT_EQ(Text("txtServerAddress"), "h"); });
  Click("cmdConfigureNCIPServer");
  WhenShown("frmNCIPUnitLibraryMapping",
            [this](Screen&) { EXPECT_EQ(Cell("grdLibraryMapping", 1, 1), "UNIT OF NORTH"); });
  Click("cmdUnitLibraries");
  WhenShown("frmNCIPStatusCodes", [this](Screen&) { EXPECT_EQ(Cell("grdNCIPStatusCodes", 1, 1), "OF SOUTH"); });
  Click("cmdStatusCodes");
  WhenShown("frmAPIServerConnection", [this](Screen&) { Click("cmdCancel"); });
  Trigger("mnuOptionsConfigureAPI");
}

TEST_F(LibraryContactLinksTest, AnUnknownSymbolOpensNoDialog) {
  OpenScreen();
  for (const char* symbol : {"", "NOWHERE", "north"}) {
    Type("txtNCIPServerLibrary", symbol);
    for (const char* button : {"cmdStatusCodes", "cmdUpdateProfile"}) {
      Prompt().ExpectTitled("Please enter a valid library symbol.", MessageStyle::Stop, Caption);
      Click(button);
      EXPECT_EQ(glngFoundLibraryId, -1);
    }
  }
}

TEST_F(LibraryContactLinksTest, FindLibraryReadsTheServerOfTheLibraryChosen) {
  SetColumn(South, "NCIP_SERVER_LIBRARY_ID", "101");
  OpenScreen();
  const auto find = [this](const QString& symbol) {
    WhenShown("frmLibraryRegistration", [this, symbol](Screen&) {
      if (!symbol.isEmpty()) {
        Type("txtLibrarySymbol", symbol);
        Click("cmdSearch");
      }
      Click("cmdClose");
    });
    Statements();
    Click("cmdFindLibrary");
  };
  find("SOUTH");
  EXPECT_EQ(Text("txtNCIPServerLibrary"), "SOUTH");
  EXPECT_FALSE(IsEnabled("cmdUnitLibraries"));
  const QStringList statements = Statements();
  EXPECT_TRUE(statements.contains("SELECT   NCIP_SERVER_LIBRARY_ID FROM ID_LIBRARY WHERE    LIBRARY_ID = 102"));
  EXPECT_TRUE(statements.contains("SELECT   * FROM ID_NCIP_CONNECT WHERE    LIBRARY_ID = 101"));
  AddServer(North);
  find("SOUTH");
  EXPECT_TRUE(IsEnabled("cmdUnitLibraries"));
  find("");
  EXPECT_EQ(Text("txtNCIPServerLibrary"), "") << "no library was chosen";
  EXPECT_FALSE(IsEnabled("cmdUnitLibraries"));
}

TEST_F(LibraryContactLinksTest, FindLibraryWithoutTheRightChangesNothing) {
  SetColumn(North, "NCIP_SERVER_LIBRARY_ID", "102");
  OpenScreen();
  Another("DELETE FROM ID_USER_FUNCTION WHERE FUNCTION_NAME = 'Library Registration'");
  Prompt().ExpectTitled("You do not have access to this function", MessageStyle::Stop, Caption);
  Click("cmdFindLibrary");
  EXPECT_EQ(Text("txtNCIPServerLibrary"), "SOUTH");
}

// --- ISO 18626 ---

TEST_F(LibraryContactLinksTest, ThePickerTakesTheIdAndGivesOneBack) {
  AddConnection("C1");
  AddConnection("C2");
  SetColumn(North, "ISO18626_CONNECTION_ID", "'C1'");
  OpenScreen();
  gbISO18626SelectionMode = false;
  WhenShown("frmISO18626Connect", [this](Screen&) {
    EXPECT_TRUE(IsShown("cmdSelect"));
    EXPECT_EQ(Text("txtConnectionID"), "C1");
    SelectRowOf("grdISO18626Connections", "C2");
    Click("cmdSelect");
  });
  Click("cmdConfigISO18626Connection");
  EXPECT_EQ(Text("txtConnectionID"), "C2");
  Saves();
  EXPECT_EQ(Column("ISO18626_CONNECTION_ID"), "C2");
}

TEST_F(LibraryContactLinksTest, AnIdThatIsDeletedWhileThePickerIsOpenComesBackEmpty) {
  AddConnection("C1");
  SetColumn(North, "ISO18626_CONNECTION_ID", "'C1'");
  OpenScreen();
  Prompt().ExpectStart("The Connection Id: 'C1' is associated to one or more", 52, MessageAnswer::Yes);
  Prompt().Expect("ISO 18626 Connection Id: 'C1' successfully deleted", MessageStyle::Information);
  WhenShown("frmISO18626Connect", [this](Screen&) {
    Click("cmdDelete");
    Click("cmdClose");
  });
  Click("cmdConfigISO18626Connection");
  EXPECT_EQ(Text("txtConnectionID"), "");
  Saves();
}

}  // namespace
