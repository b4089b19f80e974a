// Texts are found whatever their letter case and accents.
#include <gtest/gtest.h>

#include "platform/controls/TextFolding.h"

namespace {

bool Finds(const char* sought, const char* text) {
  return TextFolding::Sought(QString::fromUtf8(sought)).IsIn(QString::fromUtf8(text));
}

TEST(TextFoldingTest, LetterCaseAndAccentsMakeNoDifference) {
  EXPECT_TRUE(Finds("universite", "UNIVERSITÉ DE LYON"));
  EXPECT_TRUE(Finds("université", "Universite de Lyon"));
  EXPECT_TRUE(Finds("Strasse", "Hauptstraße"));
  EXPECT_TRUE(Finds("KOBENHAVN", "København"));
  EXPECT_TRUE(Finds("lodz", "Łódź"));
  EXPECT_TRUE(Finds("oak", "White OAK"));
  EXPECT_FALSE(Finds("universitat", "Université"));
}

TEST(TextFoldingTest, OtherScriptsAreFoundAsTheyStand) {
  EXPECT_TRUE(Finds("漢字", "早稲田 漢字"));
  EXPECT_TRUE(Finds("αθηνα", "ΑΘΉΝΑ"));
  EXPECT_FALSE(Finds("ש", "ספרייה"));
}

TEST(TextFoldingTest, NothingIsInEveryText) {
  EXPECT_TRUE(Finds("", "a"));
  EXPECT_TRUE(Finds("", ""));
  EXPECT_TRUE(TextFolding::Sought().IsEmpty());
  EXPECT_FALSE(Finds("a", ""));
}

}  // namespace
