#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "shell/Screen.h"
#include "support/Desk.h"

namespace {

const QString Question = "The sequence has been modified.\n\nWould you like update the sequence before exiting?";

class LibrarySequenceTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (71, 'ONE', 'One')");
    Logon();
    gclsOF->SetLibraryId(71);
  }
  void Supplier(const QString& code, int sequence) {
    Another("INSERT INTO ID_SUPPLIER (LIBRARY_ID, SUPPLIER_CODE, LIBRARY_SEQ, LIBRARY) VALUES (71, '" + code + "', " +
            QString::number(sequence) + ", 'Library " + code + "')");
  }
  Screen& OpenWith(std::initializer_list<std::pair<QString, int>> suppliers) {
    for (const auto& [code, sequence] : suppliers) Supplier(code, sequence);
    return Open("frmLibrarySequence");
  }
  QStringList Codes() {
    QStringList codes;
    for (int row = 1; row < Rows("grdSupplierSequencing"); ++row) codes.append(Cell("grdSupplierSequencing", row, 1));
    return codes;
  }
  QString Stored(const QString& code) {
    return Ask("SELECT LIBRARY_SEQ FROM ID_SUPPLIER WHERE LIBRARY_ID = 71 AND SUPPLIER_CODE = '" + code + "'");
  }
};

TEST_F(LibrarySequenceTest, SuppliersStandInTheOrderOfTheirNumbers) {
  OpenWith({{"B", 7}, {"A", 20}, {"C", 3}});
  EXPECT_EQ(Codes(), QStringList({"C", "B", "A"}));
  EXPECT_EQ(Cell("grdSupplierSequencing", 1, 3), "Library C");
}

TEST_F(LibrarySequenceTest, UpOnTheFirstRowAndDownOnTheLastDoNothing) {
  Screen& screen = OpenWith({{"A", 1}, {"B", 2}});
  SelectRow("grdSupplierSequencing", 1);
  Click("cmdUp");
  SelectRow("grdSupplierSequencing", 2);
  Click("cmdDown");
  EXPECT_EQ(Codes(), QStringList({"A", "B"}));
  Click("cmdClose");
  EXPECT_FALSE(screen.isVisible());
}

TEST_F(LibrarySequenceTest, AMoveChangesThePlaceAndKeepsTheNumber) {
  OpenWith({{"A", 1}, {"B", 2}, {"C", 3}});
  SelectRow("grdSupplierSequencing", 3);
  Click("cmdUp");
  EXPECT_EQ(Codes(), QStringList({"A", "C", "B"}));
  EXPECT_EQ(Cell("grdSupplierSequencing", 2, 2), "3");
  EXPECT_EQ(Row("grdSupplierSequencing"), 2);
  EXPECT_EQ(Stored("C"), "3");
  Prompt().Expect(Question, 36, MessageAnswer::No);
  Click("cmdClose");
  EXPECT_EQ(Stored("C"), "3");
}

TEST_F(LibrarySequenceTest, SavingWithoutAMoveStillNumbersFromOne) {
  OpenWith({{"A", 5}, {"B", 9}});
  Statements();
  Click("cmdSequence");
  EXPECT_EQ(Writing(), QStringList({"UPDATE ID_SUPPLIER SET      LIBRARY_SEQ = 1 WHERE    SUPPLIER_CODE = N'A' AND   "
                                    "   LIBRARY_ID = 71",
                                    "UPDATE ID_SUPPLIER SET      LIBRARY_SEQ = 2 WHERE    SUPPLIER_CODE = N'B' AND   "
                                    "   LIBRARY_ID = 71"}));
  EXPECT_EQ(Cell("grdSupplierSequencing", 2, 2), "2");
}

TEST_F(LibrarySequenceTest, YesOnExitSavesTheOrder) {
  Screen& screen = OpenWith({{"A", 1}, {"B", 2}});
  SelectRow("grdSupplierSequencing", 1);
  Click("cmdDown");
  Prompt().Expect(Question, 36, MessageAnswer::Yes);
  Click("cmdClose");
  EXPECT_EQ(Stored("B"), "1");
  EXPECT_EQ(Stored("A"), "2");
  EXPECT_FALSE(screen.isVisible());
}

TEST_F(LibrarySequenceTest, ASaveThatFailsOnExitKeepsTheScreenAndTheOldNumbers) {
  Screen& screen = OpenWith({{"A", 1}, {"B", 2}});
  SelectRow("grdSupplierSequencing", 1);
  Click("cmdDown");
  Another("ALTER TABLE ID_SUPPLIER RENAME TO ID_SUPPLIER_AWAY");
  Prompt()
      .Expect(Question, 36, MessageAnswer::Yes)
      .Expect(
          "An error has occurred while attempting to sequence the Supplier(s).  If the error persists notify "
          "support.",
          16);
  Click("cmdClose");
  Another("ALTER TABLE ID_SUPPLIER_AWAY RENAME TO ID_SUPPLIER");
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(Stored("A"), "1");
  Click("cmdSequence");
  EXPECT_EQ(Stored("B"), "1");
}

TEST_F(LibrarySequenceTest, ASortIsNumericAndAsksNothingOnExit) {
  Screen& screen = OpenWith({{"A", 10}, {"B", 9}, {"C", 100}});
  SortBy("grdSupplierSequencing", 1);
  Click("cmdSort");
  EXPECT_EQ(Codes(), QStringList({"B", "A", "C"}));
  EXPECT_EQ(Row("grdSupplierSequencing"), 1);
  Click("cmdClose");
  EXPECT_FALSE(screen.isVisible());
}

TEST_F(LibrarySequenceTest, OneSupplierCanBeSaved) {
  OpenWith({{"A", 4}});
  Click("cmdSequence");
  EXPECT_EQ(Stored("A"), "1");
}

TEST_F(LibrarySequenceTest, FiveHundredSuppliersAreNumberedInOneTransaction) {
  for (int index = 1; index <= 500; ++index) Supplier(QString("S%1").arg(index, 3, 10, QChar('0')), 1000 - index);
  Open("frmLibrarySequence");
  EXPECT_EQ(Codes().first(), "S500");
  Click("cmdSequence");
  EXPECT_EQ(Stored("S500"), "1");
  EXPECT_EQ(Stored("S001"), "500");
}

TEST_F(LibrarySequenceTest, WithoutSuppliersThatIsSaid) {
  OpenWith({});
  Prompt().Expect("There are no records to sequence.", 48);
  Click("cmdSequence");
}

TEST_F(LibrarySequenceTest, ASupplierRemovedByAnotherClientDropsOutOfTheList) {
  OpenWith({{"A", 1}, {"B", 2}, {"C", 3}});
  Another("DELETE FROM ID_SUPPLIER WHERE SUPPLIER_CODE = 'B'");
  Click("cmdSequence");
  EXPECT_EQ(Codes(), QStringList({"A", "C"}));
  EXPECT_EQ(Stored("C"), "3");
}

TEST_F(LibrarySequenceTest, AListThatCannotBeReadIsToldTwice) {
  Another("ALTER TABLE ID_SUPPLIER RENAME TO ID_SUPPLIER_AWAY");
  Prompt()
      .Expect("An error has occurred loading the Supplier list.  Please Notify Support.", 16)
      .Expect("An error has occurred.  Unable to load screen.\n\nIf the error persists Please Notify Support.", 16);
  Open("frmLibrarySequence");
  Another("ALTER TABLE ID_SUPPLIER_AWAY RENAME TO ID_SUPPLIER");
}

TEST_F(LibrarySequenceTest, AListThatCouldNotBeReadOffersNothingToSave) {
  Supplier("A", 5);
  Another("ALTER TABLE ID_SUPPLIER RENAME TO ID_SUPPLIER_AWAY");
  Prompt()
      .Expect("An error has occurred loading the Supplier list.  Please Notify Support.", 16)
      .Expect("An error has occurred.  Unable to load screen.\n\nIf the error persists Please Notify Support.", 16);
  Screen& screen = Open("frmLibrarySequence");
  Another("ALTER TABLE ID_SUPPLIER_AWAY RENAME TO ID_SUPPLIER");
  for (const char* button : {"cmdUp", "cmdDown", "cmdSort", "cmdSequence"}) EXPECT_FALSE(IsEnabled(button)) << button;
  Click("cmdClose");
  EXPECT_FALSE(screen.isVisible());
  EXPECT_EQ(Stored("A"), "5");
}

TEST_F(LibrarySequenceTest, AFailedReadAfterTheSaveIsToldAsAReadAndTheListStays) {
  Screen& screen = OpenWith({{"A", 5}, {"B", 9}});
  SelectRow("grdSupplierSequencing", 1);
  Click("cmdDown");
  // The numbers can be written; the names cannot be read.
  Another("ALTER TABLE ID_SUPPLIER RENAME COLUMN LIBRARY TO MOVED");
  Prompt().Expect("An error has occurred loading the Supplier list.  Please Notify Support.", 16);
  Click("cmdSequence");
  Another("ALTER TABLE ID_SUPPLIER RENAME COLUMN MOVED TO LIBRARY");
  EXPECT_EQ(Stored("B"), "1");
  EXPECT_EQ(Stored("A"), "2");
  EXPECT_EQ(Codes(), QStringList({"B", "A"}));
  EXPECT_EQ(Cell("grdSupplierSequencing", 1, 2), "1");
  EXPECT_TRUE(LogHolds("frmLibrarySequence.LoadSuppliers"));
  EXPECT_FALSE(LogHolds("frmSupplierRouting.cmdSequence"));
  // Saved: nothing is asked.
  Click("cmdClose");
  EXPECT_FALSE(screen.isVisible());
}

}  // namespace
