// The statistical screen: outside identities, categories, limits.
#include <QTest>

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryDesk.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

namespace {

const QDateTime Noon(QDate(2024, 3, 5), QTime(12, 30, 15));

class LibraryStatisticalTest : public LibraryDesk {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    Clock::Set([] { return Noon; });
  }
  void OpenScreen(qint32 id = North) {
    OpenLibrary("frmLibraryStatisticalInfo", id);
    Statements();
  }
  void Saves() {
    Prompt().Expect("Library Symbol: (NORTH) has been updated.", MessageStyle::Information);
    Click("cmdUpdate");
  }
  void Refuses(const QString& message, const QString& focus) {
    Prompt().Expect(message, MessageStyle::Stop);
    Click("cmdUpdate");
    EXPECT_EQ(Focus(), focus);
    EXPECT_EQ(Find<TextBox>(focus)->selectedText(), Text(focus));
  }
  void TypeAll(std::initializer_list<std::pair<const char*, const char*>> fields) {
    for (const auto& [box, text] : fields) Type(box, text);
  }
};

// --- Reading ---

TEST_F(LibraryStatisticalTest, ListsAndTheirStart) {
  Begin();
  Open("frmLibraryStatisticalInfo");
  const QStringList lists = Statements();
  const char* const tables[] = {"VORN_SERVICE", "STATS_CAT_LIB", "LIBRARY_CAT", "LIBRARY_TYPE", "LOAN_CODE"};
  qsizetype at = -1;
  for (const QString table : tables) {
    const qsizetype next = lists.indexOf(QString("SELECT   %1, %1_DESC FROM ID_%1 ORDER BY %1_DESC").arg(table));
    EXPECT_GT(next, at) << qPrintable(table);
    at = next;
  }
  EXPECT_EQ(Find<CodeComboBox>("cmbServiceType")->Code(), "2");
  EXPECT_LT(Find<CodeComboBox>("cmbServiceType")->IndexOfText("(None)"), 0);
  for (const char* box :
       {"cboStatsCat1", "cboStatsCat2", "cboStatsCat3", "cboCategory", "cboLibraryType", "cmbLoanCode"}) {
    EXPECT_EQ(Text(box), "(None)") << box;
    EXPECT_EQ(Find<CodeComboBox>(box)->IndexOfText("(None)"), 0) << box;
  }
}

TEST_F(LibraryStatisticalTest, ReadsTheRecordAndConfirmsItsPasswords) {
  SetColumn(North, "VORN_SYMBOL", "'VN'");
  SetColumn(North, "VORN_PASSWORD", "'pv'");
  SetColumn(North, "VORN_USE_IFM", "'Y'");
  SetColumn(North, "VORN_IFM_MAX_COST", "12.5");
  SetColumn(North, "BL_PASSWORD", "'pb'");
  SetColumn(North, "RAPID_PASSWORD", "'pr'");
  SetColumn(North, "RAPID_ALLOW_LOCAL", "'Y'");
  SetColumn(North, "MAX_COST", "30");
  SetColumn(North, "LIBRARY_TYPE", "'U'");
  SetColumn(North, "DATE_ENTERED", "'2024-03-05 14:05:06'");
  OpenScreen();
  EXPECT_EQ(Text("txtVORNSymbol"), "VN");
  EXPECT_EQ(Text("txtVORNConfirmPassword"), "pv");
  EXPECT_EQ(Text("txtBLConfirmPassword"), "pb");
  EXPECT_EQ(Text("txtRapidConfirmPassword"), "pr");
  EXPECT_EQ(Find<TextBox>("txtVORNPassword")->echoMode(), QLineEdit::Password);
  EXPECT_TRUE(IsChecked("optUseIFM(0)"));
  EXPECT_TRUE(IsChecked("optRapidAllowLocal(0)"));
  EXPECT_EQ(Text("txtIFMMaxCost"), "12.50");
  EXPECT_TRUE(IsEnabled("txtIFMMaxCost"));
  EXPECT_EQ(Text("txtMaximumCost"), "30.00");
  EXPECT_EQ(Find<CodeComboBox>("cboLibraryType")->Code(), "U");
  EXPECT_EQ(Find<CodeComboBox>("cmbServiceType")->Code(), "2");
  EXPECT_EQ(Text("txtDateEntered"), "Tuesday, 5 March 2024 14:05:06");
  EXPECT_EQ(Text("txtDateLastUpdated"), "");
}

TEST_F(LibraryStatisticalTest, NoIfmTakesItsMaximumAway) {
  SetColumn(North, "VORN_USE_IFM", "'Y'");
  SetColumn(North, "VORN_IFM_MAX_COST", "12.5");
  OpenScreen();
  QTest::mouseClick(Find<QLabel>("lblUseIFMRadio(1)"), Qt::LeftButton);
  EXPECT_TRUE(IsChecked("optUseIFM(1)"));
  EXPECT_FALSE(IsEnabled("txtIFMMaxCost"));
  EXPECT_FALSE(Find<QLabel>("lblIFMMaxCost")->isEnabled());
  EXPECT_EQ(Text("txtIFMMaxCost"), "");
  Click("optUseIFM(0)");
  EXPECT_TRUE(IsEnabled("txtIFMMaxCost"));
  // The options count as changes; Clear asks in words of its own.
  Prompt().Expect(GuardText("The Library Statistical Info has been modified for this record."), MessageStyle::Question,
                  MessageAnswer::No);
  Click("cmdClear");
}

TEST_F(LibraryStatisticalTest, TheCaptionOfAnOptionChoosesIt) {
  OpenScreen();
  QTest::mouseClick(Find<QLabel>("lblRapidAllowLocalRadio(0)"), Qt::LeftButton);
  EXPECT_TRUE(IsChecked("optRapidAllowLocal(0)"));
  QTest::mouseClick(Find<QLabel>("lblRapidAllowLocalRadio(1)"), Qt::LeftButton);
  EXPECT_TRUE(IsChecked("optRapidAllowLocal(1)"));
}

TEST_F(LibraryStatisticalTest, VornAndNewZealandSymbolsAreTypedInCapitals) {
  OpenScreen();
  TypeAll({{"txtVORNSymbol", "abc"}, {"txtNewZealand", "abc"}, {"txtFD", "abc"}, {"txtDoclineSymbol", "abc"}});
  EXPECT_EQ(Text("txtVORNSymbol"), "ABC");
  EXPECT_EQ(Text("txtNewZealand"), "ABC");
  EXPECT_EQ(Text("txtFD"), "abc");
  EXPECT_EQ(Text("txtDoclineSymbol"), "abc");
}

// --- Numbers ---

TEST_F(LibraryStatisticalTest, AMaximumOf9999Point99PassesTenThousandDoesNot) {
  OpenScreen();
  Type("txtMaximumCost", "9999.99");
  Press("txtMaximumCost", Qt::Key_Tab);
  EXPECT_EQ(Text("txtMaximumCost"), "9999.99");
  EXPECT_NE(Focus(), "txtMaximumCost");
  Type("txtMaximumCost", "10000");
  Prompt().Expect("Maximum Cost: may not be greater than 9999.99", MessageStyle::Stop);
  Press("txtMaximumCost", Qt::Key_Tab);
  EXPECT_EQ(Focus(), "txtMaximumCost");
  Type("txtMaximumCost", "-5");
  EXPECT_EQ(Text("txtMaximumCost"), "5");
  EXPECT_EQ(Prompt().Beeps(), 1);
  Type("txtMaximumDays", "10000");
  Prompt().Expect("Maximum Days: may not be greater than 9999", MessageStyle::Stop);
  Press("txtMaximumDays", Qt::Key_Tab);
  Type("txtMaximumDays", "9999");
}

TEST_F(LibraryStatisticalTest, ACostWithADecimalCommaReachesTheDatabaseWithAPoint) {
  gstrDecimalSeparator = ",";
  gintDecimalSeparatorKey = u',';
  OpenScreen();
  Type("txtMaximumCost", "12,5");
  Saves();
  EXPECT_TRUE(Writing().last().contains("MAX_COST = 12.50"));
  EXPECT_EQ(Column("MAX_COST").toDouble(), 12.5);
}

// A number is yet to come; as it stands it would be no statement.
TEST_F(LibraryStatisticalTest, ALonePointIsStoredAsNothing) {
  SetColumn(North, "MAX_COST", "12.5");
  OpenScreen();
  Type("txtMaximumCost", ".");
  Press("txtMaximumCost", Qt::Key_Tab);
  EXPECT_EQ(Text("txtMaximumCost"), "");
  Saves();
  EXPECT_TRUE(Writing().last().contains("MAX_COST = Null,"));
  EXPECT_EQ(Column("MAX_COST"), "");
}

// --- Update ---

TEST_F(LibraryStatisticalTest, UpdateWritesOneStatementInItsOrder) {
  Another("INSERT INTO ID_STATS_CAT_LIB (STATS_CAT_LIB, STATS_CAT_LIB_DESC) VALUES ('ZZ', 'Last of all')");
  OpenScreen();
  TypeAll({{"txtVORNSymbol", "vn"},
           {"txtVORNUserID", "u"},
           {"txtVORNPassword", "p"},
           {"txtVORNConfirmPassword", "p"},
           {"txtBLUserID", "b"},
           {"txtBLPassword", "q"},
           {"txtBLConfirmPassword", "q"},
           {"txtRapid", "R1"},
           {"txtRapidBranchName", "Main's"},
           {"txtDoclineSymbol", "D"},
           {"txtNewZealand", "nz"},
           {"txtMaximumDays", "28"}});
  Click("optUseIFM(0)");
  Type("txtIFMMaxCost", "12");
  Choose("cboStatsCat2", "Last of all");
  Choose("cboLibraryType", "University library");
  Saves();
  EXPECT_EQ(Writing(),
            QStringList("UPDATE ID_LIBRARY SET      LAST_MODIFIED = " + gclsOF->SqlDate(Noon) +
                        ", VORN_SYMBOL = N'VN', VORN_USER_ID = N'u', VORN_PASSWORD = N'p', VORN_SERVICE = N'2', "
                        "VORN_USE_IFM = N'Y', VORN_IFM_MAX_COST = 12.00, BL_USER_ID = N'b', BL_PASSWORD = N'q', "
                        "RAPID_CODE = N'R1', RAPID_BRANCH_NAME = N'Main''s', RAPID_USER_NAME = Null, "
                        "RAPID_ALLOW_LOCAL = N'N', RAPID_PASSWORD = Null, DOCLINE_SYMBOL = N'D', FD_SYMBOL = Null, "
                        "AGENT_SYMBOL = Null, NLNZ_SYMBOL = N'NZ', MAX_COST = Null, MAX_DAYS = 28, "
                        "STATS_CAT_LIB3 = Null, STATS_CAT_LIB1 = Null, STATS_CAT_LIB2 = N'ZZ', LIBRARY_CAT = Null, "
                        "LOAN_CODE = Null, LIBRARY_TYPE = N'U' WHERE    LIBRARY_ID = 101"));
  EXPECT_EQ(Column("RAPID_BRANCH_NAME"), "Main's");
}

TEST_F(LibraryStatisticalTest, AnEmptiedVornSymbolClearsSixColumnsWhateverTheOtherBoxesHeld) {
  for (const char* column : {"VORN_SYMBOL", "VORN_USER_ID", "VORN_PASSWORD"}) SetColumn(North, column, "'v'");
  SetColumn(North, "VORN_SERVICE", "'1'");
  SetColumn(North, "VORN_USE_IFM", "'Y'");
  SetColumn(North, "VORN_IFM_MAX_COST", "5");
  OpenScreen();
  Type("txtVORNSymbol", " ");
  Saves();
  EXPECT_TRUE(Writing().last().contains(
      "VORN_SYMBOL = Null, VORN_USER_ID = Null, VORN_PASSWORD = Null, VORN_SERVICE = Null, VORN_USE_IFM = Null, "
      "VORN_IFM_MAX_COST = Null, "));
  EXPECT_EQ(Text("txtVORNUserID"), "");
  EXPECT_TRUE(IsChecked("optUseIFM(1)"));
}

TEST_F(LibraryStatisticalTest, WithoutAVornUserTheVornPasswordIsDropped) {
  OpenScreen();
  TypeAll({{"txtVORNSymbol", "vn"}, {"txtVORNPassword", "p"}});
  Saves();
  EXPECT_EQ(Column("VORN_PASSWORD"), QString());
  EXPECT_EQ(Column("VORN_SYMBOL"), "VN");
  EXPECT_EQ(Column("VORN_USE_IFM"), "N");
}

TEST_F(LibraryStatisticalTest, TheTestsOfTheVornLoginInTheirOrder) {
  OpenScreen();
  TypeAll({{"txtVORNSymbol", "vn"}, {"txtVORNUserID", "o'x"}});
  Refuses("User ID contains invalid characters.  Try again.", "txtVORNUserID");
  Type("txtVORNUserID", "ox");
  Refuses("Password is required.", "txtVORNPassword");
  Type("txtVORNPassword", "p'w");
  Refuses("Password contains invalid characters.  Try again.", "txtVORNPassword");
  Type("txtVORNPassword", "pw");
  Refuses("Password confirmation failed.  Try again.", "txtVORNConfirmPassword");
  Type("txtVORNConfirmPassword", "pw");
  Click("optUseIFM(0)");
  Refuses("This is a required field.  Try again.", "txtIFMMaxCost");
  Type("txtIFMMaxCost", "5");
  Saves();
}

TEST_F(LibraryStatisticalTest, TheTestsOfTheBritishLibraryLoginInTheirOrder) {
  OpenScreen();
  Type("txtBLUserID", "o'x");
  Refuses("User ID contains invalid characters.  Try again.", "txtBLUserID");
  Type("txtBLUserID", "ox");
  Refuses("Password is required.", "txtBLPassword");
  Type("txtBLPassword", "p'w");
  Refuses("Password contains invalid characters.  Try again.", "txtBLPassword");
  Type("txtBLPassword", "pw");
  Refuses("Password confirmation failed.  Try again.", "txtBLConfirmPassword");
  Type("txtBLConfirmPassword", "pw");
  Saves();
  EXPECT_EQ(Column("BL_PASSWORD"), "pw");
}

TEST_F(LibraryStatisticalTest, ABritishLibraryPasswordWithoutAUserIsDroppedNotRefused) {
  OpenScreen();
  TypeAll({{"txtBLPassword", "one"}, {"txtBLConfirmPassword", "two"}});
  Saves();
  EXPECT_EQ(Column("BL_PASSWORD"), QString());
  EXPECT_EQ(Text("txtBLPassword"), "");
}

TEST_F(LibraryStatisticalTest, ARapidBranchWithoutACodeIsRefused) {
  OpenScreen();
  Type("txtRapidBranchName", "Main");
  Refuses("Please enter a Rapid ILL Code.", "txtRapid");
  // Rapid is tested before VORN.
  TypeAll({{"txtVORNSymbol", "vn"}, {"txtVORNUserID", "o'x"}});
  Refuses("Please enter a Rapid ILL Code.", "txtRapid");
}

TEST_F(LibraryStatisticalTest, ARapidCodeWithBothPasswordsEmptyIsAccepted) {
  OpenScreen();
  Type("txtRapid", "R'1");
  Saves();
  EXPECT_EQ(Column("RAPID_CODE"), "R'1");
  // Rapid has no test of its characters.
  TypeAll({{"txtRapidPassword", "p'w"}, {"txtRapidConfirmPassword", "x"}});
  Refuses("Rapid ILL Password doesn't match the Confirm Password.", "txtRapidConfirmPassword");
  Type("txtRapidConfirmPassword", "p'w");
  Saves();
  EXPECT_EQ(Column("RAPID_PASSWORD"), "p'w");
}

TEST_F(LibraryStatisticalTest, AFailedUpdateMasksThePasswordsInTheLog) {
  OpenScreen();
  TypeAll({{"txtVORNSymbol", "vn"},
           {"txtVORNUserID", "u"},
           {"txtVORNPassword", "topsecret"},
           {"txtVORNConfirmPassword", "topsecret"}});
  Another("ALTER TABLE ID_LIBRARY RENAME COLUMN FD_SYMBOL TO MOVED");
  Prompt().Expect("An error has occurred.  Please Notify Support.", MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_TRUE(LogHolds("***** SQL error on ID_library (Insert) *****"));
  EXPECT_TRUE(LogHolds("VORN_PASSWORD = N'***'"));
  EXPECT_FALSE(LogHolds("topsecret"));
}

TEST_F(LibraryStatisticalTest, UpdateNeedsASymbol) {
  OpenScreen();
  Type("txtFD", "F");
  Type("txtLibrarySymbol", "");
  Prompt().Expect(GuardText(Registered), MessageStyle::Question, MessageAnswer::Yes);
  Prompt().Expect("Library Symbol is a required field.\nPlease enter a value.", MessageStyle::Stop);
  Click("cmdSearch");
}

TEST_F(LibraryStatisticalTest, ClearReturnsToTheUsualServiceAndNone) {
  SetColumn(North, "VORN_SERVICE", "'1'");
  SetColumn(North, "LIBRARY_TYPE", "'U'");
  OpenScreen();
  Click("cmdClear");
  EXPECT_EQ(Find<CodeComboBox>("cmbServiceType")->Code(), "2");
  EXPECT_EQ(Text("cboLibraryType"), "(None)");
}

// --- Searches by an outside identity ---

struct OutsideCase {
  const char* box;
  const char* button;
  const char* column;
};
class OutsideSearchTest : public LibraryDesk, public testing::WithParamInterface<OutsideCase> {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    SetColumn(North, GetParam().column, "'XN'");
    SetColumn(South, GetParam().column, "'XS'");
    OpenLibrary("frmLibraryStatisticalInfo");
  }
  QString Box() const { return GetParam().box; }
};
INSTANTIATE_TEST_SUITE_P(Symbols, OutsideSearchTest,
                         testing::Values(OutsideCase{"txtVORNSymbol", "cmdSearchVORNSymbol", "VORN_SYMBOL"},
                                         OutsideCase{"txtDoclineSymbol", "cmdSearchDoclineSymbol", "DOCLINE_SYMBOL"},
                                         OutsideCase{"txtFD", "cmdSearchFDSymbol", "FD_SYMBOL"},
                                         OutsideCase{"txtNewZealand", "cmdSearchNewZealandSymbol", "NLNZ_SYMBOL"},
                                         OutsideCase{"txtRapid", "cmdSearchRapidCode", "RAPID_CODE"},
                                         OutsideCase{"txtAgent", "cmdSearchAgentSymbol", "AGENT_SYMBOL"}),
                         [](const testing::TestParamInfo<OutsideCase>& info) {
                           return std::string(info.param.column);
                         });

TEST_P(OutsideSearchTest, AHitDisplaysTheLibraryThatOwnsTheIdentity) {
  Type(Box(), "XS");
  Click(GetParam().button);
  EXPECT_EQ(
      Statements()[0],
      QString("SELECT   LIBRARY_ID, LIBRARY_SYMBOL, %1 FROM ID_LIBRARY WHERE    %1 = N'XS'").arg(GetParam().column));
  EXPECT_EQ(Text("txtLibrarySymbol"), "SOUTH");
  EXPECT_EQ(Text(Box()), "XS");
}

TEST_P(OutsideSearchTest, EnterInTheBoxSearches) {
  Type(Box(), "XN");
  Press(Box(), Qt::Key_Return);
  EXPECT_EQ(Text("txtLibrarySymbol"), "NORTH");
}

TEST_P(OutsideSearchTest, AWildcardListsTheSymbolsOfTheMatches) {
  Type(Box(), "X%");
  Click(GetParam().button);
  EXPECT_TRUE(Statements().contains(
      QString(" SELECT   LIBRARY_ID, LIBRARY_SYMBOL  FROM    ID_LIBRARY WHERE  %1 LIKE  N'X%' Order By %1 ")
          .arg(GetParam().column)));
  EXPECT_EQ(Text("txtFound"), "2");
  Choose("cmbLibrarySymbol", "SOUTH");
  EXPECT_EQ(Text(Box()), "XS");
}

TEST_P(OutsideSearchTest, PercentAloneEmptyAndUnknownTexts) {
  Type(Box(), "%");
  Prompt().Expect("Search string too broad. Please enter a valid search criteria.", MessageStyle::Stop);
  Click(GetParam().button);
  EXPECT_EQ(Focus(), Box());
  Type(Box(), "");
  Prompt().ExpectTitled("Enter search criteria.", MessageStyle::Stop, "Ostana");
  Click(GetParam().button);
  Type(Box(), "XX");
  Prompt().Expect("Record not found.", MessageStyle::Information);
  Click(GetParam().button);
  EXPECT_EQ(Text(Box()), "XX");
  Type(Box(), "Z%");
  Prompt().Expect("Record not found.", MessageStyle::Information);
  Click(GetParam().button);
  EXPECT_EQ(Text(Box()), "Z%");
}

TEST_P(OutsideSearchTest, NoAtTheGuardSearchesTheTypedText) {
  Type("txtLibrarySymbol", "NORTH");
  Click("cmdSearch");
  Type(Box(), "XS");
  Prompt().Expect(GuardText(Registered), MessageStyle::Question, MessageAnswer::No);
  Click(GetParam().button);
  EXPECT_EQ(Text("txtLibrarySymbol"), "SOUTH");
}

TEST_P(OutsideSearchTest, AFailedLookUpIsInTheLogWithItsStatement) {
  Another(QString("ALTER TABLE ID_LIBRARY RENAME COLUMN %1 TO MOVED").arg(GetParam().column));
  Type(Box(), "XN");
  Prompt().Expect("Record not found.", MessageStyle::Information);
  Click(GetParam().button);
  EXPECT_TRUE(LogHolds("* FindLibrarySymbol"));
  EXPECT_TRUE(
      LogHolds(QString("* Database Statement: SELECT   LIBRARY_ID, LIBRARY_SYMBOL, %1").arg(GetParam().column)));
}

TEST_F(LibraryStatisticalTest, ClearChoosesNoServiceWhereTheUsualOneIsMissing) {
  Another("DELETE FROM ID_VORN_SERVICE WHERE VORN_SERVICE = '2'");
  SetColumn(North, "VORN_SERVICE", "'3'");
  OpenScreen();
  Click("cmdClear");
  EXPECT_NE(Text("cmbServiceType"), "Loans");
  EXPECT_EQ(Find<CodeComboBox>("cmbServiceType")->Index(), -1);
}

TEST_F(LibraryStatisticalTest, DatesAreInTheWordsAndTheHoursOfTheMachine) {
  SetColumn(North, "DATE_ENTERED", "'2024-03-05 14:05:06'");
  for (const auto& [language, shown] : {std::pair{"de_DE", "Dienstag, 5. März 2024 14:05:06"},
                                        {"en_US", "Tuesday, March 5, 2024 2:05:06 PM"},
                                        {"fr_FR", "mardi 5 mars 2024 14:05:06"}}) {
    const QLocale before;
    QLocale::setDefault(QLocale(language));
    OpenScreen();
    QLocale::setDefault(before);
    EXPECT_EQ(Text("txtDateEntered").simplified(), shown) << language;
  }
}

TEST_F(LibraryStatisticalTest, ThePatternOfAnotherSymbolIsNoLibrarySymbol) {
  SetColumn(North, "FD_SYMBOL", "'FD-1'");
  SetColumn(South, "FD_SYMBOL", "'FD-2'");
  OpenScreen(0);
  Type("txtFD", "FD%");
  Click("cmdSearchFDSymbol");
  EXPECT_EQ(Text("txtFound"), "2");
  EXPECT_EQ(Find<CodeComboBox>("cmbLibrarySymbol")->currentText(), "");
}

}  // namespace
