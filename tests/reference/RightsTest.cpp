#include <QAbstractButton>

#include "core/OstanaFunctions.h"
#include "reference/ReferenceDesk.h"

namespace {

// The dialogs follow the rights of the function that they were opened under.
class DialogRightsTest : public SampleDesk, public testing::WithParamInterface<const char*> {};

TEST_P(DialogRightsTest, NothingThatWritesIsOnForAUserWithoutRights) {
  Another("UPDATE ID_USER_FUNCTION SET ADD_FLAG = 'N', UPDATE_FLAG = 'N', DELETE_FLAG = 'N'");
  Logon();
  gstrCoverRequestType = Ask("SELECT MIN(REQUEST_TYPE) FROM ID_COVER_INFO");
  const Screen& screen = Open(GetParam());
  int seen = 0;
  for (const char* name : {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear", "cmdOK"})
    if (const auto* const button = screen.findChild<QAbstractButton*>(name)) {
      EXPECT_FALSE(button->isEnabled()) << name;
      ++seen;
    }
  EXPECT_GT(seen, 0);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, DialogRightsTest,
                         testing::Values("frmCurrencyCodes", "frmISOServiceLevels", "frmISONamespace",
                                         "frmGeneralMessages", "frmNotifyPatronMessages", "frmServiceCode",
                                         "frmItemType", "frmNotifyPatronEmail", "frmLoanNoticesEmail",
                                         "frmGeneralEmail", "frmPickupLocationEmail"),
                         [](const auto& form) { return std::string(form.param); });

}  // namespace
