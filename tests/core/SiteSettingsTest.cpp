#include "core/SiteSettings.h"

#include <QCoreApplication>
#include <QRandomGenerator>

#include "core/PasswordCipher.h"
#include "core/WorkFolder.h"

namespace {

class SiteSettingsTest : public WorkFolder {
 protected:
  // Loads the settings from that text.
  SiteSettings Loaded(const QByteArray& text, const QString& site = {}) {
    Store("Ostana.INI", text);
    SiteSettings settings;
    QString error;
    EXPECT_TRUE(LoadSiteSettings(site, settings, error)) << error.toStdString();
    EXPECT_TRUE(error.isEmpty());
    return settings;
  }

  // What is said of that text; the settings of before stay.
  QString Refused(const QByteArray& text) {
    Store("Ostana.INI", text);
    return Refusal();
  }
  QString Refusal() {
    SiteSettings settings;
    settings.contactName = "before";
    QString error;
    EXPECT_FALSE(LoadSiteSettings("", settings, error));
    EXPECT_EQ(settings.contactName, "before");
    return error;
  }

  QString Home() const { return QDir::toNativeSeparators(Path("") + "/"); }
  const QByteArray database = "[Database]\nEngine=SQLITE\nName=ostana.db\n";
};

}  // namespace

TEST_F(SiteSettingsTest, EnvironmentNamesTheApplicationPath) {
  ASSERT_TRUE(QDir().mkdir(Path("elsewhere")));
  Store("elsewhere/Ostana.INI", "");
  QDir::setCurrent(Path("elsewhere"));
  EXPECT_EQ(FindApplicationPath(), Home());
}

TEST_F(SiteSettingsTest, CurrentDirectoryCountsWhenItHoldsTheSettings) {
  qunsetenv("OSTANA_HOME");
  Store("OSTANA.ini", "");
  EXPECT_EQ(FindApplicationPath(), QDir::toNativeSeparators(QDir::currentPath() + '/'));
}

TEST_F(SiteSettingsTest, FolderOfTheProgramIsTheLastChoice) {
  qunsetenv("OSTANA_HOME");
  EXPECT_EQ(FindApplicationPath(), QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + '/'));
}

TEST_F(SiteSettingsTest, SettingsFileIsFoundInAnyLetterCase) {
  Store("OSTANA.ini", database);
  SiteSettings settings;
  QString error;
  ASSERT_TRUE(LoadSiteSettings("", settings, error)) << error.toStdString();
  EXPECT_EQ(settings.settingsFile, Path("OSTANA.ini"));
  EXPECT_EQ(settings.applicationPath, Home());
}

TEST_F(SiteSettingsTest, MissingFileIsToldWithItsDirectory) {
  EXPECT_EQ(Refusal(), "The settings file 'Ostana.INI' was not found in '" + Home() +
                           "'.  Start the program in the directory of the system, or set OSTANA_HOME to that "
                           "directory.");
}

TEST_F(SiteSettingsTest, RandomBytesAreTold) {
  QByteArray bytes(4096, '\0');
  for (char& byte : bytes) byte = char(QRandomGenerator::global()->bounded(256));
  EXPECT_EQ(Refused(bytes), "The settings file cannot be used.  The file '" + Path("Ostana.INI") +
                                "' is not a text file.  Put a copy of a sound settings file in its place.");
}

TEST_F(SiteSettingsTest, FileOf50MegabytesIsTold) {
  QFile file(Path("Ostana.INI"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(50 * 1024 * 1024));
  file.close();
  EXPECT_TRUE(Refusal().contains("is larger than 16 MB")) << Refusal().toStdString();
}

TEST_F(SiteSettingsTest, OneLineWithoutEndHasNoSection) {
  EXPECT_EQ(Refused(QByteArray(1024 * 1024, 'x')),
            "The settings file '" + Path("Ostana.INI") +
                "' has no section [Database].  Add the section with the settings Engine and Name.");
}

TEST_F(SiteSettingsTest, EmptyFileHasNoSection) {
  EXPECT_TRUE(Refused("").contains("has no section [Database]"));
}

TEST_F(SiteSettingsTest, SiteHasItsOwnSection) {
  const QByteArray text = database + "[database MAIN]\nEngine=SQLITE\nName=main.db\n";
  EXPECT_EQ(Loaded(text, "main").connection.name, Path("main.db"));
  EXPECT_EQ(Loaded(text, "").connection.name, Path("ostana.db"));
  EXPECT_EQ(Loaded(text, "other").connection.name, Path("ostana.db"));
}

TEST_F(SiteSettingsTest, EnginesAreKnownByName) {
  const struct {
    const char* name;
    Engine engine;
    int databaseType;
  } engines[] = {{"SQLITE", Engine::Sqlite, 1},
                 {"PostgreSQL", Engine::PostgreSql, 2},
                 {"mariadb", Engine::MariaDb, 3},
                 {" SQLServer ", Engine::SqlServer, 5}};
  for (const auto& entry : engines) {
    const SiteSettings settings = Loaded(QByteArray("[Database]\nEngine=") + entry.name + "\nName=x\n");
    EXPECT_EQ(settings.connection.engine, entry.engine);
    EXPECT_EQ(settings.databaseType, entry.databaseType);
  }
}

TEST_F(SiteSettingsTest, UnknownEngineIsToldWithTheKnownOnes) {
  EXPECT_EQ(Refused("[Database]\nEngine=ORACLE\nName=x\n"),
            "The setting 'Engine' in section [Database] of '" + Path("Ostana.INI") +
                "' is 'ORACLE'.  Write SQLITE, POSTGRESQL, MARIADB or SQLSERVER.");
  EXPECT_TRUE(Refused("[Database]\nName=x\n").contains("' is missing.  Write SQLITE, "));
}

TEST_F(SiteSettingsTest, MissingNameIsTold) {
  EXPECT_TRUE(Refused("[Database]\nEngine=SQLITE\n").contains("'Name' in section [Database]"));
}

TEST_F(SiteSettingsTest, OnlyFileNamesAreBelowTheApplicationPath) {
  EXPECT_EQ(Loaded("[Database]\nEngine=SQLITE\nName=data/ostana.db\n").connection.name, Path("data/ostana.db"));
  EXPECT_EQ(Loaded("[Database]\nEngine=SQLITE\nName=/var/lib/o.db\n").connection.name, "/var/lib/o.db");
  EXPECT_EQ(Loaded("[Database]\nEngine=POSTGRESQL\nName=ostana\n").connection.name, "ostana");
}

TEST_F(SiteSettingsTest, ConnectionIsReadWhole) {
  const ConnectionSettings connection =
      Loaded(
          "[Database]\nEngine=POSTGRESQL\nName=ostana\nHost=db.example.org\nPort=5433\nUser=clerk\n"
          "Password=\" p=w;'d \"\nOptions=connect_timeout=3;x=1\nOwnerPrefix=OSTANA\n")
          .connection;
  EXPECT_EQ(connection.host, "db.example.org");
  EXPECT_EQ(connection.port, 5433);
  EXPECT_EQ(connection.user, "clerk");
  EXPECT_EQ(connection.password, " p=w;'d ");
  EXPECT_EQ(connection.options, "connect_timeout=3;x=1");
  EXPECT_EQ(connection.ownerPrefix, "OSTANA.");
  EXPECT_EQ(Loaded(database + "OwnerPrefix=OSTANA.\n").connection.ownerPrefix, "OSTANA.");
  EXPECT_EQ(Loaded(database).connection.ownerPrefix, "");
}

TEST_F(SiteSettingsTest, LinkToAnotherMachineIsVerifiedUnlessToldOtherwise) {
  const QByteArray server = "[Database]\nEngine=POSTGRESQL\nName=ostana\n";
  for (const char* host : {"db.example.org", "10.0.0.7", "128.0.0.1", "localhost.example.org", "2001:db8::1"})
    EXPECT_EQ(Loaded(server + "Host=" + host + "\n").connection.encryption, Encryption::Verify) << host;
  for (const char* host : {"", "/run/postgresql", "@socket", "localhost", "LOCALHOST", "127.0.0.1", "127.1.2.3", "::1"})
    EXPECT_EQ(Loaded(server + "Host=" + host + "\n").connection.encryption, Encryption::Off) << host;
  EXPECT_EQ(Loaded(database + "Host=db.example.org\n").connection.encryption, Encryption::Off);
}

TEST_F(SiteSettingsTest, EncryptionIsOneOfThreeWords) {
  const QByteArray server = "[Database]\nEngine=MARIADB\nName=ostana\nHost=db.example.org\nEncryption=";
  EXPECT_EQ(Loaded(server + "off\n").connection.encryption, Encryption::Off);
  EXPECT_EQ(Loaded(server + " Required \n").connection.encryption, Encryption::Required);
  EXPECT_EQ(Loaded(server + "VERIFY\n").connection.encryption, Encryption::Verify);
  EXPECT_EQ(Refused(server + "perhaps\n"), "The setting 'Encryption' in section [Database] of '" + Path("Ostana.INI") +
                                               "' is 'perhaps'.  Write off, required or verify.");
}

TEST_F(SiteSettingsTest, NumbersAreChecked) {
  for (const char* port : {"x", "0", "65536", "-1", "5432x"})
    EXPECT_TRUE(Refused(database + "Port=" + port + "\n").endsWith("Write a number from 1 to 65535.")) << port;
  EXPECT_EQ(Loaded(database + "DatabaseType=5\n").databaseType, 5);
  EXPECT_TRUE(Refused(database + "DatabaseType=99999\n").contains("'DatabaseType'"));
  EXPECT_EQ(Loaded(database + "[System]\nSiteNumber=1002\n").siteNumber, 1002);
  EXPECT_TRUE(Refused(database + "[System]\nSiteNumber=one\n").contains("'SiteNumber' in section [System]"));
}

TEST_F(SiteSettingsTest, EncodedPasswordIsDecodedWithTheSitesKey) {
  const QString encoded = PasswordCipherHelper(Path("Ostana.key")).Encode("secret");
  const QByteArray text = database + "Password=plain\nPasswordEncoded=" + encoded.toLatin1() + "\n";
  EXPECT_EQ(Loaded(text).connection.password, "secret");
  ASSERT_TRUE(QFile::remove(Path("Ostana.key")));
  const QString error = Refused(text);
  EXPECT_TRUE(error.contains("'PasswordEncoded' in section [Database]")) << error.toStdString();
  EXPECT_TRUE(error.endsWith("Encode the password again, or write it as Password.")) << error.toStdString();
}

TEST_F(SiteSettingsTest, SystemSettingsHaveTheirDefaults) {
  const SiteSettings settings = Loaded(database);
  EXPECT_FALSE(settings.singleInstance);
  EXPECT_FALSE(settings.tracing);
  EXPECT_FALSE(settings.singleLanguage);
  EXPECT_TRUE(settings.faxAvailable);
  EXPECT_EQ(settings.dateDisplayFormat, "yyyy-MM-dd");
  EXPECT_EQ(settings.siteNumber, 0);
  EXPECT_EQ(settings.customConfigFile, "");
  EXPECT_EQ(settings.statementLog, "");
}

TEST_F(SiteSettingsTest, SystemSettingsAreReadWhole) {
  const SiteSettings settings = Loaded(
      database +
      "[System]\nSingleInstance=Y\nTracing=True\nSingleLanguage=1\nFaxAvailable=n\nDateDisplayFormat=dd.MM.yyyy\n"
      "ContactName=A. Clerk\nInstitutionName=Example Library\nCustomConfigFile=LIBRARY.CFG\n"
      "StatementLog=Logs/statements.log\n");
  EXPECT_TRUE(settings.singleInstance);
  EXPECT_TRUE(settings.tracing);
  EXPECT_TRUE(settings.singleLanguage);
  EXPECT_FALSE(settings.faxAvailable);
  EXPECT_EQ(settings.dateDisplayFormat, "dd.MM.yyyy");
  EXPECT_EQ(settings.contactName, "A. Clerk");
  EXPECT_EQ(settings.institutionName, "Example Library");
  EXPECT_EQ(settings.customConfigFile, "LIBRARY.CFG");
  EXPECT_EQ(settings.statementLog, Path("Logs/statements.log"));
}

TEST_F(SiteSettingsTest, FlagIsYesOrNo) {
  EXPECT_EQ(Refused(database + "[System]\nTracing=perhaps\n"),
            "The setting 'Tracing' in section [System] of '" + Path("Ostana.INI") + "' is 'PERHAPS'.  Write Y or N.");
}

TEST_F(SiteSettingsTest, FirstOfSeveralMistakesIsTold) {
  EXPECT_TRUE(Refused("[Database]\nEngine=X\nPort=y\n[System]\nTracing=z\n").contains("'Engine'"));
}
