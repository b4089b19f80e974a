#include "reference/ReferenceDesk.h"

namespace {

const QString Form = "frmGeneralMessages";
const QString Table = "grdGeneralMessage";
const QString KeyIsFixed =
    "To change the Code or Library Symbol you must delete the current record and add it back in with the new code.";
const QString NoLibrary = "Please enter a Valid Library Symbol.";
constexpr int Library = 1, Code = 2, Description = 3, Subject = 4, Message = 5;

class GeneralMessagesTest : public ReferenceDesk {
 protected:
  void SetUp() override {
    ReferenceDesk::SetUp();
    for (const auto& [id, symbol] : {std::pair(101, "ALPHA"), std::pair(102, "BETA"), std::pair(103, "GAMMA")})
      Another(QString("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (%1, '%2', '%2')")
                  .arg(id)
                  .arg(symbol));
    Another("DELETE FROM ID_GENERAL_MESSAGE");
    Insert(102, "A", "Arrived", "Arrival", "It is here.");
    Insert(101, "A", "Greeting", "Hello", "Good morning.");
    Insert(101, "B", "Farewell", "Bye", "Good night.");
  }
  void Insert(int library, const QString& code, const QString& description, const QString& subject,
              const QString& message) {
    Another(QString("INSERT INTO ID_GENERAL_MESSAGE VALUES (%1, '%2', '%3', '%4', '%5')")
                .arg(library)
                .arg(code, description, subject, message));
  }
  void OpenIt() {
    Open(Form);
    Statements();
  }
  void Enter(const QString& library, const QString& code, const QString& description, const QString& subject,
             const QString& message) {
    Type("txtLibrarySymbol", library);
    Type("txtCode", code);
    Type("txtDescription", description);
    Type("txtSubject", subject);
    Type("txtMessage", message);
  }
  std::string ColumnOf(const QString& column, int library, const QString& code) {
    return Told(QString("SELECT %1 FROM ID_GENERAL_MESSAGE WHERE LIBRARY_ID = %2 AND GENERAL_MESSAGE = '%3'")
                    .arg(column)
                    .arg(library)
                    .arg(code));
  }
  void SelectMessage(const QString& library, const QString& code) {
    SelectRow(Table, Find<Grid>(Table)->FindRow({{Library, library}, {Code, code}}));
  }
};

// --- Load and filter ---

TEST_F(GeneralMessagesTest, ShowsAllLibrariesFirst) {
  Open(Form);
  const QString statements = Statements().join('\n');
  EXPECT_TRUE(
      statements.contains("SELECT   DISTINCT LIBRARY_SYMBOL FROM ID_LIBRARY WHERE    LIBRARY_ID IN          "
                          "(SELECT LIBRARY_ID FROM ID_GENERAL_MESSAGE)"));
  EXPECT_TRUE(statements.endsWith("ORDER BY L.LIBRARY_SYMBOL"));
  EXPECT_EQ(Window()->windowTitle().toStdString(), "Ostana - General Messages");
  EXPECT_EQ(Shown("cmbShowMessages"), "All libraries");
  EXPECT_EQ(Find<CodeComboBox>("cmbShowMessages")->Count(), 3) << "a library without messages is not offered";
  EXPECT_EQ(Rows(Table), 4);
  EXPECT_EQ(Shown("txtLibrarySymbol"), "ALPHA");
  Picture("frmGeneralMessages");
}

TEST_F(GeneralMessagesTest, FilterShowsOneLibraryAndGoesBack) {
  OpenIt();
  Choose("cmbShowMessages", "ALPHA");
  EXPECT_TRUE(Statements().last().endsWith("AND LIBRARY_SYMBOL='ALPHA' ORDER BY GENERAL_MESSAGE"));
  EXPECT_EQ(Rows(Table), 3);
  EXPECT_EQ(At(Table, 1, Code), "A");
  EXPECT_EQ(Shown("txtDescription"), "Greeting");
  Choose("cmbShowMessages", "All libraries");
  EXPECT_EQ(Rows(Table), 4);
  EXPECT_EQ(Shown("cmbShowMessages"), "All libraries");
}

TEST_F(GeneralMessagesTest, FilterRefusesALibraryThatIsGone) {
  OpenIt();
  Another("UPDATE ID_LIBRARY SET LIBRARY_SYMBOL = 'OMEGA' WHERE LIBRARY_ID = 101");
  Prompt().Expect(NoLibrary, Say::Warning);
  Choose("cmbShowMessages", "ALPHA");
  EXPECT_EQ(Rows(Table), 4);
}

TEST_F(GeneralMessagesTest, FilterFailure) {
  OpenIt();
  Another("DROP TABLE ID_GENERAL_MESSAGE");
  Prompt().ExpectStart("An error has occurred.  Please Notify Support.\n\n", Say::Stop);
  Choose("cmbShowMessages", "ALPHA");
  EXPECT_TRUE(Logged("***** SQL error on ID_GENERAL_MESSAGE (Select) *****"));
}

TEST_F(GeneralMessagesTest, CodeIsUpperCased) {
  OpenIt();
  Type("txtCode", "xy");
  EXPECT_EQ(Shown("txtCode"), "X");
}

// --- Add ---

TEST_F(GeneralMessagesTest, AddTestsInOrder) {
  OpenIt();
  const auto refused = [this](const QString& text, int style, const QString& focus) {
    Prompt().Expect(text, style);
    Click("cmdAdd");
    EXPECT_EQ(Focus().toStdString(), focus.toStdString());
  };
  Enter("NOWHERE", " ", " ", "", " ");
  refused("Code is a required field.", Say::Stop, "txtCode");
  Type("txtCode", "c");
  refused("Description is a required field.", Say::Stop, "txtDescription");
  Type("txtDescription", "Farewell");
  refused("Message is a required field.", Say::Stop, "txtMessage");
  Type("txtMessage", "Text");
  refused(NoLibrary, Say::Warning, "txtLibrarySymbol");
  Type("txtLibrarySymbol", "ALPHA");
  refused("This Description already exists.", Say::Stop, "txtDescription");
  Type("txtDescription", "New");
  Type("txtCode", "B");
  refused("This Code already exists.", Say::Stop, "txtCode");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(GeneralMessagesTest, SameCodeAndDescriptionForTwoLibraries) {
  OpenIt();
  Enter("BETA", "b", "Farewell", "Bye", "See you.");
  Prompt().Expect(Say::Added, Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(Count("ID_GENERAL_MESSAGE", "GENERAL_MESSAGE = 'B'"), 2);
  ExpectInStep(Form, Table);
}

TEST_F(GeneralMessagesTest, AddWritesPlainLiteralsAndAnEmptySubject) {
  OpenIt();
  Enter("GAMMA", "q", "Quote's", "", "Line 'one'\nline two \\ -- ; 😀");
  Prompt().Expect(Say::Added, Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(Wrote(),
            "INSERT INTO ID_GENERAL_MESSAGE (LIBRARY_ID, GENERAL_MESSAGE, GENERAL_MESSAGE_DESC, GENERAL_MESSAGE_SUB, "
            "GENERAL_MESSAGE_MSG) VALUES(103, 'Q', 'Quote''s', '', 'Line ''one''\nline two \\ -- ; 😀')");
  EXPECT_EQ(Count("ID_GENERAL_MESSAGE", "GENERAL_MESSAGE_SUB = '' AND LIBRARY_ID = 103"), 1);
  EXPECT_EQ(ColumnOf("GENERAL_MESSAGE_MSG", 103, "Q"), "Line 'one'\nline two \\ -- ; 😀");
  EXPECT_EQ(Row(Table), 4);
  ExpectInStep(Form, Table);
}

TEST_F(GeneralMessagesTest, MessageHoldsAThousandCharacters) {
  OpenIt();
  SelectMessage("ALPHA", "A");  // the statement orders by the library alone
  const QString text = "It's\n" + QString("\\ '%1'\n").arg("😀").repeated(20) + QString(1000, 'x');
  Paste("txtMessage", text);
  EXPECT_EQ(Text("txtMessage").size(), 1000);
  Append("txtMessage", "y");
  EXPECT_EQ(Text("txtMessage").size(), 1000);
  const QString kept = Text("txtMessage");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(ColumnOf("GENERAL_MESSAGE_MSG", 101, "A"), kept.toStdString());
  ExpectInStep(Form, Table);
}

TEST_F(GeneralMessagesTest, DuplicateThatTheGridDoesNotShowIsRefusedByTheDatabase) {
  OpenIt();
  Choose("cmbShowMessages", "ALPHA");
  Enter("BETA", "A", "Other", "", "Text");
  Prompt().ExpectStart("Unable to Add a new record.\n\n", Say::Stop);
  Click("cmdAdd");
  EXPECT_TRUE(Prompt().Shown().last().contains("duplicate", Qt::CaseInsensitive));
  EXPECT_EQ(Focus().toStdString(), "txtCode");
  EXPECT_TRUE(Logged("frmGeneralMessages.cmdAdd_Click"));
  EXPECT_TRUE(Logged("***** SQL error on ID_GENERAL_MESSAGE (Insert) *****"));
}

// --- Update ---

TEST_F(GeneralMessagesTest, UpdateWithoutAChange) {
  OpenIt();
  Prompt().Expect(Say::Nothing, Say::Stop);
  Click("cmdUpdate");
}

TEST_F(GeneralMessagesTest, UpdateTestsInOrder) {
  OpenIt();
  SelectMessage("ALPHA", "A");
  const auto refused = [this](const QString& text, int style) {
    Prompt().Expect(text, style);
    Click("cmdUpdate");
  };
  Type("txtMessage", "");
  refused("Message is a required field.", Say::Stop);
  Type("txtMessage", "Text");
  Type("txtCode", "B");
  refused(KeyIsFixed, Say::Stop);
  Type("txtCode", "A");
  Type("txtLibrarySymbol", "BETA");
  refused(KeyIsFixed, Say::Stop);
  Type("txtLibrarySymbol", "ALPHA");
  Type("txtDescription", "Farewell");
  refused("Description already exists for this Library Symbol.", Say::Stop);
  Type("txtDescription", "Arrived");
  Another("UPDATE ID_LIBRARY SET LIBRARY_SYMBOL = 'OMEGA' WHERE LIBRARY_ID = 101");
  refused(NoLibrary, Say::Warning);
  EXPECT_EQ(Wrote(), "");
}

TEST_F(GeneralMessagesTest, UpdateWritesPlainLiteralsLibraryFirst) {
  OpenIt();
  SelectMessage("ALPHA", "A");
  Type("txtDescription", "Arrived");
  Type("txtSubject", "");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(),
            "UPDATE ID_GENERAL_MESSAGE SET      GENERAL_MESSAGE = 'A', GENERAL_MESSAGE_SUB = '', "
            "GENERAL_MESSAGE_DESC = 'Arrived', GENERAL_MESSAGE_MSG = 'Good morning.' "
            "WHERE    LIBRARY_ID = 101 AND      GENERAL_MESSAGE = 'A'");
  ExpectInStep(Form, Table);
}

TEST_F(GeneralMessagesTest, LeavingAnEditedRowUpdatesIt) {
  OpenIt();
  SelectMessage("ALPHA", "B");
  Type("txtSubject", "Good bye");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(Say::Updated, Say::Info);
  SelectMessage("BETA", "A");
  EXPECT_EQ(ColumnOf("GENERAL_MESSAGE_SUB", 101, "B"), "Good bye");
  EXPECT_EQ(ColumnOf("GENERAL_MESSAGE_SUB", 102, "A"), "Arrival");
  EXPECT_EQ(Shown("txtDescription"), "Arrived");
  ExpectInStep(Form, Table);
}

TEST_F(GeneralMessagesTest, RefusedUpdateShowsTheNewRowAllTheSame) {
  OpenIt();
  SelectMessage("ALPHA", "B");
  Type("txtDescription", "");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect("Description is a required field.", Say::Stop);
  SelectMessage("BETA", "A");
  EXPECT_EQ(Shown("txtDescription"), "Arrived");
  Prompt().Expect(Say::Nothing, Say::Stop);
  Click("cmdUpdate");
  ExpectInStep(Form, Table);
}

TEST_F(GeneralMessagesTest, UpdateAfterASortWritesTheRecordOnScreen) {
  OpenIt();
  SelectMessage("BETA", "A");
  SortBy(Table, Description);
  Type("txtSubject", "Sorted");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(ColumnOf("GENERAL_MESSAGE_SUB", 102, "A"), "Sorted");
  ExpectInStep(Form, Table);
}

TEST_F(GeneralMessagesTest, UpdateOfADeletedRowIsNoSuccess) {
  OpenIt();
  Append("txtSubject", "!");
  Another("DELETE FROM ID_GENERAL_MESSAGE");
  Prompt().Expect("This code does not exist in the table. Please select a valid code to update.", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Focus().toStdString(), "txtCode");
}

// --- Close ---

TEST_F(GeneralMessagesTest, CloseSetsTheLibraryAndTurnsTheWhereRound) {
  OpenIt();
  SelectMessage("ALPHA", "A");
  Type("txtSubject", "It's me");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(Say::Updated, Say::Info);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Wrote(),
            "UPDATE ID_GENERAL_MESSAGE SET      LIBRARY_ID = 101, GENERAL_MESSAGE = 'A', "
            "GENERAL_MESSAGE_SUB = 'It''s me', GENERAL_MESSAGE_DESC = 'Greeting', "
            "GENERAL_MESSAGE_MSG = 'Good morning.' WHERE    GENERAL_MESSAGE = 'A'         AND LIBRARY_ID = 101");
}

TEST_F(GeneralMessagesTest, CloseTakesTheLibraryThatTheSymbolNames) {
  OpenIt();
  SelectMessage("ALPHA", "A");
  Type("txtLibrarySymbol", "BETA");
  Type("txtDescription", "A description of its own");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(Say::Updated, Say::Info);
  Click("cmdClose");
  const QString wrote = QString::fromStdString(Wrote());
  EXPECT_TRUE(wrote.contains("SET      LIBRARY_ID = 102, "));
  EXPECT_TRUE(wrote.endsWith("AND LIBRARY_ID = 102"));
}

// The row of the code and library that were typed is overwritten: its description is the one that may be the same.
TEST_F(GeneralMessagesTest, CloseMeasuresTheDescriptionAgainstTheRowThatItWrites) {
  OpenIt();
  SelectMessage("ALPHA", "A");
  Type("txtLibrarySymbol", "BETA");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes);
  Prompt().Expect("Description already exists in table.", Say::Stop);
  Click("cmdClose");
  EXPECT_TRUE(IsOpen());
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(GeneralMessagesTest, CloseTestsOfItsOwnKeepTheFormOpen) {
  OpenIt();
  SelectMessage("ALPHA", "A");
  const auto refused = [this](const QString& text, int style) {
    Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(text, style);
    Click("cmdClose");
    EXPECT_TRUE(IsOpen());
  };
  Type("txtCode", "Z");
  refused(Say::NoSuchCode, Say::Stop);
  // The description of another library's row, which Update would let pass.
  Type("txtCode", "A");
  Type("txtDescription", "Arrived");
  refused("Description already exists in table.", Say::Stop);
  Type("txtDescription", "");
  refused("Description is a required field.", Say::Stop);
  Type("txtDescription", "Free");
  Type("txtLibrarySymbol", "NOWHERE");
  refused(NoLibrary, Say::Warning);
  EXPECT_EQ(Wrote(), "");
}

TEST_F(GeneralMessagesTest, CloseAnsweredWithNoLeavesTheTable) {
  OpenIt();
  Append("txtSubject", "!");
  Prompt().Expect(Say::Modified, Say::Question, Say::No);
  Press("txtSubject", Qt::Key_Escape);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Wrote(), "");
}

TEST_F(GeneralMessagesTest, CloseThatFailsStaysOpen) {
  OpenIt();
  Append("txtSubject", "!");
  Another("DROP TABLE ID_GENERAL_MESSAGE");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes);
  Prompt().Expect("***** SQL error on ID_GENERAL_MESSAGE (Update) *****", Say::Stop);
  Click("cmdClose");
  EXPECT_TRUE(IsOpen());
}

// --- Delete ---

TEST_F(GeneralMessagesTest, DeleteAsksWithNoAsDefault) {
  OpenIt();
  Prompt().Expect(Say::Delete, Say::QuestionNoFirst, Say::No);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_GENERAL_MESSAGE"), 3);
}

TEST_F(GeneralMessagesTest, DeleteOfOneOfTwoEqualCodes) {
  OpenIt();
  SelectMessage("BETA", "A");
  Prompt().Expect(Say::Delete, Say::QuestionNoFirst, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), "DELETE FROM ID_GENERAL_MESSAGE WHERE   GENERAL_MESSAGE = 'A'        AND LIBRARY_ID=102");
  EXPECT_EQ(Shown("txtDescription"), At(Table, 1, Description));
  ExpectInStep(Form, Table);
}

TEST_F(GeneralMessagesTest, DeleteTestsTheSymbolAndTakesTheRowOnScreen) {
  OpenIt();
  SelectMessage("ALPHA", "B");
  Type("txtLibrarySymbol", "NOWHERE");
  Prompt().Expect(Say::Delete, Say::QuestionNoFirst, Say::Yes).Expect(NoLibrary, Say::Warning);
  Click("cmdDelete");
  EXPECT_EQ(Focus().toStdString(), "txtLibrarySymbol");
  Type("txtLibrarySymbol", "BETA");
  Type("txtCode", "A");
  Prompt().Expect(Say::Delete, Say::QuestionNoFirst, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), "DELETE FROM ID_GENERAL_MESSAGE WHERE   GENERAL_MESSAGE = 'B'        AND LIBRARY_ID=101");
  ExpectInStep(Form, Table);
}

TEST_F(GeneralMessagesTest, NothingToDelete) {
  Another("DELETE FROM ID_GENERAL_MESSAGE WHERE LIBRARY_ID = 101");
  OpenIt();
  Prompt().Expect(Say::Delete, Say::QuestionNoFirst, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Shown("txtCode"), "");
  EXPECT_EQ(Shown("txtMessage"), "");
  Prompt().Expect("There are no records to delete.", Say::Stop);
  Click("cmdDelete");
  Append("txtSubject", "!");
  Enter("ALPHA", "A", "D", "", "M");
  Prompt().Expect(KeyIsFixed, Say::Stop);
  Click("cmdUpdate");
}

TEST_F(GeneralMessagesTest, DeleteThatFailsKeepsTheRow) {
  OpenIt();
  Another("DROP TABLE ID_GENERAL_MESSAGE");
  Prompt().Expect(Say::Delete, Say::QuestionNoFirst, Say::Yes);
  Prompt().Expect("***** SQL error on ID_GENERAL_MESSAGE (Delete) *****", Say::Stop);
  Click("cmdDelete");
  EXPECT_EQ(Rows(Table), 4);
}

}  // namespace
