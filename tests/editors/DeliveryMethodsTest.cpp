// The three sub-tabs of methods: what they share, run on each of them.
#include "editors/DeliveryDesk.h"

namespace {

struct Twin {
  const char* name;
  int subTab;
  QString id;  // "5a" in the names of its controls
  QString table;
  QString column;   // of the code
  int limit;        // of the description
  QString flags;    // columns of an INSERT
  QString noFlags;  // their values when nothing is set but Active
  QString updated;  // the flags of Fax in an UPDATE
};

const Twin Twins[] = {
    {"Delivery", 0, "5a", "ID_DELIV_METHOD", "DELIV_METHOD", 20, "ACTIVE_FLAG, PRINT_FLAG, WEB_FLAG",
     "N'Y', NULL, NULL", "WEB_FLAG = N'N', ACTIVE_FLAG = N'Y', PRINT_FLAG = N'Y'"},
    {"Messaging", 1, "5b", "ID_MSG_METHOD", "MSG_METHOD", 20, "ACTIVE_FLAG, PRINT_FLAG, WEB_FLAG", "N'Y', NULL, NULL",
     "WEB_FLAG = NULL, ACTIVE_FLAG = 'Y', PRINT_FLAG = 'Y'"},
    {"Request", 2, "5c", "ID_REQ_METHOD", "REQ_METHOD", 50, "ACTIVE_FLAG", "N'Y'", "ACTIVE_FLAG = N'Y'"},
};

void PrintTo(const Twin& twin, std::ostream* out) {
  *out << twin.name;
}

class MethodsTest : public DeliveryDesk, public testing::WithParamInterface<Twin> {
 protected:
  void EnterTwin() { Enter(static_cast<SubTab>(Twin_().subTab)); }
  const Twin& Twin_() const { return GetParam(); }
  QString Code() const { return "txt" + Twin_().id + "Code"; }
  QString Description() const { return "txt" + Twin_().id + "Description"; }
  QString Grid_() const { return "grd" + Twin_().id + "Table"; }
  QString Active(int element) const { return QString("opt%1Active(%2)").arg(Twin_().id).arg(element); }
  void Fill(const QString& code, const QString& description) {
    Type(Code(), code);
    Type(Description(), description);
  }
  QString Stored(const QString& column, const QString& code) {
    return Ask("SELECT " + column + " FROM " + Twin_().table + " WHERE " + Twin_().column + " = '" + code + "'");
  }
};

INSTANTIATE_TEST_SUITE_P(, MethodsTest, testing::ValuesIn(Twins),
                         [](const auto& twin) { return std::string(twin.param.name); });

TEST_P(MethodsTest, EnteringLoadsTheTableOnceAndShowsTheFirstRow) {
  Start();
  SelectTab("sstabtables", frmTabulon::DeliveryTab);
  if (Twin_().subTab != 0) {
    Statements();
    Go(static_cast<SubTab>(Twin_().subTab));
    EXPECT_EQ(Statements(), QStringList{"SELECT   * FROM " + Twin_().table + " ORDER BY " + Twin_().column});
  }
  EXPECT_EQ(Rows(Grid_()), 4);
  EXPECT_EQ(Row(Grid_()), 1);
  EXPECT_EQ(Text(Code()), "A");
  EXPECT_EQ(Text(Description()), "Ariel");
  EXPECT_TRUE(IsChecked(Active(0)));
  EXPECT_EQ(Focus(), Code());
  EXPECT_FALSE(gbRecordModified);
  Picture("methods-" + QString(Twin_().name).toLower());
}

TEST_P(MethodsTest, AnEmptyTableShowsAnEmptyRecord) {
  Another("DELETE FROM " + Twin_().table);
  EnterTwin();
  EXPECT_EQ(Rows(Grid_()), 1);
  EXPECT_EQ(Text(Code()), "");
  EXPECT_FALSE(IsChecked(Active(0)));
  EXPECT_FALSE(IsChecked(Active(1)));
  EXPECT_EQ(Focus(), Code());
}

TEST_P(MethodsTest, AddAndUpdateAreOnAndDeleteIsOff) {
  EnterTwin();
  for (const char* name : {"cmdAdd", "cmdUpdate"}) {
    EXPECT_TRUE(IsShown(name)) << name;
    EXPECT_TRUE(IsEnabled(name)) << name;
  }
  for (const char* name : {"mnuOptionsAdd", "mnuOptionsUpdate"}) EXPECT_TRUE(IsEnabled(name)) << name;
  for (const char* name : {"cmdDelete", "mnuOptionsDelete"}) EXPECT_FALSE(IsEnabled(name)) << name;
  EXPECT_FALSE(IsShown("cmdDelete"));
}

TEST_P(MethodsTest, DeleteDoesNothingHere) {
  EnterTwin();
  Type(Description(), "Changed");
  Shell().cmdDelete_Click();
  EXPECT_EQ(Statements(), QStringList());
  EXPECT_EQ(Text(Description()), "Changed");
  EXPECT_TRUE(gbRecordModified);
}

TEST_P(MethodsTest, SelectionFillsBoxesAndOptions) {
  EnterTwin();
  SelectRow(Grid_(), 2);
  EXPECT_EQ(Text(Code()), "E");
  EXPECT_EQ(Text(Description()), "E-mail");
  EXPECT_TRUE(IsChecked(Active(1)));
  EXPECT_FALSE(gbRecordModified);
}

TEST_P(MethodsTest, AHeadingSortsTheGridAndKeepsTheRecord) {
  EnterTwin();
  SelectRow(Grid_(), 3);
  SortBy(Grid_(), 2);
  SortBy(Grid_(), 2);
  EXPECT_EQ(Cell(Grid_(), Row(Grid_()), 1), "F");
  EXPECT_EQ(Text(Code()), "F");
}

TEST_P(MethodsTest, BoxesTakeNoMoreThanTheScreensLimits) {
  EnterTwin();
  Fill("XY", QString(60, 'd'));
  EXPECT_EQ(Text(Code()), "X");
  EXPECT_EQ(Text(Description()).size(), Twin_().limit);
}

TEST_P(MethodsTest, TheTabKeyGoesFromTheBoxesOverTheOptionsToTheGrid) {
  EnterTwin();
  Press(Code(), Qt::Key_Tab);
  EXPECT_EQ(Focus(), Description());
  Press(Description(), Qt::Key_Tab);
  EXPECT_EQ(Focus(), Active(0));
  QStringList stops;
  while (Focus() != Grid_() && stops.size() < 5) {
    stops.append(Focus());
    Press(Focus(), Qt::Key_Tab);
  }
  EXPECT_EQ(stops.size(), Twin_().flags.count("FLAG"));
}

TEST_P(MethodsTest, AChangedTextIsAChangeUntilItIsPutBack) {
  EnterTwin();
  for (const QString& box : {Code(), Description()}) {
    const QString before = Text(box);
    Type(box, "Z");
    EXPECT_TRUE(gbRecordModified) << box.toStdString();
    Type(box, before);
    EXPECT_FALSE(gbRecordModified) << box.toStdString();
  }
}

TEST_P(MethodsTest, SwitchingAYesToNoDoesNotCountAsAChange) {
  EnterTwin();
  Click(Active(1));
  EXPECT_FALSE(gbRecordModified);
  Click(Active(0));
  EXPECT_FALSE(gbRecordModified);
}

TEST_P(MethodsTest, AnEmptyFlagLeftOnNoCountsAsAChange) {
  EnterTwin();
  SelectRow(Grid_(), 2);
  Click(Active(1));
  EXPECT_TRUE(gbRecordModified);
  Shell().LivePage()->CurrentRecord().Settled();
  Click(Active(0));
  EXPECT_TRUE(gbRecordModified);
}

// --- Add ---

TEST_P(MethodsTest, AddWritesEveryLanguageAndNoAddress) {
  EnterTwin();
  Click("cmdClear");
  Fill("x", " O'Neil ");
  Click(Active(0));
  EXPECT_TRUE(gbRecordModified);
  Statements();
  Prompt().ExpectTitled("Record Added", MessageStyle::Information, Shell().Caption());
  Click("cmdAdd");
  const QString column = Twin_().column, description = column + "_DESC", value = "N'O''Neil'";
  const QString insert = "INSERT INTO " + Twin_().table + " (" + column + ", " + description + ", " + description +
                         "_ENG, " + description + "_FRE, " + description + "_GER, " + column + "_ADDR, " +
                         Twin_().flags + ") VALUES (N'X', " + QStringList(4, value).join(", ") + ", Null, " +
                         Twin_().noFlags + ")";
  EXPECT_EQ(Statements(), QStringList({insert, "SELECT   * FROM " + Twin_().table + " ORDER BY " + column}));
  EXPECT_FALSE(gbRecordModified);
  EXPECT_EQ(Row(Grid_()), 4);
  EXPECT_EQ(Text(Code()), "X");
  EXPECT_EQ(Text(Description()), "O'Neil");
  EXPECT_EQ(Stored(description + "_GER", "X"), "O'Neil");
  EXPECT_TRUE(Stored(column + "_ADDR", "X").isNull());
}

TEST_P(MethodsTest, AddOnASiteOfOneLanguageNamesNoLanguageColumn) {
  Setting("System", "SingleLanguage", "Y");
  EnterTwin();
  Click("cmdClear");
  Fill("x", "Extra");
  Click(Active(0));
  Done("Record Added", "cmdAdd");
  const QString column = Twin_().column;
  EXPECT_EQ(Writing(),
            QStringList{"INSERT INTO " + Twin_().table + " (" + column + ", " + column + "_DESC, " + column +
                        "_ADDR, " + Twin_().flags + ") VALUES (N'X', N'Extra', Null, " + Twin_().noFlags + ")"});
}

TEST_P(MethodsTest, AddRunsWithoutATransaction) {
  EnterTwin();
  Fill("X", "Extra");
  bool inTransaction = false;
  gclsOF->Connection().AddObserver([&](const StatementRecord& record) {
    if (record.text.startsWith("INSERT")) inTransaction = gclsOF->Connection().InTransaction();
  });
  Done("Record Added", "cmdAdd");
  EXPECT_FALSE(inTransaction);
}

TEST_P(MethodsTest, AddRefusesEmptyTextsFirst) {
  EnterTwin();
  Fill(" ", " ");
  Refused("Please enter a Valid Code.", 48, "cmdAdd", Code());
  EXPECT_EQ(Text(Code()), "");
  EXPECT_EQ(Text(Description()), "");
  Fill("a", " ");
  Refused("Please enter a Valid Description.", 48, "cmdAdd", Description());
  EXPECT_EQ(Text(Code()), "A");
}

TEST_P(MethodsTest, AddRefusesWhatTheGridHoldsCodeBeforeDescription) {
  EnterTwin();
  Fill("e", "Fax");
  Refused("This record already exists", 48, "cmdAdd", Code());
  Fill("x", " Fax ");
  Refused("This record already exists", 48, "cmdAdd", Description());
  EXPECT_TRUE(gbRecordModified);
}

TEST_P(MethodsTest, ADescriptionInADifferentCaseIsNoDuplicate) {
  EnterTwin();
  Fill("x", "FAX");
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Stored(Twin_().column + "_DESC", "X"), "FAX");
}

TEST_P(MethodsTest, ARowThatAnotherClientAddedMeanwhileFailsAtTheInsert) {
  EnterTwin();
  Another("INSERT INTO " + Twin_().table + " (" + Twin_().column + ") VALUES('X')");
  Fill("x", "Extra");
  Fails(DatabaseError, "cmdAdd");
  EXPECT_TRUE(LogHolds("frmTabulon.Delivery_Add"));
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA." + Twin_().table + " (INSERT INTO) *****"));
  EXPECT_EQ(Text(Code()), "X");
  EXPECT_EQ(Text(Description()), "Extra");
  EXPECT_EQ(Rows(Grid_()), 4);
}

TEST_P(MethodsTest, ADroppedConnectionFailsOnceAndIsOpenedAgain) {
  EnterTwin();
  Fill("x", "Extra");
  if (!DropConnection()) GTEST_SKIP() << "This engine has no server to lose";
  Fails(DatabaseError, "cmdAdd");
  EXPECT_EQ(Text(Description()), "Extra");
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Count(Twin_().table, Twin_().column + " = 'X'"), 1);
  Type(Description(), "Changed");
  ASSERT_TRUE(DropConnection());
  Fails("***** SQL error on OSTANA." + Twin_().table + " (UPDATE) *****", "cmdUpdate");
  EXPECT_EQ(Text(Description()), "Changed");
  EXPECT_EQ(Cell(Grid_(), 4, 2), "Extra");
  Done("Record Updated", "cmdUpdate");
}

// --- Update ---

TEST_P(MethodsTest, UpdateWritesTheFlagsInTheWordsOfItsTable) {
  EnterTwin();
  SelectRow(Grid_(), 3);
  Type(Description(), " Fax'2 ");
  Done("Record Updated", "cmdUpdate");
  const QString column = Twin_().column;
  EXPECT_EQ(Writing(), QStringList{"UPDATE " + Twin_().table + " SET " + column + "_DESC = N'Fax''2', " +
                                   Twin_().updated + " WHERE " + column + " = N'F'"});
  EXPECT_EQ(Cell(Grid_(), 3, 2), "Fax'2");
  EXPECT_EQ(Cell(Grid_(), 3, 3), "Y");
  EXPECT_EQ(Stored(column + "_DESC", "F"), "Fax'2");
  EXPECT_EQ(Focus(), Code());
}

TEST_P(MethodsTest, UpdateRunsInATransactionAndLoadsNothing) {
  EnterTwin();
  Type(Description(), "Changed");
  bool inTransaction = false;
  gclsOF->Connection().AddObserver([&](const StatementRecord& record) {
    if (record.text.startsWith("UPDATE")) inTransaction = gclsOF->Connection().InTransaction();
  });
  Statements();
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_TRUE(inTransaction);
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_EQ(Statements().size(), 1);
}

TEST_P(MethodsTest, UpdateChangesTheLanguageNowChosenOnly) {
  EnterTwin();
  gclsOF->SetLanguageSuffix("_FRE");
  Type(Description(), "Autre");
  Done("Record Updated", "cmdUpdate");
  const QString column = Twin_().column + "_DESC";
  EXPECT_TRUE(Writing().value(0).startsWith("UPDATE " + Twin_().table + " SET " + column + "_FRE = N'Autre', "));
  EXPECT_EQ(Stored(column + "_FRE", "A"), "Autre");
  EXPECT_EQ(Stored(column, "A"), "Ariel");
}

TEST_P(MethodsTest, ADescriptionOfBlanksIsStoredAsNull) {
  EnterTwin();
  Type(Description(), "  ");
  Done("Record Updated", "cmdUpdate");
  EXPECT_TRUE(Writing().value(0).startsWith("UPDATE " + Twin_().table + " SET " + Twin_().column + "_DESC = NULL, "));
  EXPECT_TRUE(Stored(Twin_().column + "_DESC", "A").isNull());
  EXPECT_EQ(Cell(Grid_(), 1, 2), "");
}

TEST_P(MethodsTest, TrimmingDoesNotMakeAChangedRecordAnUnchangedOne) {
  Another("CREATE UNIQUE INDEX ID_TEST_UNIQUE ON " + Twin_().table + " (" + Twin_().column + "_DESC)");
  EnterTwin();
  Fill("a", "Fax");
  Fails(TryAgain, "cmdUpdate");
  EXPECT_EQ(Text(Code()), "A");
}

TEST_P(MethodsTest, UpdateWritesTheRowOfTheCodeNotTheCurrentRow) {
  EnterTwin();
  Fill("f", "Telefax");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Cell(Grid_(), 1, 2), "Ariel");
  EXPECT_EQ(Cell(Grid_(), 3, 2), "Telefax");
  EXPECT_EQ(Stored(Twin_().column + "_DESC", "F"), "Telefax");
  EXPECT_EQ(Text(Code()), "F");
}

TEST_P(MethodsTest, ACodeThatIsNotInTheGridIsRefusedEvenWhenTheTableHasIt) {
  EnterTwin();
  Another("INSERT INTO " + Twin_().table + " (" + Twin_().column + ") VALUES('X')");
  Fill("x", "Extra");
  Refused("This Code does not exist in the table.  Please select a Valid Code to Update.", 16, "cmdUpdate", Code());
  EXPECT_EQ(Text(Code()), "X");
  EXPECT_TRUE(gbRecordModified);
}

TEST_P(MethodsTest, AnUntouchedRecordIsWrittenAllTheSame) {
  EnterTwin();
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing().size(), 1);
}

TEST_P(MethodsTest, AnUpdateThatBreaksAConstraintAsksToTryAgain) {
  Another("CREATE UNIQUE INDEX ID_TEST_UNIQUE ON " + Twin_().table + " (" + Twin_().column + "_DESC)");
  EnterTwin();
  Type(Description(), "Fax");
  Fails(TryAgain, "cmdUpdate");
  EXPECT_TRUE(LogHolds("frmTabulon.Delivery_Update"));
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA." + Twin_().table + " (UPDATE) *****"));
  EXPECT_EQ(Stored(Twin_().column + "_DESC", "A"), "Ariel");
  EXPECT_EQ(Text(Description()), "Fax");
  EXPECT_EQ(Cell(Grid_(), 1, 2), "Ariel");
}

TEST_P(MethodsTest, AnyOtherFailureOfUpdateNamesTheStatement) {
  EnterTwin();
  Another("ALTER TABLE " + Twin_().table + " RENAME TO ID_ELSEWHERE");
  Type(Description(), "Changed");
  Fails("***** SQL error on OSTANA." + Twin_().table + " (UPDATE) *****", "cmdUpdate");
  EXPECT_EQ(Text(Description()), "Changed");
}

TEST_P(MethodsTest, ClearEmptiesTheRecordAndLeavesNoRow) {
  EnterTwin();
  Type(Description(), "Changed");
  Click("cmdClear");
  EXPECT_EQ(Text(Code()), "");
  EXPECT_EQ(Text(Description()), "");
  EXPECT_FALSE(IsChecked(Active(0)));
  EXPECT_FALSE(IsChecked(Active(1)));
  EXPECT_EQ(Row(Grid_()), 0);
  EXPECT_EQ(Rows(Grid_()), 4);
  EXPECT_EQ(Focus(), Code());
  EXPECT_FALSE(gbRecordModified);
}

}  // namespace
