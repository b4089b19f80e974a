#include "core/OstanaFunctions.h"

#include <stdexcept>

#include "core/Logon.h"
#include "core/ModuleState.h"
#include "core/PasswordCipher.h"
#include "platform/files/IniFile.h"
#include "platform/files/WideTextFile.h"
#include "support/Desk.h"

namespace {

class OstanaFunctionsTest : public Desk {
 protected:
  void TearDown() override {
    gLogonDialog = nullptr;
    Desk::TearDown();
  }
  static bool Load(const QString& user = "admin", const QString& password = "secret", const QString& site = {}) {
    return gclsOF->LoadApplicationSettings("Tabulon", site, user, password);
  }
  void MustLoad() { ASSERT_TRUE(Load()) << gclsOF->LastError().toStdString(); }
  // Why the settings could not be loaded.
  QString Refusal() {
    EXPECT_FALSE(Load());
    return gclsOF->LastError();
  }
  QString File(const QString& name) const { return Folder() + "/" + name; }
};

}  // namespace

// --- Settings ---

TEST_F(OstanaFunctionsTest, BeforeSettingsThereIsNoConnection) {
  EXPECT_THROW(gclsOF->Connection(), AdoError);
  EXPECT_THROW(gclsOF->PasswordCipher(), std::logic_error);
  EXPECT_EQ(gclsOF->SqlEscape("it's"), "it''s");
}

TEST_F(OstanaFunctionsTest, SessionStateIsFilledFromTheSettings) {
  Setting("System", "SingleInstance", "Y");
  Setting("System", "SingleLanguage", "Y");
  Setting("System", "FaxAvailable", "N");
  Setting("System", "CustomConfigFile", "LIBRARY.CFG");
  Setting("System", "SiteNumber", "1002");
  Setting("System", "DateDisplayFormat", "dd.MM.yyyy");
  MustLoad();
  EXPECT_EQ(gclsOF->ApplicationName(), "Tabulon");
  EXPECT_EQ(gclsOF->UserId(), "admin");
  EXPECT_EQ(gclsOF->UserPassword(), "secret");
  EXPECT_EQ(gclsOF->ApplicationPath(), QDir::toNativeSeparators(Folder() + "/"));
  EXPECT_TRUE(gclsOF->SingleInstance());
  EXPECT_TRUE(gclsOF->SingleLanguage());
  EXPECT_FALSE(gclsOF->FaxAvailable());
  EXPECT_TRUE(gclsOF->Tracing());
  EXPECT_EQ(gclsOF->CustomConfigFile(), "LIBRARY.CFG");
  EXPECT_EQ(gclsOF->SiteNumber(), 1002);
  EXPECT_EQ(gclsOF->DateDisplayFormat(), "dd.MM.yyyy");
  EXPECT_EQ(gclsOF->ContactName(), "Test Desk");
  EXPECT_EQ(gclsOF->InstitutionName(), "Ostana");
  EXPECT_EQ(gclsOF->Connection().State(), Connection::Opened);
  EXPECT_FALSE(gclsOF->CanAdd() || gclsOF->CanUpdate() || gclsOF->CanDelete());
  EXPECT_TRUE(gclsOF->LastError().isEmpty());
}

TEST_F(OstanaFunctionsTest, LoadingDoesNotNeedTheUserToBeRight) {
  EXPECT_TRUE(Load("nobody", "wrong"));
  EXPECT_EQ(gclsOF->UserId(), "nobody");
}

TEST_F(OstanaFunctionsTest, DatabaseTypeCanBeOverridden) {
  MustLoad();
  EXPECT_NE(gclsOF->DatabaseType(), 5);
  Setting("Database", "DatabaseType", "5");
  MustLoad();
  EXPECT_EQ(gclsOF->DatabaseType(), 5);
}

TEST_F(OstanaFunctionsTest, WithoutSettingsFileTheReasonIsTold) {
  ASSERT_TRUE(QFile::remove(SettingsFile()));
  EXPECT_TRUE(Refusal().startsWith("The settings file 'Ostana.INI' was not found in '"));
}

TEST_F(OstanaFunctionsTest, DatabaseThatIsAbsentOrNoneIsTold) {
  QFile garbage(File("garbage.db"));
  ASSERT_TRUE(garbage.open(QIODevice::WriteOnly));
  garbage.write(QByteArray(8192, 'x'));
  garbage.close();
  for (const QString& name : {File("absent.db"), File("garbage.db"), Folder()}) {
    Setting("Database other", "Engine", "SQLITE");
    Setting("Database other", "Name", name);
    EXPECT_FALSE(Load("admin", "secret", "other"));
    EXPECT_TRUE(gclsOF->LastError().startsWith("The database '" + name + "' cannot be opened: "))
        << gclsOF->LastError().toStdString();
    EXPECT_TRUE(gclsOF->LastError().endsWith("  The settings are those of '" + SettingsFile() + "'."));
  }
  EXPECT_FALSE(QFile::exists(File("absent.db")));
}

TEST_F(OstanaFunctionsTest, ServerThatCannotBeReachedIsTold) {
  Setting("Database other", "Engine", "POSTGRESQL");
  Setting("Database other", "Name", "ostana");
  Setting("Database other", "Host", Folder());
  EXPECT_FALSE(Load("admin", "secret", "other"));
  EXPECT_TRUE(gclsOF->LastError().startsWith("The database 'ostana' cannot be opened: "));
}

TEST_F(OstanaFunctionsTest, WithoutUserTheLogonIsAsked) {
  gLogonDialog = [](QString& user, QString& password) {
    user = "admin";
    password = "secret";
    return true;
  };
  ASSERT_TRUE(Load(""));
  EXPECT_EQ(gclsOF->UserId(), "admin");
  EXPECT_EQ(gclsOF->UserPassword(), "secret");
}

TEST_F(OstanaFunctionsTest, CancelledLogonAnswersFalse) {
  gLogonDialog = [](QString&, QString&) { return false; };
  EXPECT_FALSE(Load(""));
  EXPECT_EQ(gclsOF->LastError(), "The logon was cancelled.");
}

TEST_F(OstanaFunctionsTest, WithUserNothingIsAsked) {
  gLogonDialog = [](QString&, QString&) {
    ADD_FAILURE() << "The logon was asked";
    return false;
  };
  MustLoad();
}

// --- Values ---

TEST_F(OstanaFunctionsTest, FieldValueGivesNullAsEmptyText) {
  MustLoad();
  Recordset rows;
  rows.Open(gclsOF->Connection(), "SELECT   NULL, '', 'text', 5");
  EXPECT_EQ(gclsOF->FieldValue(rows.Fields(0), 0, 0), "");
  EXPECT_FALSE(gclsOF->FieldValue(rows.Fields(0)).isNull());
  EXPECT_EQ(gclsOF->FieldValue(rows.Fields(1)), "");
  EXPECT_EQ(gclsOF->FieldValue(rows.Fields(2)), "text");
  EXPECT_EQ(gclsOF->FieldValue(rows.Fields(3)), "5");
}

TEST_F(OstanaFunctionsTest, EscapedTextArrivesAsItWas) {
  MustLoad();
  const QStringList texts{"O'Brien", "''",  "\\",   "\\'",   "; DROP TABLE ID_USER; --",
                          "N'x'",    "%_[", "a\nb", "\"x\"", QString::fromUtf8("😀 e\u0301 عربي")};
  for (const QString& text : texts) {
    Recordset rows;
    rows.Open(gclsOF->Connection(), "SELECT   N'" + gclsOF->SqlEscape(text, 0, 0) + "'");
    EXPECT_EQ(gclsOF->FieldValue(rows.Fields(0)), text);
  }
}

TEST_F(OstanaFunctionsTest, DateLiteralIsUnderstoodByTheDatabase) {
  MustLoad();
  Another("CREATE TABLE ID_DATE_TEST (D DATE, M TIMESTAMP NULL)");
  gclsOF->Connection().Execute("INSERT INTO " + gclsOF->OwnerPrefix() + "ID_DATE_TEST (D, M) VALUES (" +
                               gclsOF->SqlDate(QDate(2024, 2, 29)) + ", " +
                               gclsOF->SqlDate(QDateTime(QDate(2024, 3, 31), QTime(2, 30, 15))) + ")");
  Recordset rows;
  rows.Open(gclsOF->Connection(), "SELECT   D, M FROM " + gclsOF->OwnerPrefix() + "ID_DATE_TEST");
  EXPECT_EQ(gclsOF->FieldValue(rows.Fields(0)).left(10), "2024-02-29");
  EXPECT_EQ(gclsOF->FieldValue(rows.Fields(1)).left(19), "2024-03-31 02:30:15");
  rows.Close();
  Another("DROP TABLE ID_DATE_TEST");
}

TEST_F(OstanaFunctionsTest, NoDateIsAnError) {
  MustLoad();
  EXPECT_THROW(gclsOF->SqlDate(QDate()), std::invalid_argument);
  EXPECT_THROW(gclsOF->SqlDate(QDateTime()), std::invalid_argument);
}

TEST_F(OstanaFunctionsTest, PasswordCipherUsesTheKeyBesideTheSettings) {
  MustLoad();
  const QString encoded = gclsOF->PasswordCipher().Encode("secret");
  EXPECT_EQ(PasswordCipherHelper(File("Ostana.key")).Decode(encoded), "secret");
}

// --- Look-ups ---

TEST_F(OstanaFunctionsTest, RegisteredSymbolIsFound) {
  MustLoad();
  Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (10000123, 'O''B', 'X')");
  qint32 id = 7;
  EXPECT_TRUE(gclsOF->FindLibraryId(" O'B ", id));
  EXPECT_EQ(id, 10000123);
}

TEST_F(OstanaFunctionsTest, UnknownSymbolGivesNoIdAndAWildcardMinusOne) {
  MustLoad();
  qint32 id = 7;
  EXPECT_FALSE(gclsOF->FindLibraryId("NONE", id));
  EXPECT_EQ(id, 0);
  EXPECT_FALSE(gclsOF->FindLibraryId("NO%", id));
  EXPECT_EQ(id, -1);
  EXPECT_FALSE(gclsOF->FindLibraryId("N_NE", id));
  EXPECT_EQ(id, 0);
  EXPECT_FALSE(gclsOF->FindLibraryId("  ", id));
  EXPECT_EQ(id, 0);
}

TEST_F(OstanaFunctionsTest, FieldsAreValidatedByKind) {
  EXPECT_TRUE(gclsOF->ValidateField("E", "ill@example.org"));
  EXPECT_TRUE(gclsOF->ValidateField("A", "ariel.example.org:422"));
  EXPECT_TRUE(gclsOF->ValidateField("F", "(613) 555-0123"));
  EXPECT_TRUE(gclsOF->LastError().isEmpty());
  EXPECT_FALSE(gclsOF->ValidateField("E", "ariel.example.org"));
  EXPECT_EQ(gclsOF->LastError(), "The E-mail address must hold one '@'.");
  EXPECT_FALSE(gclsOF->ValidateField("A", "ill@example.org"));
  EXPECT_FALSE(gclsOF->ValidateField("F", "none"));
  EXPECT_TRUE(gclsOF->ValidateField("F", "613 555"));
  EXPECT_TRUE(gclsOF->LastError().isEmpty());
  EXPECT_THROW(gclsOF->ValidateField("X", ""), std::invalid_argument);
}

TEST_F(OstanaFunctionsTest, NetworkAddressHandsItsReasonOut) {
  QString reason = "before";
  EXPECT_TRUE(gclsOF->ValidateNetworkAddress("10.0.0.1", reason));
  EXPECT_TRUE(reason.isEmpty());
  EXPECT_FALSE(gclsOF->ValidateNetworkAddress("10.0.0", reason));
  EXPECT_FALSE(reason.isEmpty());
}

// --- Files ---

TEST_F(OstanaFunctionsTest, ProfileStringsAreReadInAnyLetterCase) {
  MustLoad();
  const QString file = gclsOF->ApplicationPath() + "OSTANA.INI";
  qint32 longest = 500;
  EXPECT_EQ(gclsOF->ReadProfileString("loan policy", "RENEWAL DATE", file, longest), "Current Date");
  longest = 4;
  EXPECT_EQ(gclsOF->ReadProfileString("Loan Policy", "Renewal Date", file, longest), "Curr");
  EXPECT_EQ(gclsOF->ReadProfileString("Loan Policy", "None", file), "");
  EXPECT_EQ(gclsOF->ReadProfileString("Loan Policy", "Renewal Date", File("none.ini")), "");
}

TEST_F(OstanaFunctionsTest, ProfileStringIsWrittenToTheFileThatIsThere) {
  MustLoad();
  gclsOF->WriteProfileString("Loan Policy", "Renewal Date", "Due Date", gclsOF->ApplicationPath() + "OSTANA.INI");
  EXPECT_TRUE(gclsOF->LastError().isEmpty());
  EXPECT_EQ(IniFile::ReadValue(SettingsFile(), "Loan Policy", "Renewal Date"), "Due Date");
  EXPECT_EQ(QDir(Folder()).entryList({"ostana.ini"}, QDir::Files).size(), 1);
}

TEST_F(OstanaFunctionsTest, FailedProfileSaveLeavesItsReason) {
  gclsOF->WriteProfileString("A", "Key", "1", File("absent/Ostana.ini"));
  EXPECT_TRUE(gclsOF->LastError().contains("cannot be written")) << gclsOF->LastError().toStdString();
  gclsOF->WriteProfileString("A", "Key", "1", File("other.ini"));
  EXPECT_TRUE(gclsOF->LastError().isEmpty());
}

TEST_F(OstanaFunctionsTest, SystemFilesAreBelowTheApplicationPath) {
  MustLoad();
  EXPECT_EQ(gclsOF->SystemFile("OSTANA.INI"), gclsOF->ApplicationPath() + "Ostana.ini");
  EXPECT_EQ(gclsOF->SystemFile("MANIFEST.ini"), gclsOF->ApplicationPath() + "MANIFEST.ini");
  EXPECT_EQ(gclsOF->SystemFile(""), gclsOF->ApplicationPath());
}

TEST_F(OstanaFunctionsTest, KeywordListsComeInUpperCaseUpToTheFirstGap) {
  Setting("Keywords", "NoiseString_1", " [electronic resource]");
  Setting("Keywords", "StopWord_1", "the");
  Setting("Keywords", "StopWord_2", "der");
  Setting("Keywords", "StopWord_4", "and");
  MustLoad();
  EXPECT_TRUE(gclsOF->KeywordStopWords().isEmpty());
  gclsOF->LoadKeywordLists();
  EXPECT_EQ(gclsOF->KeywordNoiseStrings(), QStringList{" [ELECTRONIC RESOURCE]"});
  EXPECT_EQ(gclsOF->KeywordStopWords(), (QStringList{"THE", "DER"}));
}

// --- Logs ---

TEST_F(OstanaFunctionsTest, LogBearsApplicationAndSite) {
  EXPECT_TRUE(Load("admin", "secret", "main"));
  gclsOF->WriteLog("text", "detail", "L");
  EXPECT_EQ(WideTextFile::ReadLines(File("Logs/Tabulon - main.log")).size(), 2);
  MustLoad();
  gclsOF->WriteLog("text", "", "L");
  EXPECT_EQ(WideTextFile::ReadLines(File("Logs/Tabulon.log")).size(), 1);
}

TEST_F(OstanaFunctionsTest, LogCanBeWrittenBeforeSettingsAreLoaded) {
  gclsOF->WriteLog("text", "", "L");
  EXPECT_EQ(WideTextFile::ReadLines(File("Logs/Tabulon.log")).size(), 1);
}

TEST_F(OstanaFunctionsTest, SecretsNeverReachTheLog) {
  gclsOF->WriteLog("Database Statement: UPDATE T SET USER_PASSWORD = 'topsecret'",
                   "INSERT INTO T (BL_PASSWORD) VALUES (N'topsecret')", "S");
  EXPECT_FALSE(WideTextFile::ReadLines(File("Logs/Tabulon.log")).join('\n').contains("topsecret"));
}

TEST_F(OstanaFunctionsTest, StatementLogHoldsEveryStatementAsComposed) {
  Setting("System", "StatementLog", "statements.log");
  MustLoad();
  Recordset rows;
  rows.Open(gclsOF->Connection(), "SELECT   N'a  b'");
  rows.Close();
  EXPECT_THROW(gclsOF->Connection().Execute("DELETE FROM ID_NO_SUCH_TABLE"), AdoError);
  QFile file(File("statements.log"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QStringList lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
  ASSERT_GE(lines.size(), 2);
  EXPECT_TRUE(lines[lines.size() - 2].endsWith("\t-\tSELECT   N'a  b'"));
  EXPECT_TRUE(lines.last().endsWith("\tfailed\tDELETE FROM ID_NO_SUCH_TABLE"));
}

TEST_F(OstanaFunctionsTest, StatementLogThatCannotBeWrittenIsLoggedOnce) {
  Setting("System", "StatementLog", "absent/statements.log");
  MustLoad();
  for (int times = 0; times < 3; ++times) {
    Recordset rows;
    rows.Open(gclsOF->Connection(), "SELECT   1");
  }
  const QStringList lines = WideTextFile::ReadLines(File("Logs/Tabulon.log"));
  EXPECT_EQ(lines.filter("The statement log cannot be written.").size(), 1);
}

TEST_F(OstanaFunctionsTest, ReportedEarlierCopyCounts) {
  EXPECT_TRUE(gclsOF->CheckPreviousInstance(true));
}

// --- What screens hand over ---

TEST_F(OstanaFunctionsTest, ScreensKeepTheirStateInTheSession) {
  EXPECT_EQ(gclsOF->LanguageSuffix(), "");
  EXPECT_EQ(gclsOF->LibraryId(), 0);
  gclsOF->SetLanguageSuffix("_FRE");
  gclsOF->SetLibraryId(-1);
  gclsOF->SetPatronId("P1");
  gclsOF->SetCallingFunction("Library Registration");
  gclsOF->SetApplicationCode("3");
  gclsOF->SetLastSQL("SELECT 1");
  gclsOF->SetLastError("text");
  EXPECT_EQ(gclsOF->LanguageSuffix(), "_FRE");
  EXPECT_EQ(gclsOF->LibraryId(), -1);
  EXPECT_EQ(gclsOF->PatronId(), "P1");
  EXPECT_EQ(gclsOF->CallingFunction(), "Library Registration");
  EXPECT_EQ(gclsOF->ApplicationCode(), "3");
  EXPECT_EQ(gclsOF->LastSQL(), "SELECT 1");
  EXPECT_EQ(gclsOF->LastError(), "text");
}
