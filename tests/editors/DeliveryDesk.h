#pragma once

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/CodeComboBox.h"
#include "support/Desk.h"

// The desk with a handful of methods and pickup locations of its own instead of the site's, and the tab
// "Delivery/Messaging" in front.
//
//   methods     in each of the three tables: A Ariel (active), E E-mail (patrons only; delivery stores its print flag
//               as N), F Fax (active, printed; delivery stores its patron flag as N). No method M.
//   libraries   9001 XXX9 with the locations L and M, a patron at M; 9002 YYY8 with M, of the same description;
//               9003 ZZZ7 without any
class DeliveryDesk : public Desk {
 protected:
  enum SubTab { DeliveryMethod, MessagingMethod, RequestMethod, PickupLocation };

  void SetUp() override {
    Desk::SetUp();
    Transaction rows(Database().OtherClient());
    Another("UPDATE ID_LIBRARY SET DELIV_METHOD_COPY = NULL, DELIV_METHOD_LOAN = NULL, MSG_METHOD = NULL");
    for (const char* table : {"ID_DELIV_METHOD", "ID_MSG_METHOD", "ID_REQ_METHOD"})
      Another(QString("DELETE FROM ") + table);
    const auto insert = [this](const QString& into, const QStringList& values) {
      for (const QString& row : values) Another("INSERT INTO " + into + " VALUES(" + row + ")");
    };
    insert("ID_DELIV_METHOD (DELIV_METHOD, DELIV_METHOD_DESC, ACTIVE_FLAG, PRINT_FLAG, WEB_FLAG)",
           {"'A', 'Ariel', 'Y', NULL, NULL", "'E', 'E-mail', NULL, 'N', 'Y'", "'F', 'Fax', 'Y', 'Y', 'N'"});
    insert("ID_MSG_METHOD (MSG_METHOD, MSG_METHOD_DESC, ACTIVE_FLAG, PRINT_FLAG, WEB_FLAG)",
           {"'A', 'Ariel', 'Y', NULL, NULL", "'E', 'E-mail', NULL, NULL, 'Y'", "'F', 'Fax', 'Y', 'Y', NULL"});
    insert("ID_REQ_METHOD (REQ_METHOD, REQ_METHOD_DESC, ACTIVE_FLAG)",
           {"'A', 'Ariel', 'Y'", "'E', 'E-mail', NULL", "'F', 'Fax', 'Y'"});
    insert("ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME)",
           {"9001, 'XXX9', 'First library'", "9002, 'YYY8', 'Second library'", "9003, 'ZZZ7', 'Third library'"});
    insert(
        "ID_PICKUP_LOCATION (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC, PICKUP_LOCATION_ILS, "
        "DELIVERY_SYSTEM_CODE)",
        {"9001, 'L', 'Law library', 'X-LAW', NULL", "9001, 'M', 'Main desk', 'X-MAIN', 'D1'",
         "9002, 'M', 'Main desk', NULL, NULL"});
    insert("ID_PATRON (LIBRARY_ID, PATRON_ID, PICKUP_LOCATION)", {"9001, 'P1', 'M'"});
    rows.Commit();
  }

  // Starts the program and enters the tab and one of its sub-tabs. Statements run until then are forgotten.
  void Enter(SubTab subTab = DeliveryMethod) {
    Start();
    SelectTab("sstabtables", frmTabulon::DeliveryTab);
    if (subTab != DeliveryMethod) Go(subTab);
    Statements();
  }
  void Go(SubTab subTab) { SelectTab("sstab5Delivery", subTab); }
  // A refused entry: the message, nothing written, the focus.
  void Refused(const QString& text, int style, const QString& button, const QString& focus) {
    Prompt().ExpectTitled(text, style, Shell().Caption());
    Writing();
    Click(button);
    EXPECT_EQ(Focus(), focus) << text.toStdString();
    EXPECT_EQ(Writing(), QStringList());
  }
  void Done(const QString& text, const QString& button) {
    Prompt().ExpectTitled(text, MessageStyle::Information, Shell().Caption());
    Writing();
    Click(button);
    EXPECT_FALSE(gbRecordModified);
  }
  // A failed write: the message, no transaction left open, the record still counts as changed.
  void Fails(const QString& text, const QString& button) {
    Prompt().ExpectTitled(text, MessageStyle::Stop, Shell().Caption());
    Click(button);
    EXPECT_FALSE(gclsOF->Connection().InTransaction());
    EXPECT_TRUE(gbRecordModified);
  }

  static constexpr const char* DatabaseError =
      "A database error has occurred.  Please verify your data entry\nand your Database structure.";
  static constexpr const char* TryAgain = "An error occurred while updating the record.  Please try again.";
};
