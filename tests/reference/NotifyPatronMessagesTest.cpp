#include "reference/ReferenceDesk.h"

namespace {

const QString Form = "frmNotifyPatronMessages";
const QString Table = "grdPatronMessage";
const QString KeyIsFixed =
    "To change the Code or Library Symbol you must delete the current record and add it back in with the new code.";
const QString NoLibrary = "Please enter a Valid Library Symbol.";
const QString None = "(None)";
constexpr int Library = 1, Code = 2, Hold = 4, Responded = 5, Message = 7, Response = 8, Document = 9, Exception = 10;

class NotifyPatronMessagesTest : public ReferenceDesk {
 protected:
  void SetUp() override {
    ReferenceDesk::SetUp();
    for (const auto& [id, symbol] : {std::pair(101, "ALPHA"), std::pair(102, "BETA"), std::pair(103, "GAMMA")})
      Another(QString("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (%1, '%2', '%2')")
                  .arg(id)
                  .arg(symbol));
    Another("DELETE FROM ID_PATRON_MESSAGE");
    Another("DELETE FROM ID_EVENT");
    for (const auto& [id, text] :
         {std::pair(0, "No queue"), std::pair(1000, "New requests"), std::pair(1010, "To check"),
          std::pair(1020, "Incomplete"), std::pair(2000, "Search")})
      Another(QString("INSERT INTO ID_EVENT (EVENT_ID, EVENT_DESC) VALUES (%1, '%2')").arg(id).arg(text));
    Another("DELETE FROM ID_EXCEPTION_ISO");
    Another("DELETE FROM ID_EXCEPTION_CODE");
    AddRejectCode("ONL", "On loan");
    AddRejectCode("LOS", "Lost");
    Insert("102, 'A', 'Arrived', NULL, 'Arrival', 'It is here.', 'N', 'N', NULL, NULL");
    Insert("101, 'A', 'Asked', 1010, 'Question', 'Do you want it?', 'Y', 'N', 1020, 'ONL'");
    Insert("101, 'B', 'Bill', 2000, 'Bill', 'Please pay.', 'N', 'N', NULL, NULL");
  }
  void AddRejectCode(const QString& code, const QString& description) {
    Another("INSERT INTO ID_EXCEPTION_CODE (EXCEPTION_CODE, EXCEPTION_CODE_DESC) VALUES ('" + code + "', '" +
            description + "')");
  }
  void Insert(const QString& values) {
    Another(
        "INSERT INTO ID_PATRON_MESSAGE (LIBRARY_ID, PATRON_MESSAGE, PATRON_MESSAGE_DESC, PATRON_MESSAGE_EVENT_ID, "
        "PATRON_MESSAGE_SUB, PATRON_MESSAGE_MSG, PATRON_MESSAGE_RESPONSE, PATRON_MESSAGE_DOCUMENT, "
        "PATRON_RESPONSE_EVENT_ID, PATRON_RESPONSE_EXCEPTION) VALUES (" +
        values + ")");
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
  void SelectMessage(const QString& library, const QString& code) {
    SelectRow(Table, Find<Grid>(Table)->FindRow({{Library, library}, {Code, code}}));
  }
  std::string ColumnOf(const QString& column, int library, const QString& code) {
    return Told(QString("SELECT %1 FROM ID_PATRON_MESSAGE WHERE LIBRARY_ID = %2 AND PATRON_MESSAGE = '%3'")
                    .arg(column)
                    .arg(library)
                    .arg(code));
  }
  void ExpectQueues(bool enabled) {
    for (const char* name : {"lblHoldQueue", "cmbHoldQueue", "lblRespondedQueue", "cmbRespondedQueue",
                             "lblExceptionCode", "cmbExceptionCode"})
      EXPECT_EQ(IsEnabled(name), enabled) << name;
  }
  QStringList EntriesOf(const QString& name) {
    QStringList entries;
    auto* const box = Find<CodeComboBox>(name);
    for (int index = 0; index < box->Count(); ++index) entries.append(box->TextAt(index));
    return entries;
  }
  void Refused(const QString& button, const QString& text, const QString& focus, int style = Say::Stop) {
    Prompt().Expect(text, style);
    Click(button);
    EXPECT_EQ(Focus().toStdString(), focus.toStdString());
  }
};

// --- Load ---

TEST_F(NotifyPatronMessagesTest, LoadReadsInOrderAndLogsIt) {
  Open(Form);
  const QString statements = Statements().join('\n');
  EXPECT_TRUE(
      statements.contains("SELECT   DISTINCT LIBRARY_SYMBOL FROM ID_LIBRARY WHERE    LIBRARY_ID IN          "
                          "(SELECT LIBRARY_ID FROM ID_PATRON_MESSAGE)"));
  EXPECT_TRUE(statements.contains("EVENT_ID > 0 ORDER BY EVENT_ID"));
  EXPECT_TRUE(statements.contains(
      "SELECT   EXCEPTION_CODE, EXCEPTION_CODE_DESC FROM ID_EXCEPTION_CODE ORDER    BY EXCEPTION_CODE_DESC"));
  EXPECT_TRUE(statements.endsWith("ORDER BY L.LIBRARY_SYMBOL, PM.PATRON_MESSAGE"));
  EXPECT_TRUE(Logged("frmNotifyPatronMessages.PopulateForm - Start"));
  EXPECT_TRUE(Logged("frmNotifyPatronMessages.PopulateForm - Reading 3 rows."));
  EXPECT_TRUE(Logged("frmNotifyPatronMessages.PopulateForm - End"));
  EXPECT_EQ(Window()->windowTitle().toStdString(), "Ostana - Notify Patron Messages");
  EXPECT_EQ(Shown("cmbShowMessages"), "All libraries");
  EXPECT_EQ(EntriesOf("cmbShowMessages").join(',').toStdString(), "All libraries,ALPHA,BETA");
  EXPECT_EQ(Shown("txtLibrarySymbol"), "ALPHA");
  EXPECT_EQ(Shown("cmbHoldQueue"), "To check");
  EXPECT_EQ(Shown("cmbRespondedQueue"), "Incomplete");
  EXPECT_EQ(Shown("cmbExceptionCode"), "On loan");
  EXPECT_TRUE(IsChecked("rdResponseRequiredYes"));
  EXPECT_TRUE(IsChecked("rdDocumentRequiredNo"));
  Picture("frmNotifyPatronMessages");
}

TEST_F(NotifyPatronMessagesTest, ListsHoldNoGroupHeadsAndNoEventZero) {
  OpenIt();
  EXPECT_EQ(EntriesOf("cmbHoldQueue").join(',').toStdString(), "(None),To check,Incomplete");
  EXPECT_EQ(EntriesOf("cmbRespondedQueue").join(',').toStdString(), "(None),To check,Incomplete");
  EXPECT_EQ(EntriesOf("cmbExceptionCode").join(',').toStdString(), "(None),Lost,On loan");
}

TEST_F(NotifyPatronMessagesTest, StoredRowWithAGroupHeadShowsNone) {
  OpenIt();
  const int row = Find<Grid>(Table)->FindRow({{Library, "ALPHA"}, {Code, "B"}});
  EXPECT_EQ(At(Table, row, Hold), "(None)");
}

TEST_F(NotifyPatronMessagesTest, EqualEventDescriptionsAreToldAndLeftOut) {
  Another("INSERT INTO ID_EVENT (EVENT_ID, EVENT_DESC) VALUES (3010, 'To check')");
  Prompt().Expect(
      "There is a duplicate event description in the RequestFlow table.\n\n3010 - To check\n\nThis event will not "
      "display in the list of valid Queues.",
      Say::Stop);
  OpenIt();
  EXPECT_EQ(EntriesOf("cmbHoldQueue").join(',').toStdString(), "(None),To check,Incomplete");
  EXPECT_EQ(Find<CodeComboBox>("cmbRespondedQueue")->CodeOf("To check").toStdString(), "1010");
  EXPECT_EQ(Rows(Table), 4) << "the load goes on";
}

TEST_F(NotifyPatronMessagesTest, EqualRejectDescriptionsAreToldAndLeftOut) {
  AddRejectCode("ZZZ", "On loan");
  Prompt().ExpectStart("There is a duplicate description in the Exception Code table.\n\n", Say::Stop);
  OpenIt();
  EXPECT_TRUE(
      Prompt().Shown().last().endsWith(" - On loan\n\nThis code will not display in the list of valid Reject codes."));
  EXPECT_EQ(EntriesOf("cmbExceptionCode").join(',').toStdString(), "(None),Lost,On loan");
}

TEST_F(NotifyPatronMessagesTest, FollowsTheWorkingLanguage) {
  Another("UPDATE ID_PATRON_MESSAGE SET PATRON_MESSAGE_DESC_FRE = 'Question posée'");
  Another("UPDATE ID_EVENT SET EVENT_DESC_FRE = 'file ' || EVENT_DESC");
  Another("UPDATE ID_EXCEPTION_CODE SET EXCEPTION_CODE_DESC_FRE = 'Perdu' WHERE EXCEPTION_CODE = 'LOS'");
  Another("UPDATE ID_EXCEPTION_CODE SET EXCEPTION_CODE_DESC_FRE = 'En main' WHERE EXCEPTION_CODE = 'ONL'");
  gclsOF->SetLanguageSuffix("_FRE");
  OpenIt();
  EXPECT_EQ(Shown("txtDescription"), "Question posée");
  EXPECT_EQ(Shown("cmbHoldQueue"), "file To check");
  EXPECT_EQ(Shown("cmbExceptionCode"), "En main");
  Type("txtDescription", "Demande");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_TRUE(QString::fromStdString(Wrote()).contains("PATRON_MESSAGE_DESC_FRE = N'Demande'"));
  EXPECT_EQ(ColumnOf("PATRON_MESSAGE_DESC", 101, "A"), "Asked");
}

TEST_F(NotifyPatronMessagesTest, LoadFailure) {
  Another("DROP TABLE ID_PATRON_MESSAGE");
  Prompt().ExpectStart("An error has occurred loading the form.  Please Notify Support.\n\n", Say::Stop);
  Open(Form);
}

TEST_F(NotifyPatronMessagesTest, EmptyTableStartsWithNo) {
  Another("DELETE FROM ID_PATRON_MESSAGE");
  OpenIt();
  EXPECT_TRUE(IsChecked("rdResponseRequiredNo"));
  EXPECT_TRUE(IsChecked("rdDocumentRequiredNo"));
  ExpectQueues(false);
  EXPECT_EQ(EntriesOf("cmbShowMessages").size(), 1);
}

// --- Filter ---

TEST_F(NotifyPatronMessagesTest, FilterShowsOneLibraryAndGoesBack) {
  OpenIt();
  Choose("cmbShowMessages", "ALPHA");
  EXPECT_TRUE(Statements().last().endsWith("AND LIBRARY_SYMBOL='ALPHA' ORDER BY PATRON_MESSAGE"));
  EXPECT_EQ(Rows(Table), 3);
  EXPECT_EQ(At(Table, 1, Exception), "On loan");
  Choose("cmbShowMessages", "BETA");
  EXPECT_EQ(Rows(Table), 2);
  EXPECT_EQ(Shown("txtDescription"), "Arrived");
  ExpectQueues(false);
  Choose("cmbShowMessages", "All libraries");
  EXPECT_EQ(Rows(Table), 4);
}

TEST_F(NotifyPatronMessagesTest, FilterRefusesALibraryThatIsGone) {
  OpenIt();
  Another("UPDATE ID_LIBRARY SET LIBRARY_SYMBOL = 'OMEGA' WHERE LIBRARY_ID = 101");
  Prompt().Expect(NoLibrary, Say::Warning);
  Choose("cmbShowMessages", "ALPHA");
  EXPECT_EQ(Rows(Table), 4);
}

TEST_F(NotifyPatronMessagesTest, FilterFailure) {
  OpenIt();
  Another("DROP TABLE ID_PATRON_MESSAGE");
  Prompt().ExpectStart("An error has occurred.  Please Notify Support.\n\n", Say::Stop);
  Choose("cmbShowMessages", "ALPHA");
}

TEST_F(NotifyPatronMessagesTest, DuplicateOfAHiddenLibraryIsRefusedByTheDatabase) {
  OpenIt();
  Choose("cmbShowMessages", "ALPHA");
  Enter("BETA", "A", "Other", "S", "M");
  Click("rdResponseRequiredNo");
  Prompt().ExpectStart("Unable to Add a new record.\n\n", Say::Stop);
  Click("cmdAdd");
  EXPECT_TRUE(Prompt().Shown().last().contains("duplicate", Qt::CaseInsensitive));
  EXPECT_EQ(Focus().toStdString(), "txtCode");
  EXPECT_TRUE(Logged("frmNotifyPatronMessages.cmdAdd_Click"));
  EXPECT_TRUE(Logged("***** SQL error on ID_PATRON_MESSAGE (Insert) *****"));
}

// --- The dependent lists ---

TEST_F(NotifyPatronMessagesTest, ListsAreOfUseOnlyWhenSomethingIsRequired) {
  OpenIt();
  ExpectQueues(true);
  Click("rdDocumentRequiredYes");
  Click("rdResponseRequiredNo");
  ExpectQueues(true);
  EXPECT_EQ(Shown("cmbHoldQueue"), "To check");
  Click("rdDocumentRequiredNo");
  ExpectQueues(false);
  for (const char* name : {"cmbHoldQueue", "cmbRespondedQueue", "cmbExceptionCode"}) EXPECT_EQ(Shown(name), "(None)");
  Click("rdDocumentRequiredYes");
  ExpectQueues(true);
  EXPECT_EQ(Shown("cmbHoldQueue"), "(None)");
}

TEST_F(NotifyPatronMessagesTest, SelectedRowSetsOptionsAndLists) {
  Insert("103, 'D', 'Document', 1010, 'S', 'M', 'N', 'Y', NULL, 'LOS'");
  OpenIt();
  SelectMessage("BETA", "A");
  ExpectQueues(false);
  SelectMessage("GAMMA", "D");
  ExpectQueues(true);
  EXPECT_TRUE(IsChecked("rdResponseRequiredNo"));
  EXPECT_TRUE(IsChecked("rdDocumentRequiredYes"));
  EXPECT_EQ(Shown("cmbHoldQueue"), "To check");
  EXPECT_EQ(Shown("cmbRespondedQueue"), "(None)");
  EXPECT_EQ(Shown("cmbExceptionCode"), "Lost");
}

TEST_F(NotifyPatronMessagesTest, EveryControlMarksTheRecord) {
  OpenIt();
  const std::vector<std::function<void()>> edits = {
      [this] { Append("txtLibrarySymbol", "x"); },  [this] { Type("txtCode", "x"); },
      [this] { Append("txtDescription", "x"); },    [this] { Append("txtSubject", "x"); },
      [this] { Append("txtMessage", "x"); },        [this] { Click("rdResponseRequiredYes"); },
      [this] { Click("rdDocumentRequiredYes"); },   [this] { ChooseAt("cmbHoldQueue", 0); },
      [this] { ChooseAt("cmbRespondedQueue", 0); }, [this] { ChooseAt("cmbExceptionCode", 1); }};
  for (const auto& edit : edits) {
    SelectMessage("ALPHA", "A");
    edit();
    Prompt().Expect(Say::Modified, Say::Question, Say::No);
    SelectMessage("BETA", "A");
  }
}

// --- Add ---

TEST_F(NotifyPatronMessagesTest, AddNamesTheEmptyFieldByItsLabel) {
  OpenIt();
  Enter("NOWHERE", " ", " ", " ", " ");
  Click("rdDocumentRequiredYes");
  ChooseAt("cmbExceptionCode", 0);
  Refused("cmdAdd", "Code: is a required field.", "txtCode");
  Type("txtCode", "c");
  Refused("cmdAdd", "Description: is a required field.", "txtDescription");
  Type("txtDescription", "Bill");
  Refused("cmdAdd", "Subject: is a required field.", "txtSubject");
  Type("txtSubject", "S");
  Refused("cmdAdd", "Message: is a required field.", "txtMessage");
  Type("txtMessage", "M");
  Refused("cmdAdd", "Reject Code: is a required field.", "cmbExceptionCode");
  Choose("cmbExceptionCode", "Lost");
  Refused("cmdAdd", NoLibrary, "txtLibrarySymbol", Say::Warning);
  Type("txtLibrarySymbol", "ALPHA");
  Refused("cmdAdd", "This Description already exists.\n", "txtDescription");
  Type("txtDescription", "New");
  Type("txtCode", "B");
  Refused("cmdAdd", "This Code already exists.\n", "txtCode");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(NotifyPatronMessagesTest, AddWritesNationalLiteralsAndEveryLanguage) {
  OpenIt();
  Enter("BETA", "b", "Bill's", "Subject", "Line 'one'\nline two \\ -- 😀");
  Click("rdResponseRequiredYes");
  Click("rdDocumentRequiredNo");
  Choose("cmbHoldQueue", "Incomplete");
  Choose("cmbRespondedQueue", "To check");
  Choose("cmbExceptionCode", "Lost");
  Prompt().Expect(Say::Added, Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(
      Wrote(),
      "INSERT INTO ID_PATRON_MESSAGE (LIBRARY_ID, PATRON_MESSAGE, PATRON_MESSAGE_DESC, PATRON_MESSAGE_EVENT_ID, "
      "PATRON_MESSAGE_SUB, PATRON_MESSAGE_MSG, PATRON_MESSAGE_RESPONSE, PATRON_MESSAGE_DOCUMENT, "
      "PATRON_RESPONSE_EVENT_ID, PATRON_RESPONSE_EXCEPTION, PATRON_MESSAGE_DESC_ENG, PATRON_MESSAGE_DESC_FRE, "
      "PATRON_MESSAGE_DESC_GER) VALUES(102, N'B', N'Bill''s', 1020, N'Subject', N'Line ''one''\nline two \\ -- 😀', "
      "N'Y', N'N', 1010, N'LOS', N'Bill''s', N'Bill''s', N'Bill''s')");
  EXPECT_EQ(ColumnOf("PATRON_MESSAGE_MSG", 102, "B"), "Line 'one'\nline two \\ -- 😀");
  EXPECT_EQ(Row(Table), 4);
  EXPECT_EQ(At(Table, 4, Hold), "Incomplete");
  EXPECT_EQ(At(Table, 4, Responded), "To check");
  EXPECT_EQ(At(Table, 4, Response), "Y");
  EXPECT_EQ(At(Table, 4, Document), "N");
  ExpectInStep(Form, Table);
}

TEST_F(NotifyPatronMessagesTest, NothingRequiredStoresNullInTheThreeColumns) {
  OpenIt();
  Enter("GAMMA", "n", "Nothing", "S", "M");
  Click("rdResponseRequiredNo");
  Prompt().Expect(Say::Added, Say::Info);
  Click("cmdAdd");
  EXPECT_TRUE(
      QString::fromStdString(Wrote()).contains("N'Nothing', Null, N'S', N'M', N'N', N'N', Null, Null, N'Nothing'"));
  EXPECT_EQ(Count("ID_PATRON_MESSAGE",
                  "LIBRARY_ID = 103 AND PATRON_MESSAGE_EVENT_ID IS NULL AND "
                  "PATRON_RESPONSE_EVENT_ID IS NULL AND PATRON_RESPONSE_EXCEPTION IS NULL"),
            1);
  ExpectInStep(Form, Table);
}

TEST_F(NotifyPatronMessagesTest, SameCodeForAnotherLibraryIsAllowed) {
  OpenIt();
  Enter("GAMMA", "A", "Asked", "S", "M");
  Click("rdResponseRequiredNo");
  Prompt().Expect(Say::Added, Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(Count("ID_PATRON_MESSAGE", "PATRON_MESSAGE = 'A'"), 3);
}

TEST_F(NotifyPatronMessagesTest, MessageHoldsAThousandCharacters) {
  OpenIt();
  Paste("txtMessage", "It's\n" + QString("\\ '😀'\n").repeated(20) + QString(1000, 'x'));
  EXPECT_EQ(Text("txtMessage").size(), 1000);
  Append("txtMessage", "y\n");
  const QString kept = Text("txtMessage");
  EXPECT_EQ(kept.size(), 1000);
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(ColumnOf("PATRON_MESSAGE_MSG", 101, "A"), kept.toStdString());
  EXPECT_EQ(At(Table, 1, Message), kept.toStdString());
  ExpectInStep(Form, Table);
}

// --- Update ---

TEST_F(NotifyPatronMessagesTest, UpdateWithoutAChange) {
  OpenIt();
  Prompt().Expect(Say::Nothing, Say::Stop);
  Click("cmdUpdate");
}

TEST_F(NotifyPatronMessagesTest, UpdateTestsInOrderAndRestoresTheKey) {
  OpenIt();
  Type("txtSubject", "");
  Refused("cmdUpdate", "Subject: is a required field.", "txtSubject");
  Type("txtSubject", "S");
  Type("txtCode", "Z");
  Type("txtLibrarySymbol", "BETA");
  Refused("cmdUpdate", KeyIsFixed, "txtCode");
  EXPECT_EQ(Shown("txtCode"), "A");
  EXPECT_EQ(Shown("txtLibrarySymbol"), "ALPHA");
  Type("txtDescription", "Bill");
  Refused("cmdUpdate", "Description already exists for this Library Symbol.", "txtDescription");
  Type("txtDescription", "Arrived");
  Another("UPDATE ID_LIBRARY SET LIBRARY_SYMBOL = 'OMEGA' WHERE LIBRARY_ID = 101");
  Refused("cmdUpdate", NoLibrary, "txtLibrarySymbol", Say::Warning);
  EXPECT_EQ(Wrote(), "");
}

TEST_F(NotifyPatronMessagesTest, UpdateWritesNationalLiteralsLibraryFirst) {
  OpenIt();
  Type("txtDescription", "Arrived");
  Choose("cmbRespondedQueue", None);
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(),
            "UPDATE ID_PATRON_MESSAGE SET      PATRON_MESSAGE = N'A', PATRON_MESSAGE_SUB = N'Question', "
            "PATRON_MESSAGE_EVENT_ID = 1010, PATRON_MESSAGE_DESC = N'Arrived', "
            "PATRON_MESSAGE_MSG = N'Do you want it?', PATRON_MESSAGE_RESPONSE = N'Y', PATRON_MESSAGE_DOCUMENT = N'N', "
            "PATRON_RESPONSE_EVENT_ID = Null, PATRON_RESPONSE_EXCEPTION = N'ONL' "
            "WHERE    LIBRARY_ID = 101 AND      PATRON_MESSAGE = N'A'");
  ExpectInStep(Form, Table);
}

TEST_F(NotifyPatronMessagesTest, UpdateToNothingRequiredStoresNull) {
  OpenIt();
  Click("rdResponseRequiredNo");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_TRUE(QString::fromStdString(Wrote()).contains("PATRON_RESPONSE_EXCEPTION = Null WHERE"));
  EXPECT_EQ(Count("ID_PATRON_MESSAGE", "PATRON_RESPONSE_EXCEPTION IS NULL"), 3);
  ExpectInStep(Form, Table);
}

TEST_F(NotifyPatronMessagesTest, LeavingAnEditedRowUpdatesIt) {
  OpenIt();
  Append("txtSubject", "!");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(Say::Updated, Say::Info);
  SelectMessage("BETA", "A");
  EXPECT_EQ(ColumnOf("PATRON_MESSAGE_SUB", 101, "A"), "Question!");
  EXPECT_EQ(Shown("txtDescription"), "Arrived");
  ExpectInStep(Form, Table);
}

TEST_F(NotifyPatronMessagesTest, RefusedUpdateShowsTheNewRowAllTheSame) {
  OpenIt();
  Type("txtSubject", "");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect("Subject: is a required field.", Say::Stop);
  SelectMessage("BETA", "A");
  EXPECT_EQ(Shown("txtDescription"), "Arrived");
  ExpectQueues(false);
  Prompt().Expect(Say::Nothing, Say::Stop);
  Click("cmdUpdate");
}

TEST_F(NotifyPatronMessagesTest, UpdateAfterASortWritesTheRecordOnScreen) {
  OpenIt();
  SelectMessage("BETA", "A");
  SortBy(Table, 3);
  Type("txtSubject", "Sorted");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(ColumnOf("PATRON_MESSAGE_SUB", 102, "A"), "Sorted");
  ExpectInStep(Form, Table);
}

TEST_F(NotifyPatronMessagesTest, UpdateOfADeletedRowIsNoSuccess) {
  OpenIt();
  Append("txtSubject", "!");
  Another("DELETE FROM ID_PATRON_MESSAGE");
  Prompt().Expect("This code does not exist in the table. Please select a valid code to update.", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Focus().toStdString(), "txtCode");
}

TEST_F(NotifyPatronMessagesTest, CodesThatAreInNoListAreWrittenBack) {
  Another(
      "UPDATE ID_PATRON_MESSAGE SET PATRON_MESSAGE_RESPONSE = 'Y', PATRON_MESSAGE_EVENT_ID = 1000, "
      "PATRON_RESPONSE_EVENT_ID = 2000 WHERE LIBRARY_ID = 101 AND PATRON_MESSAGE = 'A'");
  OpenIt();
  SelectMessage("ALPHA", "A");
  EXPECT_EQ(Shown("cmbHoldQueue"), "(None)");
  Append("txtSubject", "!");
  Choose("cmbExceptionCode", "Lost");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(ColumnOf("PATRON_MESSAGE_EVENT_ID", 101, "A"), "1000");
  EXPECT_EQ(ColumnOf("PATRON_RESPONSE_EVENT_ID", 101, "A"), "2000");
  // Chosen by hand, none is none.
  Choose("cmbHoldQueue", None);
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_TRUE(ColumnOf("PATRON_MESSAGE_EVENT_ID", 101, "A").empty());
}

TEST_F(NotifyPatronMessagesTest, ConnectionClosedBetweenTwoStatementsIsOpenedAgain) {
  OpenIt();
  Append("txtSubject", "!");
  gclsOF->Connection().Close();
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(ColumnOf("PATRON_MESSAGE_SUB", 101, "A"), "Question!");
}

// --- Close ---

TEST_F(NotifyPatronMessagesTest, CloseSetsTheLibraryTurnsTheWhereRoundAndQuotesNone) {
  OpenIt();
  Click("rdResponseRequiredNo");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(Say::Updated, Say::Info);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(
      Wrote(),
      "UPDATE ID_PATRON_MESSAGE SET      LIBRARY_ID = 101, PATRON_MESSAGE = N'A', PATRON_MESSAGE_SUB = N'Question', "
      "PATRON_MESSAGE_EVENT_ID = Null, PATRON_MESSAGE_DESC = N'Asked', "
      "PATRON_MESSAGE_MSG = N'Do you want it?', PATRON_MESSAGE_RESPONSE = N'N', PATRON_MESSAGE_DOCUMENT = N'N', "
      "PATRON_RESPONSE_EVENT_ID = Null, PATRON_RESPONSE_EXCEPTION = N'' "
      "WHERE    PATRON_MESSAGE = N'A'         AND LIBRARY_ID = 101");
  EXPECT_EQ(Count("ID_PATRON_MESSAGE", "PATRON_RESPONSE_EXCEPTION = ''"), 1);
  Open(Form);
  EXPECT_EQ(At(Table, 1, Exception), "(None)");
}

TEST_F(NotifyPatronMessagesTest, CloseNamesCodeAndDescriptionInFixedWords) {
  OpenIt();
  const auto refused = [this](const QString& text, int style = Say::Stop) {
    Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(text, style);
    Click("cmdClose");
    EXPECT_TRUE(IsOpen());
  };
  Enter("ALPHA", "", "", "", "");
  ChooseAt("cmbExceptionCode", 0);
  refused("Code is a required field.");
  Type("txtCode", "A");
  refused("Description is a required field.");
  Type("txtDescription", "Bill");
  refused("Subject: is a required field.");
  Type("txtSubject", "S");
  refused("Message: is a required field.");
  Type("txtMessage", "M");
  refused("Reject Code: is a required field.");
  Choose("cmbExceptionCode", "Lost");
  refused("Description already exists for this Library Symbol.");
  Type("txtDescription", "Free");
  Type("txtCode", "Z");
  refused(KeyIsFixed);
  Another("UPDATE ID_LIBRARY SET LIBRARY_SYMBOL = 'OMEGA' WHERE LIBRARY_ID = 101");
  refused(NoLibrary, Say::Warning);
  EXPECT_EQ(Wrote(), "");
}

TEST_F(NotifyPatronMessagesTest, CloseAnsweredWithNoLeavesTheTable) {
  OpenIt();
  Append("txtSubject", "!");
  Prompt().Expect(Say::Modified, Say::Question, Say::No);
  Press("txtSubject", Qt::Key_Escape);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Wrote(), "");
}

TEST_F(NotifyPatronMessagesTest, CloseThatFailsStaysOpen) {
  OpenIt();
  Append("txtSubject", "!");
  Another("DROP TABLE ID_PATRON_MESSAGE");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes);
  Prompt().Expect("An error has occurred.  Please Notify Support.", Say::Stop);
  Click("cmdClose");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Focus().toStdString(), "txtCode");
}

// --- Delete and Clear ---

TEST_F(NotifyPatronMessagesTest, DeleteAsksWithNoAsDefault) {
  OpenIt();
  Prompt().Expect(Say::Delete, Say::QuestionNoFirst, Say::No);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_PATRON_MESSAGE"), 3);
}

TEST_F(NotifyPatronMessagesTest, DeleteShowsTheFirstRow) {
  OpenIt();
  SelectMessage("BETA", "A");
  Prompt().Expect(Say::Delete, Say::QuestionNoFirst, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), "DELETE FROM ID_PATRON_MESSAGE WHERE    PATRON_MESSAGE = N'A' AND      LIBRARY_ID = 102");
  EXPECT_EQ(Row(Table), 1);
  EXPECT_EQ(Shown("txtDescription"), "Asked");
  ExpectQueues(true);
  ExpectInStep(Form, Table);
}

TEST_F(NotifyPatronMessagesTest, DeleteTestsTheSymbolAndTakesTheRowOnScreen) {
  OpenIt();
  SelectMessage("ALPHA", "B");
  Type("txtLibrarySymbol", "NOWHERE");
  Prompt().Expect(Say::Delete, Say::QuestionNoFirst, Say::Yes).Expect(NoLibrary, Say::Warning);
  Click("cmdDelete");
  Type("txtLibrarySymbol", "BETA");
  Type("txtCode", "A");
  Prompt().Expect(Say::Delete, Say::QuestionNoFirst, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), "DELETE FROM ID_PATRON_MESSAGE WHERE    PATRON_MESSAGE = N'B' AND      LIBRARY_ID = 101");
  ExpectInStep(Form, Table);
}

TEST_F(NotifyPatronMessagesTest, DeletingTheLastRowClearsTheControls) {
  Another("DELETE FROM ID_PATRON_MESSAGE WHERE LIBRARY_ID = 102 OR PATRON_MESSAGE = 'B'");
  OpenIt();
  Prompt().Expect(Say::Delete, Say::QuestionNoFirst, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Shown("txtCode"), "");
  EXPECT_TRUE(IsChecked("rdResponseRequiredNo"));
  ExpectQueues(false);
  Prompt().Expect("There are no records to delete.", Say::Stop);
  Click("cmdDelete");
}

TEST_F(NotifyPatronMessagesTest, DeleteThatFailsKeepsTheRow) {
  OpenIt();
  Another("DROP TABLE ID_PATRON_MESSAGE");
  Prompt().Expect(Say::Delete, Say::QuestionNoFirst, Say::Yes);
  Prompt().Expect("***** SQL error on ID_PATRON_MESSAGE (Delete) *****", Say::Stop);
  Click("cmdDelete");
  EXPECT_EQ(Rows(Table), 4);
}

TEST_F(NotifyPatronMessagesTest, ClearEmptiesTheControlsAndWritesNothing) {
  OpenIt();
  Click("cmdClear");
  for (const char* name : {"txtCode", "txtDescription", "txtLibrarySymbol", "txtSubject", "txtMessage"})
    EXPECT_EQ(Shown(name), "") << name;
  for (const char* name : {"cmbHoldQueue", "cmbRespondedQueue", "cmbExceptionCode"}) EXPECT_EQ(Shown(name), "(None)");
  EXPECT_TRUE(IsChecked("rdResponseRequiredNo"));
  EXPECT_TRUE(IsChecked("rdDocumentRequiredNo"));
  ExpectQueues(false);
  EXPECT_EQ(Wrote(), "");
  EXPECT_EQ(Rows(Table), 4);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
}

}  // namespace
