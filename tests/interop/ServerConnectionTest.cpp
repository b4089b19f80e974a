#include <QCheckBox>
#include <QLabel>
#include <QTest>

#include "interop/InteropDesk.h"

namespace {

const QString WriteFailed =
    "An error occurred writing settings to database.  Please check log file for more information.";

// What both dialogs have in common is tested on both; whose row it is, on each.
class ServerConnectionTest : public InteropDesk {
 protected:
  static constexpr const char* NcipForm = "frmNCIPServerConnection";
  static constexpr const char* ApiForm = "frmAPIServerConnection";
  static inline const QString NcipCaption = "Ostana - NCIP Server Connection";
  static inline const QString ApiCaption = "Ostana - API Server Connection";

  void OpenForm(const QString& form) {
    Open(form);
    Statements();
  }
  void AddNcip(qint32 library, const QString& version = "2.0", const QString& messages = "YNYN") {
    Another(
        "INSERT INTO ID_NCIP_CONNECT (LIBRARY_ID, NCIP_ILS_SYSTEM, NCIP_CONNECT_TYPE, NCIP_HOST_ADDRESS, "
        "NCIP_HOST_URL, NCIP_HOST_PORT, NCIP_VERSION, NCIP_APP_PROFILE, NCIP_SERVER_AGENCY_ID, "
        "NCIP_AGENCY_ID_SCHEME, NCIP_TO_AGENCY_ID, NCIP_FROM_AGENCY_ID, NCIP_ACTIVE_MESSAGES, "
        "NCIP_FROM_AGENCY_AUTH) VALUES (" +
        QString::number(library) + ", 'KOHA', 'HTTPS', 'ncip.example.org', '/ncip', 8080, '" + version +
        "', 'PROFILE', 'SERVER', 'SCHEME', 'TO', 'FROM', '" + messages + "', 'AUTH')");
  }
  void AddApi(qint32 library, const QString& all = "Y") {
    Another(
        "INSERT INTO ID_API_CONNECT (LIBRARY_ID, API_ILS_SYSTEM, API_CONNECT_TYPE, API_HOST_ADDRESS, API_HOST_URL, "
        "API_HOST_PORT, API_ALL_LOCATIONS, API_HD_LOCATIONS) VALUES (" +
        QString::number(library) + ", 'FOLIO', 'HTTPS', 'api.example.org', '/api', 443, '" + all + "', 'A,B')");
  }
  void FillRequired(const QString& systemBox) {
    Choose(systemBox, "Koha");
    Choose("cmbConnect", "HTTPS");
    Type("txtServerAddress", "host.example.org");
    Type("txtPort", "210");
  }
  QString Ncip(const QString& column, qint32 library = Server) {
    return Ask("SELECT " + column + " FROM ID_NCIP_CONNECT WHERE LIBRARY_ID = " + QString::number(library));
  }
  QString ApiRow(const QString& column, qint32 library = Own) {
    return Ask("SELECT " + column + " FROM ID_API_CONNECT WHERE LIBRARY_ID = " + QString::number(library));
  }
};

// --- Whose row ---

TEST_F(ServerConnectionTest, TheNCIPDialogWorksOnTheLibraryBehindTheSymbolTheOtherOnTheOneInHand) {
  AddNcip(Own, "2.0");
  AddNcip(Server, "1.0");
  AddApi(Own);
  AddApi(Server, "N");
  Open(NcipForm);
  EXPECT_EQ(Statements(), (QStringList{"SELECT   NCIP_ILS_SYSTEM, NCIP_ILS_SYSTEM_DESC FROM ID_NCIP_ILS_SYSTEM",
                                       "SELECT   NCIP_CONNECT_TYPE, NCIP_CONNECT_TYPE_DESC FROM ID_NCIP_CONNECT_TYPE",
                                       "SELECT   * FROM ID_NCIP_CONNECT WHERE   LIBRARY_ID = 202"}));
  EXPECT_TRUE(IsChecked("rdVersion(0)"));
  Click("cmdCancel");
  Open(ApiForm);
  EXPECT_EQ(Statements(), (QStringList{"SELECT   NCIP_ILS_SYSTEM, NCIP_ILS_SYSTEM_DESC FROM ID_NCIP_ILS_SYSTEM",
                                       "SELECT   NCIP_CONNECT_TYPE, NCIP_CONNECT_TYPE_DESC FROM ID_NCIP_CONNECT_TYPE",
                                       "SELECT   * FROM ID_API_CONNECT WHERE   LIBRARY_ID = 101"}));
  EXPECT_TRUE(IsChecked("rdUseAllLocationsYes"));
}

// --- NCIP ---

TEST_F(ServerConnectionTest, ANewNCIPRowWithNoBoxCheckedStoresFifteenTimesN) {
  OpenForm(NcipForm);
  EXPECT_EQ(Text("cmbNCIPSystem"), "(None)");
  EXPECT_EQ(Text("cmbConnect"), "(None)");
  EXPECT_TRUE(IsChecked("rdVersion(0)"));
  FillRequired("cmbNCIPSystem");
  Prompt().ExpectTitled("Settings added.", 64, NcipCaption);
  Click("cmdOK");
  EXPECT_EQ(Statements(),
            QStringList{"INSERT INTO ID_NCIP_CONNECT (LIBRARY_ID, NCIP_ILS_SYSTEM, NCIP_CONNECT_TYPE, "
                        "NCIP_HOST_ADDRESS, NCIP_HOST_URL, NCIP_HOST_PORT, NCIP_VERSION, NCIP_APP_PROFILE, "
                        "NCIP_SERVER_AGENCY_ID, NCIP_AGENCY_ID_SCHEME, NCIP_TO_AGENCY_ID, NCIP_FROM_AGENCY_ID, "
                        "NCIP_ACTIVE_MESSAGES, NCIP_FROM_AGENCY_AUTH) VALUES (202, N'KOHA', N'HTTPS', "
                        "N'host.example.org', Null, 210, N'1.0', Null, Null, Null, Null, Null, N'NNNNNNNNNNNNNNN', "
                        "Null)"});
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Ncip("NCIP_ACTIVE_MESSAGES"), "NNNNNNNNNNNNNNN");
}

TEST_F(ServerConnectionTest, AStoredNCIPRowIsShownAndUpdatedWhole) {
  AddNcip(Server, "2.2", "YNYN");
  OpenForm(NcipForm);
  EXPECT_EQ(Text("cmbNCIPSystem"), "Koha");
  EXPECT_EQ(Text("cmbConnect"), "HTTPS");
  EXPECT_EQ(Text("txtPort"), "8080");
  EXPECT_TRUE(IsChecked("rdVersion(3)"));
  EXPECT_TRUE(IsChecked("chkLookupUser"));
  EXPECT_FALSE(IsChecked("chkCheckOutItem"));
  EXPECT_TRUE(IsChecked("chkCheckInItem"));
  EXPECT_FALSE(IsChecked("chkRequestItem")) << "a shorter text leaves the rest unchecked";
  Type("txtNCIPURL", "  ");
  Type("txtFromAgency", " O'Neill ");
  Click("chkDeleteItem");
  Click("rdVersion(2)");
  Prompt().ExpectTitled("Settings updated.", 64, NcipCaption);
  Click("cmdOK");
  EXPECT_EQ(Statements(),
            QStringList{"UPDATE ID_NCIP_CONNECT SET NCIP_ILS_SYSTEM = N'KOHA', NCIP_CONNECT_TYPE = N'HTTPS', "
                        "NCIP_HOST_ADDRESS = N'ncip.example.org', NCIP_HOST_URL = Null, NCIP_HOST_PORT = 8080, "
                        "NCIP_VERSION = N'2.1', NCIP_APP_PROFILE = N'PROFILE', NCIP_SERVER_AGENCY_ID = N'SERVER', "
                        "NCIP_AGENCY_ID_SCHEME = N'SCHEME', NCIP_TO_AGENCY_ID = N'TO', NCIP_FROM_AGENCY_ID = "
                        "N'O''Neill', NCIP_ACTIVE_MESSAGES = N'YNYNNNNNNNNNNNY', NCIP_FROM_AGENCY_AUTH = N'AUTH' "
                        "WHERE   LIBRARY_ID = 202"});
  EXPECT_EQ(Ncip("NCIP_FROM_AGENCY_ID"), "O'Neill");
}

TEST_F(ServerConnectionTest, EveryMessageBoxHasItsPosition) {
  OpenForm(NcipForm);
  FillRequired("cmbNCIPSystem");
  Prompt().Expect("Settings added.", 64);
  Click("cmdOK");
  const char* const boxes[] = {"chkLookupUser",
                               "chkCheckOutItem",
                               "chkCheckInItem",
                               "chkAcceptItem",
                               "chkRequestItem",
                               "chkCancelRequestItem",
                               "chkRecallItem",
                               "chkRenewItem",
                               "chkCircStatUpdStillPend",
                               "chkCircStatUpdNotRenewed",
                               "chkItemRenewed",
                               "chkItemRenewedRenewItem",
                               "chkLookupItem",
                               "chkUpdateItem",
                               "chkDeleteItem"};
  QString expected(15, 'N');
  for (int position = 0; position < 15; ++position) {
    OpenForm(NcipForm);
    Click(boxes[position]);
    Prompt().Expect("Settings updated.", 64);
    Click("cmdOK");
    expected[position] = 'Y';
    EXPECT_EQ(Ncip("NCIP_ACTIVE_MESSAGES"), expected) << boxes[position];
  }
  OpenForm(NcipForm);
  for (const char* box : boxes) EXPECT_TRUE(IsChecked(box)) << box;
  const auto frameOf = [this](const QString& box) { return Find<QWidget>(box)->parentWidget()->objectName(); };
  EXPECT_EQ(frameOf("chkRenewItem"), "fraActiveMessages");
  EXPECT_EQ(frameOf("chkCircStatUpdStillPend"), "fraActiveNotifications");
  EXPECT_EQ(frameOf("chkItemRenewedRenewItem"), "fraActiveNotifications");
  EXPECT_EQ(frameOf("chkLookupItem"), "fraActiveMessages");
}

TEST_F(ServerConnectionTest, AClickThatLeavesABoxGreyedMakesItPlainChecked) {
  OpenForm(NcipForm);
  for (const char* name : {"chkLookupUser", "chkCheckOutItem", "chkCheckInItem", "chkAcceptItem", "chkRequestItem",
                           "chkUpdateItem", "chkDeleteItem"}) {
    auto* const box = Find<QCheckBox>(name);
    box->setTristate(true);
    Click(name);
    EXPECT_EQ(box->checkState(), Qt::Checked) << name;
  }
  auto* const other = Find<QCheckBox>("chkRecallItem");
  other->setTristate(true);
  Click("chkRecallItem");
  EXPECT_EQ(other->checkState(), Qt::PartiallyChecked);
  FillRequired("cmbNCIPSystem");
  Prompt().Expect("Settings added.", 64);
  Click("cmdOK");
  EXPECT_EQ(Ncip("NCIP_ACTIVE_MESSAGES"), "YYYYYNNNNNNNNYY") << "greyed is not checked";
}

TEST_F(ServerConnectionTest, AStoredVersion201IsNotKnownAndIsSavedAs10) {
  AddNcip(Server, "2.01");
  OpenForm(NcipForm);
  EXPECT_TRUE(IsChecked("rdVersion(0)"));
  Prompt().Expect("Settings updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Ncip("NCIP_VERSION"), "1.0");
}

TEST_F(ServerConnectionTest, EachVersionIsStoredInItsOwnWords) {
  AddNcip(Server);
  const std::pair<const char*, const char*> versions[] = {
      {"rdVersion(0)", "1.0"}, {"rdVersion(1)", "2.0"}, {"rdVersion(2)", "2.1"}, {"rdVersion(3)", "2.2"}};
  for (const auto& [button, stored] : versions) {
    OpenForm(NcipForm);
    Click(button);
    Prompt().Expect("Settings updated.", 64);
    Click("cmdOK");
    EXPECT_EQ(Ncip("NCIP_VERSION"), stored);
    OpenForm(NcipForm);
    EXPECT_TRUE(IsChecked(button)) << button;
    Click("cmdCancel");
  }
  OpenForm(NcipForm);
  EXPECT_EQ(Text("rdVersion(2)"), "2.01");
  EXPECT_EQ(Text("rdVersion(3)"), "2.02");
}

TEST_F(ServerConnectionTest, ANCIPPortOfZeroPassesAndAMinusDoesNot) {
  OpenForm(NcipForm);
  FillRequired("cmbNCIPSystem");
  Type("txtPort", "-0");
  EXPECT_EQ(Prompt().Beeps(), 1);
  EXPECT_EQ(Text("txtPort"), "0");
  Prompt().Expect("Settings added.", 64);
  Click("cmdOK");
  EXPECT_EQ(Ncip("NCIP_HOST_PORT"), "0");
}

TEST_F(ServerConnectionTest, PastedTextIsFilteredBecauseThePortGoesBareIntoTheStatement) {
  OpenForm(NcipForm);
  FillRequired("cmbNCIPSystem");
  Paste("txtPort", "1, NCIP_VERSION = N'9'");
  EXPECT_EQ(Text("txtPort"), "19");
  Click("cmdCancel");
  OpenForm(ApiForm);
  Paste("txtPort", "1; DROP TABLE ID_LIBRARY");
  EXPECT_EQ(Text("txtPort"), "1");
}

TEST_F(ServerConnectionTest, TheNCIPPortIsFormattedOnLeaving) {
  OpenForm(NcipForm);
  Type("txtPort", "000210");
  Press("txtPort", Qt::Key_Tab);
  EXPECT_EQ(Text("txtPort"), "210");
}

TEST_F(ServerConnectionTest, TheAPIPortBeepsAtAnythingButDigits) {
  OpenForm(ApiForm);
  Type("txtPort", "4-4.3a22x");
  EXPECT_EQ(Text("txtPort"), "44322");
  EXPECT_EQ(Prompt().Beeps(), 4);
  Press("txtPort", Qt::Key_Backspace);
  EXPECT_EQ(Text("txtPort"), "4432");
}

TEST_F(ServerConnectionTest, FieldsHaveTheLengthOfTheirColumns) {
  OpenForm(NcipForm);
  for (const auto& [box, limit] : std::map<QString, int>{{"txtServerAddress", 80},
                                                         {"txtNCIPURL", 80},
                                                         {"txtPort", 9},
                                                         {"txtApplicationProfile", 20},
                                                         {"txtServerAgency", 20},
                                                         {"txtAgencySchema", 100},
                                                         {"txtToAgency", 20},
                                                         {"txtFromAgency", 20},
                                                         {"txtAgencyAuthentication", 20}})
    EXPECT_EQ(Find<TextBox>(box)->maxLength(), limit) << box.toStdString();
  Click("cmdCancel");
  OpenForm(ApiForm);
  for (const auto& [box, limit] :
       std::map<QString, int>{{"txtServerAddress", 80}, {"txtAPIURL", 80}, {"txtPort", 5}, {"txtValidLocations", 80}})
    EXPECT_EQ(Find<TextBox>(box)->maxLength(), limit) << box.toStdString();
}

// --- API ---

TEST_F(ServerConnectionTest, ANewAPIRowUsesAllLocations) {
  OpenForm(ApiForm);
  EXPECT_TRUE(IsChecked("rdUseAllLocationsYes"));
  EXPECT_FALSE(IsEnabled("txtValidLocations"));
  EXPECT_FALSE(IsEnabled("lblValidLocations"));
  FillRequired("cmbILSSystem");
  Prompt().ExpectTitled("Settings added.", 64, ApiCaption);
  Click("cmdOK");
  EXPECT_EQ(Statements(), QStringList{"INSERT INTO ID_API_CONNECT (LIBRARY_ID, API_ILS_SYSTEM, API_CONNECT_TYPE, "
                                      "API_HOST_ADDRESS, API_HOST_URL, API_HOST_PORT, API_ALL_LOCATIONS, "
                                      "API_HD_LOCATIONS) VALUES (101, N'KOHA', N'HTTPS', N'host.example.org', Null, "
                                      "210, N'Y', Null)"});
  EXPECT_FALSE(IsOpen());
}

TEST_F(ServerConnectionTest, AllLocationsStoresNullWhateverTheBoxHolds) {
  AddApi(Own, "N");
  OpenForm(ApiForm);
  EXPECT_TRUE(IsChecked("rdUseAllLocationsNo"));
  EXPECT_TRUE(IsEnabled("txtValidLocations"));
  EXPECT_EQ(Text("txtValidLocations"), "A,B");
  Click("rdUseAllLocationsYes");
  EXPECT_FALSE(IsEnabled("txtValidLocations"));
  EXPECT_FALSE(IsEnabled("lblValidLocations"));
  Prompt().Expect("Settings updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Statements(),
            QStringList{"UPDATE ID_API_CONNECT SET API_ILS_SYSTEM = N'FOLIO', API_CONNECT_TYPE = N'HTTPS', "
                        "API_HOST_ADDRESS = N'api.example.org', API_HOST_URL = N'/api', API_HOST_PORT = 443, "
                        "API_ALL_LOCATIONS = N'Y', API_HD_LOCATIONS = Null WHERE   LIBRARY_ID = 101"});
}

TEST_F(ServerConnectionTest, EmptiedValidLocationsOfAnNAreStoredAsNull) {
  AddApi(Own, "N");
  OpenForm(ApiForm);
  Type("txtValidLocations", "   ");
  Prompt().Expect("Settings updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Count("ID_API_CONNECT", "LIBRARY_ID = 101 AND API_ALL_LOCATIONS = 'N' AND API_HD_LOCATIONS IS NULL"), 1);
}

TEST_F(ServerConnectionTest, ValidLocationsAreEscaped) {
  AddApi(Own, "N");
  OpenForm(ApiForm);
  Type("txtValidLocations", "it's");
  Prompt().Expect("Settings updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(ApiRow("API_HD_LOCATIONS"), "it's");
}

TEST_F(ServerConnectionTest, AnythingButYInAllLocationsIsNo) {
  AddApi(Own, "X");
  OpenForm(ApiForm);
  EXPECT_TRUE(IsChecked("rdUseAllLocationsNo"));
}

TEST_F(ServerConnectionTest, TheLabelsBesideTheOptionsChooseThem) {
  OpenForm(ApiForm);
  QTest::mouseClick(Find<QLabel>("lblUseAllLocationsNo"), Qt::LeftButton);
  EXPECT_TRUE(IsChecked("rdUseAllLocationsNo"));
  EXPECT_TRUE(IsEnabled("txtValidLocations"));
  QTest::mouseClick(Find<QLabel>("lblUseAllLocationsYes"), Qt::LeftButton);
  EXPECT_TRUE(IsChecked("rdUseAllLocationsYes"));
  EXPECT_FALSE(IsEnabled("txtValidLocations"));
}

TEST_F(ServerConnectionTest, AnAPIURLGoesIntoItsLiteralAsItStands) {
  OpenForm(ApiForm);
  FillRequired("cmbILSSystem");
  Type("txtAPIURL", "/a\\b\"c%_{d}");
  Prompt().Expect("Settings added.", 64);
  Click("cmdOK");
  EXPECT_TRUE(Writing().value(0).contains(", N'/a\\b\"c%_{d}', "));
  EXPECT_EQ(ApiRow("API_HOST_URL"), "/a\\b\"c%_{d}");
}

// Whoever may open the dialog would read any value of the database through it otherwise.
TEST_F(ServerConnectionTest, NoValueOfAnotherTableComesBackThroughTheAPIURL) {
  AddApi(Own);
  const QString before = ApiRow("API_HOST_URL");
  OpenForm(ApiForm);
  Statements();
  for (const char* url :
       {"'||(SELECT MAX(USER_PASSWORD) FROM ID_USER)||'", "' || (SELECT 'x') || '", "/o''neill", "'"}) {
    Type("txtAPIURL", url);
    Prompt().ExpectTitled(WriteFailed, 16, ApiCaption);
    Click("cmdOK");
    EXPECT_EQ(Text("txtAPIURL"), url);
    EXPECT_EQ(Statements(), QStringList()) << url;
    EXPECT_TRUE(LogHolds("Error: -2147217900 - The statement was not sent")) << url;
  }
  EXPECT_EQ(ApiRow("API_HOST_URL"), before);
}

TEST_F(ServerConnectionTest, AnAPIURLThatBreaksTheStatementEndsInTheFailureMessageAndNothingElse) {
  AddApi(Server);
  const char* const urls[] = {"/o'neill", "x', 1, N'Y', Null); DELETE FROM ID_API_CONNECT", "x', 1, N'Y', Null) --",
                              "x', 1 /*", "x', 1, N'Y', Null); DELETE FROM ID_API_CONNECT --"};
  for (const char* url : urls) {
    OpenForm(ApiForm);
    FillRequired("cmbILSSystem");
    Type("txtAPIURL", url);
    Prompt().ExpectTitled(WriteFailed, 16, ApiCaption);
    Click("cmdOK");
    EXPECT_TRUE(IsOpen()) << url;
    EXPECT_EQ(Text("txtAPIURL"), url);
    EXPECT_EQ(Count("ID_API_CONNECT"), 1) << url;
    Click("cmdCancel");
  }
}

// --- Required fields ---

TEST_F(ServerConnectionTest, RequiredFieldsAreAskedForInTheirOrder) {
  for (const auto& [form, systemBox] :
       std::map<QString, QString>{{NcipForm, "cmbNCIPSystem"}, {ApiForm, "cmbILSSystem"}}) {
    SCOPED_TRACE(form.toStdString());
    OpenForm(form);
    const QString caption = form == ApiForm ? ApiCaption : NcipCaption;
    const auto refused = [&](const QString& text, const QString& focus) {
      Prompt().ExpectTitled(text, 16, caption);
      Click("cmdOK");
      EXPECT_EQ(Focus(), focus);
    };
    refused("ILS System is a required field.", systemBox);
    Choose(systemBox, "Alma");
    refused("Connection Type is a required field.", "cmbConnect");
    Choose("cmbConnect", "Socket");
    Type("txtServerAddress", "  ");
    refused("Server Address is a required field.", "txtServerAddress");
    Type("txtServerAddress", "h");
    refused("Port is a required field.", "txtPort");
    EXPECT_TRUE(Statements().isEmpty());
    Click("cmdCancel");
    EXPECT_FALSE(IsOpen());
  }
}

// --- Delete ---

TEST_F(ServerConnectionTest, DeleteWithoutARowSaysSoAndStays) {
  for (const char* form : {NcipForm, ApiForm}) {
    OpenForm(form);
    Prompt().ExpectTitled("There is no record to delete.", 16, form == ApiForm ? ApiCaption : NcipCaption);
    Click("cmdDelete");
    EXPECT_TRUE(IsOpen()) << form;
    EXPECT_TRUE(Statements().isEmpty()) << form;
    Click("cmdCancel");
  }
}

TEST_F(ServerConnectionTest, DeleteAsksAndRemovesTheRowOfItsLibraryAlone) {
  AddNcip(Own);
  AddNcip(Server);
  AddApi(Own);
  AddApi(Server);
  Another("UPDATE ID_LIBRARY SET NCIP_SERVER_LIBRARY_ID = 202 WHERE LIBRARY_ID = 303");
  const std::pair<const char*, QString> deletes[] = {{NcipForm, "DELETE FROM ID_NCIP_CONNECT WHERE   LIBRARY_ID = 202"},
                                                     {ApiForm, "DELETE FROM ID_API_CONNECT WHERE   LIBRARY_ID = 101"}};
  for (const auto& [form, statement] : deletes) {
    OpenForm(form);
    Prompt().Expect("Are you sure you want to delete this record?", 36, MessageAnswer::No);
    Click("cmdDelete");
    EXPECT_TRUE(IsOpen());
    Prompt().Expect("Are you sure you want to delete this record?", 36, MessageAnswer::Yes);
    Prompt().Expect("Settings deleted.", 64);
    Click("cmdDelete");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Statements(), QStringList{statement});
  }
  EXPECT_EQ(Count("ID_NCIP_CONNECT", "LIBRARY_ID = 101"), 1);
  EXPECT_EQ(Count("ID_NCIP_CONNECT"), 1);
  EXPECT_EQ(Count("ID_API_CONNECT", "LIBRARY_ID = 202"), 1);
  EXPECT_EQ(Count("ID_API_CONNECT"), 1);
}

// --- Failures ---

TEST_F(ServerConnectionTest, ADuplicateMadeByAnotherClientKeepsTheDialogOpen) {
  OpenForm(NcipForm);
  FillRequired("cmbNCIPSystem");
  AddNcip(Server);
  Prompt().ExpectTitled(WriteFailed, 16, NcipCaption);
  Click("cmdOK");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Text("txtServerAddress"), "host.example.org");
  const QStringList lines = LogLines();
  ASSERT_GE(lines.size(), 2);
  EXPECT_TRUE(lines[lines.size() - 2].endsWith("  * frmNCIPServerconnection.cmdOK"));
  EXPECT_TRUE(lines.last().mid(24).startsWith("* Error: -2147217873 - ")) << lines.last().toStdString();
  EXPECT_TRUE(lines.last().contains("duplicate", Qt::CaseInsensitive));
}

TEST_F(ServerConnectionTest, ARowThatCouldNotBeReadIsNeitherWrittenNorDeleted) {
  AddNcip(Server);
  for (const char* table : {"ID_NCIP_ILS_SYSTEM", "ID_NCIP_CONNECT_TYPE", "ID_NCIP_CONNECT"}) {
    SCOPED_TRACE(table);
    Another(QString("ALTER TABLE %1 RENAME TO %1_AWAY").arg(table));
    Prompt().Expect("An error has occurred loading the form.  Please Notify Support.", 16);
    OpenForm(NcipForm);
    Another(QString("ALTER TABLE %1_AWAY RENAME TO %1").arg(table));
    EXPECT_FALSE(IsEnabled("cmdOK"));
    EXPECT_FALSE(IsEnabled("cmdDelete"));
    Click("cmdCancel");
  }
  EXPECT_EQ(Ncip("NCIP_HOST_ADDRESS"), "ncip.example.org");
}

TEST_F(ServerConnectionTest, OKAsksForTheRightOfWhatItWrites) {
  AddNcip(Server);
  Another("UPDATE ID_USER_FUNCTION SET UPDATE_FLAG = 'N', DELETE_FLAG = 'N'");
  ASSERT_TRUE(gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), gclsOF->CurrentFunction()));
  OpenForm(NcipForm);
  EXPECT_FALSE(IsEnabled("cmdOK"));
  EXPECT_FALSE(IsEnabled("cmdDelete"));
  Click("cmdCancel");
  OpenForm(ApiForm);  // has no row yet, which OK adds
  EXPECT_TRUE(IsEnabled("cmdOK"));
}

TEST_F(ServerConnectionTest, TheLogNamesAreSpelledAsTheReadersKnowThem) {
  AddApi(Own);
  AddNcip(Server);
  const auto failed = [this](const QString& button, const QString& logName) {
    Prompt().Expect(WriteFailed, 16);
    Click(button);
    EXPECT_EQ(Logged("  * " + logName).size(), 1) << logName.toStdString();
  };
  const auto question = [this] {
    Prompt().Expect("Are you sure you want to delete this record?", 36, MessageAnswer::Yes);
  };
  OpenForm(ApiForm);
  Another("ALTER TABLE ID_API_CONNECT RENAME TO ID_API_CONNECT_GONE");
  failed("cmdOK", "frmAPIServerconnection.cmdOK");
  question();
  failed("cmdDelete", "frmAPIServerconnection.cmdDelete_Click");
  Click("cmdCancel");
  Prompt().ExpectTitled("An error has occurred loading the form.  Please Notify Support.", 16, ApiCaption);
  Open(ApiForm);
  EXPECT_EQ(Logged("  * frmAPIServerconnection.LoadForm").size(), 1);
  EXPECT_EQ(Logged("* ***** SQL error on ID_API_CONNECT (Select) *****").size(), 1);
  Click("cmdCancel");
  OpenForm(NcipForm);
  Another("ALTER TABLE ID_NCIP_CONNECT RENAME TO ID_NCIP_CONNECT_GONE");
  failed("cmdOK", "frmNCIPServerconnection.cmdOK");
  question();
  failed("cmdDelete", "frmNCIPServerconnection.cmdDelete_Click");
  Click("cmdCancel");
  Prompt().Expect("An error has occurred loading the form.  Please Notify Support.", 16);
  Open(NcipForm);
  EXPECT_EQ(Logged("  * frmNCIPServerConnection.LoadForm").size(), 1);
  EXPECT_EQ(Logged("* ***** SQL error on ID_NCIP_CONNECT (Select) *****").size(), 1);
}

TEST_F(ServerConnectionTest, TheWindowsOwnCloseButtonIsCancel) {
  for (const char* form : {NcipForm, ApiForm}) {
    OpenForm(form);
    Type("txtServerAddress", "changed");
    Window()->close();
    EXPECT_FALSE(IsOpen()) << form;
    EXPECT_TRUE(Statements().isEmpty());
  }
}

TEST_F(ServerConnectionTest, TabGoesThroughTheFieldsInReadingOrder) {
  OpenForm(NcipForm);
  EXPECT_EQ(Focus(), "cmbNCIPSystem");
  EXPECT_EQ(TabStops("cmbNCIPSystem", 13),
            (QStringList{"cmbNCIPSystem", "cmbConnect", "txtServerAddress", "txtNCIPURL", "txtPort", "rdVersion(0)",
                         "txtApplicationProfile", "txtServerAgency", "txtAgencySchema", "txtToAgency", "txtFromAgency",
                         "txtAgencyAuthentication", "chkLookupUser"}));
  EXPECT_EQ(TabStops("chkDeleteItem", 5),
            (QStringList{"chkDeleteItem", "chkCircStatUpdStillPend", "chkCircStatUpdNotRenewed", "chkItemRenewed",
                         "chkItemRenewedRenewItem"}));
  EXPECT_EQ(TabStops("chkItemRenewedRenewItem", 5),
            (QStringList{"chkItemRenewedRenewItem", "cmdOK", "cmdDelete", "cmdCancel", "cmbNCIPSystem"}));
  Click("cmdCancel");
  OpenForm(ApiForm);
  Click("rdUseAllLocationsNo");
  EXPECT_EQ(TabStops("cmbILSSystem", 10),
            (QStringList{"cmbILSSystem", "cmbConnect", "txtServerAddress", "txtAPIURL", "txtPort",
                         "rdUseAllLocationsNo", "txtValidLocations", "cmdOK", "cmdDelete", "cmdCancel"}));
}

TEST_F(ServerConnectionTest, PicturesOfThem) {
  AddNcip(Server, "2.1", "YYNYNNYYNNYNYNY");
  AddApi(Own, "N");
  OpenForm(NcipForm);
  Picture("frmNCIPServerConnection-row");
  Click("cmdCancel");
  OpenForm(ApiForm);
  Picture("frmAPIServerConnection-row");
}

}  // namespace
