// Tab "Miscellaneous" and the other doors of the main screen: each button opens the screen that it names.
#include <QAction>

#include "core/ModuleState.h"
#include "core/WebServiceSettings.h"
#include "shell/Screen.h"
#include "shell/Screens.h"
#include "support/Desk.h"

namespace {

class MiscellaneousTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Start();
    gbUseWebService = true;  // without it two of the buttons are off
    SelectTab("sstabtables", frmTabulon::MiscellaneousTab);
  }
  // Fails the case when the screen is not shown.
  void Opens(const QString& button, const QString& form) {
    WhenShown(form, [](Screen&) {});
    Click(button);
  }
};

TEST_F(MiscellaneousTest, EachButtonOpensItsScreen) {
  Opens("cmdPatronMessages", "frmNotifyPatronMessages");
  Opens("cmdGeneralMessages", "frmGeneralMessages");
  Opens("cmdISO18626Connection", "frmISO18626Connect");
  Opens("cmdServiceCode", "frmServiceCode");
  Opens("cmdSuppliedItemType", "frmItemType");
  Opens("cmd11LevelsOfService", "frmISOServiceLevels");
  Opens("cmd11Namespace", "frmISONamespace");
  Opens("cmd11CurrencyCode", "frmCurrencyCodes");
}

TEST_F(MiscellaneousTest, TheConnectionsAreOpenedForMaintenanceNotAsAPicker) {
  gstrISO18626ConnectionId = "LEFT OVER";
  WhenShown("frmISO18626Connect", [](Screen&) {
    EXPECT_FALSE(gbISO18626SelectionMode);
    EXPECT_EQ(gstrISO18626ConnectionId, "");
  });
  Click("cmdISO18626Connection");
}

TEST_F(MiscellaneousTest, TheHelpMenuOpensBothAboutScreens) {
  for (const auto& [entry, form] :
       {std::pair{"mnuHelpAboutOstana", "frmAboutOstana"}, std::pair{"mnuHelpAboutTabulon", "frmAboutApp"}}) {
    WhenShown(form, [](Screen&) {});
    Find<QAction>(entry)->trigger();
  }
}

// --- Names of screens ---

TEST(FormNameTest, EveryNameHasItsScreen) {
  QStringList names(FormName::All.begin(), FormName::All.end());
  names.sort();
  EXPECT_EQ(RegisteredScreens(), names);
  for (const QString& name : names) EXPECT_EQ(QString(FormName::Of(name)), name);
}

TEST(FormNameTest, ANameThatIsNoneIsRefused) {
  EXPECT_THROW(FormName::Of("frmLoan"), std::logic_error);
  EXPECT_THROW(MakeScreen("frmLoan", nullptr), std::logic_error);
}

}  // namespace
