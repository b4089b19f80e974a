// frmLoans: loan policies with the renewal setting, loan statuses.
#include <QFile>
#include <QLocale>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/NumericFields.h"
#include "shell/Screen.h"
#include "shell/Screens.h"
#include "support/Desk.h"

namespace {

const QString DatabaseError =
    "A database error has occurred.  Please verify your data entry\nand your Database structure.";
const QString LeaveQuestion = "A record has been modified.\nDo you wish to apply the updates before continuing?";

class LoansTest : public Desk {
 protected:
  void TearDown() override {
    Desk::TearDown();
    QLocale::setDefault(QLocale::c());
  }
  void Enter() {
    Logon();
    loans_ = &Open("frmLoans");
    Statements();
  }
  void EnterStatuses(bool withCharge = true) {
    if (withCharge) UseWebServices();
    Enter();
    SelectTab("sstab6Loans", 1);
    Statements();
  }
  void UseWebServices() {
    for (const char* key :
         {"ServerAddress", "AssignCopyrightService", "FindSerialMethod_SoapAction", "FindSerialMethod_BarcodeParameter",
          "FindSerialMethod_ShelfmarkParameter", "RegisterMethod_SoapAction", "RegisterMethod_BarcodeParameter",
          "RegisterMethod_DetailParameter", "RegisterMethod_ItemParameter", "ConfirmMethod_SoapAction", "DebitService",
          "DebitAccountMethod_SoapAction", "RepliesService", "AddReplyMethod_SoapAction"})
      Setting("BL Web Services", key, "x");
    Setting("BL Web Services", "Use", "Y");
  }
  void Refused(const QString& text, int style, const QString& button, const QString& focus) {
    Prompt().ExpectTitled(text, style, "Ostana - Configure Loans");
    Click(button);
    EXPECT_EQ(Focus(), focus) << text.toStdString();
    EXPECT_TRUE(Writing().isEmpty());
  }
  void Done(const QString& text, const QString& button) {
    Prompt().ExpectTitled(text, 64, "Ostana - Configure Loans");
    Click(button);
  }
  void AnswerDelete(int answer) { Prompt().Expect("Are you sure you wish to Delete this record?", 36, answer); }
  QString Stored(const QString& column, const QString& code) {
    return Ask("SELECT " + column + " FROM ID_LOAN_CODE WHERE LOAN_CODE = '" + code + "'");
  }
  QString Setting() { return gclsOF->ReadProfileString("Loan Policy", "Renewal Date", SettingsFile()); }
  using Desk::Setting;
  QByteArray SettingsBytes() {
    QFile file(SettingsFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  Screen* loans_ = nullptr;
};

// --- Loan policies ---

TEST_F(LoansTest, TheFirstPolicyIsShownOnEntry) {
  Logon();
  Statements();
  Open("frmLoans");
  EXPECT_EQ(Statements(), QStringList({"SELECT   * FROM ID_LOAN_CODE ORDER BY LOAN_CODE_DESC",
                                       "SELECT   * FROM ID_LOAN_STATUS ORDER BY LOAN_STATUS"}));
  EXPECT_EQ(Window()->windowTitle(), "Ostana - Configure Loans");
  const auto* const grid = Find<Grid>("grd6aTable");
  const QStringList headings = {"Loan Code", "Loan Period", "Renewal",      "Overdue 1",
                                "Overdue 2", "Overdue 3",   "Final Overdue"};
  for (int col = 1; col < grid->Cols(); ++col) EXPECT_EQ(grid->Text(0, col), headings.value(col - 1));
  EXPECT_EQ(Row("grd6aTable"), 1);
  EXPECT_EQ(Text("txt6LoanCode"), "N");
  EXPECT_EQ(Text("txt6aDescription"), "NORMAL LOAN");
  EXPECT_EQ(Text("txt6LoanPeriod"), "28");
  EXPECT_EQ(Text("txt6FinalOverdue"), "28");
  EXPECT_EQ(Text("txt6MessageRenewal"), Stored("REN_MSG", "N"));
  EXPECT_EQ(Text("txt6MessageFinal"), Stored("FIN_MSG", "N"));
  EXPECT_TRUE(IsChecked("opt6RenewalFromCurrentDate"));
  EXPECT_EQ(Focus(), "txt6LoanCode");
  Picture("frmLoans-policy");
}

TEST_F(LoansTest, TheButtonOfTheLoansTabOpensTheDialog) {
  Start();
  SelectTab("sstabtables", frmTabulon::LoansTab);
  WhenShown("frmLoans", [this](Screen&) { EXPECT_EQ(Text("txt6LoanCode"), "N"); });
  Click("cmdLoans");
}

TEST_F(LoansTest, AddingAPolicyWritesFifteenColumnsAndTheLanguages) {
  Enter();
  Click("cmdClear");
  Type("txt6LoanCode", "x");
  Type("txt6aDescription", " extra o'long ");
  Type("txt6LoanPeriod", " 9");
  Type("txt6Overdue2", "14");
  Type("txt6MessageRecall", " Bring it back ");
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Writing(),
            QStringList{"INSERT INTO ID_LOAN_CODE (LOAN_CODE, LOAN_CODE_DESC, LON_PERIOD, REN_PERIOD, REN_MSG, RR_MSG, "
                        "REC_MSG, OV1_PERIOD, OV1_MSG, OV2_PERIOD, OV2_MSG, OV3_PERIOD, OV3_MSG, FIN_PERIOD, FIN_MSG, "
                        "LOAN_CODE_DESC_ENG, LOAN_CODE_DESC_FRE, LOAN_CODE_DESC_GER) VALUES (N'x', N'EXTRA O''LONG', "
                        "9, NULL, NULL, NULL, N'Bring it back', NULL, NULL, 14, NULL, NULL, NULL, NULL, NULL, N'EXTRA "
                        "O''LONG', N'EXTRA O''LONG', N'EXTRA O''LONG')"});
  EXPECT_EQ(Cell("grd6aTable", Row("grd6aTable"), 1), "EXTRA O'LONG");
  EXPECT_EQ(Text("txt6aDescription"), "EXTRA O'LONG");
  EXPECT_EQ(Stored("LOAN_CODE_DESC_FRE", "x"), "EXTRA O'LONG");
}

TEST_F(LoansTest, OnASiteOfOneLanguageAPolicyHasNoLanguageColumns) {
  Setting("System", "SingleLanguage", "Y");
  Enter();
  Click("cmdClear");
  Type("txt6LoanCode", "X");
  Type("txt6LoanPeriod", "9");
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Writing(),
            QStringList{"INSERT INTO ID_LOAN_CODE (LOAN_CODE, LOAN_CODE_DESC, LON_PERIOD, REN_PERIOD, REN_MSG, RR_MSG, "
                        "REC_MSG, OV1_PERIOD, OV1_MSG, OV2_PERIOD, OV2_MSG, OV3_PERIOD, OV3_MSG, FIN_PERIOD, FIN_MSG) "
                        "VALUES (N'X', NULL, 9, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, "
                        "NULL)"});
}

TEST_F(LoansTest, AddTestsTheCodeThenThePeriodsInOrder) {
  Enter();
  Click("cmdClear");
  Refused("Please enter a Valid  code.", 48, "cmdAdd", "txt6LoanCode");
  Type("txt6LoanCode", "X");
  const std::vector<std::pair<const char*, const char*>> periods = {
      {"txt6LoanPeriod", "Please enter digits for Loan Period."},
      {"txt6Renewal", "Please enter digits for Renewal."},
      {"txt6Overdue1", "Please enter digits for Overdue1."},
      {"txt6Overdue2", "Please enter digits for Overdue2."},
      {"txt6Overdue3", "Please enter digits for Overdue3."},
      {"txt6FinalOverdue", "Please enter digits for Final Overdue."}};
  for (const auto& period : periods) Type(period.first, "abc");
  for (const auto& period : periods) {
    Refused(period.second, 48, "cmdAdd", "txt6LoanCode");
    if (QString(period.first) == "txt6LoanPeriod") {
      Type(period.first, "");
      Refused(period.second, 48, "cmdAdd", "txt6LoanCode");
    }
    Type(period.first, "7");
  }
  Done("Record Added", "cmdAdd");
}

TEST_F(LoansTest, APolicyThatExistsEmptiesEveryInput) {
  Enter();
  Prompt().Expect("This record already exists", 48);
  Click("cmdAdd");
  for (const char* box : {"txt6LoanCode", "txt6aDescription", "txt6LoanPeriod", "txt6Overdue3", "txt6MessageFinal"})
    EXPECT_EQ(Text(box), "") << box;
  EXPECT_EQ(Row("grd6aTable"), 0);
  EXPECT_EQ(Focus(), "txt6LoanCode");
}

TEST_F(LoansTest, APolicyOfAnotherClientIsRefusedByTheDatabase) {
  Enter();
  Another("INSERT INTO ID_LOAN_CODE (LOAN_CODE, LON_PERIOD) VALUES ('X', 1)");
  Click("cmdClear");
  Type("txt6LoanCode", "X");
  Type("txt6LoanPeriod", "9");
  Prompt().ExpectTitled(DatabaseError, 16, "Ostana - Configure Loans");
  Click("cmdAdd");
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(LogLines().join('\n').contains("***** SQL error on OSTANA.ID_LOAN_CODE (INSERT INTO) *****"));
}

TEST_F(LoansTest, UpdatingAPolicyNamesTheColumnsOfTheLoadAndWritesTheRow) {
  Logon();
  gclsOF->SetLanguageSuffix("_GER");
  Open("frmLoans");
  gclsOF->SetLanguageSuffix("");
  SelectRowOf("grd6aTable", "SHORT LOAN");
  for (const char* box : {"txt6MessageRenewalRefused", "txt6MessageRecall", "txt6MessageOverdue1",
                          "txt6MessageOverdue2", "txt6MessageOverdue3", "txt6MessageFinal"})
    Type(box, "");
  Type("txt6MessageRenewal", "verl'ngert");
  Type("txt6aDescription", "kurz");
  Type("txt6Renewal", "");
  Statements();
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Statements(),
            QStringList{"UPDATE ID_LOAN_CODE SET LOAN_CODE_DESC_GER = N'KURZ', LON_PERIOD = 7, REN_PERIOD = NULL, "
                        "REN_MSG = N'verl''ngert', RR_MSG = NULL, REC_MSG = NULL, OV1_PERIOD = 2, OV1_MSG = NULL, "
                        "OV2_PERIOD = 5, OV2_MSG = NULL, OV3_PERIOD = 9, OV3_MSG = NULL, FIN_PERIOD = 14, FIN_MSG = "
                        "NULL WHERE LOAN_CODE = N'S'"});
  EXPECT_EQ(Cell("grd6aTable", Row("grd6aTable"), 1), "KURZ");
  EXPECT_EQ(Cell("grd6aTable", Row("grd6aTable"), 3), "");
  EXPECT_EQ(Text("txt6aDescription"), "KURZ");
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
}

TEST_F(LoansTest, AnEmptiedPolicyDescriptionIsAnEmptyTextAndNotNull) {
  Enter();
  Type("txt6aDescription", " ");
  Done("Record Updated", "cmdUpdate");
  EXPECT_TRUE(Writing().value(0).startsWith("UPDATE ID_LOAN_CODE SET LOAN_CODE_DESC = '', LON_PERIOD = 28, "));
}

TEST_F(LoansTest, ADescriptionInSmallLettersIsShownAndStoredInCapitals) {
  Enter();
  Type("txt6aDescription", "usual loan");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Stored("LOAN_CODE_DESC", "N"), "USUAL LOAN");
  EXPECT_EQ(Text("txt6aDescription"), "USUAL LOAN");
  EXPECT_EQ(Cell("grd6aTable", Row("grd6aTable"), 1), "USUAL LOAN");
}

TEST_F(LoansTest, UpdateRefusesAnUnknownPolicyAndALostSelection) {
  Enter();
  Type("txt6LoanCode", "q");
  Refused("Please select a valid record from the table.", 16, "cmdUpdate", "txt6LoanCode");
  Click("cmdClear");
  Type("txt6LoanCode", "S");
  Refused("Please select a record to Update.", 16, "cmdUpdate", "txt6LoanCode");
}

TEST_F(LoansTest, AnUpdatedPeriodMustBeANumberToo) {
  Enter();
  Type("txt6Overdue1", "1+1");
  Refused("Please enter digits for Overdue1.", 48, "cmdUpdate", "txt6LoanCode");
}

TEST_F(LoansTest, CodesAndMessagesFollowTheirRowsThroughASort) {
  Enter();
  SortBy("grd6aTable", 2);
  EXPECT_EQ(Cell("grd6aTable", 1, 1), "SHORT LOAN");
  EXPECT_EQ(Text("txt6LoanCode"), "N");
  SelectRow("grd6aTable", 1);
  EXPECT_EQ(Text("txt6LoanCode"), "S");
  EXPECT_EQ(Text("txt6MessageRenewal"), Stored("REN_MSG", "S"));
  Type("txt6MessageRenewal", "Changed");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Stored("REN_MSG", "S"), "Changed");
  EXPECT_NE(Stored("REN_MSG", "N"), "Changed");
}

TEST_F(LoansTest, DeletingAPolicyAsksFirst) {
  Another("INSERT INTO ID_LOAN_CODE (LOAN_CODE, LOAN_CODE_DESC, LON_PERIOD) VALUES ('X', 'EXTRA', 1)");
  Enter();
  Click("cmdClear");
  Refused("Please choose a record to be Deleted", 48, "cmdDelete", "txt6LoanCode");
  Type("txt6LoanCode", "q");
  Refused("Please select a valid record from the table.", 16, "cmdDelete", "txt6LoanCode");
  Type("txt6LoanCode", "X");
  AnswerDelete(MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_TRUE(Writing().isEmpty());
  AnswerDelete(MessageAnswer::Yes);
  Done("Record Deleted", "cmdDelete");
  EXPECT_EQ(Writing(), QStringList{"DELETE FROM ID_LOAN_CODE WHERE LOAN_CODE = N'X'"});
  EXPECT_EQ(Find<Grid>("grd6aTable")->FindRow("EXTRA", 1), 0);
}

TEST_F(LoansTest, APolicyInUseIsKeptByTheDatabase) {
  Another(
      "INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME, LOAN_CODE) VALUES (71, 'USES', "
      "'Institution', 'N')");
  Enter();
  AnswerDelete(MessageAnswer::Yes);
  Prompt().Expect(
      "An error has occurred while attempting to delete the record.\n\nThe Code is referenced by another table in the "
      "database.",
      16);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_LOAN_CODE", "LOAN_CODE = 'N'"), 1);
  EXPECT_TRUE(LogLines().join('\n').contains("***** SQL error on OSTANA.ID_LOAN_CODE (DELETE) *****"));
}

TEST_F(LoansTest, AMissingTableIsNamedAndTheDialogStays) {
  Logon();
  Another("ALTER TABLE ID_LOAN_STATUS RENAME TO ID_ELSEWHERE");
  Prompt().Expect("***** SQL error on OSTANA.ID_LOAN_STATUS (Select) *****", 16);
  Open("frmLoans");
  EXPECT_GT(Rows("grd6aTable"), 1);
  EXPECT_EQ(Rows("grd6bTable"), 1);
}

// --- The renewal setting ---

TEST_F(LoansTest, ChangingOnlyRenewalFromReportsNothingAndIsSaved) {
  Enter();
  Click("opt6RenewalFromDueDate");
  Refused("Nothing has been changed", 48, "cmdUpdate", "txt6LoanCode");
  EXPECT_EQ(Setting(), "Due Date");
  EXPECT_TRUE(loans_->Unload());
  Open("frmLoans");
  EXPECT_TRUE(IsChecked("opt6RenewalFromDueDate"));
}

TEST_F(LoansTest, AMissingRenewalKeyMeansTheCurrentDate) {
  QByteArray settings = SettingsBytes();
  QFile file(SettingsFile());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(settings.replace("[Loan Policy]\nRenewal Date=Current Date\n", ""));
  file.close();
  Enter();
  EXPECT_TRUE(IsChecked("opt6RenewalFromCurrentDate"));
  EXPECT_FALSE(IsChecked("opt6RenewalFromDueDate"));
}

TEST_F(LoansTest, TheRestOfTheSettingsFileStaysLetterForLetter) {
  QByteArray settings = SettingsBytes();
  QFile file(SettingsFile());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  settings.replace("[Loan Policy]", "; a comment\r\n# another\r\n  [loan policy]  ");
  settings.replace("Renewal Date=Current Date\n", "renewal date = Current Date\r\nOther=  x  \r\n\r\n[Empty]\r\n");
  file.write(settings);
  file.close();
  Enter();
  Click("opt6RenewalFromDueDate");
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
  const QByteArray after = SettingsBytes();
  EXPECT_EQ(Setting(), "Due Date");
  EXPECT_EQ(QByteArray(after).replace("Due Date", ""), QByteArray(settings).replace("Current Date", ""));
}

TEST_F(LoansTest, ARefusedUpdateHasWrittenTheSettingButAnUnknownCodeHasNot) {
  Enter();
  Click("opt6RenewalFromDueDate");
  Type("txt6LoanCode", "q");
  Refused("Please select a valid record from the table.", 16, "cmdUpdate", "txt6LoanCode");
  EXPECT_EQ(Setting(), "Current Date");
  Type("txt6LoanCode", "N");
  Type("txt6Overdue1", "x");
  Refused("Please enter digits for Overdue1.", 48, "cmdUpdate", "txt6LoanCode");
  EXPECT_EQ(Setting(), "Due Date");
}

TEST_F(LoansTest, ASettingsFileThatIsGoneUnreadableIsToldAndTheRecordIsStillUpdated) {
  Enter();
  Click("opt6RenewalFromDueDate");
  Type("txt6LoanPeriod", "30");
  QFile file(SettingsFile());
  ASSERT_TRUE(file.remove());
  ASSERT_TRUE(QDir().mkdir(SettingsFile()));
  Prompt().ExpectStart("", 16).Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_FALSE(Prompt().Shown().front().isEmpty());
  EXPECT_EQ(Stored("LON_PERIOD", "N"), "30");
}

// --- Loan statuses ---

TEST_F(LoansTest, StatusesShowTheirLettersAndAnUnsetPairForNull) {
  Another("UPDATE ID_LOAN_STATUS SET LOAN_STATUS_DISP = NULL WHERE LOAN_STATUS = 'REC'");
  EnterStatuses();
  const auto* const grid = Find<Grid>("grd6bTable");
  EXPECT_EQ(grid->Text(0, 3), "Loan Charge");
  EXPECT_EQ(grid->Text(0, 4), "Fixed");
  EXPECT_EQ(Row("grd6bTable"), 0);
  EXPECT_EQ(Focus(), "txt6bCode");
  SelectRowOf("grd6bTable", "LOS");
  EXPECT_EQ(Text("txt6bDescription"), "Lost");
  EXPECT_EQ(Text("txt6bLoanCharge"), "60.00");
  EXPECT_TRUE(IsChecked("opt6bFixedCharge(0)"));
  EXPECT_TRUE(IsChecked("opt6LoanComplete(0)"));
  Picture("frmLoans-status");
  SelectRowOf("grd6bTable", "REC");
  EXPECT_TRUE(IsChecked("opt6LoanComplete(1)"));
  for (const char* option : {"opt6UserDisplay(0)", "opt6UserDisplay(1)", "opt6bFixedCharge(0)", "opt6bFixedCharge(1)"})
    EXPECT_FALSE(IsChecked(option)) << option;
}

TEST_F(LoansTest, WithoutWebServicesTheChargeIsHiddenAndKept) {
  EnterStatuses(false);
  for (const char* control : {"lbl6bLoanCharge", "txt6bLoanCharge", "frm6bFixedCharge"})
    EXPECT_FALSE(IsShown(control)) << control;
  EXPECT_TRUE(Find<Grid>("grd6bTable")->ColHidden(3));
  EXPECT_TRUE(Find<Grid>("grd6bTable")->ColHidden(4));
  SelectRowOf("grd6bTable", "LOS");
  Type("txt6bDescription", "Gone");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{"UPDATE ID_LOAN_STATUS SET LOAN_STATUS_DESC = N'Gone', LOAN_STATUS_COMP = N'Y', "
                                   "LOAN_STATUS_DISP = N'Y', LOAN_CHARGE = 60, LOAN_CHARGE_FIXED = N'Y' WHERE "
                                   "LOAN_STATUS = N'LOS'"});
  Picture("frmLoans-status-without-charge");
}

TEST_F(LoansTest, AddingAStatusWritesFlagsAndCharge) {
  EnterStatuses();
  Type("txt6bCode", " x1");
  Type("txt6bDescription", " Special's ");
  Click("opt6LoanComplete(1)");
  Type("txt6bLoanCharge", "12.5");
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_LOAN_STATUS (LOAN_STATUS, LOAN_STATUS_DESC, LOAN_STATUS_COMP, "
                                   "LOAN_STATUS_DISP, LOAN_CHARGE, LOAN_CHARGE_FIXED, LOAN_STATUS_DESC_ENG, "
                                   "LOAN_STATUS_DESC_FRE, LOAN_STATUS_DESC_GER) VALUES (N'X1', N'Special''s', N'N', "
                                   "NULL, 12.5, N'N', N'Special''s', N'Special''s', N'Special''s')"});
  EXPECT_EQ(Cell("grd6bTable", Row("grd6bTable"), 1), "X1");
  EXPECT_EQ(Cell("grd6bTable", Row("grd6bTable"), 3), "12.50");
  EXPECT_EQ(Cell("grd6bTable", Row("grd6bTable"), 4), "N");
  EXPECT_TRUE(IsChecked("opt6bFixedCharge(1)"));
}

TEST_F(LoansTest, ABlankChargeStoresNullInBothColumnsWhateverTheFixedOptionSays) {
  EnterStatuses();
  Type("txt6bCode", "X1");
  Click("opt6bFixedCharge(0)");
  Done("Record Added", "cmdAdd");
  EXPECT_TRUE(Writing().value(0).endsWith("VALUES (N'X1', NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL)"));
  SelectRowOf("grd6bTable", "LOS");
  Type("txt6bLoanCharge", "");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{"UPDATE ID_LOAN_STATUS SET LOAN_STATUS_DESC = N'Lost', LOAN_STATUS_COMP = N'Y', "
                                   "LOAN_STATUS_DISP = N'Y', LOAN_CHARGE = NULL, LOAN_CHARGE_FIXED = NULL WHERE "
                                   "LOAN_STATUS = N'LOS'"});
  EXPECT_EQ(Cell("grd6bTable", Row("grd6bTable"), 3), "");
  EXPECT_EQ(Cell("grd6bTable", Row("grd6bTable"), 4), "");
  EXPECT_FALSE(IsChecked("opt6bFixedCharge(0)"));
}

TEST_F(LoansTest, AChargeOfAThousandIsRefusedAndOneBelowIsNot) {
  EnterStatuses();
  Type("txt6bCode", "X1");
  Type("txt6bLoanCharge", "1000");
  Refused("Maximum Loan Charge of 999.99 has been exceeded.", 16, "cmdAdd", "txt6bLoanCharge");
  Type("txt6bLoanCharge", "999.99");
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Ask("SELECT LOAN_CHARGE FROM ID_LOAN_STATUS WHERE LOAN_STATUS = 'X1'"), "999.99");
}

TEST_F(LoansTest, OnACommaMachineTheChargeIsReadAndWrittenWithAComma) {
  QLocale::setDefault(QLocale("de_DE"));
  SetDecimalSeparator();
  EnterStatuses();
  SelectRowOf("grd6bTable", "OVD");
  EXPECT_EQ(Text("txt6bLoanCharge"), "1,50");
  Type("txt6bLoanCharge", "1000,5");
  Click("cmdClear");
  Type("txt6bCode", "X1");
  Type("txt6bLoanCharge", "1.000,5");
  EXPECT_EQ(Text("txt6bLoanCharge"), "1000,5");
  EXPECT_EQ(Prompt().Beeps(), 1);
  Refused("Maximum Loan Charge of 999.99 has been exceeded.", 16, "cmdAdd", "txt6bLoanCharge");
  Type("txt6bLoanCharge", "999,99");
  Done("Record Added", "cmdAdd");
  EXPECT_TRUE(Writing().value(0).contains("NULL, NULL, 999.99, N'N'"));
}

TEST_F(LoansTest, TheChargeIsReformattedOnLeavingAndTakesNoLetters) {
  EnterStatuses();
  Type("txt6bLoanCharge", "7a");
  EXPECT_EQ(Prompt().Beeps(), 1);
  Find<QWidget>("txt6bCode")->setFocus();
  EXPECT_EQ(Text("txt6bLoanCharge"), "7.00");
  Paste("txt6bLoanCharge", "3; DROP");
  EXPECT_EQ(Text("txt6bLoanCharge"), "3");
}

TEST_F(LoansTest, AStatusCodeOfBlanksOrOneThatExistsIsRefused) {
  EnterStatuses();
  Refused("Please enter a Valid Code.", 48, "cmdAdd", "txt6bCode");
  Type("txt6bCode", "  ");
  Refused("Please enter a Valid Code.", 48, "cmdAdd", "txt6bCode");
  Type("txt6bCode", "los");
  Type("txt6bDescription", "Again");
  Refused("This record already exists", 48, "cmdAdd", "txt6bCode");
  EXPECT_EQ(Text("txt6bCode"), "");
  EXPECT_EQ(Text("txt6bDescription"), "");
}

TEST_F(LoansTest, UpdatingAStatusWritesTheWorkingLanguageAndTheRow) {
  EnterStatuses();
  gclsOF->SetLanguageSuffix("_FRE");
  SelectRowOf("grd6bTable", "REC");
  Type("txt6bDescription", " rappel ");
  Click("opt6UserDisplay(1)");
  Type("txt6bLoanCharge", "2");
  Click("opt6bFixedCharge(0)");
  Statements();
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Statements(), QStringList{"UPDATE ID_LOAN_STATUS SET LOAN_STATUS_DESC_FRE = N'rappel', LOAN_STATUS_COMP = "
                                      "N'N', LOAN_STATUS_DISP = N'N', LOAN_CHARGE = 2, LOAN_CHARGE_FIXED = N'Y' WHERE "
                                      "LOAN_STATUS = N'REC'"});
  const int row = Row("grd6bTable");
  EXPECT_EQ(Cell("grd6bTable", row, 2), "rappel");
  EXPECT_EQ(Cell("grd6bTable", row, 3), "2.00");
  EXPECT_EQ(Cell("grd6bTable", row, 4), "Y");
  EXPECT_EQ(Cell("grd6bTable", row, 6), "N");
  EXPECT_EQ(Focus(), "txt6bDescription");
}

TEST_F(LoansTest, UpdatingAStatusRefusesNoChangeAndAnUnknownCode) {
  EnterStatuses();
  SelectRowOf("grd6bTable", "LOS");
  Type("txt6bLoanCharge", "60");
  Refused("Nothing has been changed", 48, "cmdUpdate", "txt6bDescription");
  Type("txt6bCode", "QQQ");
  Refused("This Code does not exist in the table.  Please select a Valid Code to Update.", 16, "cmdUpdate",
          "txt6bCode");
}

TEST_F(LoansTest, DeletingAStatusAsksFirst) {
  Another("INSERT INTO ID_LOAN_STATUS (LOAN_STATUS, LOAN_STATUS_DESC) VALUES ('XX', 'Extra')");
  EnterStatuses();
  Refused("Please choose a record to be Deleted", 48, "cmdDelete", "txt6bCode");
  Type("txt6bCode", "QQ");
  Refused("Please select a valid record from the table.", 16, "cmdDelete", "txt6bCode");
  Type("txt6bCode", "xx");
  AnswerDelete(MessageAnswer::Yes);
  Done("Record Deleted", "cmdDelete");
  EXPECT_EQ(Writing(), QStringList{"DELETE FROM ID_LOAN_STATUS WHERE LOAN_STATUS = N'XX'"});
}

// --- Leaving a changed record ---

TEST_F(LoansTest, ClosingAnUntouchedRecordAsksNothing) {
  Enter();
  Type("txt6LoanPeriod", "30");
  Type("txt6LoanPeriod", "28");
  Click("cmdClose");
  EXPECT_FALSE(loans_->isVisible());
}

TEST_F(LoansTest, ClosingAChangedRecordOffersTheUpdateAndStays) {
  Enter();
  Type("txt6LoanPeriod", "30");
  Prompt().ExpectTitled(LeaveQuestion, 36, "Ostana - Configure Loans", MessageAnswer::Yes).Expect("Record Updated", 64);
  Click("cmdClose");
  EXPECT_TRUE(loans_->isVisible());
  EXPECT_EQ(Stored("LON_PERIOD", "N"), "30");
  Type("txt6LoanPeriod", "31");
  Prompt().Expect(LeaveQuestion, 36, MessageAnswer::No);
  Click("cmdClose");
  EXPECT_FALSE(loans_->isVisible());
  EXPECT_EQ(Stored("LON_PERIOD", "N"), "30");
}

TEST_F(LoansTest, AMissingRightIsMissingHereToo) {
  Another("UPDATE ID_USER_FUNCTION SET UPDATE_FLAG = NULL WHERE USER_ID = 'admin' AND FUNCTION_NAME = 'Tabulon'");
  Enter();
  EXPECT_TRUE(IsEnabled("cmdAdd"));
  EXPECT_FALSE(IsEnabled("cmdUpdate"));
  EXPECT_TRUE(IsEnabled("cmdDelete"));
  EXPECT_FALSE(IsEnabled("cmdClear"));
  Type("txt6LoanPeriod", "30");
  SelectTab("sstab6Loans", 1);
  EXPECT_EQ(Find<QTabWidget>("sstab6Loans")->currentIndex(), 1);
  Type("txt6bDescription", "30");
  Click("cmdClose");
  EXPECT_FALSE(loans_->isVisible());
}

TEST_F(LoansTest, ChangingTheSubTabWithAChangedRecordAsks) {
  Enter();
  Type("txt6LoanPeriod", "30");
  Prompt().Expect(LeaveQuestion, 36, MessageAnswer::No);
  SelectTab("sstab6Loans", 1);
  EXPECT_EQ(Find<QTabWidget>("sstab6Loans")->currentIndex(), 0);
  EXPECT_EQ(Text("txt6LoanPeriod"), "28");
  Type("txt6LoanPeriod", "x");
  Prompt().Expect(LeaveQuestion, 36, MessageAnswer::Yes).Expect("Please enter digits for Loan Period.", 48);
  SelectTab("sstab6Loans", 1);
  EXPECT_EQ(Find<QTabWidget>("sstab6Loans")->currentIndex(), 0);
  EXPECT_EQ(Text("txt6LoanPeriod"), "x");
  Type("txt6LoanPeriod", "30");
  Prompt().Expect(LeaveQuestion, 36, MessageAnswer::Yes).Expect("Record Updated", 64);
  SelectTab("sstab6Loans", 1);
  EXPECT_EQ(Find<QTabWidget>("sstab6Loans")->currentIndex(), 1);
  EXPECT_EQ(Stored("LON_PERIOD", "N"), "30");
}

TEST_F(LoansTest, AnEditThatIsGivenUpIsGoneFromThePageOfStatuses) {
  EnterStatuses();
  SelectRow("grd6bTable", 1);
  const QString code = Text("txt6bCode"), description = Text("txt6bDescription");
  Type("txt6bDescription", "Given up");
  Prompt().Expect(LeaveQuestion, 36, MessageAnswer::No);
  SelectTab("sstab6Loans", 0);
  EXPECT_EQ(Find<QTabWidget>("sstab6Loans")->currentIndex(), 1);
  EXPECT_EQ(Text("txt6bCode"), code);
  EXPECT_EQ(Text("txt6bDescription"), description);
  EXPECT_EQ(Row("grd6bTable"), 1);
  Click("cmdClose");
  EXPECT_FALSE(loans_->isVisible());
}

TEST_F(LoansTest, EachVisitShowsWhatTheTableHoldsNow) {
  EnterStatuses();
  SelectRow("grd6bTable", 1);
  const QString code = Text("txt6bCode");
  SelectTab("sstab6Loans", 0);
  Another("UPDATE ID_LOAN_STATUS SET LOAN_STATUS_DESC = 'Meanwhile' WHERE LOAN_STATUS = '" + code + "'");
  SelectTab("sstab6Loans", 1);
  EXPECT_EQ(Text("txt6bDescription"), "Meanwhile");
  SelectTab("sstab6Loans", 0);
  Another("DELETE FROM ID_LOAN_STATUS WHERE LOAN_STATUS = '" + code + "'");
  SelectTab("sstab6Loans", 1);
  EXPECT_EQ(Text("txt6bCode"), "");
  EXPECT_EQ(Text("txt6bDescription"), "");
}

TEST_F(LoansTest, ARefusedDuplicateLeavesNothingToBeAskedFor) {
  Enter();
  Type("txt6LoanPeriod", "30");
  Prompt().Expect("This record already exists", 48);
  Click("cmdAdd");
  Click("cmdClose");
  EXPECT_FALSE(loans_->isVisible());
}

TEST_F(LoansTest, ARowThatIsGoneIsNeitherUpdatedNorDeleted) {
  EnterStatuses();
  SelectRow("grd6bTable", 1);
  Another("DELETE FROM ID_LOAN_STATUS WHERE LOAN_STATUS = '" + Text("txt6bCode") + "'");
  Type("txt6bDescription", "Other");
  Prompt().Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", 16);
  Click("cmdUpdate");
  AnswerDelete(MessageAnswer::Yes);
  Prompt().Expect("Please select a valid record from the table.", 16);
  Click("cmdDelete");
}

}  // namespace
