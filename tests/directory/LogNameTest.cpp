// Log names of handlers, slips included: the log readers know them so.
#include <QPushButton>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryDesk.h"
#include "shell/Screens.h"

namespace {

struct Case {
  const char* form;
  const char* search;
  const char* book;
  const char* sibling;
  const char* siblingLog;
};

class LogNameTest : public LibraryDesk, public testing::WithParamInterface<Case> {
 protected:
  // The name under which the failure raised by the button is logged.
  QString LogOf(const char* button) {
    const auto before = LogLines().size();
    Prompt().Expect("An error has occurred.  Please Notify Support.", MessageStyle::Stop);
    Find<QPushButton>(button)->click();
    const QStringList lines = LogLines().mid(before);
    return lines.isEmpty() ? QString() : lines.first().section("* ", 1);
  }
};
INSTANTIATE_TEST_SUITE_P(
    Screens, LogNameTest,
    testing::Values(
        Case{"frmLibraryRegistration", "frmAddRequest.cmdSearch_Click", "frmLibraryRegistration.cmdBook_Click",
             "cmdBilling", "frmLibraryRegistration.cmdBilling_Click"},
        Case{"frmLibraryContactInfo", "frmLibraryContactInfo.cmdSearch_Click", "frmLibraryContactInfo.cmdBook_Click",
             "cmdStatistics", "frmLibraryrContactInfo.cmdStatistics_Click"},
        Case{"frmLibraryLoginInfo", "frmLibraryLoginInfo.cmdSearch_Click", "frmLibraryLoginInfo.cmdLogin_Click",
             "cmdRegistration", "frmLibraryBillinInfo.cmdRegistration_Click"},
        Case{"frmLibraryStatisticalInfo", "frmAddRequest.cmdSearch_Click", "frmLibraryStatisticalInfo.cmdBook_Click",
             "cmdRegistration", "frmLibraryStatisticalInfo.cmdRegistration_Click"},
        Case{"frmLibraryBillingInfo", "frmAddRequest.cmdSearch_Click", "frmLibraryBillingInfo.cmdLogin_Click",
             "cmdRegistration", "frmLibraryBillinInfo.cmdRegistration_Click"}),
    [](const testing::TestParamInfo<Case>& info) { return std::string(info.param.form); });

TEST_P(LogNameTest, Search) {
  OpenLibrary(GetParam().form, North);
  Type("txtLibrarySymbol", "N%");
  Another("ALTER TABLE ID_LIBRARY RENAME COLUMN LIBRARY_SYMBOL TO MOVED");
  EXPECT_EQ(LogOf("cmdSearch"), GetParam().search);
}

// The form of the request cannot be made.
TEST_P(LogNameTest, Book) {
  RegisterScreen("frmRequestBook", [](QWidget*) -> std::unique_ptr<Screen> { throw std::runtime_error("gone"); });
  OpenLibrary(GetParam().form, North);
  EXPECT_EQ(LogOf("cmdBook"), GetParam().book);
  RegisterForms();
}

// A screen outside of a chain has nowhere to hand its record to.
TEST_P(LogNameTest, Sibling) {
  OpenLibrary(GetParam().form, North);
  EXPECT_EQ(LogOf(GetParam().sibling), GetParam().siblingLog);
}

using DoclineLogNameTest = LibraryDesk;

TEST_F(DoclineLogNameTest, ItsSearchIsLoggedAsTheVornOne) {
  OpenLibrary("frmLibraryStatisticalInfo");
  Type("txtDoclineSymbol", "D%");
  Another("ALTER TABLE ID_LIBRARY RENAME COLUMN DOCLINE_SYMBOL TO MOVED");
  Prompt().Expect("An error has occurred.  Please Notify Support.", MessageStyle::Stop);
  Click("cmdSearchDoclineSymbol");
  EXPECT_TRUE(LogHolds("* frmLibraryStatisticalInfo.cmdSearchVORNSymbol_Click"));
}

}  // namespace
