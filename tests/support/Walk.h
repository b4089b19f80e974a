#pragma once

#include "support/Desk.h"

// A desk that goes through every registered dialog and every tab and sub-tab of the main screen, on the sample site
// with all that settings can switch on.
class Walk : public SampleDesk {
 protected:
  // A short name such as "tab-00-code-tables" or "frmLoans-1", and the window in front.
  using Look = std::function<void(const QString& place, QWidget& window)>;

  void SetUp() override;
  void ThroughTabs(const Look& look);
  void ThroughDialogs(const Look& look);
  void ThroughAll(const Look& look);
  // From here on screens read the wording of this file of database/site.
  void UseWording(const QString& file);
};
