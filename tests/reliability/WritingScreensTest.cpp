// The table of writing screens is whole, and each action of it does what it is called.
#include "reliability/WritingScreens.h"

#include <QPushButton>
#include <QSet>

#include "support/Walk.h"

namespace {

// --- The table is whole ---

// Places where nothing is written: those that open other dialogs, look something up or belong to other programs.
const QSet<QString> ReadingPlaces{"tab-06-loans",
                                  "tab-11-miscellaneous",
                                  "frmSplash",
                                  "frmAboutOstana",
                                  "frmAboutApp",
                                  "frmLibrarySearch",
                                  "frmRequestArticle",
                                  "frmRequestBook",
                                  "frmQueryRequests",
                                  "frmPatronRegistration",
                                  "frmSupplierRegistration",
                                  "frmChanges"};

// Buttons on a sub-tab that has nothing for them to do, where a dialog has one row of buttons for all.
const QSet<QString> IdleButtons{"frmItemType-1 cmdUpdate", "frmServiceCode-1 cmdUpdate"};

// Boxes that take no free text, each kind with its cases elsewhere.
const QSet<QString> Numbers{"txtExchangeRate",    "txtCharge",          "txtNumberProcessed", "txtQTotal",
                            "txtWeightingFactor", "txtIFMMaxCost",      "txtMaximumCost",     "txtMaximumDays",
                            "txt6FinalOverdue",   "txt6LoanPeriod",     "txt6Overdue1",       "txt6Overdue2",
                            "txt6Overdue3",       "txt6Renewal",        "txt6bLoanCharge",    "txtPort",
                            "txtCountryCode",     "txtNameSpace",       "txt7Surcharge",      "txt7aFlatFee",
                            "txt7aUnitSize",      "txt7aFreeExposures", "txt7aPerExposure",   "txt8ServiceCharge"};
// Symbols and ids of other records, looked up before anything is written.
const QSet<QString> References{"txtLibrarySymbol",   "txt0LibrarySymbol", "txt2LibrarySymbol", "txt9LibrarySymbol",
                               "txt5dLibrarySymbol", "txtOstanaLibrary",  "txtConnectionID",   "txtNCIPServerLibrary"};
// Tested for their form: addresses, fax numbers, names of fields, passwords without what SQL would have to escape.
const QSet<QString> Formed{"txtReplyAddressGSM",
                           "txtReplyAddressSMTP",
                           "txtReplyAddressTCP",
                           "txtAriel",
                           "txtDeliveryEmail",
                           "txtMsgEmail",
                           "txtDeliveryFax",
                           "txtMsgFax",
                           "txtOdyssey",
                           "txtDeliveryAddressCopy",
                           "txtDeliveryAddressLoan",
                           "txtFieldName",
                           "txtBLUserID",
                           "txtBLPassword",
                           "txtBLConfirmPassword",
                           "txtVORNUserID",
                           "txtVORNPassword",
                           "txtVORNConfirmPassword"};
// Go into their literal as they stand; a text that breaks it is refused unsent.
const QSet<QString> Unescaped{"txtAPIURL", "txtNCIPURL"};
const QSet<QString> OtherBoxes = Numbers + References + Formed + Unescaped;

class WritingTableTest : public Walk {
 protected:
  // The rows of the table for a place.
  static std::vector<const WritingScreen*> Of(const QString& place) {
    std::vector<const WritingScreen*> rows;
    for (const WritingScreen& screen : WritingScreens())
      if (place == screen.place) rows.push_back(&screen);
    return rows;
  }
  static QSet<QString> BoxesOf(const std::vector<const WritingScreen*>& rows) {
    QSet<QString> boxes;
    for (const WritingScreen* row : rows)
      for (const auto& fields : {row->fields, row->keys})
        for (const WritingField& field : fields) boxes << field.box << field.twin;
    return boxes;
  }
  static QSet<QString> ActionsOf(const std::vector<const WritingScreen*>& rows) {
    QSet<QString> names;
    for (const WritingScreen* row : rows)
      for (const WritingAction& action : row->Actions()) names << action.name;
    return names;
  }
  // What a user sees and could press; a button that is off without a record counts.
  static bool Offers(const QWidget& window, const char* button) {
    const auto* const found = window.findChild<QPushButton*>(button);
    return found && found->isVisible() && (found->isEnabled() || window.objectName() != "frmTabulon");
  }
};

TEST_F(WritingTableTest, HasEveryPlaceWithItsBoxesAndButtons) {
  QSet<QString> seen;
  ThroughAll([&](const QString& place, QWidget& window) {
    seen << place;
    const auto rows = Of(place);
    EXPECT_EQ(rows.empty(), ReadingPlaces.contains(place)) << place.toStdString();
    if (rows.empty()) return;
    const QSet<QString> boxes = BoxesOf(rows), actions = ActionsOf(rows);
    for (const QWidget* box : window.findChildren<QWidget*>()) {
      const auto* const line = qobject_cast<const TextBox*>(box);
      const bool writes = line ? !line->isReadOnly() : qobject_cast<const MemoBox*>(box) != nullptr;
      if (!writes || !box->isVisible() || box->objectName().startsWith("qt_")) continue;
      EXPECT_TRUE(boxes.contains(box->objectName()) || OtherBoxes.contains(box->objectName()))
          << place.toStdString() << ' ' << box->objectName().toStdString();
    }
    const QMap<QString, std::vector<const char*>> buttons{
        {"Update", {"cmdUpdate", "cmdOK"}}, {"Add", {"cmdAdd"}}, {"Delete", {"cmdDelete"}}};
    for (auto button = buttons.begin(); button != buttons.end(); ++button)
      for (const char* name : button.value())
        if (Offers(window, name) && !IdleButtons.contains(place + ' ' + name)) {
          EXPECT_TRUE(actions.contains(button.key())) << place.toStdString() << ' ' << name;
        }
  });
  for (const WritingScreen& screen : WritingScreens()) EXPECT_TRUE(seen.contains(screen.place)) << screen.place;
}

// --- Its actions ---

class WritingActionTest : public ReliabilityDesk, public testing::WithParamInterface<ScreenAction> {};

// Twice, since every suite goes on with the screen that the action before has left.
TEST_P(WritingActionTest, ChangesRowsOfItsTable) {
  const auto& [screen, action] = GetParam();
  for (int round = 1; round <= 2; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    action.prepare(*this, round);
    ASSERT_FALSE(Said().Refusal()) << Said().Transcript().toStdString();
    Said().Forget();
    const TableContents before = ContentsOf(Database().OtherClient(), screen->table);
    action.press(*this);
    const TableContents after = ContentsOf(Database().OtherClient(), screen->table);
    EXPECT_FALSE(Said().Refusal());
    EXPECT_EQ(!before.Without(after).isEmpty(), action.name != "Add");
    EXPECT_EQ(!after.Without(before).isEmpty(), action.name != "Delete");
    ASSERT_FALSE(HasFailure()) << Said().Transcript().toStdString();
    Said().Forget();
  }
}

INSTANTIATE_TEST_SUITE_P(Screens, WritingActionTest, testing::ValuesIn(ScreenActions()),
                         [](const auto& action) { return action.param.Name(); });

}  // namespace
