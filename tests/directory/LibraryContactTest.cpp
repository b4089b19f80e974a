// The contact screen: people, notice, reply addresses. LibraryContactLinksTest.cpp has what it links to.
#include <QApplication>
#include <QTest>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryContactDesk.h"

namespace {

class LibraryContactTest : public LibraryContactDesk {};

// --- Reading ---

TEST_F(LibraryContactTest, ReadsTheRecordInTheseStatements) {
  SetColumn(North, "NCIP_SERVER_LIBRARY_ID", "102");
  Begin(North);
  Open("frmLibraryContactInfo");
  EXPECT_EQ(
      Statements(),
      (QStringList{"SELECT   LIBRARY_ACTIVE, LIBRARY_SYMBOL, INSTITUTION_NAME, LIBRARY, CONTACT, CONTACT_EMAIL, "
                   "CONTACT_EMAIL2, CONTACT_PHONE, CONTACT_PHONE2, CONTACT_FAX, CONTACT_FAX2, NOTE, NOTICE, "
                   "NOTICE_SDATE, NOTICE_EDATE, REPLY_ADDRESS_ISO_SMTP, REPLY_ADDRESS_ISO_TCP, REPLY_ADDRESS_GSM, "
                   "ADD_CURRENT_SUPPLIER, NCIP_SERVER_LIBRARY_ID, NCIP_USE_SERVER_PROFILE, ISO18626_CONNECTION_ID FROM "
                   "ID_LIBRARY WHERE    LIBRARY_ID = 101",
                   "SELECT   LIBRARY_SYMBOL FROM ID_LIBRARY WHERE    LIBRARY_ID = 102",
                   "SELECT DISTINCT ISO18626_AGENCY_ID FROM ID_ISO18626_AGENCY_ID_RECEIVE WHERE    LIBRARY_ID = 101",
                   "SELECT DISTINCT ILL_SYSTEM, ILL_SYSTEM_DESC FROM ID_ILL_SYSTEM",
                   "SELECT DISTINCT A.EXTERNAL_ILL_SYSTEM, SY.ILL_SYSTEM_DESC, A.ISO18626_AGENCY_ID FROM "
                   "ID_ISO18626_AGENCY_ID_SEND A INNER JOIN ID_ILL_SYSTEM SY ON A.EXTERNAL_ILL_SYSTEM = SY.ILL_SYSTEM "
                   "WHERE    A.LIBRARY_ID = 101"}));
  EXPECT_EQ(Text("txtNCIPServerLibrary"), "SOUTH");
  EXPECT_EQ(glngFoundLibraryId, South);
}

TEST_F(LibraryContactTest, EveryColumnHasItsField) {
  AddConnection("C1");
  const std::pair<const char*, const char*> fields[] = {{"CONTACT", "txtContact"},
                                                        {"CONTACT_EMAIL", "txtEmail"},
                                                        {"CONTACT_EMAIL2", "txtAltEmail"},
                                                        {"CONTACT_PHONE", "txtPhone"},
                                                        {"CONTACT_PHONE2", "txtAltPhone"},
                                                        {"CONTACT_FAX", "txtFax"},
                                                        {"CONTACT_FAX2", "txtAltFax"},
                                                        {"NOTE", "txtNote"},
                                                        {"NOTICE", "txtNotice"},
                                                        {"REPLY_ADDRESS_ISO_SMTP", "txtReplyAddressSMTP"},
                                                        {"REPLY_ADDRESS_ISO_TCP", "txtReplyAddressTCP"},
                                                        {"REPLY_ADDRESS_GSM", "txtReplyAddressGSM"}};
  for (const auto& [column, box] : fields) SetColumn(North, column, "'" + QString(column) + "'");
  SetColumn(North, "ISO18626_CONNECTION_ID", "'C1'");
  SetColumn(North, "NOTICE_SDATE", "'2024-02-01'");
  SetColumn(North, "NOTICE_EDATE", "'2024-02-29'");
  OpenScreen();
  for (const auto& [column, box] : fields) EXPECT_EQ(Text(box), column);
  EXPECT_EQ(Text("txtConnectionID"), "C1");
  EXPECT_EQ(Date("dtpNoticeStartDate")->Date(), QDate(2024, 2, 1));
  EXPECT_EQ(Date("dtpNoticeEndDate")->Date(), QDate(2024, 2, 29));
  for (const auto& [box, limit] : std::map<QString, int>{{"txtContact", 50},
                                                         {"txtPhone", 25},
                                                         {"txtAltPhone", 25},
                                                         {"txtFax", 25},
                                                         {"txtAltFax", 25},
                                                         {"txtEmail", 80},
                                                         {"txtAltEmail", 80},
                                                         {"txtNote", 100},
                                                         {"txtNotice", 100},
                                                         {"txtReplyAddressSMTP", 80},
                                                         {"txtReplyAddressTCP", 80},
                                                         {"txtReplyAddressGSM", 80},
                                                         {"txtNCIPServerLibrary", 25},
                                                         {"txtConnectionID", 50}})
    EXPECT_EQ(Find<TextBox>(box)->maxLength(), limit) << box.toStdString();
}

TEST_F(LibraryContactTest, TheContactIsTypedInCapitalsAndTheNamesAreReadOnly) {
  OpenScreen();
  Type("txtContact", "ann o'reed");
  EXPECT_EQ(Text("txtContact"), "ANN O'REED");
  EXPECT_TRUE(Find<TextBox>("txtInstitution")->isReadOnly());
  EXPECT_TRUE(Find<TextBox>("txtLibraryName")->isReadOnly());
}

TEST_F(LibraryContactTest, TheThreeStatesOfTheCurrentSupplierAndTheTwoOfTheProfile) {
  const std::pair<const char*, const char*> suppliers[] = {{"'Y'", "optSendCurrentSupplierYes"},
                                                           {"'N'", "optSendCurrentSupplierNo"},
                                                           {"NULL", "optSendCurrentSupplierDefault"},
                                                           {"'X'", "optSendCurrentSupplierDefault"}};
  for (const auto& [value, option] : suppliers) {
    SetColumn(North, "ADD_CURRENT_SUPPLIER", value);
    OpenScreen();
    EXPECT_TRUE(IsChecked(option)) << value;
    Click("cmdClose");
  }
  for (const auto& [value, option] : std::map<QString, QString>{
           {"'Y'", "optUseThisProfileYes"}, {"'N'", "optUseThisProfileNo"}, {"NULL", "optUseThisProfileNo"}}) {
    SetColumn(North, "NCIP_USE_SERVER_PROFILE", value);
    OpenScreen();
    EXPECT_TRUE(IsChecked(option)) << value.toStdString();
    Click("cmdClose");
  }
}

TEST_F(LibraryContactTest, ReadingIsNoChangeAndClearEmptiesEverything) {
  SetColumn(North, "NOTICE_SDATE", "'2024-02-01'");
  SetColumn(North, "CONTACT_PHONE", "'123'");
  SetColumn(North, "NCIP_SERVER_LIBRARY_ID", "101");
  Another("INSERT INTO ID_ISO18626_AGENCY_ID_RECEIVE (ISO18626_AGENCY_ID, LIBRARY_ID) VALUES ('A', 101)");
  OpenScreen();
  EXPECT_TRUE(IsEnabled("cmdUnitLibraries"));
  Click("cmdClear");  // no question: nothing was changed
  EXPECT_EQ(Text("txtPhone"), "");
  EXPECT_EQ(Text("txtNCIPServerLibrary"), "");
  EXPECT_TRUE(Date("dtpNoticeStartDate")->IsNone());
  EXPECT_EQ(Rows("grdISO18626AgencyIdReceive"), 1);
  for (const char* button : {"cmdUpdate", "cmdUnitLibraries", "cmdConfigureNCIPServer", "cmdStatusCodes",
                             "cmdUpdateProfile", "mnuOptionsConfigureAPI"})
    EXPECT_FALSE(IsEnabled(button)) << button;
}

TEST_F(LibraryContactTest, WithoutALibraryInHandTheButtonsOfARecordAreOff) {
  OpenScreen(0);
  for (const char* button : {"cmdUpdate", "cmdUnitLibraries", "cmdConfigureNCIPServer", "cmdStatusCodes",
                             "cmdUpdateProfile", "mnuOptionsConfigureAPI"})
    EXPECT_FALSE(IsEnabled(button)) << button;
  EXPECT_TRUE(IsChecked("optSendCurrentSupplierDefault"));
  EXPECT_TRUE(Date("dtpNoticeStartDate")->IsNone());
}

TEST_F(LibraryContactTest, TabGoesThroughTheFieldsInReadingOrder) {
  OpenScreen();
  QApplication::setActiveWindow(Window());
  QStringList stops;
  Find<QWidget>("txtContact")->setFocus();
  for (int stop = 0; stop < 30; ++stop) {
    stops.append(Focus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(stops, (QStringList{"txtContact",
                                "txtPhone",
                                "txtFax",
                                "txtEmail",
                                "txtAltPhone",
                                "txtAltFax",
                                "txtAltEmail",
                                "txtNote",
                                "txtNotice",
                                "qt_datebox_check",
                                "qt_datebox_check",
                                "txtReplyAddressSMTP",
                                "txtReplyAddressTCP",
                                "txtReplyAddressGSM",
                                "optSendCurrentSupplierDefault",
                                "txtNCIPServerLibrary",
                                "optUseThisProfileNo",
                                "cmdFindLibrary",
                                "cmdStatusCodes",
                                "cmdUpdateProfile",
                                "txtConnectionID",
                                "cmdConfigISO18626Connection",
                                "grdISO18626AgencyIdReceive",
                                "cmdAddISO18626AgencyIdReceive",
                                "cmdDeleteISO18626AgencyIdReceive",
                                "grdISO18626AgencyIdSend",
                                "cmdAddISO18626AgencyIdSend",
                                "cmdDeleteISO18626AgencyIdSend",
                                "cmdRegistration",
                                "cmdLogin"}));
}

TEST_F(LibraryContactTest, EveryFieldCountsAsAChange) {
  SetColumn(North, "NOTICE_SDATE", "'2024-02-01'");
  const std::vector<std::function<void()>> edits = {
      [this] { Append("txtContact", "X"); },
      [this] { Append("txtAltEmail", "X"); },
      [this] { Append("txtNote", "X"); },
      [this] { Append("txtReplyAddressGSM", "X"); },
      [this] { Append("txtNCIPServerLibrary", "X"); },
      [this] { Append("txtConnectionID", "X"); },
      [this] { Click("optSendCurrentSupplierNo"); },
      [this] { Click("optUseThisProfileNo"); },
      [this] { TickDate("dtpNoticeStartDate"); },
  };
  for (const auto& edit : edits) {
    OpenScreen();
    edit();
    Prompt().ExpectTitled(GuardText(Registered), MessageStyle::Question, Caption, MessageAnswer::No);
    Click("cmdClear");
  }
}

// --- Update ---

TEST_F(LibraryContactTest, UpdateWritesTheColumnsInThisOrder) {
  AddConnection("C1");
  OpenScreen();
  Type("txtContact", " ann o'reed ");
  Type("txtPhone", "1");
  Type("txtFax", "2");
  Type("txtEmail", "e1");
  Type("txtAltPhone", "3");
  Type("txtAltFax", "4");
  Type("txtAltEmail", "e2");
  Type("txtNote", "n");
  Type("txtNotice", "closed");
  Date("dtpNoticeStartDate")->SetDate(QDate(2024, 4, 1));
  Date("dtpNoticeEndDate")->SetDate(QDate(2024, 4, 2));
  Type("txtReplyAddressSMTP", " ill@example.org ");
  Type("txtReplyAddressTCP", "ill.example.org:1611");
  Type("txtReplyAddressGSM", "gsm@example.org");
  Click("optSendCurrentSupplierNo");
  Type("txtNCIPServerLibrary", " SOUTH ");
  Click("optUseThisProfileYes");
  Type("txtConnectionID", "C1");
  Statements();
  Saves();
  const QString when = gclsOF->SqlDate(Noon);
  const QString start = gclsOF->SqlDate(QDate(2024, 4, 1)), end = gclsOF->SqlDate(QDate(2024, 4, 2));
  EXPECT_EQ(
      Statements(),
      (QStringList{
          "SELECT LIBRARY_SYMBOL, LIBRARY_ID FROM  ID_LIBRARY WHERE LIBRARY_SYMBOL = N'SOUTH'",
          "SELECT ISO18626_CONNECTION_ID FROM ID_ISO18626_CONNECT WHERE ISO18626_CONNECTION_ID = N'C1'",
          "UPDATE ID_LIBRARY SET      LAST_MODIFIED = " + when +
              ", CONTACT = N'ANN O''REED', CONTACT_EMAIL = N'e1', CONTACT_PHONE2 = N'3', CONTACT_FAX2 = N'4', "
              "CONTACT_EMAIL2 = N'e2', NOTE = N'n', NOTICE = N'closed', CONTACT_FAX = N'2', CONTACT_PHONE = N'1', "
              "NOTICE_SDATE = " +
              start + ", NOTICE_EDATE = " + end +
              ", REPLY_ADDRESS_ISO_SMTP = N'ill@example.org', REPLY_ADDRESS_ISO_TCP = N'ill.example.org:1611', "
              "REPLY_ADDRESS_GSM = N'gsm@example.org', ADD_CURRENT_SUPPLIER = N'N', NCIP_SERVER_LIBRARY_ID = 102, "
              "NCIP_USE_SERVER_PROFILE = N'Y', ISO18626_CONNECTION_ID = N'C1' WHERE    LIBRARY_ID = 101",
          "DELETE FROM ID_ISO18626_AGENCY_ID_RECEIVE WHERE LIBRARY_ID= 101",
          "DELETE FROM ID_ISO18626_AGENCY_ID_SEND WHERE LIBRARY_ID= 101"}));
  EXPECT_EQ(Column("CONTACT"), "ANN O'REED");
  EXPECT_EQ(Column("NOTICE_EDATE").left(10), "2024-04-02");
  Prompt().Expect("Nothing has been changed.\n", MessageStyle::Stop);
  Click("cmdUpdate");
}

TEST_F(LibraryContactTest, EmptyFieldsAreStoredAsNull) {
  SetColumn(North, "NOTICE_SDATE", "'2024-02-01'");
  SetColumn(North, "NCIP_SERVER_LIBRARY_ID", "102");
  SetColumn(North, "ADD_CURRENT_SUPPLIER", "'Y'");
  OpenScreen();
  Type("txtContact", " ");
  Type("txtNCIPServerLibrary", " ");
  Click("optSendCurrentSupplierDefault");
  Date("dtpNoticeStartDate")->SetNone();
  Saves();
  EXPECT_TRUE(Writing().value(0).endsWith(
      ", CONTACT = Null, CONTACT_EMAIL = Null, CONTACT_PHONE2 = Null, CONTACT_FAX2 = Null, CONTACT_EMAIL2 = Null, NOTE "
      "= Null, NOTICE = Null, CONTACT_FAX = Null, CONTACT_PHONE = Null, NOTICE_SDATE = Null, NOTICE_EDATE = Null, "
      "REPLY_ADDRESS_ISO_SMTP = Null, REPLY_ADDRESS_ISO_TCP = Null, REPLY_ADDRESS_GSM = Null, ADD_CURRENT_SUPPLIER = "
      "NULL, NCIP_SERVER_LIBRARY_ID = NULL, NCIP_USE_SERVER_PROFILE = N'N', ISO18626_CONNECTION_ID = Null WHERE    "
      "LIBRARY_ID = 101"));
  EXPECT_EQ(glngFoundLibraryId, -1);
}

TEST_F(LibraryContactTest, UpdateNeedsAChangeAndARecord) {
  OpenScreen();
  Prompt().ExpectTitled("Nothing has been changed.\n", MessageStyle::Stop, Caption);
  Click("cmdUpdate");
}

TEST_F(LibraryContactTest, TheServerLibraryMustBeKnownByItsExactSymbol) {
  OpenScreen();
  for (const char* symbol : {"NOWHERE", "south", "SOU%"}) {
    Type("txtNCIPServerLibrary", symbol);
    Statements();
    Refused("Please enter a valid NCIP library symbol.", "txtNCIPServerLibrary");
  }
}

TEST_F(LibraryContactTest, ReplyAddressesAreTestedInTheirOrder) {
  const QString tcp =
      "The ISO Reply TCP/IP Address must be in the form 'IP Address:Port'  where port is the port supported by the "
      "supplier.";
  OpenScreen();
  Type("txtReplyAddressSMTP", "nobody");
  Type("txtReplyAddressTCP", "ill.example.org");
  Type("txtReplyAddressGSM", "gsm");
  Type("txtConnectionID", "NONE");
  Refused("Invalid ISO Reply E-Mail address", "txtReplyAddressSMTP");
  Type("txtReplyAddressSMTP", "ill@example.org");
  Refused(tcp, "txtReplyAddressTCP");
  Type("txtReplyAddressTCP", "ill.example.org:1611");
  Refused("Invalid reply domain name or address", "txtReplyAddressGSM");
  Type("txtReplyAddressGSM", "gsm@");
  Refused("Invalid reply E-Mail address", "txtReplyAddressGSM");
  Type("txtReplyAddressGSM", "gsm.example.org:2");
  Refused("The ISO 18626 Connection Id entered does not exist. Please enter a valid Connection Id.", "txtConnectionID");
  AddConnection("NONE");
  Saves();
}

struct Host {
  const char* text;
  bool passes;
};

class LibraryContactHostTest : public LibraryContactTest, public testing::WithParamInterface<Host> {};

TEST_P(LibraryContactHostTest, AHostNeedsItsPort) {
  OpenScreen();
  Type("txtReplyAddressTCP", GetParam().text);
  if (GetParam().passes) return Saves();
  Prompt().ExpectStart("The ISO Reply TCP/IP Address must be", MessageStyle::Stop);
  Click("cmdUpdate");
  Type("txtReplyAddressTCP", "");
  Type("txtReplyAddressGSM", GetParam().text);
  Prompt().Expect("Invalid reply domain name or address", MessageStyle::Stop);
  Click("cmdUpdate");
}

INSTANTIATE_TEST_SUITE_P(Hosts, LibraryContactHostTest,
                         testing::Values(Host{"192.0.2.1:1611", true}, Host{"192.0.2.1:0", true},
                                         Host{"192.0.2.1:65535", true}, Host{"  ill.example.org:1611  ", true},
                                         Host{"bücher.example:80", true}, Host{"日本.example:80", true},
                                         Host{"[2001:db8::1]:1611", true}, Host{"192.0.2.1", false},
                                         Host{"192.0.2.1:65536", false}, Host{"192.0.2.1:", false},
                                         Host{":1611", false}, Host{"192.0.2:1611", false},
                                         Host{"ill.example.org:80a", false}, Host{"ill.example.org: 80", false},
                                         Host{"2001:db8::1", false}, Host{"[2001:db8::1]", false},
                                         Host{"2001:db8::1:1611", false}, Host{"a:1:2", false}));

// --- Three transactions ---

TEST_F(LibraryContactTest, AFailureInTheThirdTransactionLeavesTheFirstTwoInForce) {
  Another("INSERT INTO ID_ISO18626_AGENCY_ID_RECEIVE (ISO18626_AGENCY_ID, LIBRARY_ID) VALUES ('IN', 101)");
  Another(
      "INSERT INTO ID_ISO18626_AGENCY_ID_SEND (LIBRARY_ID, EXTERNAL_ILL_SYSTEM, ISO18626_AGENCY_ID) VALUES (101, "
      "'TALVERNE', 'OUT')");
  OpenScreen();
  Type("txtPhone", "555");
  SelectRow("grdISO18626AgencyIdReceive", 1);
  Click("cmdDeleteISO18626AgencyIdReceive");
  // Another client takes the system away that the list of ids refers to.
  Another("DELETE FROM ID_ISO18626_AGENCY_ID_SEND");
  Another("DELETE FROM ID_ILL_SYSTEM WHERE ILL_SYSTEM = 'TALVERNE'");
  Prompt().ExpectTitled("An error has occurred.  Please Notify Support.", MessageStyle::Stop, Caption);
  Click("cmdUpdate");
  EXPECT_EQ(Column("CONTACT_PHONE"), "555");
  EXPECT_EQ(Count("ID_ISO18626_AGENCY_ID_RECEIVE"), 0);
  EXPECT_TRUE(LogHolds("* frmLibraryContactInfo.cmdUpdate_Click"));
  EXPECT_TRUE(LogHolds("* ***** SQL error on ID_ISO18626_AGENCY_ID_SEND (Delete) *****"));
  EXPECT_TRUE(LogHolds("* INSERT INTO ID_ISO18626_AGENCY_ID_SEND "));
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  // The user may try again.
  Prompt().Expect("An error has occurred.  Please Notify Support.", MessageStyle::Stop);
  Click("cmdUpdate");
}

TEST_F(LibraryContactTest, ARefusedRecordIsLoggedUnderItsOwnLine) {
  AddConnection("C1");
  OpenScreen();
  Type("txtConnectionID", "C1");
  // Gone between the test and the write.
  gclsOF->Connection().AddObserver([this](const StatementRecord& record) {
    if (record.text.startsWith("SELECT ISO18626_CONNECTION_ID")) Another("DELETE FROM ID_ISO18626_CONNECT");
  });
  Prompt().Expect("An error has occurred.  Please Notify Support.", MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_TRUE(LogHolds("* ***** SQL error on ID_library (Update) *****"));
  EXPECT_TRUE(LogHolds("* UPDATE ID_LIBRARY SET "));
}

// --- Notice ---

TEST_F(LibraryContactTest, AnEndDateEqualToTheStartDateIsRefused) {
  OpenScreen();
  Date("dtpNoticeStartDate")->SetDate(QDate(2024, 4, 1));
  for (const QDate& end : {QDate(2024, 4, 1), QDate(2024, 3, 31)}) {
    Date("dtpNoticeEndDate")->SetDate(end);
    Prompt().ExpectTitled("End Date must after Start Date.", MessageStyle::Stop, Caption);
    Leave("dtpNoticeEndDate");
    EXPECT_TRUE(HasFocus("dtpNoticeEndDate"));
  }
  Date("dtpNoticeEndDate")->SetDate(QDate(2024, 4, 2));
  Leave("dtpNoticeEndDate");
  EXPECT_FALSE(HasFocus("dtpNoticeEndDate"));
}

TEST_F(LibraryContactTest, AnEndDateWithoutAStartDateGivesWayToToday) {
  OpenScreen();
  EXPECT_TRUE(Date("dtpNoticeStartDate")->IsNone());
  TickDate("dtpNoticeEndDate");
  EXPECT_EQ(Date("dtpNoticeEndDate")->Date(), Noon.date()) << "the present date stood behind the check";
  Prompt().ExpectTitled("Please select a Start Date first.", MessageStyle::Stop, Caption);
  Leave("dtpNoticeEndDate");
  EXPECT_TRUE(Date("dtpNoticeEndDate")->IsNone());
  EXPECT_EQ(Date("dtpNoticeStartDate")->Date(), Noon.date());
  EXPECT_TRUE(HasFocus("dtpNoticeStartDate"));
  Saves();
  EXPECT_EQ(Column("NOTICE_SDATE").left(10), "2024-03-05");
}

TEST_F(LibraryContactTest, AStartDateIsNotTakenFromUnderAnEndDate) {
  SetColumn(North, "NOTICE_SDATE", "'2024-02-01'");
  SetColumn(North, "NOTICE_EDATE", "'2024-02-29'");
  OpenScreen();
  TickDate("dtpNoticeStartDate");
  Prompt().ExpectTitled("Cannot have an End Date without a Start Date.", MessageStyle::Stop, Caption);
  Leave("dtpNoticeStartDate");
  EXPECT_TRUE(HasFocus("dtpNoticeStartDate"));
  TickDate("dtpNoticeStartDate");
  EXPECT_EQ(Date("dtpNoticeStartDate")->Date(), QDate(2024, 2, 1));
  Leave("dtpNoticeStartDate");
  EXPECT_FALSE(HasFocus("dtpNoticeStartDate"));
}

// --- Looks ---

TEST_F(LibraryContactTest, ItFitsOntoASmallScreen) {
  AddConnection("TALVERNE-MAIN");
  SetColumn(North, "CONTACT_PHONE", "'+44 20 7946 0123'");
  SetColumn(North, "CONTACT_EMAIL", "'interlibrary.loans@library.north-college.example.org'");
  SetColumn(North, "NOTICE", "'Closed for stocktaking'");
  SetColumn(North, "NOTICE_SDATE", "'2024-02-01'");
  SetColumn(North, "NOTICE_EDATE", "'2024-02-29'");
  SetColumn(North, "NCIP_SERVER_LIBRARY_ID", "101");
  SetColumn(North, "ISO18626_CONNECTION_ID", "'TALVERNE-MAIN'");
  for (const char* id : {"GB-NORTH", "GB-NORTH-LAW"})
    Another(QString("INSERT INTO ID_ISO18626_AGENCY_ID_RECEIVE (ISO18626_AGENCY_ID, LIBRARY_ID) VALUES ('%1', 101)")
                .arg(id));
  Another(
      "INSERT INTO ID_ISO18626_AGENCY_ID_SEND (LIBRARY_ID, EXTERNAL_ILL_SYSTEM, ISO18626_AGENCY_ID) VALUES (101, "
      "'TALVERNE', 'GB-NORTH')");
  OpenScreen();
  EXPECT_LE(Window()->width(), 1280);
  EXPECT_LE(Window()->height(), 760);
  Picture("frmLibraryContactInfo-record");
  Click("cmdAddISO18626AgencyIdReceive");
  Click("cmdAddISO18626AgencyIdSend");
  QCoreApplication::processEvents();
  EXPECT_LE(Window()->width(), 1280);
  EXPECT_LE(Window()->height(), 760);
  Picture("frmLibraryContactInfo-new-rows");
}

}  // namespace
