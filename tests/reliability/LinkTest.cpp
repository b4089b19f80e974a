// What the link to a server promises: encryption, a certificate of the server's name, and a password that nobody is
// shown. Against a server of the case's own on loopback, and against one that only pretends.
#include <gtest/gtest.h>

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "reliability/FalseServer.h"
#include "reliability/OwnServer.h"
#include "support/Printing.h"
#include "support/TestDatabase.h"

namespace {

using Certificate = OwnServer::Certificate;

class LinkTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    if (TestDatabase::TestEngine() != Engine::Sqlite) server_ = std::make_unique<OwnServer>(TestDatabase::TestEngine());
  }
  static void TearDownTestSuite() { server_.reset(); }
  void SetUp() override {
    if (!server_) GTEST_SKIP() << "a file has no link";
  }

  static OwnServer& Server() { return *server_; }
  static bool IsPostgreSql() { return TestDatabase::TestEngine() == Engine::PostgreSql; }

  // What the server is reached with; it vouches for the authority of the tests.
  static ConnectionSettings Settings(Encryption encryption) {
    ConnectionSettings settings = server_->Settings();
    settings.encryption = encryption;
    if (encryption == Encryption::Verify)
      settings.options = (IsPostgreSql() ? "sslrootcert=" : "SSL_CA=") + server_->Authority();
    return settings;
  }

  // "" when the link comes up and carries a statement, else what is said.
  static QString Said(const ConnectionSettings& settings, QString* link = nullptr) {
    Connection connection(settings);
    try {
      connection.Open();
      Recordset rows;
      rows.Open(connection, "SELECT 1");
      if (link) *link = connection.LinkDescription();
      return {};
    } catch (const AdoError& error) {
      EXPECT_EQ(connection.State(), Connection::Closed);
      EXPECT_FALSE(error.Description().contains(settings.password));
      return error.Description();
    }
  }
  static QString Said(Encryption encryption) { return Said(Settings(encryption)); }

 private:
  static inline std::unique_ptr<OwnServer> server_;
};

}  // namespace

TEST_F(LinkTest, ARightCertificateIsVerified) {
  Server().Show(Certificate::Right);
  QString link;
  EXPECT_EQ(Said(Settings(Encryption::Verify), &link), "");
  EXPECT_TRUE(link.startsWith("encrypted (TLSv1.3 TLS_")) << link.toStdString();
  EXPECT_TRUE(link.endsWith("the server's certificate is verified")) << link.toStdString();
  EXPECT_EQ(Said(Settings(Encryption::Required), &link), "");
  EXPECT_TRUE(link.endsWith("the server's certificate is not verified")) << link.toStdString();
}

TEST_F(LinkTest, ACertificateOfAnotherNameIsRefusedByVerify) {
  Server().Show(Certificate::OfAnotherName);
  EXPECT_TRUE(Said(Encryption::Verify).contains("could not be verified, as Encryption=verify"));
  EXPECT_EQ(Said(Encryption::Required), "");
}

TEST_F(LinkTest, AnExpiredCertificateIsRefusedByVerify) {
  Server().Show(Certificate::Expired);
  EXPECT_TRUE(Said(Encryption::Verify).contains("could not be verified, as Encryption=verify"));
  EXPECT_EQ(Said(Encryption::Required), "");
}

TEST_F(LinkTest, ACertificateOfAnotherAuthorityIsRefusedByVerify) {
  Server().Show(Certificate::OfAnotherAuthority);
  EXPECT_TRUE(Said(Encryption::Verify).contains("could not be verified, as Encryption=verify"));
  EXPECT_EQ(Said(Encryption::Required), "");
}

TEST_F(LinkTest, WithoutAnAuthorityOfItsOwnTheMachinesCertificatesCount) {
  Server().Show(Certificate::Right);
  ConnectionSettings settings = Settings(Encryption::Verify);
  settings.options.clear();
  EXPECT_TRUE(Said(settings).contains("could not be verified, as Encryption=verify"));
}

TEST_F(LinkTest, AServerWithoutEncryptionIsRefused) {
  Server().Show({});
  for (const Encryption encryption : {Encryption::Required, Encryption::Verify}) {
    const QString said = Said(encryption);
    EXPECT_TRUE(said.contains("does not encrypt the link, as Encryption=" + EncryptionName(encryption)))
        << said.toStdString();
  }
  QString link;
  EXPECT_EQ(Said(Settings(Encryption::Off), &link), "");
  EXPECT_EQ(link, "not encrypted");
}

// A link that is opened anew promises the same.
TEST_F(LinkTest, AServerThatStopsEncryptingIsRefusedWhenTheLinkComesBack) {
  Server().Show(Certificate::Right);
  Connection connection(Settings(Encryption::Required));
  connection.Open();
  Server().Show({});
  EXPECT_THROW(connection.Execute("DELETE FROM ID_A"), AdoError);
  try {
    connection.Execute("DELETE FROM ID_A");
    ADD_FAILURE() << "a statement was sent in clear";
  } catch (const AdoError& error) {
    EXPECT_TRUE(error.Description().contains("does not encrypt the link")) << error.Description().toStdString();
  }
}

TEST_F(LinkTest, ASocketKeepsNoPromiseOfTheNetwork) {
  ConnectionSettings settings = Settings(Encryption::Verify);
  settings.host = "/run/database";
  EXPECT_TRUE(Said(settings).contains("Host names no server"));
  settings.host.clear();
  EXPECT_TRUE(Said(settings).contains("Host names no server"));
}

TEST_F(LinkTest, OptionsThatPromiseLessAreRefused) {
  ConnectionSettings settings = Settings(Encryption::Verify);
  if (IsPostgreSql()) {
    settings.options += ";sslmode=require";
    EXPECT_TRUE(Said(settings).contains("says sslmode=require, which is less than Encryption=verify"));
    settings.encryption = Encryption::Required;
    settings.options = "channel_binding=disable";
    EXPECT_TRUE(Said(settings).contains("says channel_binding=disable, which is less than Encryption=required"));
    Server().Show(Certificate::Right);
    settings.options = "sslmode=verify-full;sslrootcert=" + Server().Authority();
    EXPECT_EQ(Said(settings), "");
    return;
  }
  for (const char* word :
       {"CLIENT_SSL=1", "MYSQL_OPT_SSL_MODE=SSL_MODE_REQUIRED", "MYSQL_OPT_SSL_VERIFY_SERVER_CERT=1"}) {
    settings.options = word;
    const QString said = Said(settings);
    EXPECT_TRUE(said.contains("Encryption=required or Encryption=verify says")) << said.toStdString();
  }
  settings.options = "NONSENSE=1";
  EXPECT_TRUE(Said(settings).contains("does not know the word NONSENSE"));
  settings.options = "UNIX_SOCKET=/run/s";
  EXPECT_TRUE(Said(settings).contains("Write the path of the socket as Host"));
}

// The user's name and password reach the server as they are.
TEST_F(LinkTest, NamesAndPasswordsOfAllLettersAreCarried) {
  Server().Show(Certificate::Right);
  for (const QString& word :
       QStringList{"a;b", "a=b", "{a", "a}", "}}", " blank ", "a'b\"c\\d", "#%&\u00e9\u2013", "a;host=x"}) {
    QString literal = word;
    literal.replace('\'', "''");
    if (IsPostgreSql()) {
      Server().Administer("ALTER USER clerk PASSWORD '" + literal + '\'');
    } else {
      literal.replace('\\', "\\\\");
      Server().Administer("SET PASSWORD FOR clerk@'%' = PASSWORD('" + literal + "')");
    }
    ConnectionSettings settings = Settings(Encryption::Required);
    settings.password = word;
    EXPECT_EQ(Said(settings), "") << word.toStdString();
  }
  if (IsPostgreSql()) {
    Server().Administer("ALTER USER clerk PASSWORD 'Secr3tWord'");
    return;
  }
  Server().Administer("SET PASSWORD FOR clerk@'%' = PASSWORD('Secr3tWord')");
  ConnectionSettings settings = Settings(Encryption::Off);
  settings.password = "a}b;c";
  EXPECT_TRUE(Said(settings).contains("cannot be given the password"));
}

TEST_F(LinkTest, AFalseServerIsNotToldThePassword) {
  for (const bool encrypted : {false, true}) {
    std::optional<QString> certificate;
    if (encrypted) certificate = Server().File(Certificate::OfAnotherAuthority);
    for (const Encryption encryption : {Encryption::Required, Encryption::Verify}) {
      FalseServer falseServer(TestDatabase::TestEngine(), certificate);
      ConnectionSettings settings = Settings(encryption);
      settings.port = falseServer.Port();
      const QString said = Said(settings);
      EXPECT_NE(said, "");
      EXPECT_GE(falseServer.Visitors(), 1) << said.toStdString();
      EXPECT_FALSE(falseServer.Heard().contains("Secr3tWord")) << said.toStdString();
    }
  }
}

// The vendors' clients show it when they are asked.
TEST_F(LinkTest, MariaDbsPasswordIsShownToNobodyEvenWithoutEncryption) {
  if (IsPostgreSql()) GTEST_SKIP() << "its library shows it on a link without encryption";
  FalseServer falseServer(Engine::MariaDb, {});
  ConnectionSettings settings = Settings(Encryption::Off);
  settings.port = falseServer.Port();
  const QString said = Said(settings);
  EXPECT_TRUE(said.contains("it was not sent")) << said.toStdString();
  EXPECT_GE(falseServer.Visitors(), 1);
  EXPECT_FALSE(falseServer.Heard().contains("Secr3tWord"));
}

// Whoever stands between and decrypts cannot prove to know the password either.
TEST_F(LinkTest, PostgreSqlProvesToKnowThePasswordWhereItsCertificateIsNotVerified) {
  if (!IsPostgreSql()) GTEST_SKIP() << "about PostgreSQL";
  Server().Show(Certificate::Right);
  Server().Administer("SET password_encryption = 'md5'; ALTER USER clerk PASSWORD 'Secr3tWord'");
  EXPECT_NE(Said(Encryption::Required), "");
  Server().Administer("ALTER USER clerk PASSWORD 'Secr3tWord'");
  EXPECT_EQ(Said(Encryption::Required), "");
}
