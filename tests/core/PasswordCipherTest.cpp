#include "core/PasswordCipher.h"

#include <QFileInfo>
#include <stdexcept>

#include "core/WorkFolder.h"
#include "platform/FileSizeLimit.h"

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

namespace {

class PasswordCipherTest : public WorkFolder {
 protected:
  QString KeyFile() const { return Path("Ostana.key"); }
};

}  // namespace

TEST_F(PasswordCipherTest, DecodingGivesThePlainTextBack) {
  PasswordCipherHelper cipher(KeyFile());
  for (const char* text : {"secret", " ", "it's; -- \\", "pässwört 😀 عربي"}) {
    const QString plain = QString::fromUtf8(text);
    const QString encoded = cipher.Encode(plain);
    EXPECT_TRUE(encoded.startsWith("gcm1$"));
    EXPECT_FALSE(encoded.contains(plain.trimmed().isEmpty() ? "'" : plain));
    EXPECT_EQ(cipher.Decode(encoded), plain);
  }
}

TEST_F(PasswordCipherTest, EmptyStaysEmptyWithoutAKeyFile) {
  PasswordCipherHelper cipher(KeyFile());
  EXPECT_TRUE(cipher.Encode("").isEmpty());
  EXPECT_TRUE(cipher.Decode("").isEmpty());
  EXPECT_FALSE(QFileInfo::exists(KeyFile()));
}

TEST_F(PasswordCipherTest, KeyFileIsMadeOnceForItsOwnerAlone) {
  const QString encoded = PasswordCipherHelper(KeyFile()).Encode("secret");
  EXPECT_EQ(QFileInfo(KeyFile()).size(), 32);
#ifndef Q_OS_WIN
  const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
  EXPECT_EQ(QFile::permissions(KeyFile()) & others, QFile::Permissions());
#endif
  EXPECT_EQ(QDir(Path("")).entryList(QDir::Files), QStringList{"Ostana.key"});
  PasswordCipherHelper another(KeyFile());
  another.Encode("other");
  EXPECT_EQ(another.Decode(encoded), "secret");
}

TEST_F(PasswordCipherTest, SamePasswordIsNeverEncodedTheSameWay) {
  PasswordCipherHelper cipher(KeyFile());
  EXPECT_NE(cipher.Encode("secret"), cipher.Encode("secret"));
}

TEST_F(PasswordCipherTest, ChangedTextIsRefused) {
  PasswordCipherHelper cipher(KeyFile());
  const QString encoded = cipher.Encode("secret");
  for (qsizetype at = 5; at < encoded.size(); ++at) {
    QString changed = encoded;
    changed[at] = changed[at] == 'A' ? 'B' : 'A';
    EXPECT_THROW(cipher.Decode(changed), std::runtime_error) << changed.toStdString();
  }
  EXPECT_THROW(cipher.Decode(encoded.chopped(4)), std::runtime_error);
  EXPECT_THROW(cipher.Decode("gcm1$"), std::runtime_error);
  EXPECT_THROW(cipher.Decode("gcm1$not base 64!"), std::runtime_error);
  EXPECT_THROW(cipher.Decode("secret"), std::runtime_error);
}

TEST_F(PasswordCipherTest, AnotherKeyIsRefused) {
  const QString encoded = PasswordCipherHelper(Path("one.key")).Encode("secret");
  PasswordCipherHelper another(Path("two.key"));
  another.Encode("x");
  EXPECT_THROW(another.Decode(encoded), std::runtime_error);
}

TEST_F(PasswordCipherTest, DecodingMakesNoKeyFile) {
  const QString encoded = PasswordCipherHelper(KeyFile()).Encode("secret");
  EXPECT_THROW(PasswordCipherHelper(Path("none.key")).Decode(encoded), std::runtime_error);
  EXPECT_FALSE(QFileInfo::exists(Path("none.key")));
}

TEST_F(PasswordCipherTest, KeyFileOfAnotherSizeIsRefused) {
  for (const QByteArray& bytes : {QByteArray(), QByteArray(31, 'k'), QByteArray(33, 'k')}) {
    Store("Ostana.key", bytes);
    EXPECT_THROW(PasswordCipherHelper(KeyFile()).Encode("secret"), std::runtime_error);
    EXPECT_EQ(Bytes("Ostana.key"), bytes);
  }
}

TEST_F(PasswordCipherTest, KeyFileThatCannotBeMadeIsTold) {
  EXPECT_THROW(PasswordCipherHelper(Path("absent/Ostana.key")).Encode("secret"), std::runtime_error);
}

// Known answer of RFC 7914: password "passwd", salt "salt", one iteration, the first 32 bytes.
TEST(PasswordRecordTest, MatchesAKnownAnswer) {
  const QByteArray hash = QByteArray::fromHex("55ac046e56e3089fec1691c22544b605f94185216dde0465e68b9d57c20dacbc");
  const QString record = "pbkdf2-sha256$1$" + QByteArray("salt").toBase64() + "$" + hash.toBase64();
  EXPECT_TRUE(PasswordRecord::Matches("passwd", record));
  EXPECT_FALSE(PasswordRecord::Matches("Passwd", record));
}

TEST(PasswordRecordTest, OwnPasswordMatchesAlone) {
  const QString record = PasswordRecord::Make("pässwört", 1000);
  EXPECT_TRUE(record.startsWith("pbkdf2-sha256$1000$"));
  EXPECT_TRUE(PasswordRecord::Matches("pässwört", record));
  for (const char* wrong : {"", "passwort", "pässwört ", "PÄSSWÖRT"})
    EXPECT_FALSE(PasswordRecord::Matches(QString::fromUtf8(wrong), record));
}

TEST(PasswordRecordTest, EveryRecordHasItsOwnSalt) {
  EXPECT_NE(PasswordRecord::Make("secret", 1000), PasswordRecord::Make("secret", 1000));
}

TEST(PasswordRecordTest, EmptyPasswordMatchesItsOwnRecordOnly) {
  EXPECT_TRUE(PasswordRecord::Matches("", PasswordRecord::Make("", 1000)));
  EXPECT_FALSE(PasswordRecord::Matches("", PasswordRecord::Make("secret", 1000)));
}

TEST(PasswordRecordTest, BrokenRecordsMatchNothing) {
  const QString salt = QByteArray(16, 's').toBase64(), hash = QByteArray(32, 'h').toBase64();
  const QStringList broken{"",
                           "secret",
                           "pbkdf2-sha256$1000$" + salt,
                           "pbkdf2-sha1$1000$" + salt + "$" + hash,
                           "pbkdf2-sha256$0$" + salt + "$" + hash,
                           "pbkdf2-sha256$-1$" + salt + "$" + hash,
                           "pbkdf2-sha256$2000000000$" + salt + "$" + hash,
                           "pbkdf2-sha256$x$" + salt + "$" + hash,
                           "pbkdf2-sha256$1000$$" + hash,
                           "pbkdf2-sha256$1000$" + salt + "$"};
  for (const QString& record : broken) EXPECT_FALSE(PasswordRecord::Matches("secret", record)) << record.toStdString();
}

#ifndef Q_OS_WIN
TEST_F(PasswordCipherTest, AFullDiskAtEveryByteLeavesNoKeyFile) {
  for (rlim_t room = 0; room < 32; ++room) {
    const FileSizeLimit limit(room);
    try {
      PasswordCipherHelper(Path("Ostana.key")).Encode("secret");
      ADD_FAILURE() << "a key was made in " << room << " bytes";
    } catch (const std::exception& failure) {
      EXPECT_TRUE(QString(failure.what()).contains(Path("Ostana.key"))) << failure.what();
    }
    ASSERT_TRUE(QDir(Path("")).isEmpty()) << room;
  }
  EXPECT_FALSE(PasswordCipherHelper(Path("Ostana.key")).Encode("secret").isEmpty());
}

TEST_F(PasswordCipherTest, APipeIsNoKeyFile) {
  ASSERT_EQ(::mkfifo(QFile::encodeName(Path("Ostana.key")).constData(), 0600), 0);
  try {
    PasswordCipherHelper(Path("Ostana.key")).Encode("secret");
    ADD_FAILURE() << "a pipe was read";
  } catch (const std::exception& failure) {
    EXPECT_TRUE(QString(failure.what()).contains("it is not a file")) << failure.what();
  }
}
#endif
