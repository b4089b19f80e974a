#include <QLabel>
#include <QTest>

#include "interop/InteropDesk.h"
#include "shell/Screens.h"

namespace {

// The two lists that are edited in memory and written when the screen closes.
class NCIPListsTest : public InteropDesk {
 protected:
  static inline const QString Failed = "Unable to update the NCIP Status Codes.\n\nError: ";

  void SetUp() override {
    InteropDesk::SetUp();
    AddStatus(Own, "AVAILABLE", "Y");
    AddStatus(Own, "LOST", "N");
    AddStatus(Own, "ON LOAN", "N");
    AddStatus(Server, "SERVER ONLY", "Y");
    AddUnit(Server, "MAIN", "101");
    AddUnit(Server, "NORTH", "303");
    AddUnit(Server, "SOUTH", "303");
    AddUnit(Own, "OWN ONLY", "303");
  }
  void AddStatus(qint32 library, const QString& code, const QString& allow) {
    Another("INSERT INTO ID_NCIP_STATUS (LIBRARY_ID, NCIP_STATUS, NCIP_ALLOW_ILL) VALUES (" + QString::number(library) +
            ", '" + code + "', '" + allow + "')");
  }
  void AddUnit(qint32 library, const QString& name, const QString& unit) {
    Another("INSERT INTO ID_NCIP_LIBRARY (LIBRARY_ID, NCIP_LIBRARY, UNIT_LIBRARY_ID) VALUES (" +
            QString::number(library) + ", '" + name + "', " + unit + ")");
  }
  void OpenStatus() {
    Open("frmNCIPStatusCodes");
    Statements();
  }
  void OpenMapping() {
    Open("frmNCIPUnitLibraryMapping");
    Statements();
  }
  QString StatusRows(qint32 library = Own) {
    return Rows("NCIP_STATUS || '=' || NCIP_ALLOW_ILL", "ID_NCIP_STATUS", "NCIP_STATUS", library);
  }
  QString UnitRows(qint32 library = Server) {
    return Rows("NCIP_LIBRARY || '=' || UNIT_LIBRARY_ID", "ID_NCIP_LIBRARY", "NCIP_LIBRARY", library);
  }
  using Desk::Rows;
  QString Rows(const QString& columns, const QString& table, const QString& order, qint32 library) {
    Recordset rows;
    rows.Open(Database().OtherClient(), "SELECT " + columns + " FROM " + table +
                                            " WHERE LIBRARY_ID = " + QString::number(library) + " ORDER BY " + order);
    QStringList texts;
    for (; !rows.EOF_(); rows.MoveNext()) texts.append(rows.Fields(0).Value());
    return texts.join(" ");
  }
};

// --- Loading ---

TEST_F(NCIPListsTest, StatusCodesAreThoseOfTheLibraryInHand) {
  Open("frmNCIPStatusCodes");
  EXPECT_EQ(Statements(),
            QStringList{"SELECT   NCIP_STATUS, NCIP_ALLOW_ILL FROM ID_NCIP_STATUS WHERE    LIBRARY_ID = 101"});
  ASSERT_EQ(Rows("grdNCIPStatusCodes"), 4);
  EXPECT_EQ(Cell("grdNCIPStatusCodes", 0, 1), "NCIP Status Code");
  EXPECT_EQ(Cell("grdNCIPStatusCodes", 0, 2), "Allow ILL");
  for (const auto& [col, twips] : std::map<int, int>{{0, 255}, {1, 2400}, {2, 4860}})
    EXPECT_EQ(Find<Grid>("grdNCIPStatusCodes")->ColWidth(col), twips);
  EXPECT_EQ(Row("grdNCIPStatusCodes"), 1);
  EXPECT_EQ(Text("txtNCIPStatusCode"), Cell("grdNCIPStatusCodes", 1, 1));
  EXPECT_TRUE(IsEnabled("cmdUpdate"));
}

TEST_F(NCIPListsTest, TheMappingIsThatOfTheLibraryBehindTheSymbol) {
  Open("frmNCIPUnitLibraryMapping");
  EXPECT_EQ(Statements(),
            (QStringList{"SELECT   NCIP_LIBRARY, UNIT_LIBRARY_ID FROM ID_NCIP_LIBRARY WHERE    LIBRARY_ID = 202",
                         "SELECT   LIBRARY_SYMBOL FROM ID_LIBRARY WHERE    LIBRARY_ID = 101",
                         "SELECT   LIBRARY_SYMBOL FROM ID_LIBRARY WHERE    LIBRARY_ID = 303",
                         "SELECT   LIBRARY_SYMBOL FROM ID_LIBRARY WHERE    LIBRARY_ID = 303"}));
  ASSERT_EQ(Rows("grdLibraryMapping"), 4);
  const auto* const grid = Find<Grid>("grdLibraryMapping");
  EXPECT_EQ(grid->FindRow({{1, "MAIN"}, {2, "OWN"}, {3, "101"}}) > 0, true);
  EXPECT_TRUE(grid->ColHidden(3));
  for (const auto& [col, twips] : std::map<int, int>{{0, 270}, {1, 1965}, {2, 5265}, {3, 960}})
    EXPECT_EQ(grid->ColWidth(col), twips);
  EXPECT_EQ(Text("txtNCIPLibrary"), Cell("grdLibraryMapping", 1, 1));
  EXPECT_EQ(Text("txtOstanaLibrary"), Cell("grdLibraryMapping", 1, 2));
}

TEST_F(NCIPListsTest, AnEmptyListLeavesTheControlsEmptyAndUpdateOff) {
  gclsOF->SetLibraryId(Other);
  glngNCIPLibraryId = Other;
  OpenStatus();
  EXPECT_EQ(Text("txtNCIPStatusCode"), "");
  EXPECT_FALSE(IsEnabled("cmdUpdate"));
  EXPECT_TRUE(IsChecked("rdAllowILLYes"));
  Click("cmdCancel");
  OpenMapping();
  EXPECT_EQ(Text("txtNCIPLibrary"), "");
  EXPECT_EQ(Text("txtOstanaLibrary"), "");
  EXPECT_FALSE(IsEnabled("cmdUpdate"));
}

TEST_F(NCIPListsTest, AMappedLibraryThatIsGoneShowsAnEmptySymbolAndIsWrittenBack) {
  AddUnit(Server, "GONE", "777");
  OpenMapping();
  SelectRowOf("grdLibraryMapping", "GONE");
  EXPECT_EQ(Text("txtOstanaLibrary"), "");
  SelectRowOf("grdLibraryMapping", "SOUTH");
  Click("cmdDelete");
  Prompt().Expect("Settings updated.", 64);
  Click("cmdClose");
  EXPECT_EQ(UnitRows(), "GONE=777 MAIN=101 NORTH=303");
}

TEST_F(NCIPListsTest, BothListsLogAFailedLoadUnderTheFirstOnesName) {
  Another("ALTER TABLE ID_NCIP_LIBRARY RENAME TO ID_NCIP_LIBRARY_GONE");
  Prompt().ExpectTitled("An error has occurred loading the form.  Please Notify Support.", 16,
                        "Ostana - NCIP Unit Library Mapping");
  Open("frmNCIPUnitLibraryMapping");
  EXPECT_EQ(Logged("  * frmNCIPStatusCodes.ReadOstanaInfo()").size(), 1);
  EXPECT_EQ(Logged("* ***** SQL error on ID_NCIP_LIBRARY (Select) *****").size(), 1);
}

class TornNCIPListTest : public NCIPListsTest, public testing::WithParamInterface<const char*> {};

TEST_P(TornNCIPListTest, AListThatCouldNotBeReadIsNotReplaced) {
  const QString table = GetParam();
  const QString form = table == "ID_NCIP_STATUS" ? "frmNCIPStatusCodes" : "frmNCIPUnitLibraryMapping";
  Another("ALTER TABLE " + table + " RENAME TO " + table + "_AWAY");
  Prompt().Expect("An error has occurred loading the form.  Please Notify Support.", 16);
  Open(form);
  Another("ALTER TABLE " + table + "_AWAY RENAME TO " + table);
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear"}) EXPECT_FALSE(IsEnabled(button)) << button;
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(StatusRows(), "AVAILABLE=Y LOST=N ON LOAN=N");
  EXPECT_EQ(UnitRows(), "MAIN=101 NORTH=303 SOUTH=303");
}

INSTANTIATE_TEST_SUITE_P(Lists, TornNCIPListTest, testing::Values("ID_NCIP_STATUS", "ID_NCIP_LIBRARY"),
                         [](const auto& table) { return std::string(table.param); });

TEST_F(NCIPListsTest, AMappingReadByHalfIsNotReplaced) {
  // The second statement of each row fails: the symbol of its library.
  Another("ALTER TABLE ID_LIBRARY RENAME COLUMN LIBRARY_SYMBOL TO LIBRARY_SYMBOL_AWAY");
  Prompt().Expect("An error has occurred loading the form.  Please Notify Support.", 16);
  OpenMapping();
  Another("ALTER TABLE ID_LIBRARY RENAME COLUMN LIBRARY_SYMBOL_AWAY TO LIBRARY_SYMBOL");
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear"}) EXPECT_FALSE(IsEnabled(button)) << button;
  Click("cmdClose");
  EXPECT_EQ(UnitRows(), "MAIN=101 NORTH=303 SOUTH=303");
}

TEST_F(NCIPListsTest, TheRightsOfTheOpeningDecideWhatCanBePressed) {
  Another("UPDATE ID_USER_FUNCTION SET ADD_FLAG = 'N', UPDATE_FLAG = 'N', DELETE_FLAG = 'N'");
  ASSERT_TRUE(gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), gclsOF->CurrentFunction()));
  OpenStatus();
  SelectRowOf("grdNCIPStatusCodes", "LOST");
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear"}) EXPECT_FALSE(IsEnabled(button)) << button;
}

// --- Status codes ---

TEST_F(NCIPListsTest, ARowShowsItsLetterAsAnOption) {
  OpenStatus();
  SelectRowOf("grdNCIPStatusCodes", "LOST");
  EXPECT_EQ(Text("txtNCIPStatusCode"), "LOST");
  EXPECT_TRUE(IsChecked("rdAllowILLNo"));
  SelectRowOf("grdNCIPStatusCodes", "AVAILABLE");
  EXPECT_TRUE(IsChecked("rdAllowILLYes"));
  QTest::mouseClick(Find<QLabel>("lblAllowILLNo"), Qt::LeftButton);
  EXPECT_TRUE(IsChecked("rdAllowILLNo"));
  QTest::mouseClick(Find<QLabel>("lblAllowILLYes"), Qt::LeftButton);
  EXPECT_TRUE(IsChecked("rdAllowILLYes"));
}

TEST_F(NCIPListsTest, ACodeTypedInLowerCaseIsStoredInUpperCase) {
  OpenStatus();
  Type("txtNCIPStatusCode", "  in tränsit ");
  Click("rdAllowILLNo");
  Click("cmdAdd");
  EXPECT_TRUE(Statements().isEmpty()) << "the list is in memory";
  EXPECT_EQ(Cell("grdNCIPStatusCodes", 4, 1), "IN TRÄNSIT");
  EXPECT_EQ(Cell("grdNCIPStatusCodes", 4, 2), "N");
  Prompt().ExpectTitled("Settings updated.", 64, "Ostana - NCIP Status Codes");
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(StatusRows(), "AVAILABLE=Y IN TRÄNSIT=N LOST=N ON LOAN=N");
  EXPECT_EQ(StatusRows(Server), "SERVER ONLY=Y");
}

TEST_F(NCIPListsTest, TheCaretStaysWhereALetterWasPutInTheMiddle) {
  OpenStatus();
  Type("txtNCIPStatusCode", "AC");
  auto* const box = Find<TextBox>("txtNCIPStatusCode");
  box->setCursorPosition(1);
  QTest::keyClick(box, Qt::Key_B);
  EXPECT_EQ(box->Text(), "ABC");
  EXPECT_EQ(box->cursorPosition(), 2);
  Paste("txtNCIPStatusCode", "pasted");
  EXPECT_EQ(box->Text(), "PASTED");
}

TEST_F(NCIPListsTest, AnEmptyCodeAndARepeatedOneAreRefused) {
  OpenStatus();
  Type("txtNCIPStatusCode", "   ");
  Prompt().ExpectTitled("NCIP Status Code is a required field.", 16, "Ostana - NCIP Status Codes");
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txtNCIPStatusCode");
  Type("txtNCIPStatusCode", "lost");
  Prompt().Expect("NCIP Status Code: LOST is already in the grid.", 16);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txtNCIPStatusCode");
  EXPECT_EQ(Rows("grdNCIPStatusCodes"), 4);
  Click("cmdClose");
  EXPECT_TRUE(Statements().isEmpty()) << "nothing was changed";
}

TEST_F(NCIPListsTest, TheCloseWritesTheseStatements) {
  OpenStatus();
  SelectRowOf("grdNCIPStatusCodes", "LOST");
  Type("txtNCIPStatusCode", "o'lost");
  Click("rdAllowILLYes");
  Click("cmdUpdate");
  SortBy("grdNCIPStatusCodes", 1);
  Prompt().Expect("Settings updated.", 64);
  Click("cmdClose");
  EXPECT_EQ(
      Statements(),
      (QStringList{
          "DELETE FROM ID_NCIP_STATUS WHERE LIBRARY_ID = 101",
          "INSERT INTO ID_NCIP_STATUS (LIBRARY_ID, NCIP_STATUS, NCIP_ALLOW_ILL) VALUES (101, N'AVAILABLE', N'Y')",
          "INSERT INTO ID_NCIP_STATUS (LIBRARY_ID, NCIP_STATUS, NCIP_ALLOW_ILL) VALUES (101, N'O''LOST', N'Y')",
          "INSERT INTO ID_NCIP_STATUS (LIBRARY_ID, NCIP_STATUS, NCIP_ALLOW_ILL) VALUES (101, N'ON LOAN', N'N')"}));
}

TEST_F(NCIPListsTest, DeletingEveryRowAndClosingEmptiesTheTableOfTheLibrary) {
  OpenStatus();
  for (int row = 3; row >= 1; --row) {
    SelectRow("grdNCIPStatusCodes", 1);
    Click("cmdDelete");
    EXPECT_EQ(Row("grdNCIPStatusCodes"), 0);
    EXPECT_EQ(Text("txtNCIPStatusCode"), "");
  }
  Prompt().Expect("Please select a row to delete.", 16);
  Click("cmdDelete");
  EXPECT_EQ(Focus(), "grdNCIPStatusCodes");
  Prompt().Expect("There are currently no rows to Update.", 16);
  Click("cmdUpdate");
  Prompt().Expect("Settings updated.", 64);
  Click("cmdClose");
  EXPECT_EQ(Statements(), QStringList{"DELETE FROM ID_NCIP_STATUS WHERE LIBRARY_ID = 101"});
  EXPECT_EQ(StatusRows(), "");
  EXPECT_EQ(StatusRows(Server), "SERVER ONLY=Y");
}

TEST_F(NCIPListsTest, AfterADeleteNoRowIsCurrentSoThatUpdateOverwritesNone) {
  OpenStatus();
  SelectRowOf("grdNCIPStatusCodes", "LOST");
  Click("cmdDelete");
  Type("txtNCIPStatusCode", "NEW");
  Prompt().Expect("There are currently no rows to Update.", 16);
  Click("cmdUpdate");
  EXPECT_EQ(Find<Grid>("grdNCIPStatusCodes")->FindRow("NEW", 1), 0);
}

TEST_F(NCIPListsTest, ClearAsksAndLeavesTheListAlone) {
  OpenStatus();
  SelectRowOf("grdNCIPStatusCodes", "LOST");
  Prompt().ExpectTitled("Are you sure you wish to clear the screen?", 36, "Ostana - NCIP Status Codes",
                        MessageAnswer::No);
  Click("cmdClear");
  EXPECT_EQ(Text("txtNCIPStatusCode"), "LOST");
  Prompt().Expect("Are you sure you wish to clear the screen?", 36, MessageAnswer::Yes);
  Click("cmdClear");
  EXPECT_EQ(Text("txtNCIPStatusCode"), "");
  EXPECT_TRUE(IsChecked("rdAllowILLYes"));
  EXPECT_EQ(Rows("grdNCIPStatusCodes"), 4);
  Click("cmdClose");
  EXPECT_TRUE(Statements().isEmpty());
}

TEST_F(NCIPListsTest, CancelAndTheWindowsOwnCloseButtonWriteNothing) {
  OpenStatus();
  Click("cmdDelete");
  Click("cmdCancel");
  EXPECT_FALSE(IsOpen());
  OpenMapping();
  Click("cmdDelete");
  Window()->close();
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(Writing().isEmpty());
  EXPECT_EQ(StatusRows(), "AVAILABLE=Y LOST=N ON LOAN=N");
  EXPECT_EQ(UnitRows(), "MAIN=101 NORTH=303 SOUTH=303");
}

// --- A failure at any row ---

// The key of the row that fails, by its place in the grid.
class NCIPListFailureTest : public NCIPListsTest, public testing::WithParamInterface<int> {};

TEST_P(NCIPListFailureTest, ADuplicateMadeByUpdateKeepsTheOldListAndTheFormOpen) {
  OpenStatus();
  SortBy("grdNCIPStatusCodes", 1);
  // The row named holds another row's key afterwards; the second of the two is the one that fails.
  const int row = GetParam();
  SelectRow("grdNCIPStatusCodes", row);
  Type("txtNCIPStatusCode", row == 1 ? "LOST" : "AVAILABLE");
  Click("cmdUpdate");
  Prompt().ExpectStart(Failed, 16);
  Click("cmdClose");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Rows("grdNCIPStatusCodes"), 4) << "the user's list is still there";
  EXPECT_EQ(StatusRows(), "AVAILABLE=Y LOST=N ON LOAN=N");
  EXPECT_TRUE(Prompt().Shown().last().contains("duplicate", Qt::CaseInsensitive));
  const QStringList lines = LogLines();
  ASSERT_GE(lines.size(), 3);
  EXPECT_TRUE(lines[lines.size() - 3].endsWith("  * frmNCIPStatusCodes.cmdClose_Click"));
  EXPECT_TRUE(lines[lines.size() - 2].mid(24).startsWith("* Error: -2147217873 - "));
  EXPECT_EQ(lines.last(), lines[lines.size() - 2]) << "at L and again at S";
  // Mended, the same list goes through.
  Type("txtNCIPStatusCode", "MENDED");
  Click("cmdUpdate");
  Prompt().Expect("Settings updated.", 64);
  Click("cmdClose");
  EXPECT_EQ(Count("ID_NCIP_STATUS", "LIBRARY_ID = 101"), 3);
}

// Another client forbids a name while the list is being edited.
TEST_P(NCIPListFailureTest, ANameThatAnotherClientForbidsKeepsTheOldMapping) {
  Another("CREATE UNIQUE INDEX ID_TEST_ONE_NAME ON ID_NCIP_LIBRARY (NCIP_LIBRARY)");
  OpenMapping();
  SortBy("grdLibraryMapping", 1);
  SelectRow("grdLibraryMapping", GetParam());
  Type("txtNCIPLibrary", "taken");
  Click("cmdUpdate");
  AddUnit(Other, "TAKEN", "101");
  Statements();
  Prompt().ExpectStart(Failed, 16);
  Click("cmdClose");
  EXPECT_EQ(Statements().size(), 1 + GetParam()) << "the delete and the rows up to the one that failed";
  EXPECT_EQ(Prompt().Titles().last(), "Ostana - NCIP Unit Library Mapping");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Cell("grdLibraryMapping", GetParam(), 1), "TAKEN");
  EXPECT_EQ(UnitRows(), "MAIN=101 NORTH=303 SOUTH=303");
  EXPECT_EQ(Logged("  * frmNCIPUnitLibraryMapping.cmdClose_Click").size(), 1);
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  Another("DELETE FROM ID_NCIP_LIBRARY WHERE LIBRARY_ID = 303");
  Prompt().Expect("Settings updated.", 64);
  Click("cmdClose");
  EXPECT_TRUE(UnitRows().contains("TAKEN="));
}

INSTANTIATE_TEST_SUITE_P(FirstMiddleLast, NCIPListFailureTest, testing::Values(1, 2, 3));

// --- Mapping ---

TEST_F(NCIPListsTest, TheMappingWritesItsIdsAsTexts) {
  OpenMapping();
  Type("txtNCIPLibrary", " east's ");
  Type("txtOstanaLibrary", " OTHER ");
  Click("cmdAdd");
  EXPECT_EQ(Statements(),
            QStringList{"SELECT LIBRARY_SYMBOL, LIBRARY_ID FROM  ID_LIBRARY WHERE LIBRARY_SYMBOL = N'OTHER'"});
  SortBy("grdLibraryMapping", 1);
  Prompt().ExpectTitled("Settings updated.", 64, "Ostana - NCIP Unit Library Mapping");
  Click("cmdClose");
  const QString insert = "INSERT INTO ID_NCIP_LIBRARY (LIBRARY_ID, NCIP_LIBRARY, UNIT_LIBRARY_ID) VALUES (202, ";
  EXPECT_EQ(Statements(),
            (QStringList{"DELETE FROM ID_NCIP_LIBRARY WHERE LIBRARY_ID = 202", insert + "N'EAST''S', N'303')",
                         insert + "N'MAIN', N'101')", insert + "N'NORTH', N'303')", insert + "N'SOUTH', N'303')"}));
  EXPECT_EQ(UnitRows(Own), "OWN ONLY=303");
}

TEST_F(NCIPListsTest, TheMappingAsksForBothFieldsAndAKnownSymbol) {
  OpenMapping();
  const auto refused = [this](const QString& text, const QString& focus) {
    Prompt().ExpectTitled(text, 16, "Ostana - NCIP Unit Library Mapping");
    Click("cmdAdd");
    EXPECT_EQ(Focus(), focus);
  };
  Type("txtNCIPLibrary", "");
  Type("txtOstanaLibrary", "");
  refused("NCIP Library is a required field.", "txtNCIPLibrary");
  Type("txtNCIPLibrary", "east");
  EXPECT_EQ(Text("txtNCIPLibrary"), "EAST");
  refused("Ostana Library is a required field.", "txtOstanaLibrary");
  Type("txtOstanaLibrary", "other");
  refused("Please enter a valid library symbol.", "txtOstanaLibrary");
  Type("txtOstanaLibrary", "OTH%");
  refused("Please enter a valid library symbol.", "txtOstanaLibrary");
  Type("txtNCIPLibrary", "main");
  Type("txtOstanaLibrary", "OTHER");
  refused("NCIP Library: MAIN is already in the grid.", "txtNCIPLibrary");
  EXPECT_EQ(Rows("grdLibraryMapping"), 4);
}

TEST_F(NCIPListsTest, TheHiddenIdIsReplacedAlsoWhenOnlyTheNameHasChanged) {
  OpenMapping();
  SelectRowOf("grdLibraryMapping", "NORTH");
  // The symbol has passed on to another library meanwhile.
  Another("UPDATE ID_LIBRARY SET LIBRARY_SYMBOL = 'FORMER' WHERE LIBRARY_ID = 303");
  AddLibrary(404, "OTHER");
  Type("txtNCIPLibrary", "north 2");
  Click("cmdUpdate");
  const int row = Row("grdLibraryMapping");
  EXPECT_EQ(Cell("grdLibraryMapping", row, 1), "NORTH 2");
  EXPECT_EQ(Cell("grdLibraryMapping", row, 3), "404");
  Prompt().Expect("Settings updated.", 64);
  Click("cmdClose");
  EXPECT_EQ(UnitRows(), "MAIN=101 NORTH 2=404 SOUTH=303");
}

TEST_F(NCIPListsTest, AnUnknownSymbolOnUpdateLeavesTheRow) {
  OpenMapping();
  SelectRowOf("grdLibraryMapping", "NORTH");
  Type("txtOstanaLibrary", "NOBODY");
  Prompt().Expect("Please enter a valid library symbol.", 16);
  Click("cmdUpdate");
  EXPECT_EQ(Cell("grdLibraryMapping", Row("grdLibraryMapping"), 2), "OTHER");
}

TEST_F(NCIPListsTest, AFailedLookUpSaysWhoseItWas) {
  OpenMapping();
  SelectRowOf("grdLibraryMapping", "NORTH");
  Another("ALTER TABLE ID_LIBRARY RENAME TO ID_LIBRARY_GONE");
  Prompt().Expect("An error has occurred.  Please Notify Support.", 16);
  Click("cmdUpdate");
  EXPECT_EQ(Logged("* ***** SQL error on OSTANA.ID_LIBRARY (Select) *****").size(), 1) << "with the owner on Update";
  Prompt().Expect("An error has occurred.  Please Notify Support.", 16);
  Click("cmdAdd");
  EXPECT_EQ(Logged("* ***** SQL error on ID_LIBRARY (Select) *****").size(), 1);
}

// --- Find Library ---

// What stands in for the registration screen: it answers with a library, or with none.
void AnswerWith(qint32 id) {
  RegisterScreen("frmLibraryRegistration", [id](QWidget* owner) {
    class Answer : public Screen {
     public:
      Answer(qint32 id, QWidget* owner) : Screen("frmLibraryRegistration", "Answer", owner), id_(id) {}

     protected:
      void Form_Load() override {
        EXPECT_EQ(gclsOF->LibraryId(), 0);
        EXPECT_EQ(gclsOF->CurrentFunction(), "Library Registration");
        gclsOF->SetLibraryId(id_);
        // A user may come by the contact screen of another library.
        glngNCIPLibraryId = 303;
        Unload();
      }

     private:
      qint32 id_;
    };
    return std::make_unique<Answer>(id, owner);
  });
}

TEST_F(NCIPListsTest, FindLibraryPutsTheSymbolIntoTheBoxAndTheSessionComesBack) {
  OpenMapping();
  const QString function = gclsOF->CurrentFunction();
  AnswerWith(Other);
  Click("cmdFindLibrary");
  EXPECT_EQ(Text("txtOstanaLibrary"), "OTHER");
  EXPECT_EQ(gclsOF->LibraryId(), Own);
  EXPECT_EQ(gclsOF->CurrentFunction(), function);
  AnswerWith(0);
  Click("cmdFindLibrary");
  EXPECT_EQ(Text("txtOstanaLibrary"), "");
  // The list still belongs to the library that it was opened for.
  Click("cmdDelete");
  Prompt().Expect("Settings updated.", 64);
  Statements();
  Click("cmdClose");
  EXPECT_EQ(Writing().value(0), "DELETE FROM ID_NCIP_LIBRARY WHERE LIBRARY_ID = 202");
}

TEST_F(NCIPListsTest, FindLibraryWithoutTheRightIsRefused) {
  OpenMapping();
  Another("DELETE FROM ID_USER_FUNCTION WHERE FUNCTION_NAME = 'Library Registration'");
  Prompt().ExpectTitled("You do not have access to this function", 16, "Ostana - NCIP Unit Library Mapping");
  const QString before = Text("txtOstanaLibrary");
  Click("cmdFindLibrary");
  EXPECT_EQ(Text("txtOstanaLibrary"), before);
  EXPECT_EQ(gclsOF->LibraryId(), Own);
}

// --- Keyboard and looks ---

TEST_F(NCIPListsTest, TabGoesThroughTheFieldsInReadingOrder) {
  OpenStatus();
  EXPECT_EQ(Focus(), "txtNCIPStatusCode");
  EXPECT_EQ(TabStops("txtNCIPStatusCode", 9),
            (QStringList{"txtNCIPStatusCode", "rdAllowILLYes", "grdNCIPStatusCodes", "cmdAdd", "cmdUpdate", "cmdDelete",
                         "cmdClear", "cmdCancel", "cmdClose"}));
  Click("cmdCancel");
  OpenMapping();
  EXPECT_EQ(Focus(), "txtNCIPLibrary");
  EXPECT_EQ(TabStops("txtNCIPLibrary", 5),
            (QStringList{"txtNCIPLibrary", "txtOstanaLibrary", "cmdFindLibrary", "grdLibraryMapping", "cmdAdd"}));
}

TEST_F(NCIPListsTest, PicturesOfThem) {
  OpenStatus();
  Picture("frmNCIPStatusCodes-rows");
  Click("cmdCancel");
  OpenMapping();
  Picture("frmNCIPUnitLibraryMapping-rows");
}

}  // namespace
