// The two fax boxes, typed key by key.
#include <QCheckBox>

#include "directory/LibraryDesk.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

namespace {

class FaxInputTest : public LibraryDesk {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    SetColumn(North, "DELIV_FAX", "'(613) 555-0100'");
    SetColumn(North, "MSG_FAX", "'0044 20 7946 0000'");
  }
  void OpenScreen(qint32 id = 0) { OpenLibrary("frmLibraryRegistration", id); }
  int Caret(const QString& box) { return Find<TextBox>(box)->cursorPosition(); }
};

TEST_F(FaxInputTest, DigitsTypedOneByOneTakeTheShape) {
  OpenScreen();
  const char* const shown[] = {"(6",        "(61",         "(613",         "(613) 5",       "(613) 55",
                               "(613) 555", "(613) 555-0", "(613) 555-01", "(613) 555-010", "(613) 555-0100"};
  const QString digits = "6135550100";
  for (const char* box : {"txtDeliveryFax", "txtMsgFax"}) {
    for (qsizetype i = 0; i < digits.size(); ++i) {
      Append(box, digits[i]);
      EXPECT_EQ(Text(box), shown[i]) << box;
      EXPECT_EQ(Caret(box), Text(box).size()) << box;
    }
  }
  EXPECT_EQ(Prompt().Beeps(), 0);
}

TEST_F(FaxInputTest, OnlyDigitsAreEnteredBelowFourteenCharacters) {
  OpenScreen();
  Append("txtDeliveryFax", "6a(1");
  EXPECT_EQ(Text("txtDeliveryFax"), "(61");
  EXPECT_EQ(Prompt().Beeps(), 2);
}

TEST_F(FaxInputTest, TheBoxEndsAtFourteenCharacters) {
  OpenScreen();
  Append("txtDeliveryFax", "61355501009");
  EXPECT_EQ(Text("txtDeliveryFax"), "(613) 555-0100");
}

TEST_F(FaxInputTest, BackspaceTakesAMarkAndItIsNotPutBack) {
  OpenScreen();
  Append("txtDeliveryFax", "6135");
  Press("txtDeliveryFax", Qt::Key_Backspace);
  EXPECT_EQ(Text("txtDeliveryFax"), "(613) ");
  Press("txtDeliveryFax", Qt::Key_Backspace);
  EXPECT_EQ(Text("txtDeliveryFax"), "(613)");
  Press("txtDeliveryFax", Qt::Key_Backspace);
  EXPECT_EQ(Text("txtDeliveryFax"), "(613");
  Append("txtDeliveryFax", "5");
  EXPECT_EQ(Text("txtDeliveryFax"), "(613) 5");
}

TEST_F(FaxInputTest, TheBlankComesBackBehindABracketThatWasLeft) {
  OpenScreen();
  Append("txtMsgFax", "6135");
  Press("txtMsgFax", Qt::Key_Backspace);
  Press("txtMsgFax", Qt::Key_Backspace);
  Append("txtMsgFax", "5");
  EXPECT_EQ(Text("txtMsgFax"), "(613) 5");
}

TEST_F(FaxInputTest, EnterOnAnUnfinishedNumberIsToldByBox) {
  OpenScreen();
  Press("txtDeliveryFax", Qt::Key_Return);
  Append("txtDeliveryFax", "613");
  Prompt().Expect("Enter a Valid value for the Delivery Fax Number.", MessageStyle::Stop);
  Press("txtDeliveryFax", Qt::Key_Return);
  Append("txtDeliveryFax", "5550100");
  Press("txtDeliveryFax", Qt::Key_Return);
  Append("txtMsgFax", "613");
  Prompt().Expect("Enter a Valid value for the Messaging Fax Number.", MessageStyle::Stop);
  Press("txtMsgFax", Qt::Key_Return);
  Append("txtMsgFax", "5550100");
}

// The two boxes differ: only the messaging fax holds the focus.
TEST_F(FaxInputTest, OnlyTheMessagingFaxKeepsTheFocusWhileUnfinished) {
  OpenScreen();
  Append("txtDeliveryFax", "613");
  Press("txtDeliveryFax", Qt::Key_Tab);
  EXPECT_NE(Focus(), "txtDeliveryFax");
  Append("txtMsgFax", "613");
  Prompt().Expect("Enter a Valid value for the Messaging Fax Number.", MessageStyle::Stop);
  Press("txtMsgFax", Qt::Key_Tab);
  EXPECT_EQ(Focus(), "txtMsgFax");
  Type("txtMsgFax", "");
  Press("txtMsgFax", Qt::Key_Tab);
  EXPECT_NE(Focus(), "txtMsgFax");
}

TEST_F(FaxInputTest, ATickLetsAnythingIn) {
  OpenScreen();
  Click("chkDeliveryFax");
  Append("txtDeliveryFax", "+44 20 7946 0000 ext. 1234567");
  EXPECT_EQ(Text("txtDeliveryFax"), "+44 20 7946 0000 ext. 123");
  Click("chkMessagingFax");
  Append("txtMsgFax", "12");
  Press("txtMsgFax", Qt::Key_Tab);
  EXPECT_EQ(Text("txtMsgFax"), "12");
}

TEST_F(FaxInputTest, TakingTheTickAwayCutsNothing) {
  OpenScreen();
  Click("chkDeliveryFax");
  Append("txtDeliveryFax", "+44 20 7946 0000 ext");
  Click("chkDeliveryFax");
  EXPECT_EQ(Text("txtDeliveryFax"), "+44 20 7946 0000 ext");
}

TEST_F(FaxInputTest, AStoredNumberDecidesOverTheTick) {
  OpenScreen(North);
  EXPECT_FALSE(IsChecked("chkDeliveryFax"));
  EXPECT_TRUE(IsChecked("chkMessagingFax"));
  EXPECT_EQ(Text("txtMsgFax"), "0044 20 7946 0000");
  Type("txtLibrarySymbol", "SOUTH");
  Click("cmdSearch");
  EXPECT_FALSE(IsChecked("chkMessagingFax"));
  EXPECT_EQ(Text("txtMsgFax"), "");
}

TEST_F(FaxInputTest, ASiteWithoutFaxHasBothTicked) {
  Setting("System", "FaxAvailable", "N");
  OpenScreen();
  EXPECT_TRUE(IsChecked("chkDeliveryFax"));
  EXPECT_TRUE(IsChecked("chkMessagingFax"));
  Type("txtLibrarySymbol", "NORTH");
  Click("cmdSearch");
  EXPECT_TRUE(IsChecked("chkDeliveryFax"));
  Click("cmdClear");
  EXPECT_TRUE(IsChecked("chkDeliveryFax"));
}

TEST_F(FaxInputTest, TheFullShapeIsValidTenBareDigitsAreNotUnlessTicked) {
  OpenScreen(North);
  Type("txtDeliveryFax", "6135550101");
  Prompt().Expect("Library Symbol: 'NORTH' has been updated.", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Column("DELIV_FAX"), "(613) 555-0101");
  Click("chkDeliveryFax");
  Type("txtDeliveryFax", "6135550100");
  Click("chkDeliveryFax");
  Prompt().Expect("The Delivery Fax Number is not valid.", MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txtDeliveryFax");
  EXPECT_EQ(Find<TextBox>("txtDeliveryFax")->selectedText(), "6135550100");
  Click("chkDeliveryFax");
  Prompt().Expect("Library Symbol: 'NORTH' has been updated.", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Column("DELIV_FAX"), "6135550100");
}

TEST_F(FaxInputTest, AMessagingFaxOutOfShapeIsNotValid) {
  OpenScreen(North);
  Type("txtCity", "Leeds");
  Click("chkMessagingFax");
  // The tick is gone, the text stays: leaving the box is refused first.
  Prompt().Expect("The Messaging Fax Number is not valid.", MessageStyle::Stop);
  Click("cmdUpdate");
}

TEST_F(FaxInputTest, PastedNumbersTakeTheShapeToo) {
  OpenScreen();
  Paste("txtDeliveryFax", "613-555-0100");
  EXPECT_EQ(Text("txtDeliveryFax"), "(613) 555-0100");
}

TEST_F(FaxInputTest, TypingAFaxIsAChange) {
  OpenScreen(North);
  Type("txtDeliveryFax", "6135550101");
  Prompt().Expect(GuardText(Modified), MessageStyle::Question, MessageAnswer::No);
  Click("cmdClear");
}

TEST_F(FaxInputTest, ALongNumberIsShownWholeAndStoredWhole) {
  const QString fax = "(613) 555-0101 ext 7";
  SetColumn(North, "DELIV_FAX", "'" + fax + "'");
  SetColumn(North, "PRIME_ADDRESS1", "'1 Harbour Road'");
  OpenScreen(North);
  EXPECT_EQ(Text("txtDeliveryFax"), fax);
  Click("chkDeliveryFax");  // so that no test of its shape comes between
  Type("txtCity", "York");
  Prompt().ExpectStart("Library Symbol: 'NORTH'", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Column("DELIV_FAX"), fax);
}

}  // namespace
