// Rate table "Copyright Comply": Add, Update and Delete, statement by statement.
#include "editors/InvoicingDesk.h"

namespace {

class CopyrightRatesTest : public InvoicingDesk {
 protected:
  void Enter() {
    InvoicingDesk::Enter();
    Pick("Copyright Comply");
  }
  void Fill(const QString& code, const QString& description, const QString& surcharge) {
    Click("cmdClear");
    Type("txt7Code", code);
    Type("txt7Description", description);
    Type("txt7Surcharge", surcharge);
  }
};

TEST_F(CopyrightRatesTest, AddStoresTheDescriptionAsTypedInEveryLanguage) {
  Enter();
  Fill("x", " Fair dealing, o'clock ", "1.5");
  EXPECT_TRUE(gbRecordModified);
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Writing(),
            QStringList{"INSERT INTO ID_COPYRIGHT_CMP (COPYRIGHT_CMP, COPYRIGHT_CMP_DESC, COPYRIGHT_CMP_DESC_ENG, "
                        "COPYRIGHT_CMP_DESC_FRE, COPYRIGHT_CMP_DESC_GER, SURCHARGE) VALUES (N'X', N'Fair dealing, "
                        "o''clock', N'Fair dealing, o''clock', N'Fair dealing, o''clock', N'Fair dealing, o''clock', "
                        "1.50)"});
  EXPECT_EQ(Ask("SELECT COPYRIGHT_CMP_DESC_GER FROM ID_COPYRIGHT_CMP WHERE COPYRIGHT_CMP = 'X'"),
            "Fair dealing, o'clock");
  EXPECT_EQ(Cell("grd7Table", Row("grd7Table"), 1), "X");
  EXPECT_EQ(Cell("grd7Table", Row("grd7Table"), 2), "1.50");
  EXPECT_EQ(Cell("grd7Table", Row("grd7Table"), 3), "Fair dealing, o'clock");
  EXPECT_EQ(Focus(), "txt7Code");
}

TEST_F(CopyrightRatesTest, OnASiteOfOneLanguageNoLanguageColumnIsNamed) {
  Setting("System", "SingleLanguage", "Y");
  Enter();
  Fill("x", "Fair", "1");
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_COPYRIGHT_CMP (COPYRIGHT_CMP, COPYRIGHT_CMP_DESC, SURCHARGE) VALUES "
                                   "(N'X', N'Fair', 1.00)"});
}

TEST_F(CopyrightRatesTest, TheAtSignIsRefusedOnAddAndNotFoundOnUpdate) {
  Enter();
  Fill("@", "At", "1");
  Refused("Please enter a Valid Code.", 48, "cmdAdd", "txt7Code");
  Refused("This Code does not exist in the table. Please select a Valid Code to Update.", 16, "cmdUpdate", "txt7Code");
}

TEST_F(CopyrightRatesTest, AddRefusesEmptyTextsAndWhatExists) {
  Enter();
  Fill(" ", "Text", "1");
  Refused("Please enter a Valid Code.", 48, "cmdAdd", "txt7Code");
  Fill("x", "  ", "1");
  Refused("Please enter a Valid Description.", 48, "cmdAdd", "txt7Description");
  Fill("f", "Covered by the law", "1");
  Refused("This record already exists", 48, "cmdAdd", "txt7Code");
  Fill("x", "Covered by the law", "1");
  Refused("This record already exists", 48, "cmdAdd", "txt7Description");
}

TEST_F(CopyrightRatesTest, ABlankSurchargeFailsInTheDatabaseOnAdd) {
  Enter();
  Fill("x", "Fair", "");
  Prompt().ExpectTitled(DatabaseError, 16, "Ostana - System Maintenance");
  Click("cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_COPYRIGHT_CMP (COPYRIGHT_CMP, COPYRIGHT_CMP_DESC, "
                                   "COPYRIGHT_CMP_DESC_ENG, COPYRIGHT_CMP_DESC_FRE, COPYRIGHT_CMP_DESC_GER, SURCHARGE) "
                                   "VALUES (N'X', N'Fair', N'Fair', N'Fair', N'Fair', )"});
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(gbRecordModified);
  EXPECT_TRUE(LogLines().join('\n').contains("***** SQL error on OSTANA.ID_COPYRIGHT_CMP (INSERT INTO) *****"));
}

TEST_F(CopyrightRatesTest, UpdateWritesCapitalsAndTheGridWithoutAReload) {
  Enter();
  SelectRowOf("grd7Table", "F");
  Type("txt7Description", "collecting o'society");
  Type("txt7Surcharge", "12.5");
  Prompt().Expect("Record Updated", 64);
  Statements();
  Click("cmdUpdate");
  EXPECT_EQ(Statements(), QStringList{"UPDATE  ID_COPYRIGHT_CMP SET COPYRIGHT_CMP_DESC = N'COLLECTING O''SOCIETY', "
                                      "SURCHARGE = 12.50 WHERE COPYRIGHT_CMP = 'F'"});
  EXPECT_EQ(Text("txt7Description"), "COLLECTING O'SOCIETY");
  EXPECT_EQ(Cell("grd7Table", Row("grd7Table"), 2), "12.50");
  EXPECT_EQ(Cell("grd7Table", Row("grd7Table"), 3), "COLLECTING O'SOCIETY");
  EXPECT_EQ(Focus(), "txt7Code");
}

TEST_F(CopyrightRatesTest, UpdateMakesABlankSurchargeZeroAndAnEmptyDescriptionNull) {
  Enter();
  SelectRowOf("grd7Table", "F");
  Type("txt7Description", " ");
  Type("txt7Surcharge", "");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing(),
            QStringList{"UPDATE  ID_COPYRIGHT_CMP SET COPYRIGHT_CMP_DESC = NULL, SURCHARGE = 0 WHERE COPYRIGHT_CMP = "
                        "'F'"});
  EXPECT_EQ(Cell("grd7Table", Row("grd7Table"), 2), "0.00");
}

TEST_F(CopyrightRatesTest, UpdateTakesItsColumnsFromTheLanguageOfTheLoad) {
  Enter();
  gclsOF->SetLanguageSuffix("_FRE");
  Choose("cmb7RateTable", "Copyright Comply");
  EXPECT_EQ(Statements(), QStringList{"SELECT   COPYRIGHT_CMP, COPYRIGHT_CMP_DESC_FRE, SURCHARGE FROM ID_COPYRIGHT_CMP "
                                      "ORDER BY COPYRIGHT_CMP"});
  gclsOF->SetLanguageSuffix("");
  SelectRowOf("grd7Table", "L");
  Type("txt7Description", "loi");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{"UPDATE  ID_COPYRIGHT_CMP SET COPYRIGHT_CMP_DESC_FRE = N'LOI', SURCHARGE = 0.00 "
                                   "WHERE COPYRIGHT_CMP = 'L'"});
}

TEST_F(CopyrightRatesTest, AnotherWritingOfTheSameNumberIsNoChange) {
  Another("UPDATE ID_COPYRIGHT_CMP SET COPYRIGHT_CMP_DESC = 'LAW', SURCHARGE = 5 WHERE COPYRIGHT_CMP = 'L'");
  Enter();
  SelectRowOf("grd7Table", "L");
  Type("txt7Surcharge", "05.0");
  Prompt().Expect("Nothing has been changed", 48);
  Trigger("mnuOptionsUpdate");
  EXPECT_TRUE(Writing().isEmpty());
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(CopyrightRatesTest, DeleteAsksAndForcesCapitals) {
  Enter();
  Fill("l", "covered by the law", "");
  AnswerDelete(MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_EQ(Text("txt7Description"), "COVERED BY THE LAW");
  EXPECT_TRUE(Writing().isEmpty());
  AnswerDelete(MessageAnswer::Yes);
  Done("Record Deleted", "cmdDelete");
  EXPECT_EQ(Writing(), QStringList{"DELETE FROM ID_COPYRIGHT_CMP WHERE COPYRIGHT_CMP = 'L'"});
  EXPECT_EQ(Find<Grid>("grd7Table")->FindRow("L", 1), 0);
}

TEST_F(CopyrightRatesTest, DeleteRefusesAnEmptyAndAnUnknownCode) {
  Enter();
  Fill(" ", "", "");
  Refused("Please choose a record to be Deleted", 48, "cmdDelete", "txt7Code");
  Fill("q", "", "");
  Refused("Please select a valid record from the table.", 16, "cmdDelete", "txt7Code");
}

}  // namespace
