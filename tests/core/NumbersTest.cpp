#include <limits>

#include "core/WorkFolder.h"
#include "shell/NumericFields.h"

namespace {

class NumbersTest : public WorkFolder {
 protected:
  static void UseComma() {
    gstrDecimalSeparator = ",";
    gintDecimalSeparatorKey = u',';
  }
};

}  // namespace

TEST_F(NumbersTest, FormatFollowsThePattern) {
  const struct {
    double value;
    const char* pattern;
    const char* text;
  } cases[] = {
      {0, "#####0.00", "0.00"},
      {1.5, "#####0.00", "1.50"},
      {99.99, "#####0.00", "99.99"},
      {0, "##0", "0"},
      {12, "##0", "12"},
      {1234567, "##0", "1234567"},
      {1.5, "###0.0000", "1.5000"},
      {5, "000.00", "005.00"},
      {1234.5, "000.00", "1234.50"},
      {-1.5, "#####0.00", "-1.50"},
      {-0.001, "#####0.00", "0.00"},
      {0.5, "###.##", ".5"},
      {1, "##0.##", "1."},
      {1e15, "##0", "1000000000000000"},
  };
  for (const auto& entry : cases) EXPECT_EQ(Numbers::Format(entry.value, entry.pattern), entry.text) << entry.value;
}

TEST_F(NumbersTest, FormatRoundsTheDecimalDigitsHalfUp) {
  const struct {
    double value;
    const char* text;
  } cases[] = {{1.005, "1.01"},   {1.004, "1.00"},  {2.675, "2.68"},   {0.995, "1.00"},
               {-1.005, "-1.01"}, {9.999, "10.00"}, {99.994, "99.99"}, {99.995, "100.00"}};
  for (const auto& entry : cases) EXPECT_EQ(Numbers::Format(entry.value, "#####0.00"), entry.text) << entry.value;
  EXPECT_EQ(Numbers::Format(0.5, "##0"), "1");
  EXPECT_EQ(Numbers::Format(2.5, "##0"), "3");
}

TEST_F(NumbersTest, FormatUsesTheLocalesSeparator) {
  UseComma();
  EXPECT_EQ(Numbers::Format(1.5, "#####0.00"), "1,50");
  EXPECT_EQ(Numbers::Format(2, "##0"), "2");
}

TEST_F(NumbersTest, FormatOfEndlessNumbersDoesNoHarm) {
  EXPECT_EQ(Numbers::Format(std::numeric_limits<double>::infinity(), "##0"), "inf");
  EXPECT_EQ(Numbers::Format(1e300, "##0").size(), 301);
}

TEST_F(NumbersTest, NumbersAreRecognised) {
  for (const char* text : {"0", "12", " 12 ", "1.5", ".5", "5.", "-1.5", "+2"})
    EXPECT_TRUE(Numbers::IsNumeric(text)) << text;
  for (const char* text : {"", " ", ".", "-", "1,5", "1.5.2", "1a", "a1", "1 2", "--1", "1-", "1e5"})
    EXPECT_FALSE(Numbers::IsNumeric(text)) << text;
  EXPECT_FALSE(Numbers::IsNumeric(QString::fromUtf8("١٢")));
}

TEST_F(NumbersTest, WithACommaBothSeparatorsCount) {
  UseComma();
  EXPECT_TRUE(Numbers::IsNumeric("1,5"));
  EXPECT_TRUE(Numbers::IsNumeric("1.5"));
  EXPECT_FALSE(Numbers::IsNumeric("1,5,2"));
  EXPECT_DOUBLE_EQ(Numbers::Val("1,5"), 1.5);
  EXPECT_DOUBLE_EQ(Numbers::Val("99.99"), 99.99);
}

TEST_F(NumbersTest, ValTakesTheNumberAtTheStart) {
  EXPECT_DOUBLE_EQ(Numbers::Val("  12.5 kg"), 12.5);
  EXPECT_DOUBLE_EQ(Numbers::Val("-3"), -3);
  EXPECT_DOUBLE_EQ(Numbers::Val(".5"), 0.5);
  EXPECT_DOUBLE_EQ(Numbers::Val("1,5"), 1);
  for (const char* text : {"", "abc", "-", ".", "kg 12"}) EXPECT_DOUBLE_EQ(Numbers::Val(text), 0) << text;
}

TEST_F(NumbersTest, ALoneSignOrSeparatorIsNoNumberYet) {
  for (const char* text : {"", "  ", ".", ",", "-", "+", "-.", " , "}) EXPECT_TRUE(Numbers::IsBlank(text)) << text;
  for (const char* text : {"0", ".0", "-1", "a", "..", "--", ". ."}) EXPECT_FALSE(Numbers::IsBlank(text)) << text;
}

TEST_F(NumbersTest, NothingIsNotZero) {
  EXPECT_TRUE(Numbers::Same("5", "5.00"));
  EXPECT_TRUE(Numbers::Same(" ", "."));
  EXPECT_FALSE(Numbers::Same("", "0.00"));
  EXPECT_FALSE(Numbers::Same("0", "."));
}

TEST_F(NumbersTest, WholeNumbersKeepTheirDigits) {
  for (const auto& [text, whole] : {std::pair<QString, QString>{"7", "7"},
                                    {"+7", "7"},
                                    {" -012.000 ", "-12"},
                                    {"9007199254740993", "9007199254740993"},
                                    {"99999999999999999999", "99999999999999999999"},
                                    {"000", "0"},
                                    {"-0.0", "0"},
                                    {".0", "0"}}) {
    EXPECT_FALSE(Numbers::HasFraction(text)) << text.toStdString();
    EXPECT_EQ(Numbers::Whole(text), whole) << text.toStdString();
  }
  for (const QString& text : {QString("7.5"), QString("-0.001"), QString(".5"), QString("9007199254740993.5")})
    EXPECT_TRUE(Numbers::HasFraction(text)) << text.toStdString();
}
