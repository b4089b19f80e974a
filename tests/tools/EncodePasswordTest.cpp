#include <QFile>

#include "core/PasswordCipher.h"
#include "tools/ToolDesk.h"

namespace {

class EncodePasswordTest : public ToolDesk {
 protected:
  QString KeyFile() const { return Folder() + "/Ostana.key"; }

  // What stands behind "PasswordEncoded=" of the answer.
  static QString Encoded(const Result& answer) { return answer.out.trimmed().section('=', 1); }
};

TEST_F(EncodePasswordTest, TheAnswerIsWhatTheProgramsDecode) {
  WriteSettings("[Database]\nEngine=SQLITE\nName=ostana.db\n");
  const Result answer = Run({"encode-password"}, "Grüße=7\n");
  EXPECT_EQ(answer.exitCode, 0) << answer.err.toStdString();
  EXPECT_TRUE(answer.out.startsWith("PasswordEncoded=gcm1$")) << answer.out.toStdString();
  EXPECT_FALSE(answer.out.contains("Grüße"));
  EXPECT_EQ(PasswordCipherHelper(KeyFile()).Decode(Encoded(answer)), "Grüße=7");
}

TEST_F(EncodePasswordTest, AValueUnderAnotherKeyIsNotInTheWay) {
  WriteSettings("[Database]\nEngine=POSTGRESQL\nName=ostana\nPasswordEncoded=gcm1$AAAA\n");
  const Result answer = Run({"encode-password"}, "secret\n");
  EXPECT_EQ(answer.exitCode, 0) << answer.err.toStdString();
  EXPECT_EQ(PasswordCipherHelper(KeyFile()).Decode(Encoded(answer)), "secret");
}

TEST_F(EncodePasswordTest, TheKeyFileIsMadeForItsOwnerOnly) {
  WriteSettings("[Database]\nEngine=SQLITE\nName=ostana.db\n");
  ASSERT_EQ(Run({"encode-password"}, "secret\n").exitCode, 0);
  const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
  EXPECT_FALSE(QFile::permissions(KeyFile()) & others);
}

TEST_F(EncodePasswordTest, NoPasswordAndNoSettingsAreRefused) {
  WriteSettings("[Database]\nEngine=SQLITE\nName=ostana.db\n");
  EXPECT_EQ(Run({"encode-password"}).exitCode, 1);
  QFile::remove(Folder() + "/Ostana.ini");
  const Result lost = Run({"encode-password"}, "secret\n");
  EXPECT_EQ(lost.exitCode, 1);
  EXPECT_TRUE(lost.err.contains("Set OSTANA_HOME")) << lost.err.toStdString();
  EXPECT_FALSE(QFile::exists(KeyFile()));
}

}  // namespace
