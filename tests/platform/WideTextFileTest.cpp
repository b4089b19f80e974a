#include "platform/files/WideTextFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "platform/FileSizeLimit.h"

using WideTextFile::AppendLines;
using WideTextFile::ReadLines;
using WideTextFile::Result;

namespace {

class WideTextFileTest : public testing::Test {
 protected:
  QString Path() const { return directory.filePath("Tabulon.log"); }
  QByteArray Bytes() const {
    QFile file(Path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  void Store(const QByteArray& bytes) const {
    QFile file(Path());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
  }
  QTemporaryDir directory;
};

}  // namespace

TEST_F(WideTextFileTest, NewFileBeginsWithTheMark) {
  ASSERT_EQ(AppendLines(Path(), {"aä"}), Result::Written);
  EXPECT_EQ(Bytes().toHex(), "fffe6100e4000d000a00");
}

TEST_F(WideTextFileTest, AppendingAddsNoSecondMark) {
  AppendLines(Path(), {"a"});
  AppendLines(Path(), {"b", ""});
  EXPECT_EQ(Bytes().toHex(), "fffe61000d000a0062000d000a000d000a00");
  EXPECT_EQ(ReadLines(Path()), (QStringList{"a", "b", ""}));
}

TEST_F(WideTextFileTest, LineBreaksInsideALineBecomeLineEnds) {
  AppendLines(Path(), {"one\ntwo\r\nthree\rfour"});
  EXPECT_EQ(ReadLines(Path()), (QStringList{"one", "two", "three", "four"}));
}

TEST_F(WideTextFileTest, EveryLetterComesBack) {
  const QString text = QString::fromUtf8("😀 é عربي \\ ' \" %1");
  AppendLines(Path(), {text});
  EXPECT_EQ(ReadLines(Path()), QStringList{text});
}

TEST_F(WideTextFileTest, MissingDirectoryIsToldApart) {
  EXPECT_EQ(AppendLines(directory.filePath("absent/Tabulon.log"), {"a"}), Result::NoDirectory);
  EXPECT_EQ(AppendLines(directory.path(), {"a"}), Result::Failed);
}

TEST_F(WideTextFileTest, HalfACharacterAtTheEndIsCompleted) {
  Store(QByteArray::fromHex("fffe610062"));
  ASSERT_EQ(AppendLines(Path(), {"c"}), Result::Written);
  EXPECT_EQ(Bytes().toHex(), "fffe6100620063000d000a00");
}

TEST_F(WideTextFileTest, FileThatCannotBeReadHasNoLines) {
  EXPECT_TRUE(ReadLines(Path()).isEmpty());
  Store({});
  EXPECT_TRUE(ReadLines(Path()).isEmpty());
}

#ifndef Q_OS_WIN
TEST_F(WideTextFileTest, FullDiskLeavesNoHalfLine) {
  AppendLines(Path(), {QString(500, 'a')});
  const QByteArray before = Bytes();
  {
    const FileSizeLimit limit(1101);
    EXPECT_EQ(AppendLines(Path(), {QString(500, 'b')}), Result::Failed);
  }
  EXPECT_EQ(Bytes(), before);
}
#endif
