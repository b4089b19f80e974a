// NCIP profiles: leaving an edited row, clearing, and what the close of the screen stores.
#include "interop/NCIPProfileDesk.h"

namespace {

class NCIPProfileStoreTest : public NCIPProfileDesk {};

// --- Leaving an edited row ---

TEST_F(NCIPProfileStoreTest, YesWritesTheRowThatWasOnShow) {
  AddProfile("A");
  AddProfile("B");
  OpenProfiles();
  SelectRowOf(Grid1, "A");
  Type("txtDescription", "edited");
  Prompt().ExpectTitled(Question, 36, Caption, MessageAnswer::Yes);
  SelectRowOf(Grid1, "B");
  EXPECT_EQ(Text("txtProfileCode"), "B");
  const auto* const grid = Find<Grid>(Grid1);
  EXPECT_GT(grid->FindRow({{1, "A"}, {2, "edited"}}), 0);
  EXPECT_GT(grid->FindRow({{1, "B"}, {2, "B desc"}}), 0);
  EXPECT_TRUE(gbSettingsChanged);
  SelectRowOf(Grid1, "A");
}

TEST_F(NCIPProfileStoreTest, YesFindsTheRowAlsoWhenTheGridWasSortedMeanwhile) {
  AddProfile("A");
  AddProfile("B");
  AddProfile("C");
  OpenProfiles();
  SelectRowOf(Grid1, "A");
  Type("txtDescription", "edited");
  SortBy(Grid1, 1);
  SortBy(Grid1, 1);
  EXPECT_EQ(Cell(Grid1, 3, 1), "A");
  Prompt().Expect(Question, 36, MessageAnswer::Yes);
  SelectRowOf(Grid1, "C");
  EXPECT_EQ(Cell(Grid1, 3, 2), "edited");
  EXPECT_EQ(Cell(Grid1, 1, 2), "C desc");
}

TEST_F(NCIPProfileStoreTest, NoDropsTheEdits) {
  AddProfile("A");
  AddProfile("B");
  OpenProfiles();
  SelectRowOf(Grid1, "A");
  Choose("cmbPatronType", "Staff");
  Prompt().Expect(Question, 36, MessageAnswer::No);
  SelectRowOf(Grid1, "B");
  SelectRowOf(Grid1, "A");
  EXPECT_EQ(Text("cmbPatronType"), "Faculty");
  EXPECT_FALSE(gbSettingsChanged);
}

TEST_F(NCIPProfileStoreTest, EveryKindOfEditIsAskedAbout) {
  AddProfile("A");
  AddProfile("B");
  OpenProfiles();
  const std::vector<std::function<void()>> edits = {
      [this] { Append("txtProfileCode", "x"); },         [this] { Append("txtDescription", "x"); },
      [this] { Choose("cmbPatronType", "Faculty"); },  // a click on the entry that is chosen already counts
      [this] { Choose("cmbLoanCode", "(None)"); },       [this] { Choose("cmbFileFormat", "PDF"); },
      [this] { Choose("cmbMessageFormat", "HTML"); },    [this] { Choose("cmbBillingType", "Invoice"); },
      [this] { Choose("cmbBillingRate", "Companies"); }, [this] { Click("rdAllowCopyYes"); },
      [this] { Click("rdDeliverySelectCopyYes"); },      [this] { Choose("cmbDeliveryMethodCopy", "Pickup"); },
      [this] { Append("txtDeliveryAddressLoan", "x"); }, [this] { Click("rdAllowLoanNo"); },
  };
  for (const auto& edit : edits) {
    SelectRowOf(Grid1, "A");
    edit();
    Prompt().Expect(Question, 36, MessageAnswer::No);
    SelectRowOf(Grid1, "B");
  }
}

TEST_F(NCIPProfileStoreTest, WithoutTheUpdateRightNothingIsAskedButAChangedListIsStillWritten) {
  AddProfile("A");
  AddProfile("B");
  WithoutUpdateRight();
  OpenProfiles();
  EXPECT_FALSE(IsEnabled("cmdUpdate"));
  SelectRowOf(Grid1, "A");
  Type("txtDescription", "dropped");
  SelectRowOf(Grid1, "B");
  Click("cmdDelete");
  Type("txtDescription", "dropped too");
  CloseAndStore();
  EXPECT_EQ(Profiles(), "A");
  EXPECT_EQ(Ask("SELECT NCIP_PROFILE_DESC FROM ID_NCIP_PROFILE"), "A desc");
}

TEST_F(NCIPProfileStoreTest, AfterClearNoRowIsOnShowSoThatYesOverwritesNone) {
  AddProfile("A");
  AddProfile("B");
  OpenProfiles();
  Prompt().Expect(ClearQuestion, 36, MessageAnswer::Yes);
  Click("cmdClear");
  EXPECT_EQ(Row(Grid1), 0);
  Fill("NEW", "Typed on the cleared screen");
  Prompt().Expect(Question, 36, MessageAnswer::Yes).Expect("There are currently no rows to Update.", 16);
  SelectRowOf(Grid1, "B");
  // What was typed waits for Add.
  EXPECT_EQ(Text("txtProfileCode"), "NEW");
  EXPECT_EQ(Row(Grid1), 0);
  Prompt().Expect("There are currently no rows to Update.", 16);
  Click("cmdUpdate");
  Click("cmdAdd");
  CloseAndStore();
  EXPECT_EQ(Profiles(), "A B NEW");
}

// --- What was not read is not written ---

TEST_F(NCIPProfileStoreTest, AListThatCouldNotBeReadIsNotReplaced) {
  AddProfile("A");
  AddProfile("B");
  // Each of the tables behind the lists, and the profiles themselves.
  for (const char* table : {"ID_PATRON_TYPE", "ID_BILLING_RATE", "ID_PICKUP_LOCATION", "ID_NCIP_PROFILE"}) {
    SCOPED_TRACE(table);
    const QString away = QString(table) + "_AWAY";
    Another(QString("ALTER TABLE ") + table + " RENAME TO " + away);
    Prompt().Expect("An error has occurred loading the form.  Please Notify Support.", 16);
    OpenProfiles();
    Another("ALTER TABLE " + away + " RENAME TO " + table);
    for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear"})
      EXPECT_FALSE(IsEnabled(button)) << button;
    Type("txtDescription", "typed");
    Click("cmdClose");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Profiles(), "A B");
  }
}

TEST_F(NCIPProfileStoreTest, TheRightsOfTheOpeningDecideWhatCanBePressed) {
  AddProfile("A");
  Another("UPDATE ID_USER_FUNCTION SET ADD_FLAG = 'N', UPDATE_FLAG = 'N', DELETE_FLAG = 'N'");
  ASSERT_TRUE(gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), gclsOF->CurrentFunction()));
  OpenProfiles();
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear"}) EXPECT_FALSE(IsEnabled(button)) << button;
}

// --- Delete and Clear ---

TEST_F(NCIPProfileStoreTest, DeleteRemovesTheRowAtOnceAndShowsTheFirst) {
  AddProfile("A");
  AddProfile("B");
  OpenProfiles();
  SelectRowOf(Grid1, "B");
  Type("txtDescription", "edited");
  Click("cmdDelete");
  EXPECT_EQ(Rows(Grid1), 2);
  EXPECT_EQ(Text("txtProfileCode"), "A");
  EXPECT_TRUE(gbSettingsChanged);
  Click("cmdDelete");
  EXPECT_EQ(Text("txtProfileCode"), "");
  EXPECT_EQ(Text("cmbFileFormat"), "PDF");
  EXPECT_TRUE(Statements().isEmpty());
}

TEST_F(NCIPProfileStoreTest, AnEmptyGridDeletesAllProfilesOfTheLibraryAndInsertsNone) {
  AddProfile("A");
  AddProfile("S", "'Y', 'Y', NULL, NULL", "'Y', 'Y', NULL, NULL", Server);
  OpenProfiles();
  Click("cmdDelete");
  CloseAndStore();
  EXPECT_EQ(Statements(), QStringList{"DELETE FROM ID_NCIP_PROFILE WHERE LIBRARY_ID = 101"});
  EXPECT_EQ(Profiles(), "");
  EXPECT_EQ(Profiles(Server), "S");
}

TEST_F(NCIPProfileStoreTest, ClearAloneMakesTheCloseRewriteTheTable) {
  AddProfile("A", "'Y', 'Y', 'P', 'M'", "'N', 'N', 'F', '123'");
  OpenProfiles();
  Prompt().ExpectTitled(ClearQuestion, 36, Caption, MessageAnswer::Yes);
  Click("cmdClear");
  EXPECT_EQ(Text("txtProfileCode"), "");
  EXPECT_TRUE(IsEnabled("cmbDeliveryMethodLoan"));
  EXPECT_FALSE(IsShown("cmbPickupLocationCopy"));
  EXPECT_EQ(Rows(Grid1), 2);
  EXPECT_TRUE(gbSettingsChanged);
  CloseAndStore();
  EXPECT_EQ(Writing(),
            (QStringList{"DELETE FROM ID_NCIP_PROFILE WHERE LIBRARY_ID = 101",
                         Into + "101, N'A', N'A desc', N'FA', N'N', N'Y', N'Y', N'P', N'M', N'N', N'F', N'123', N'T', "
                                "N'H', N'I', N'A', NULL)"}));
}

TEST_F(NCIPProfileStoreTest, ClearAnsweredNoKeepsTheScreenAndStillCountsAsAChange) {
  AddProfile("A");
  OpenProfiles();
  Type("txtDescription", "edited");
  Prompt().Expect(Question, 36, MessageAnswer::No).Expect(ClearQuestion, 36, MessageAnswer::No);
  Click("cmdClear");
  EXPECT_EQ(Text("txtDescription"), "edited");
  EXPECT_TRUE(gbSettingsChanged);
  CloseAndStore();
  EXPECT_EQ(Ask("SELECT NCIP_PROFILE_DESC FROM ID_NCIP_PROFILE"), "A desc");
}

TEST_F(NCIPProfileStoreTest, ClearAfterYesUpdatesTheRowFirst) {
  AddProfile("A");
  OpenProfiles();
  Type("txtDescription", "edited");
  Prompt().Expect(Question, 36, MessageAnswer::Yes).Expect(ClearQuestion, 36, MessageAnswer::Yes);
  Click("cmdClear");
  EXPECT_EQ(Cell(Grid1, 1, 2), "edited");
  EXPECT_EQ(Text("txtDescription"), "");
}

// --- Closing ---

TEST_F(NCIPProfileStoreTest, NothingIsWrittenWhenNothingChanged) {
  AddProfile("A");
  OpenProfiles();
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(Statements().isEmpty());
}

TEST_F(NCIPProfileStoreTest, AnEditedRowIsAskedAboutWhenTheScreenCloses) {
  AddProfile("A");
  OpenProfiles();
  Type("txtDescription", "edited");
  Prompt().ExpectTitled(Question, 36, Caption, MessageAnswer::No);
  Click("cmdClose");
  EXPECT_TRUE(Statements().isEmpty());
  OpenProfiles();
  Type("txtDescription", "edited");
  Prompt().Expect(Question, 36, MessageAnswer::Yes);
  CloseAndStore();
  EXPECT_EQ(Ask("SELECT NCIP_PROFILE_DESC FROM ID_NCIP_PROFILE"), "edited");
}

TEST_F(NCIPProfileStoreTest, CancelAndTheWindowsOwnCloseButtonLoseTheList) {
  AddProfile("A");
  OpenProfiles();
  Click("cmdDelete");
  Click("cmdCancel");
  EXPECT_FALSE(IsOpen());
  OpenProfiles();
  Click("cmdDelete");
  Window()->close();
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(Writing().isEmpty());
  EXPECT_EQ(Profiles(), "A");
}

// The row of the grid that holds another row's key.
class NCIPProfileFailureTest : public NCIPProfileStoreTest, public testing::WithParamInterface<int> {};

TEST_P(NCIPProfileFailureTest, ADuplicateMadeByUpdateRollsBackAndKeepsTheUsersList) {
  for (const char* code : {"A", "B", "C"}) AddProfile(code);
  OpenProfiles();
  SortBy(Grid1, 1);
  SelectRow(Grid1, GetParam());
  Fill(GetParam() == 1 ? "B" : "A", "twice");
  Click("cmdUpdate");
  Prompt().ExpectTitled(WriteFailed, 16, Caption);
  Click("cmdClose");
  EXPECT_TRUE(IsOpen());
  EXPECT_TRUE(gbSettingsChanged);
  EXPECT_EQ(Cell(Grid1, GetParam(), 2), "twice");
  EXPECT_EQ(Profiles(), "A B C");
  EXPECT_EQ(Count("ID_NCIP_PROFILE", "NCIP_PROFILE_DESC = 'twice'"), 0);
  const QString line = LogLines().last().mid(24);
  EXPECT_TRUE(
      line.startsWith("* frmNCIPProfile.cmdClose_Click - ***** SQL error on ID_NCIP_PROFILE (Update) ***** - "
                      "INSERT INTO ID_NCIP_PROFILE ("))
      << line.toStdString();
  EXPECT_TRUE(line.contains(" - -2147217873 - ")) << line.toStdString();
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  Type("txtProfileCode", "MENDED");
  Click("cmdUpdate");
  CloseAndStore();
  EXPECT_EQ(Count("ID_NCIP_PROFILE", "LIBRARY_ID = 101"), 3);
}

TEST_P(NCIPProfileFailureTest, ARowThatAnotherClientForbidsLeavesTheOldRows) {
  for (const char* code : {"A", "B", "C"}) AddProfile(code);
  Another("CREATE UNIQUE INDEX ID_TEST_ONE_DESC ON ID_NCIP_PROFILE (NCIP_PROFILE_DESC)");
  OpenProfiles();
  SortBy(Grid1, 1);
  SelectRow(Grid1, GetParam());
  Type("txtDescription", "S desc");
  Click("cmdUpdate");
  AddProfile("S", "'Y', 'Y', NULL, NULL", "'Y', 'Y', NULL, NULL", Server);
  Prompt().ExpectTitled(WriteFailed, 16, Caption);
  Statements();
  Click("cmdClose");
  EXPECT_EQ(Statements().size(), 1 + GetParam()) << "the delete and the rows up to the one that failed";
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Profiles(), "A B C");
}

INSTANTIATE_TEST_SUITE_P(FirstMiddleLast, NCIPProfileFailureTest, testing::Values(1, 2, 3));

TEST_F(NCIPProfileStoreTest, AFailedDeleteIsLoggedUnderTheOtherTablesName) {
  AddProfile("A");
  OpenProfiles();
  Click("cmdDelete");
  Another("ALTER TABLE ID_NCIP_PROFILE RENAME TO ID_NCIP_PROFILE_GONE");
  Prompt().Expect(WriteFailed, 16);
  Click("cmdClose");
  EXPECT_TRUE(
      LogLines().last().contains("* frmNCIPProfile.cmdClose_Click - ***** SQL error on ID_NCIP_STATUS "
                                 "(Delete) ***** - DELETE FROM ID_NCIP_PROFILE WHERE LIBRARY_ID = 101 - "));
  EXPECT_EQ(Count("ID_NCIP_PROFILE_GONE"), 1);
}

TEST_F(NCIPProfileStoreTest, ADroppedConnectionIsOpenedAgainForTheClose) {
  AddProfile("A");
  OpenProfiles();
  Click("cmdDelete");
  gclsOF->Connection().Close();
  CloseAndStore();
  EXPECT_EQ(Profiles(), "");
}

}  // namespace
