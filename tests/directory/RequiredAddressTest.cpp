// Which address each method needs: three columns, each method code, as one table.
#include "directory/LibraryDesk.h"
#include "platform/controls/CodeComboBox.h"
#include "shell/Messages.h"
#include "shell/Screen.h"

namespace {

// A method chosen in one of the three boxes, the others being Mail with a street; what is missing and what is said.
struct Case {
  const char* combo;
  const char* code;
  const char* box;
  const char* message;
  const char* given = nullptr;  // a box that is filled before, beside the street
};

constexpr auto Copy = "cmbDeliveryMethodCopy", Loan = "cmbDeliveryMethodLoan", Messaging = "cboMsgMethod";

const Case Cases[] = {
    {Copy, "A", "txtAriel", "Ariel Address: is required for the current Delivery Method."},
    {Copy, "O", "txtOdyssey", "The Odyssey Address is required for the current Delivery Method."},
    {Copy, "C", "txtDeliveryService", "The Delivery Service is required for the current Delivery Method."},
    {Copy, "C", "txtStreet1", "The Street Address is required for the current Delivery Method", "txtDeliveryService"},
    {Copy, "E", "txtDeliveryEmail", "The Delivery E-mail address is required for the current Delivery Method."},
    {Copy, "S", "txtDeliveryEmail", "The Delivery E-mail address is required for the current Delivery Method."},
    {Copy, "W", "txtDeliveryEmail", "The Delivery E-mail address is required for the current Delivery Method."},
    {Copy, "F", "txtDeliveryFax", "The Delivery Fax Number is required for the current Delivery Method."},
    {Copy, "V", "txtDocview", "The Docview Number is required for the current Delivery Method."},
    {Copy, "M", "txtStreet1", "The Street Address is required for the current Delivery Method"},
    {Copy, "Q", "txtStreet1", "The Street Address is required for the current Delivery Method"},

    {Loan, "A", "txtAriel", "The Ariel Address is required for the current Delivery Method."},
    {Loan, "O", "txtOdyssey", "The Odyssey Address is required for the current Delivery Method."},
    {Loan, "C", "txtDeliveryService", "The Delivery Service is required for the current Delivery Method."},
    {Loan, "C", "txtStreet1", "The Street Address is required for the current Delivery Method", "txtDeliveryService"},
    {Loan, "E", "txtDeliveryEmail", "The Delivery E-mail address is required for the current Delivery Method."},
    {Loan, "S", "txtDeliveryEmail", "The Delivery E-mail address is required for the current Delivery Method."},
    {Loan, "W", "txtDeliveryEmail", "The Delivery E-mail address is required for the current Delivery Method."},
    {Loan, "F", "txtDeliveryFax", "The Delivery Fax Number is required for the current Delivery Method."},
    {Loan, "V", "txtDocview", "The Docview Number is required for the current Delivery Method."},
    {Loan, "M", "txtStreet1", "The Street Address is required for the current Delivery Method"},
    {Loan, "Q", "txtStreet1", "The Street Address is required for the current Delivery Method"},

    {Messaging, "A", "txtAriel", "The Ariel Address is required for the current Messaging Method."},
    {Messaging, "O", "txtStreet1", "The Street Address is required for the current Messaging Method"},
    {Messaging, "C", "txtDeliveryService", "The Delivery Service is required for the current Messaging Method."},
    {Messaging, "E", "txtMsgEmail", "The Messaging E-mail address is required for the current Messaging Method."},
    {Messaging, "S", "txtStreet1", "The Street Address is required for the current Messaging Method"},
    {Messaging, "W", "txtMsgEmail", "The Messaging E-mail address is required for the current Messaging Method."},
    {Messaging, "F", "txtMsgFax", "The Messaging Fax Number is required for the Messaging Method."},
    {Messaging, "V", "txtDocview", "The Docview Number is required for the current Messaging Method."},
    {Messaging, "M", "txtStreet1", "The Street Address is required for the current Messaging Method"},
    {Messaging, "Q", "txtStreet1", "The Street Address is required for the current Messaging Method"},
};

std::string NameOf(const testing::TestParamInfo<Case>& info) {
  const Case& row = info.param;
  const char* const column = row.combo == Copy ? "Copy" : row.combo == Loan ? "Loan" : "Messaging";
  return std::string(column) + "_" + row.code + "_" + row.box;
}

// What fills a box so that it passes its own test of shape.
QString Filling(const QString& box) {
  if (box.endsWith("Fax")) return "6135550100";
  if (box.endsWith("Email")) return "ill@example.org";
  if (box == "txtAriel") return "ariel.example.org";
  return "1 Harbour";
}

class RequiredAddressTest : public LibraryDesk, public testing::WithParamInterface<Case> {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    Another("UPDATE ID_DELIV_METHOD SET ACTIVE_FLAG = 'Y'");
    Another("UPDATE ID_MSG_METHOD SET ACTIVE_FLAG = 'Y'");
    Another("INSERT INTO ID_DELIV_METHOD (DELIV_METHOD, DELIV_METHOD_DESC, ACTIVE_FLAG) VALUES ('Q', 'Queue', 'Y')");
    for (const char* code : {"O", "S", "Q"})
      Another(QString("INSERT INTO ID_MSG_METHOD (MSG_METHOD, MSG_METHOD_DESC, ACTIVE_FLAG) VALUES ('%1', 'Kind %1', "
                      "'Y')")
                  .arg(code));
    OpenLibrary("frmLibraryRegistration");
    Type("txtLibrarySymbol", "WEST");
    Type("txtInstitution", "West");
    ChooseCode(Copy, "Q");
    ChooseCode(Loan, "Q");
    ChooseCode(Messaging, "Q");
  }
  void ChooseCode(const char* combo, const char* code) {
    ChooseAt(combo, Find<CodeComboBox>(combo)->IndexOfCode(code));
  }
};
INSTANTIATE_TEST_SUITE_P(Methods, RequiredAddressTest, testing::ValuesIn(Cases), NameOf);

TEST_P(RequiredAddressTest, IsAskedFor) {
  const Case& row = GetParam();
  // Methods before this one are tested first; a street satisfies them where this row does not ask for one itself.
  const bool street = QString(row.box) == "txtStreet1";
  for (const char* const combo : {Copy, Loan, Messaging})
    if (street && combo != row.combo) ChooseCode(combo, "E");
  if (street) {
    Type("txtDeliveryEmail", Filling("txtDeliveryEmail"));
    Type("txtMsgEmail", Filling("txtMsgEmail"));
  } else {
    Type("txtStreet1", Filling("txtStreet1"));
  }
  if (row.given) Type(row.given, Filling(row.given));
  ChooseCode(row.combo, row.code);

  Prompt().Expect(row.message, MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), row.box);
  EXPECT_EQ(Count("ID_LIBRARY", "LIBRARY_SYMBOL = 'WEST'"), 0);

  Type(row.box, Filling(row.box));
  // The delivery service of a messaging method asks for no street; that of a delivery method has one already here,
  // or in the row of its own.
  if (QString(row.box) == "txtDeliveryService" && row.combo != Messaging) Type("txtStreet1", Filling("txtStreet1"));
  Prompt().Expect("Library Symbol: 'WEST' has been added.", MessageStyle::Information);
  Click("cmdAdd");
  EXPECT_EQ(Count("ID_LIBRARY", "LIBRARY_SYMBOL = 'WEST'"), 1);
}

class AddressShapeTest : public LibraryDesk {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    OpenLibrary("frmLibraryRegistration");
    Type("txtLibrarySymbol", "WEST");
    Type("txtInstitution", "West");
    Type("txtStreet1", "2 Mill Lane");
  }
  void IsRefused(const QString& box, const QString& text, const QString& message) {
    Type(box, text);
    Prompt().Expect(message, MessageStyle::Stop);
    Click("cmdAdd");
    EXPECT_EQ(Focus(), box);
  }
  void IsAdded() {
    Prompt().Expect("Library Symbol: 'WEST' has been added.", MessageStyle::Information);
    Click("cmdAdd");
  }
};

TEST_F(AddressShapeTest, EmailAddresses) {
  IsRefused("txtDeliveryEmail", "nobody", "The Delivery E-mail Address is not valid.");
  Type("txtDeliveryEmail", "ill@example.org");
  IsRefused("txtMsgEmail", "nobody", "The Messaging E-mail Address is not valid.");
  Type("txtMsgEmail", "ill@example.org");
  IsAdded();
}

TEST_F(AddressShapeTest, AnArielAddressWithAnAtSignIsAnEmailAddress) {
  IsRefused("txtAriel", "no one@", "Ariel Address: is not a valid E-mail Address. Please enter a valid Address.");
  Type("txtAriel", "ariel@example.org");
  IsAdded();
}

TEST_F(AddressShapeTest, AnArielAddressWithoutOneIsANetworkAddress) {
  Type("txtAriel", "not an address");
  Prompt().ExpectStart("", MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Prompt().Titles().last(), "Ostana - " + Window()->windowTitle());
  EXPECT_NE(Prompt().Shown().last(), "");
  EXPECT_EQ(Focus(), "txtAriel");
}

TEST_F(AddressShapeTest, AnOdysseyAddressHasOneSiteAtTheMost) {
  IsRefused("txtOdyssey", "odyssey.example.org/a/b", "The Delivery Odyssey Address can have only one site.");
  Type("txtOdyssey", "odyssey.example.org/a");
  IsAdded();
}

}  // namespace
