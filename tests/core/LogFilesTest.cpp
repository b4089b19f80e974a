#include "core/LogFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

#include "core/WorkFolder.h"
#include "platform/files/WideTextFile.h"

namespace {

class LogFilesTest : public WorkFolder {
 protected:
  void SetUp() override {
    WorkFolder::SetUp();
    SetTime(14, 3, 9);
  }
  void TearDown() override {
    QLocale::setDefault(QLocale::c());
    WorkFolder::TearDown();
  }

  static void SetTime(int hour, int minute, int second) {
    Clock::Set([=] { return QDateTime(QDate(2024, 5, 7), QTime(hour, minute, second)); });
  }
  QStringList Lines(const QString& name = "Tabulon.log") const { return WideTextFile::ReadLines(Path("Logs/" + name)); }

  // A log of exactly that many bytes.
  void MakeLog(qint64 bytes) const {
    ASSERT_TRUE(QDir().mkpath(Path("Logs")));
    Store("Logs/Tabulon.log", QByteArray("\xFF\xFE") + QByteArray(bytes - 2, 'x'));
  }
  qint64 Size(const QString& name) const { return QFileInfo(Path("Logs/" + name)).size(); }

  const QString version = "**** Version: 1.0.0 *********************************************";
  const QString indent = QString(24, ' ');
};

// What one critical line with the text "t" and its version line add to a log.
constexpr qint64 CriticalEntrySize = 2 * (22 + 4 + 1 + 2 + 65 + 2);

}  // namespace

TEST_F(LogFilesTest, FirstRunMakesTheDirectory) {
  ID_WriteStartupLogEntry("Tabulon", "");
  EXPECT_EQ(Lines(), (QStringList{"", "2024-05-07 02:03:09 PM  **** Application Started: Build (1.0.0)"}));
}

TEST_F(LogFilesTest, QualifierGivesALogOfItsOwn) {
  ID_WriteStartupLogEntry("Tabulon", "main");
  EXPECT_FALSE(QFileInfo::exists(Path("Logs/Tabulon.log")));
  EXPECT_EQ(Lines("Tabulon - main.log").size(), 2);
}

TEST_F(LogFilesTest, PathsAreBelowTheCurrentDirectoryWithNativeSeparators) {
  const QString logs = QDir::toNativeSeparators(QDir::currentPath() + "/Logs/");
  EXPECT_EQ(LogFilePath("Tabulon", "", ".log"), logs + "Tabulon.log");
  EXPECT_EQ(LogFilePath("Tabulon", "main", ".old"), logs + "Tabulon - main.old");
}

TEST_F(LogFilesTest, LevelLWritesEntryAndDetail) {
  WriteLogLines("Tabulon", "", "text", "detail", "L");
  EXPECT_EQ(Lines(), (QStringList{"2024-05-07 02:03:09 PM  * text", indent + "* detail"}));
}

TEST_F(LogFilesTest, EmptyDetailGivesNoLine) {
  WriteLogLines("Tabulon", "", "text", "", "L");
  EXPECT_EQ(Lines(), (QStringList{"2024-05-07 02:03:09 PM  * text"}));
}

TEST_F(LogFilesTest, LevelSOnANewFileWritesItsLineWithoutADate) {
  WriteLogLines("Tabulon", "", "text", "detail", "S");
  EXPECT_EQ(Lines(), (QStringList{indent + "* text", indent + "* detail"}));
}

TEST_F(LogFilesTest, LevelCAddsTheVersionLineOf65Characters) {
  WriteLogLines("Tabulon", "", "text", "detail", "C");
  EXPECT_EQ(version.size(), 65);
  EXPECT_EQ(Lines(), (QStringList{"2024-05-07 02:03:09 PM  * text", indent + "* detail", version}));
}

TEST_F(LogFilesTest, AnyOtherLevelWritesTheDetailAlone) {
  WriteLogLines("Tabulon", "", "text", "detail", "X");
  WriteLogLines("Tabulon", "", "text", "", "X");
  WriteLogLines("Tabulon", "", "text", "lower case", "l");
  EXPECT_EQ(Lines(), (QStringList{indent + "* detail", indent + "* lower case"}));
}

TEST_F(LogFilesTest, HoursCountToTwelve) {
  const struct {
    int hour;
    const char* text;
  } hours[] = {{0, "12:05:01 AM"}, {1, "01:05:01 AM"}, {12, "12:05:01 PM"}, {23, "11:05:01 PM"}};
  for (const auto& entry : hours) {
    SetTime(entry.hour, 5, 1);
    WriteLogLines("Tabulon", "", "text", "", "L");
    EXPECT_EQ(Lines().last(), QString("2024-05-07 ") + entry.text + "  * text");
  }
}

TEST_F(LogFilesTest, TimeIsTheSameInEveryLocale) {
  for (const char* locale : {"de_DE", "ar_EG", "fa_IR", "th_TH", "zh_TW"}) {
    QLocale::setDefault(QLocale(locale));
    WriteLogLines("Tabulon", "", "text", "", "L");
    EXPECT_EQ(Lines().last(), "2024-05-07 02:03:09 PM  * text");
  }
}

TEST_F(LogFilesTest, FilesAreWideTextWithMarkAndLineEnds) {
  WriteLogLines("Tabulon", "", "t", "", "S");
  EXPECT_TRUE(Bytes("Logs/Tabulon.log").startsWith("\xFF\xFE"));
  EXPECT_TRUE(Bytes("Logs/Tabulon.log").endsWith(QByteArray::fromHex("74000d000a00")));
}

TEST_F(LogFilesTest, LogOfExactly100000BytesIsKept) {
  MakeLog(100000 - CriticalEntrySize);
  WriteLogLines("Tabulon", "", "t", "", "C");
  EXPECT_EQ(Size("Tabulon.log"), 100000);
  EXPECT_FALSE(QFileInfo::exists(Path("Logs/Tabulon.old")));
}

TEST_F(LogFilesTest, LargerLogIsRotatedAtTheNextC) {
  MakeLog(100002 - CriticalEntrySize);
  WriteLogLines("Tabulon", "", "t", "", "C");
  EXPECT_FALSE(QFileInfo::exists(Path("Logs/Tabulon.log")));
  EXPECT_EQ(Size("Tabulon.old"), 100002);
}

TEST_F(LogFilesTest, OnlyLevelCRotates) {
  MakeLog(200000);
  for (const char* level : {"L", "S", "X"}) WriteLogLines("Tabulon", "", "text", "detail", level);
  ID_WriteStartupLogEntry("Tabulon", "");
  EXPECT_GT(Size("Tabulon.log"), 200000);
  EXPECT_FALSE(QFileInfo::exists(Path("Logs/Tabulon.old")));
}

TEST_F(LogFilesTest, FormerOldFileIsReplaced) {
  MakeLog(200000);
  Store("Logs/Tabulon.old", "former");
  WriteLogLines("Tabulon", "", "t", "", "C");
  EXPECT_EQ(Size("Tabulon.old"), 200000 + CriticalEntrySize);
}

TEST_F(LogFilesTest, ClassFailedLogBearsTheProgramsName) {
  QString qualifier;
  EXPECT_TRUE(ID_WriteClassFailedLog("text", "detail", "L", qualifier));
  EXPECT_EQ(Lines().size(), 2);
  qualifier = "main";
  EXPECT_TRUE(ID_WriteClassFailedLog("text", "", "C", qualifier));
  EXPECT_EQ(Lines("Tabulon - main.log").last(), version);
}

TEST_F(LogFilesTest, DirectoryThatCannotBeMadeIsNoFailure) {
  Store("Logs", "a file is in the way");
  QString qualifier;
  ID_WriteStartupLogEntry("Tabulon", "");
  WriteLogLines("Tabulon", "", "text", "detail", "C");
  EXPECT_TRUE(ID_WriteClassFailedLog("text", "detail", "C", qualifier));
  EXPECT_EQ(Bytes("Logs"), "a file is in the way");
}

TEST_F(LogFilesTest, LogThatCannotBeWrittenIsNoFailure) {
  ASSERT_TRUE(QDir().mkpath(Path("Logs/Tabulon.log")));
  WriteLogLines("Tabulon", "", "text", "detail", "C");
  EXPECT_TRUE(QFileInfo(Path("Logs/Tabulon.log")).isDir());
}

TEST_F(LogFilesTest, ALineEndInsideOfATextBeginsNoEntry) {
  WriteLogLines("Tabulon", "", "first\n2026-01-01 00:00:00 AM  * forged", "a\r\nb\rc", "L");
  const QStringList lines = WideTextFile::ReadLines(LogFilePath("Tabulon", "", ".log"));
  ASSERT_EQ(lines.size(), 5);
  EXPECT_EQ(lines[1], QString(26, ' ') + "2026-01-01 00:00:00 AM  * forged");
  EXPECT_EQ(lines[2], QString(24, ' ') + "* a");
  EXPECT_EQ(lines[3], QString(26, ' ') + 'b');
}

#ifndef Q_OS_WIN
TEST_F(LogFilesTest, OnlyOwnerAndGroupReadALog) {
  const mode_t before = ::umask(0);
  WriteLogLines("Tabulon", "", "text", {}, "L");
  ::umask(before);
  const QString log = LogFilePath("Tabulon", "", ".log");
  for (const QString& path : {log, QFileInfo(log).path()})
    EXPECT_FALSE(QFileInfo(path).permissions() & (QFile::ReadOther | QFile::WriteOther | QFile::ExeOther))
        << path.toStdString();
}

TEST_F(LogFilesTest, ALogThatIsALinkOrAPipeIsLeftAlone) {
  const QString log = LogFilePath("Tabulon", "", ".log");
  ASSERT_TRUE(QDir().mkpath(QFileInfo(log).path()));
  Store("victim", "mine");
  ASSERT_TRUE(QFile::link(Path("victim"), log));
  WriteLogLines("Tabulon", "", "text", {}, "L");
  QFile victim(Path("victim"));
  ASSERT_TRUE(victim.open(QIODevice::ReadOnly));
  EXPECT_EQ(victim.readAll(), "mine");
  ASSERT_TRUE(QFile::remove(log));
  ASSERT_EQ(::mkfifo(QFile::encodeName(log).constData(), 0600), 0);
  WriteLogLines("Tabulon", "", "text", {}, "L");  // nobody reads the other end
}
#endif
