// Find Library with the real screen behind it: the right is borrowed and given back on every path.
#include "shell/FindLibrary.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryDesk.h"
#include "shell/Screen.h"

namespace {

class FindLibraryTest : public LibraryDesk {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    Begin(South, "Tabulon");
    ASSERT_TRUE(gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), "Tabulon"));
    window_.setWindowTitle("Caller");
    window_.show();
  }
  void EverythingIsBack() {
    EXPECT_EQ(gclsOF->CurrentFunction(), "Tabulon");
    EXPECT_EQ(gclsOF->CallingFunction(), "Tabulon");
    EXPECT_EQ(gclsOF->LibraryId(), South);
  }
  QWidget window_;
};

TEST_F(FindLibraryTest, TheLibraryOnShowIsTheAnswer) {
  WhenShown("frmLibraryRegistration", [this](Screen&) {
    EXPECT_EQ(gclsOF->CurrentFunction(), "Library Registration");
    EXPECT_EQ(gclsOF->CallingFunction(), "Library Registration");
    EXPECT_EQ(Text("txtLibrarySymbol"), "");
    Type("txtLibrarySymbol", "NORTH");
    Click("cmdSearch");
    Click("cmdClose");
  });
  const FoundLibrary found = FindLibrary(&window_);
  EXPECT_TRUE(found.allowed);
  EXPECT_EQ(found.id, North);
  EXPECT_EQ(found.symbol, "NORTH");
  EverythingIsBack();
}

TEST_F(FindLibraryTest, ACancelledSearchIsNoAnswer) {
  WhenShown("frmLibraryRegistration", [this](Screen&) { Click("cmdClose"); });
  const FoundLibrary found = FindLibrary(&window_);
  EXPECT_TRUE(found.allowed);
  EXPECT_LT(found.id, 1);
  EXPECT_EQ(found.symbol, "");
  EverythingIsBack();
}

TEST_F(FindLibraryTest, ARefusedRightShowsNoScreen) {
  Another("DELETE FROM ID_USER_FUNCTION WHERE FUNCTION_NAME = 'Library Registration'");
  Prompt().ExpectTitled("You do not have access to this function", MessageStyle::Stop, "Caller");
  EXPECT_FALSE(FindLibrary(&window_).allowed);
  EverythingIsBack();
}

TEST_F(FindLibraryTest, ALibraryDeletedMeanwhileHasNoSymbol) {
  WhenShown("frmLibraryRegistration", [this](Screen&) {
    Type("txtLibrarySymbol", "NORTH");
    Click("cmdSearch");
    Another("DELETE FROM ID_LIBRARY WHERE LIBRARY_ID = 101");
    Click("cmdClose");
  });
  const FoundLibrary found = FindLibrary(&window_);
  EXPECT_EQ(found.symbol, "");
  EverythingIsBack();
}

TEST_F(FindLibraryTest, TheAnswerMayBeFoundOnASiblingScreen) {
  WhenShown("frmLibraryBillingInfo", [this](Screen&) {
    Type("txtLibrarySymbol", "NORTH");
    Click("cmdSearch");
    Click("cmdClose");
  });
  WhenShown("frmLibraryRegistration", [this](Screen&) { Click("cmdBilling"); });
  EXPECT_EQ(FindLibrary(&window_).id, North);
  EverythingIsBack();
}

// A session of its own runs over a library screen; that screen's own state comes back with it.
TEST_F(FindLibraryTest, OverAnOpenLibraryScreenTheActiveStateIsDerivedAgain) {
  OpenLibrary("frmLibraryStatisticalInfo", North);
  EXPECT_TRUE(gbLibraryActive);
  Screen* const screen = dynamic_cast<Screen*>(Window());
  WhenShown("frmLibraryRegistration", [this](Screen&) {
    Type("txtLibrarySymbol", "SOUTH");
    Click("cmdSearch");
    EXPECT_FALSE(gbLibraryActive);
    Click("cmdClose");
  });
  EXPECT_EQ(FindLibrary(screen).id, South);
  EXPECT_TRUE(gbLibraryActive);
  EXPECT_EQ(gclsOF->LibraryId(), North);
}

}  // namespace
