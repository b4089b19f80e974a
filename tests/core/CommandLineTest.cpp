#include "core/CommandLine.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>
#include <deque>
#include <string>
#include <vector>

namespace {

AppArguments Decoded(const QString& commandLine) {
  AppArguments arguments;
  EXPECT_TRUE(ID_DecodeAppArguments(commandLine, arguments));
  return arguments;
}

AppArguments Positions(const QString& first, const QString& second = {}, const QString& third = {},
                       const QString& fourth = {}, const QString& fifth = {}) {
  return {QString(), first, second, third, fourth, fifth};
}

// An argument list as main receives it.
class ArgumentList {
 public:
  explicit ArgumentList(std::initializer_list<const char*> arguments) {
    texts_.emplace_back("Tabulon");
    for (const char* argument : arguments) texts_.emplace_back(argument);
    for (std::string& text : texts_) pointers_.push_back(text.data());
  }
  int Count() const { return int(pointers_.size()); }
  char** Values() { return pointers_.data(); }
  QString Text() { return QuotedCommandLine(Count(), Values()); }
  const std::string& operator[](size_t index) const { return texts_[index]; }

 private:
  std::deque<std::string> texts_;
  std::vector<char*> pointers_;
};

}  // namespace

TEST(DecodeAppArguments, NoCommandLineAnswersFalseAndLeavesAllPositionsEmpty) {
  for (const QString& text : {QString(), QString(""), QString("   "), QString("\"\""), QString("  ab  ")}) {
    AppArguments arguments;
    arguments.fill("before");
    EXPECT_FALSE(ID_DecodeAppArguments(text, arguments));
    EXPECT_EQ(arguments, AppArguments());
  }
}

TEST(DecodeAppArguments, ThreeCharactersAreEnough) {
  EXPECT_EQ(Decoded("abc"), AppArguments());
  EXPECT_EQ(Decoded("\"a\""), Positions("a"));
}

TEST(DecodeAppArguments, FivePositionsAreFilledInOrder) {
  EXPECT_EQ(Decoded("\"site\" \"user\" \"password\" \"x\" \"_FRE\" \"more\""),
            Positions("site", "user", "password", "x", "_FRE"));
}

TEST(DecodeAppArguments, WhatStandsBetweenArgumentsDoesNotMatter) {
  EXPECT_EQ(Decoded("first\"a\",\"b\"xyz\"c\""), Positions("a", "b", "c"));
}

TEST(DecodeAppArguments, TextBetweenQuotesIsTrimmed) {
  EXPECT_EQ(Decoded("\"  a b \"\"\t\""), Positions("a b"));
}

TEST(DecodeAppArguments, EmptyArgumentKeepsItsPosition) {
  EXPECT_EQ(Decoded("\"\" \"user\" \"\" \"\" \"_GER\""), Positions("", "user", "", "", "_GER"));
}

TEST(DecodeAppArguments, MissingClosingQuoteStopsAndKeepsEarlierPositions) {
  EXPECT_EQ(Decoded("\"site\" \"user\" \"pass"), Positions("site", "user"));
  EXPECT_EQ(Decoded("\"site"), AppArguments());
}

TEST(DecodeAppArguments, AnyTextIsDecodedWithoutHarm) {
  QRandomGenerator random(7);
  for (int round = 0; round < 2000; ++round) {
    QString text;
    for (int length = random.bounded(40); length > 0; --length)
      text += QChar(random.bounded(2) ? '"' : random.bounded(1, 0x2FF));
    AppArguments arguments;
    const bool decoded = ID_DecodeAppArguments(text, arguments);
    EXPECT_EQ(decoded, text.trimmed().size() >= 3);
    for (const QString& argument : arguments) EXPECT_FALSE(argument.contains('"'));
  }
}

TEST(QuotedCommandLineOf, PlainArgumentsGetTheirQuotesBack) {
  EXPECT_EQ(ArgumentList({"site", "user", "password"}).Text(), "\"site\" \"user\" \"password\"");
  EXPECT_EQ(ArgumentList({"", "user"}).Text(), "\"\" \"user\"");
  EXPECT_EQ(ArgumentList({}).Text(), "");
}

TEST(QuotedCommandLineOf, QuotedArgumentsStayAsTheyAre) {
  EXPECT_EQ(ArgumentList({"\"site\" \"user\" \"password\""}).Text(), "\"site\" \"user\" \"password\"");
  EXPECT_EQ(ArgumentList({"\"site\"", "\"user\"", "password"}).Text(), "\"site\" \"user\" \"password\"");
}

TEST(QuotedCommandLineOf, BothWritingsDecodeAlike) {
  EXPECT_EQ(Decoded(ArgumentList({"main site", "admin", "s'ecret", "", "_FRE"}).Text()),
            Decoded(ArgumentList({"\"main site\" \"admin\" \"s'ecret\" \"\" \"_FRE\""}).Text()));
}

TEST(ForgetPasswordOf, OverwritesThePlainThirdArgument) {
  ArgumentList list({"site", "user", "secret", "", "_FRE"});
  ForgetPassword(list.Count(), list.Values());
  EXPECT_EQ(list[3], "******");
  EXPECT_EQ(Decoded(list.Text()), Positions("site", "user", "******", "", "_FRE"));
}

TEST(ForgetPasswordOf, OverwritesThePasswordInsideOneText) {
  ArgumentList list({"\"site\" \"user\" \"secret\" \"\" \"_FRE\""});
  ForgetPassword(list.Count(), list.Values());
  EXPECT_EQ(list[1], "\"site\" \"user\" \"******\" \"\" \"_FRE\"");
}

TEST(ForgetPasswordOf, OverwritesAPasswordThatTheShellCutInTwo) {
  ArgumentList list({"\"site\" \"user\" \"my", "pass\""});
  ForgetPassword(list.Count(), list.Values());
  EXPECT_EQ(list[1].find("my"), std::string::npos);
}

TEST(ForgetPasswordOf, OverwritesWhatStandsBehindAQuoteInThePassword) {
  ArgumentList list({"site", "user", "se\"cr\"et", "", "_FRE"});
  ForgetPassword(list.Count(), list.Values());
  EXPECT_EQ(list[3], "**\"**\"**");
  EXPECT_EQ(list[5], "_FRE");
}

TEST(ForgetPasswordOf, LeavesAListWithoutPasswordAlone) {
  ArgumentList list({"site", "user"});
  ForgetPassword(list.Count(), list.Values());
  EXPECT_EQ(list[1], "site");
  EXPECT_EQ(list[2], "user");
}
