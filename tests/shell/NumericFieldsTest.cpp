#include "shell/NumericFields.h"

#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QTest>
#include <QVBoxLayout>

#include "core/WorkFolder.h"
#include "platform/controls/TextBox.h"
#include "support/Script.h"

namespace {

// A form with a labelled numeric box and another control to go to.
class NumericFieldsTest : public WorkFolder {
 protected:
  void SetUp() override {
    WorkFolder::SetUp();
    form.setWindowTitle("Ostana - Rates");
    auto* const column = new QVBoxLayout(&form);
    for (QWidget* widget : std::initializer_list<QWidget*>{label, box, other}) column->addWidget(widget);
    form.show();
    form.activateWindow();
    QApplication::setActiveWindow(&form);
    box->setFocus();
  }
  void TearDown() override {
    script.Verify();
    QLocale::setDefault(QLocale::c());
    WorkFolder::TearDown();
  }

  static void UseLocale(const char* name) {
    QLocale::setDefault(QLocale(name));
    SetDecimalSeparator();
  }
  char16_t Filtered(char16_t key, bool noMinus = false, bool noDecimal = false) const {
    return FilterNumericKey(key, *box, noMinus, noDecimal);
  }
  void ExpectRefused(char16_t key, bool noMinus = false, bool noDecimal = false) {
    const int beeps = script.Beeps();
    EXPECT_EQ(Filtered(key, noMinus, noDecimal), 0) << int(key);
    EXPECT_EQ(script.Beeps(), beeps + 1);
  }
  bool InRange(const QString& text, bool zeroAllowed = true) {
    box->SetText(text);
    other->setFocus();
    return RangeMessage(*box, "Flat Fee", "99.99", "#####0.00", zeroAllowed);
  }
  void ExpectMessage(const QString& text) { script.ExpectTitled(text, MessageStyle::Stop, "Ostana - Rates"); }
  void ExpectBackInBox() {
    EXPECT_TRUE(box->hasFocus());
    EXPECT_EQ(box->selectedText(), box->Text());
  }

  Script script;
  QWidget form;
  QLabel* const label = new QLabel("&Flat Fee", &form);
  TextBox* const box = new TextBox(&form, "txt7aFlatFee");
  QLineEdit* const other = new QLineEdit(&form);
};

}  // namespace

TEST_F(NumericFieldsTest, SeparatorIsThatOfTheLocale) {
  const struct {
    const char* locale;
    const char* separator;
    int code;
  } locales[] = {{"C", ".", 46}, {"en_US", ".", 46}, {"de_DE", ",", 44}, {"fr_CA", ",", 44}, {"ar_EG", ".", 46}};
  for (const auto& entry : locales) {
    UseLocale(entry.locale);
    EXPECT_EQ(gstrDecimalSeparator, entry.separator) << entry.locale;
    EXPECT_EQ(gintDecimalSeparatorKey, entry.code);
  }
}

TEST_F(NumericFieldsTest, DigitsBackspaceAndEnterPass) {
  for (const QChar key : QString("0123456789\b\r")) EXPECT_EQ(Filtered(key.unicode(), true, true), key.unicode());
  EXPECT_EQ(script.Beeps(), 0);
}

TEST_F(NumericFieldsTest, OtherKeysBeep) {
  for (const QChar key : QString::fromUtf8("aZ +*/;'\t\x1b١é")) ExpectRefused(key.unicode());
}

TEST_F(NumericFieldsTest, MinusPassesInAnEmptyBoxOnly) {
  EXPECT_EQ(Filtered(u'-'), u'-');
  ExpectRefused(u'-', true);
  box->SetText("1");
  ExpectRefused(u'-');
}

TEST_F(NumericFieldsTest, SeparatorTypedTwiceBeeps) {
  EXPECT_EQ(Filtered(u'.'), u'.');
  ExpectRefused(u'.', false, true);
  box->SetText("1.");
  ExpectRefused(u'.');
}

TEST_F(NumericFieldsTest, OnACommaMachineThePointBeeps) {
  UseLocale("de_DE");
  ExpectRefused(u'.');
  EXPECT_EQ(Filtered(u','), u',');
  box->SetText("1,");
  ExpectRefused(u',');
}

TEST_F(NumericFieldsTest, EmptyBoxHasNoRange) {
  EXPECT_TRUE(InRange("   ", false));
  EXPECT_EQ(box->Text(), "   ");
}

TEST_F(NumericFieldsTest, ValueInRangeIsFormatted) {
  EXPECT_TRUE(InRange(" 5 "));
  EXPECT_EQ(box->Text(), "5.00");
  EXPECT_TRUE(InRange("99.99"));
  EXPECT_TRUE(InRange("-99.99"));
  EXPECT_TRUE(InRange("99.994"));
  EXPECT_EQ(box->Text(), "99.99");
  EXPECT_TRUE(other->hasFocus());
}

TEST_F(NumericFieldsTest, ValueAboveTheHighestIsTold) {
  ExpectMessage("Flat Fee may not be greater than 99.99");
  EXPECT_FALSE(InRange("100"));
  EXPECT_EQ(box->Text(), "100.00");
  ExpectBackInBox();
}

TEST_F(NumericFieldsTest, ValueThatRoundsAboveTheHighestIsTold) {
  ExpectMessage("Flat Fee may not be greater than 99.99");
  EXPECT_FALSE(InRange("99.995"));
}

TEST_F(NumericFieldsTest, ValueBelowTheNegativeHighestIsTold) {
  ExpectMessage("Flat Fee may not be less than -99.99");
  EXPECT_FALSE(InRange("-100"));
  ExpectBackInBox();
}

TEST_F(NumericFieldsTest, ZeroIsToldWhereItIsNotAllowed) {
  EXPECT_TRUE(InRange("0"));
  ExpectMessage("Flat Fee may not be set to 0.00");
  EXPECT_FALSE(InRange("0", false));
  ExpectBackInBox();
}

TEST_F(NumericFieldsTest, TextThatIsNoNumberCountsAsZeroAndStays) {
  EXPECT_TRUE(InRange("abc"));
  EXPECT_EQ(box->Text(), "abc");
  ExpectMessage("Flat Fee may not be set to 0.00");
  EXPECT_FALSE(InRange("abc", false));
}

TEST_F(NumericFieldsTest, ALoneSignOrSeparatorIsTakenAway) {
  for (const char* text : {".", "-", " -. ", ","}) {
    EXPECT_TRUE(InRange(text, false)) << text;
    EXPECT_EQ(box->Text(), "") << text;
  }
}

TEST_F(NumericFieldsTest, MessagesUseTheLocalesSeparator) {
  UseLocale("de_DE");
  EXPECT_TRUE(InRange("12,5"));
  EXPECT_EQ(box->Text(), "12,50");
  ExpectMessage("Flat Fee may not be greater than 99,99");
  EXPECT_FALSE(InRange("100"));
}

TEST_F(NumericFieldsTest, PatternWithoutDecimalsRounds) {
  box->SetText("12.5");
  EXPECT_TRUE(RangeMessage(*box, "Unit Size", "999", "##0", true));
  EXPECT_EQ(box->Text(), "13");
  ExpectMessage("Unit Size may not be greater than 999");
  box->SetText("1000");
  EXPECT_FALSE(RangeMessage(*box, "Unit Size", "999", "##0", true));
}

TEST_F(NumericFieldsTest, TypingIsFilteredAndLeavingChecksTheRange) {
  MakeNumeric(*box, label, "99.99", "#####0.00");
  QTest::keyClicks(box, "1a2.5.");
  EXPECT_EQ(box->Text(), "12.5");
  EXPECT_EQ(script.Beeps(), 2);
  QTest::keyClick(box, Qt::Key_Tab);
  EXPECT_TRUE(other->hasFocus());
  EXPECT_EQ(box->Text(), "12.50");
}

TEST_F(NumericFieldsTest, LeavingWithAValueOutOfRangeKeepsTheFocus) {
  MakeNumeric(*box, label, "99.99", "#####0.00");
  QTest::keyClicks(box, "123");
  ExpectMessage("Flat Fee may not be greater than 99.99");
  QTest::keyClick(box, Qt::Key_Tab);
  ExpectBackInBox();
}
