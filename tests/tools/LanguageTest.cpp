#include "support/Texts.h"
#include "tools/ToolDesk.h"

namespace {

class AddLanguageTest : public ToolDesk {
 protected:
  void SetUp() override {
    ToolDesk::SetUp();
    UseDatabase();
  }
};

TEST_F(AddLanguageTest, ARowAndColumnsComeWithTheDescriptionsOfTheDefault) {
  const Result added = Run({"add-language", "ita", "Italian"});
  EXPECT_EQ(added.exitCode, 0) << added.err.toStdString();
  EXPECT_EQ(added.out.trimmed(), "Added the language ITA: 49 columns added.");
  EXPECT_EQ(Ask("SELECT MSG_METHOD_DESC_ITA FROM ID_MSG_METHOD WHERE MSG_METHOD = 'F'"), "Fax");
  for (const char* language : {"", "_ENG", "_FRE", "_GER", "_ITA"})
    EXPECT_EQ(
        Ask(QString("SELECT LANGUAGE_CODE_DESC%1 FROM ID_LANGUAGE_CODE WHERE LANGUAGE_CODE = 'ITA'").arg(language)),
        "Italian");
  EXPECT_EQ(Ask("SELECT LANGUAGE_CODE_DESC_ITA FROM ID_LANGUAGE_CODE WHERE LANGUAGE_CODE = 'FRE'"), "French");
  EXPECT_EQ(Ask("SELECT LANGUAGE_CODE_DEFAULT FROM ID_LANGUAGE_CODE WHERE LANGUAGE_CODE = 'ITA'"), "(null)");
  EXPECT_EQ(Run({"check"}).exitCode, 0);
}

TEST_F(AddLanguageTest, ALanguageThatIsThereIsLeftAlone) {
  Execute("UPDATE ID_MSG_METHOD SET MSG_METHOD_DESC_FRE = 'Poste' WHERE MSG_METHOD = 'M'");
  const Result added = Run({"add-language", "FRE", "Something else"});
  EXPECT_EQ(added.exitCode, 0);
  EXPECT_EQ(added.out.trimmed(), "The language FRE is there already, with all its columns.");
  EXPECT_EQ(Ask("SELECT MSG_METHOD_DESC_FRE FROM ID_MSG_METHOD WHERE MSG_METHOD = 'M'"), "Poste");
  EXPECT_EQ(Ask("SELECT LANGUAGE_CODE_DESC FROM ID_LANGUAGE_CODE WHERE LANGUAGE_CODE = 'FRE'"), "French");
}

TEST_F(AddLanguageTest, AnIncompleteLanguageIsCompleted) {
  Execute("ALTER TABLE ID_EVENT DROP COLUMN EVENT_DESC_GER");
  EXPECT_EQ(Run({"add-language", "GER", "German"}).out.trimmed(), "Completed the language GER: 1 columns added.");
  EXPECT_EQ(Ask("SELECT EVENT_DESC_GER FROM ID_EVENT WHERE EVENT_ID = 9010"), "Delivered");
  EXPECT_EQ(Run({"check"}).exitCode, 0);
}

TEST_F(AddLanguageTest, LegacyColumnsComeForEveryLanguage) {
  EXPECT_EQ(Run({"add-language", "GER", "German", "--legacy-columns"}).out.trimmed(),
            "Completed the language GER: 6 columns added.");
  EXPECT_FALSE(Run({"check"}).out.contains("Note:"));
  Execute("UPDATE ID_STAT_FUNCTION SET STAT_LOCATION_DESC_ENG = 'x', STAT_LOCATION_DESC_FRE = 'y'");
  Execute("UPDATE ID_ISO_NAMESPACE SET CURRENCY_CODE_DESC_GER = 'z'");
}

TEST_F(AddLanguageTest, ADescriptionMayHoldAnyLetters) {
  EXPECT_EQ(Run({"add-language", "XXA", "L'\"autre\"; -- \\ ğü 漢字"}).exitCode, 0);
  EXPECT_EQ(Ask("SELECT LANGUAGE_CODE_DESC FROM ID_LANGUAGE_CODE WHERE LANGUAGE_CODE = 'XXA'"),
            "L'\"autre\"; -- \\ ğü 漢字");
}

TEST_F(AddLanguageTest, ACodeThatCannotNameColumnsIsWrongUsage) {
  for (const char* code : {"FR", "FREN", "F-R", "1AB", "F'R"}) {
    const Result refused = Run({"add-language", code, "French"});
    EXPECT_EQ(refused.exitCode, 2) << code;
    EXPECT_TRUE(refused.err.contains("A language code has three letters or digits"));
  }
  EXPECT_EQ(Run({"add-language", "ITA", "  "}).exitCode, 2);
  EXPECT_EQ(Run({"add-language", "ITA", QString(51, 'x')}).exitCode, 2);
  EXPECT_EQ(Run({"add-language", "ITA"}).exitCode, 2);
  EXPECT_EQ(Count("ID_LANGUAGE_CODE"), 3);
}

}  // namespace
