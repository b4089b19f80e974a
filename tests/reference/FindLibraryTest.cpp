// The library search that both message screens offer.
#include "reference/ReferenceDesk.h"

namespace {

class MessageLibrarySearchTest : public ReferenceDesk, public testing::WithParamInterface<const char*> {
 protected:
  void SetUp() override {
    ReferenceDesk::SetUp();
    Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (101, 'ALPHA', 'Alpha')");
    if (!RegisteredScreens().contains("frmLibraryRegistration"))
      RegisterScreen("frmLibraryRegistration", [](QWidget* owner) {
        return std::make_unique<Screen>("frmLibraryRegistration", "Ostana - Library Registration", owner);
      });
  }
};

TEST_P(MessageLibrarySearchTest, PutsTheSymbolIntoTheBoxAndMarksTheRecord) {
  Open(GetParam());
  WhenShown("frmLibraryRegistration", [](Screen&) { gclsOF->SetLibraryId(101); });
  Click("cmdFindLibrary");
  EXPECT_EQ(Shown("txtLibrarySymbol"), "ALPHA");
  EXPECT_EQ(gclsOF->CurrentFunction().toStdString(), "Tabulon");
  Prompt().Expect(Say::Modified, Say::Question, Say::No);
  Click("cmdClose");
}

TEST_P(MessageLibrarySearchTest, AnEmptyAnswerEmptiesTheBox) {
  Open(GetParam());
  Type("txtLibrarySymbol", "ALPHA");
  WhenShown("frmLibraryRegistration", [](Screen&) { gclsOF->SetLibraryId(0); });
  Click("cmdFindLibrary");
  EXPECT_EQ(Shown("txtLibrarySymbol"), "");
}

TEST_P(MessageLibrarySearchTest, WithoutTheRightNothingChanges) {
  Open(GetParam());
  Type("txtLibrarySymbol", "ALPHA");
  Another("DELETE FROM ID_USER_FUNCTION WHERE FUNCTION_NAME <> 'Tabulon'");
  Prompt().Expect("You do not have access to this function", Say::Stop);
  Click("cmdFindLibrary");
  EXPECT_EQ(Shown("txtLibrarySymbol"), "ALPHA");
}

INSTANTIATE_TEST_SUITE_P(Screens, MessageLibrarySearchTest,
                         testing::Values("frmGeneralMessages", "frmNotifyPatronMessages"));

}  // namespace
