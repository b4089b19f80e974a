// Choosing a rate table: inputs, captions, grids, lists, keys and ranges, the checks before Add and Update.
#include <QAction>
#include <QTest>
#include <QToolBar>

#include <QLabel>

#include "editors/InvoicingDesk.h"

namespace {

const QStringList CopyrightInputs = {"txt7Code", "txt7Description", "txt7Surcharge"};
const QStringList KeyInputs = {"cmb7aBillingRate", "cmb7aDeliveryMethod"};
const QStringList ExposureInputs = {"txt7aUnitSize", "txt7aFreeExposures", "txt7aPerExposure"};
const QStringList AliasInputs = {"cmb7RequestingLibrary", "cmb7Alias"};

class InvoicingTest : public InvoicingDesk {
 protected:
  void ExpectShown(const QStringList& inputs, bool shown) {
    for (const QString& input : inputs) EXPECT_EQ(IsShown(input), shown) << input.toStdString();
  }
  QStringList Headings() {
    QStringList headings;
    const auto* const grid = Find<Grid>("grd7Table");
    for (int col = 1; col < grid->Cols(); ++col) headings.append(grid->Text(0, col));
    return headings;
  }
  void AddLibrary(int id, const QString& symbol, const QString& type = "NULL") {
    Another(QString("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME, LIBRARY_TYPE) VALUES (%1, "
                    "'%2', 'Institution', %3)")
                .arg(id)
                .arg(symbol, type));
  }
};

TEST_F(InvoicingTest, EnteringTheTabOffersSevenTablesAndChoosesNone) {
  Enter();
  const auto* const tables = Find<CodeComboBox>("cmb7RateTable");
  QStringList entries;
  for (int index = 0; index < tables->Count(); ++index) entries.append(tables->TextAt(index));
  EXPECT_EQ(entries,
            QStringList({"(none)", "Copyright Comply", "Delivery Method Rates", "Document Supply Rates",
                         "Output Format Rates", "Reject Code Rates", "Service Level Rates", "Billing Rate Alias"}));
  EXPECT_EQ(Text("cmb7RateTable"), "(none)");
  EXPECT_EQ(Find<QTabWidget>("sstab7Invoicing")->currentIndex(), 0);
  EXPECT_EQ(gstrButtonMode, "F");
  ExpectShown(CopyrightInputs, true);
  ExpectShown(KeyInputs + ExposureInputs + AliasInputs + QStringList{"txt7aFlatFee"}, false);
  EXPECT_EQ(Text("txt7Surcharge"), "0.00");
  EXPECT_EQ(Rows("grd7Table"), 1);
  Picture("invoicing-none");
}

TEST_F(InvoicingTest, EnteringTheTabAgainForgetsWhatWasChosen) {
  Enter();
  Pick("Delivery Method Rates");
  SelectTab("sstabtables", frmTabulon::LoansTab);
  SelectTab("sstabtables", frmTabulon::InvoicingTab);
  EXPECT_EQ(Text("cmb7RateTable"), "(none)");
  ExpectShown(CopyrightInputs, true);
  EXPECT_FALSE(IsEnabled("cmdAdd"));
}

TEST_F(InvoicingTest, WithoutARateTableTheThreeButtonsAreDisabled) {
  Enter();
  for (const char* name : {"cmdAdd", "cmdUpdate", "cmdDelete", "mnuOptionsAdd", "mnuOptionsUpdate"}) {
    EXPECT_TRUE(IsShown(name)) << name;
    EXPECT_FALSE(IsEnabled(name)) << name;
  }
  EXPECT_TRUE(IsEnabled("cmdClear"));
  Pick("Service Level Rates");
  for (const char* name : {"cmdAdd", "cmdUpdate", "cmdDelete", "mnuOptionsDelete"})
    EXPECT_TRUE(IsEnabled(name)) << name;
  Pick("(none)");
  for (const char* name : {"cmdAdd", "cmdUpdate", "cmdDelete"}) EXPECT_FALSE(IsEnabled(name)) << name;
}

TEST_F(InvoicingTest, WithoutARateTableTheOperationsHaveNothingToDo) {
  Enter();
  Prompt().Expect("Nothing to Add", 64).Expect("Nothing to Update", 64).Expect("Nothing to Delete", 64);
  Shell().cmdAdd_Click();
  Shell().cmdUpdate_Click();
  Shell().cmdDelete_Click();
  EXPECT_TRUE(Statements().isEmpty());
}

struct Appearance {
  const char* rateTable;
  QStringList headings;
  QString keyCaption, feeCaption;
  bool exposures;
};

TEST_F(InvoicingTest, TheFiveRateTablesShowTheirCaptionsInputsAndColumns) {
  const std::vector<Appearance> tables = {
      {"Delivery Method Rates",
       {"Billing Rate", "Delivery Method", "Flat Fee", "Unit Size", "Free Exp.", "Per Exp."},
       "Delivery Method:",
       "Flat Fee:",
       true},
      {"Service Level Rates", {"Billing Rate", "Service Level", "Surcharge"}, "Service Level:", "Surcharge:", false},
      {"Document Supply Rates",
       {"Billing Rate", "Document Supply", "Flat Fee", "Unit Size", "Free Exp.", "Per Exp."},
       "Supply Code:",
       "Flat Fee:",
       true},
      {"Reject Code Rates", {"Billing Rate", "Reject Type", "Surcharge"}, "Reject Code:", "Surcharge:", false},
      {"Output Format Rates",
       {"Billing Rate", "Output Format", "Flat Fee", "Unit Size", "Free Exp.", "Per Exp."},
       "Output Format:",
       "Flat Fee:",
       true},
  };
  Enter();
  for (const Appearance& table : tables) {
    SCOPED_TRACE(table.rateTable);
    Pick(table.rateTable);
    ExpectShown(KeyInputs + QStringList{"txt7aFlatFee"}, true);
    ExpectShown(ExposureInputs, table.exposures);
    ExpectShown(CopyrightInputs + AliasInputs, false);
    EXPECT_EQ(Headings(), table.headings);
    EXPECT_EQ(Text("lbl7aBillingRate"), "Billing Rate:");
    EXPECT_EQ(Text("lbl7aDeliveryMethod"), table.keyCaption);
    EXPECT_EQ(Text("lbl7aFlatFee"), table.feeCaption);
    EXPECT_EQ(Find<TextBox>("txt7aFlatFee")->accessibleName(), table.feeCaption);
    EXPECT_EQ(Text("cmb7aBillingRate"), "(none)");
    EXPECT_EQ(Text("cmb7aDeliveryMethod"), "(none)");
    EXPECT_EQ(Focus(), "cmb7aBillingRate");
    Picture("invoicing-" + QString(table.rateTable).toLower().replace(' ', '-'));
  }
}

TEST_F(InvoicingTest, CopyrightAndAliasShowTheirOwnInputsAndColumns) {
  Enter();
  Pick("Billing Rate Alias");
  ExpectShown(KeyInputs + AliasInputs, true);
  ExpectShown(CopyrightInputs + ExposureInputs + QStringList{"txt7aFlatFee"}, false);
  EXPECT_EQ(Text("lbl7aBillingRate"), "Supplying Library:");
  EXPECT_EQ(Text("lbl7aDeliveryMethod"), "Supplying Unit:");
  EXPECT_EQ(Text("lbl7Alias"), "New Billing Rate:");
  EXPECT_EQ(Headings(),
            QStringList({"", "Supplying Library", "Supplying Unit", "Requesting Library", "New Billing Rate"}));
  EXPECT_TRUE(Find<Grid>("grd7Table")->ColHidden(1));
  EXPECT_EQ(Focus(), "cmb7aBillingRate");
  Picture("invoicing-alias");

  Pick("Copyright Comply");
  ExpectShown(CopyrightInputs, true);
  ExpectShown(KeyInputs + AliasInputs, false);
  EXPECT_EQ(Headings(), QStringList({"Code", "Surcharge", "Description"}));
  EXPECT_FALSE(Find<Grid>("grd7Table")->ColHidden(1));
  EXPECT_EQ(Focus(), "txt7Code");
  Picture("invoicing-copyright");
}

TEST_F(InvoicingTest, ChoosingATableSelectsItsFirstRow) {
  Another("INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES ('C', 'U', 7.5)");
  Enter();
  Pick("Service Level Rates");
  EXPECT_EQ(Row("grd7Table"), 1);
  EXPECT_EQ(Text("cmb7aBillingRate"), "Companies");
  EXPECT_EQ(Text("cmb7aDeliveryMethod"), "Urgent");
  EXPECT_EQ(Text("txt7aFlatFee"), "7.50");
  EXPECT_FALSE(gbRecordModified);
  Pick("(none)");
  EXPECT_EQ(Rows("grd7Table"), 1);
  EXPECT_EQ(Text("txt7aFlatFee"), "");
}

TEST_F(InvoicingTest, NullsAreEmptyCells) {
  Another("INSERT INTO ID_RATE_DELIVERY (BILLING_RATE, DELIV_METHOD) VALUES ('A', 'M')");
  Enter();
  Pick("Delivery Method Rates");
  for (int col = 3; col <= 6; ++col) EXPECT_EQ(Cell("grd7Table", 1, col), "") << col;
  EXPECT_EQ(Text("txt7aUnitSize"), "");
}

TEST_F(InvoicingTest, TheListsAreReadInTurnAndHoldTheCodesOfTheirKind) {
  Enter();
  Choose("cmb7RateTable", "Document Supply Rates");
  EXPECT_EQ(Statements(),
            QStringList({"SELECT   BILLING_RATE, BILLING_RATE_DESC FROM ID_BILLING_RATE ORDER BY BILLING_RATE_DESC",
                         "SELECT   EXCEPTION_CODE, EXCEPTION_CODE_DESC FROM ID_EXCEPTION_CODE WHERE    EXCEPTION_TYPE "
                         "IN ('C', 'M', 'S') ORDER BY EXCEPTION_CODE_DESC",
                         "SELECT   BILLING_RATE, EXCEPTION_CODE, UNIT_SIZE, FLAT_FEE_UNIT, FREE_EXPOSURE, "
                         "PER_EXPOSURE FROM ID_RATE_SUPPLY ORDER BY BILLING_RATE, EXCEPTION_CODE"}));
  EXPECT_GE(Find<CodeComboBox>("cmb7aDeliveryMethod")->IndexOfCode("MCR"), 1);
  EXPECT_EQ(Find<CodeComboBox>("cmb7aDeliveryMethod")->IndexOfCode("NOH"), -1);
  Choose("cmb7RateTable", "Reject Code Rates");
  EXPECT_TRUE(
      Statements().contains("SELECT   EXCEPTION_CODE, EXCEPTION_CODE_DESC FROM ID_EXCEPTION_CODE WHERE    "
                            "EXCEPTION_TYPE IN ('B', 'L', 'R') ORDER BY EXCEPTION_CODE_DESC"));
  EXPECT_EQ(Find<CodeComboBox>("cmb7aDeliveryMethod")->IndexOfCode("MCR"), -1);
  EXPECT_GE(Find<CodeComboBox>("cmb7aDeliveryMethod")->IndexOfCode("NOH"), 1);
}

TEST_F(InvoicingTest, ARateWhoseCodeChangedItsKindCanStillBeEdited) {
  Another("INSERT INTO ID_RATE_REJECT (BILLING_RATE, EXCEPTION_CODE, SURCHARGE) VALUES ('A', 'CPY', 1)");
  Enter();
  Pick("Reject Code Rates");
  EXPECT_EQ(Cell("grd7Table", 1, 2), "CPY");
  Type("txt7aFlatFee", "2");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{"UPDATE ID_RATE_REJECT SET SURCHARGE = 2.00 WHERE BILLING_RATE = N'A' AND "
                                   "EXCEPTION_CODE = N'CPY'"});
}

TEST_F(InvoicingTest, PatronsAndOtherRowsThatAreNoLibraryAreNotListed) {
  for (const char* type : {"P", "Z", "U"})
    if (Count("ID_LIBRARY_TYPE", QString("LIBRARY_TYPE = '%1'").arg(type)) == 0)
      Another(QString("INSERT INTO ID_LIBRARY_TYPE (LIBRARY_TYPE, LIBRARY_TYPE_DESC) VALUES ('%1', 'Type')").arg(type));
  AddLibrary(71, "AAA-NULL");
  AddLibrary(72, "AAA-PATRON", "'P'");
  AddLibrary(73, "AAA-OTHER", "'Z'");
  AddLibrary(74, "AAA-UNIVERSITY", "'U'");
  Enter();
  Choose("cmb7RateTable", "Billing Rate Alias");
  EXPECT_TRUE(
      Statements().contains("SELECT LIBRARY_SYMBOL,LIBRARY_ID FROM  ID_LIBRARY WHERE (LIBRARY_TYPE IS Null OR "
                            "(LIBRARY_TYPE <> N'P') AND (LIBRARY_TYPE <> N'Z')) ORDER BY LIBRARY_SYMBOL"));
  for (const char* list : {"cmb7aBillingRate", "cmb7RequestingLibrary"}) {
    EXPECT_GE(Find<CodeComboBox>(list)->IndexOfText("AAA-NULL"), 1) << list;
    EXPECT_GE(Find<CodeComboBox>(list)->IndexOfText("AAA-UNIVERSITY"), 1) << list;
    EXPECT_EQ(Find<CodeComboBox>(list)->IndexOfText("AAA-PATRON"), -1) << list;
    EXPECT_EQ(Find<CodeComboBox>(list)->IndexOfText("AAA-OTHER"), -1) << list;
  }
}

struct FailureLine {
  const char* rateTable;
  const char* missing;
  const char* inTheLine;
};

class InvoicingFailureTest : public InvoicingDesk, public testing::WithParamInterface<FailureLine> {};

TEST_P(InvoicingFailureTest, AMissingTableIsNamedAsItsLineNamesIt) {
  Enter();
  Another("ALTER TABLE " + QString(GetParam().missing) + " RENAME TO ID_ELSEWHERE");
  Prompt().Expect("***** SQL error on OSTANA." + QString(GetParam().inTheLine) + " (Select) *****", 16);
  Choose("cmb7RateTable", GetParam().rateTable);
  EXPECT_EQ(Rows("grd7Table"), 1);
}

INSTANTIATE_TEST_SUITE_P(Lines, InvoicingFailureTest,
                         testing::Values(FailureLine{"Copyright Comply", "ID_COPYRIGHT_CMP", "ID_COPYRIGHT_CMP"},
                                         FailureLine{"Delivery Method Rates", "ID_BILLING_RATE", "ID_BILLING_RATE"},
                                         FailureLine{"Delivery Method Rates", "ID_DELIV_METHOD", "ID_DELIVERY_METHOD"},
                                         FailureLine{"Delivery Method Rates", "ID_RATE_DELIVERY", "ID_RATE_DELIVERY"},
                                         FailureLine{"Document Supply Rates", "ID_EXCEPTION_CODE", "ID_EXCEPTION_CODE"},
                                         FailureLine{"Document Supply Rates", "ID_RATE_SUPPLY", "ID_RATE_SUPPLY"},
                                         FailureLine{"Output Format Rates", "ID_OUTPUT_FORMAT", "ID_OUTPUT_FORMAT"},
                                         FailureLine{"Output Format Rates", "ID_RATE_OUTPUT", "ID_RATE_OUTPUT"},
                                         FailureLine{"Reject Code Rates", "ID_BILLING_RATE", "ID_DBILLING_RATE"},
                                         FailureLine{"Reject Code Rates", "ID_RATE_REJECT", "ID_RATE_REJECT"},
                                         FailureLine{"Service Level Rates", "ID_SERVICE_LEVEL", "ID_SERVICE_LEVEL"},
                                         FailureLine{"Service Level Rates", "ID_RATE_SERVICE", "ID_RATE_SERVICE"},
                                         FailureLine{"Billing Rate Alias", "ID_BILLING_RATE", "ID_BILLING_RATE"},
                                         FailureLine{"Billing Rate Alias", "ID_LIBRARY", "ID_LIBRARY"},
                                         FailureLine{"Billing Rate Alias", "ID_RATE_ALIAS", "ID_RATE_ALIAS"}));

// --- Keys and ranges ---

TEST_F(InvoicingTest, NumericBoxesLetOnlyNumbersIn) {
  Enter();
  Pick("Delivery Method Rates");
  Type("txt7aFlatFee", "1a.5.x2");
  EXPECT_EQ(Text("txt7aFlatFee"), "1.52");
  EXPECT_EQ(Prompt().Beeps(), 3);
  Type("txt7aFlatFee", "1-");
  EXPECT_EQ(Text("txt7aFlatFee"), "1");
  EXPECT_EQ(Prompt().Beeps(), 4);
  Paste("txt7aPerExposure", "1,2 OR 1=1");
  EXPECT_EQ(Text("txt7aPerExposure"), "1211");
}

TEST_F(InvoicingTest, OnACommaMachineTheKeyForThePointBeeps) {
  EnterWithComma();
  Pick("Delivery Method Rates");
  Type("txt7aFlatFee", "1.,5");
  EXPECT_EQ(Text("txt7aFlatFee"), "1,5");
  EXPECT_EQ(Prompt().Beeps(), 1);
}

struct Range {
  const char* rateTable;
  const char* box;
  const char* typed;
  const char* message;  // empty: may stay
  const char* after;
};

class InvoicingRangeTest : public InvoicingDesk, public testing::WithParamInterface<Range> {};

TEST_P(InvoicingRangeTest, IsCheckedOnLeaving) {
  const Range& range = GetParam();
  Enter();
  Pick(range.rateTable);
  const QString other = QString(range.box) == "txt7Surcharge" ? "txt7Code" : "cmb7aBillingRate";
  Type(range.box, range.typed);
  const QString message = range.message;
  if (!message.isEmpty()) Prompt().Expect(message, 16);
  Find<QWidget>(other)->setFocus();
  EXPECT_EQ(Text(range.box), range.after);
  EXPECT_EQ(Focus(), message.isEmpty() ? other : QString(range.box));
  EXPECT_EQ(Find<TextBox>(range.box)->selectedText(), message.isEmpty() ? QString() : QString(range.after));
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, InvoicingRangeTest,
    testing::Values(
        Range{"Delivery Method Rates", "txt7aFlatFee", "99.99", "", "99.99"},
        Range{"Delivery Method Rates", "txt7aFlatFee", "100", "Flat Fee: may not be greater than 99.99", "100.00"},
        Range{"Delivery Method Rates", "txt7aFlatFee", "999999", "Flat Fee: may not be greater than 99.99", "999999"},
        Range{"Delivery Method Rates", "txt7aFlatFee", "-100", "Flat Fee: may not be less than -99.99", "-100.0"},
        Range{"Delivery Method Rates", "txt7aFlatFee", "0", "", "0.00"},
        Range{"Delivery Method Rates", "txt7aPerExposure", "100", "Per Exposure: may not be greater than 99.99",
              "100.00"},
        Range{"Reject Code Rates", "txt7aFlatFee", "100", "Surcharge: may not be greater than 99.99", "100.00"},
        Range{"Copyright Comply", "txt7Surcharge", "99.999", "Surcharge: may not be greater than 99.99", "100.00"},
        Range{"Delivery Method Rates", "txt7aUnitSize", "007", "", "7"},
        Range{"Delivery Method Rates", "txt7aUnitSize", "999", "", "999"},
        Range{"Delivery Method Rates", "txt7aFreeExposures", "", "", ""}));

// --- The checks before Add and Update ---

TEST_F(InvoicingTest, AFractionClearsTheFreeExposuresEvenWhereNoneAreUsed) {
  Enter();
  for (const char* rateTable : {"Copyright Comply", "Service Level Rates", "Billing Rate Alias"}) {
    Pick(rateTable);
    for (const char* entry : {"mnuOptionsAdd", "mnuOptionsUpdate"}) {
      Put("txt7aFreeExposures", "1.5");
      Prompt().Expect("Please enter a numeric value with no decimals for Free Exposure field.", 48);
      Trigger(entry);
      EXPECT_EQ(Text("txt7aFreeExposures"), "");
    }
  }
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(InvoicingTest, TheExposureChecksComeInTheirOrder) {
  Enter();
  Pick("Delivery Method Rates");
  Paste("txt7aUnitSize", "abc");
  Paste("txt7aFreeExposures", "x");
  Prompt().Expect("Please enter a numeric Free Exposure value.", 48);
  Trigger("mnuOptionsAdd");
  EXPECT_EQ(Focus(), "txt7aFreeExposures");
  EXPECT_EQ(Text("txt7aFreeExposures"), "x");
  // Leaving the box writes its number in full: a fraction gets here by code only.
  Find<QWidget>("cmb7aBillingRate")->setFocus();
  Put("txt7aFreeExposures", "2.");
  Prompt().Expect("Please enter a numeric value with no decimals for Free Exposure field.", 48);
  Trigger("mnuOptionsAdd");
  EXPECT_EQ(Text("txt7aFreeExposures"), "");
  EXPECT_EQ(Focus(), "txt7aFreeExposures");
  Prompt().Expect("Please enter a numeric Unit Size value.", 48);
  Trigger("mnuOptionsUpdate");
  EXPECT_EQ(Focus(), "txt7aUnitSize");
  EXPECT_EQ(Text("txt7aUnitSize"), "abc");
  Find<QWidget>("cmb7aBillingRate")->setFocus();
  Put("txt7aUnitSize", ".5");
  Prompt().Expect("Please enter a numeric value with no decimals for Unit Size field.", 48);
  Trigger("mnuOptionsUpdate");
  EXPECT_EQ(Focus(), "txt7aUnitSize");
  EXPECT_EQ(Text("txt7aUnitSize"), "");
}

TEST_F(InvoicingTest, OnACommaMachineACommaIsAFractionToo) {
  EnterWithComma();
  Pick("Delivery Method Rates");
  Put("txt7aUnitSize", "1,5");
  Prompt().Expect("Please enter a numeric value with no decimals for Unit Size field.", 48);
  Trigger("mnuOptionsAdd");
  EXPECT_EQ(Text("txt7aUnitSize"), "");
}

TEST_F(InvoicingTest, AnyChangeMarksTheRecordAndAFilledRowDoesNot) {
  Another("INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES ('C', 'U', 7.5)");
  Enter();
  Pick("Service Level Rates");
  EXPECT_FALSE(gbRecordModified);
  Append("txt7aFlatFee", "1");
  EXPECT_TRUE(gbRecordModified);
  SelectRow("grd7Table", 1);
  Press("grd7Table", Qt::Key_Home);
  Pick("Service Level Rates");
  EXPECT_FALSE(gbRecordModified);
  Choose("cmb7aBillingRate", "Companies");
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(InvoicingTest, ClearEmptiesTheInputsAndLeavesNoRow) {
  Another(
      "INSERT INTO ID_RATE_DELIVERY (BILLING_RATE, DELIV_METHOD, UNIT_SIZE, FLAT_FEE_UNIT, FREE_EXPOSURE, "
      "PER_EXPOSURE) VALUES ('A', 'M', 10, 5, 3, 0.25)");
  Enter();
  Pick("Delivery Method Rates");
  EXPECT_EQ(Text("txt7aPerExposure"), "0.25");
  Click("cmdClear");
  for (const char* box : {"txt7aFlatFee", "txt7aUnitSize", "txt7aFreeExposures", "txt7aPerExposure"})
    EXPECT_EQ(Text(box), "") << box;
  for (const char* list : {"cmb7aBillingRate", "cmb7aDeliveryMethod"}) EXPECT_EQ(Text(list), "(none)") << list;
  EXPECT_EQ(Row("grd7Table"), 0);
  EXPECT_EQ(Rows("grd7Table"), 2);
  EXPECT_FALSE(gbRecordModified);
}

// --- Entries and tool buttons ---

TEST_F(InvoicingTest, AnEntryAndAToolButtonLeaveTheBoxFirst) {
  Another("INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES ('A', 'U', 9)");
  Enter();
  Pick("Service Level Rates");
  Type("txt7aFlatFee", "500");
  for (const char* entry : {"mnuOptionsUpdate", "mnuOptionsAdd", "mnuOptionsDelete", "mnuFileExit"}) {
    Prompt().Expect("Surcharge: may not be greater than 99.99", 16);
    Trigger(entry);
    EXPECT_EQ(Focus(), "txt7aFlatFee") << entry;
  }
  auto* const bar = Find<QToolBar>("tlbButtons");
  QWidget* update = nullptr;
  for (QAction* tool : bar->actions())
    if (tool->text() == Find<QAction>("mnuOptionsUpdate")->text()) update = bar->widgetForAction(tool);
  ASSERT_NE(update, nullptr);
  Prompt().Expect("Surcharge: may not be greater than 99.99", 16);
  QTest::mouseClick(update, Qt::LeftButton);
  EXPECT_TRUE(Writing().isEmpty());
  Type("txt7aFlatFee", "5");
  Prompt().Expect("Record Updated", 64);
  QTest::mouseClick(update, Qt::LeftButton);
  EXPECT_EQ(Ask("SELECT SURCHARGE FROM ID_RATE_SERVICE WHERE BILLING_RATE = 'A'"), "5.00");
}

}  // namespace
