#include "platform/files/WholeFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "platform/FileSizeLimit.h"

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

class WholeFileTest : public testing::Test {
 protected:
  QString Path(const QString& name = "settings.txt") const { return directory_.filePath(name); }
  static QByteArray Bytes(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  // A case that passes with no file half written leaves nothing beside it either.
  QStringList Files() const {
    return QDir(directory_.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
  }

  QString reason;
  QTemporaryDir directory_;
};

}  // namespace

TEST_F(WholeFileTest, AFileIsMadeAndReplaced) {
  EXPECT_TRUE(WholeFile::Write(Path(), "first", &reason));
  EXPECT_TRUE(WholeFile::Write(Path(), "2", &reason));
  EXPECT_EQ(Bytes(Path()), "2");
  EXPECT_EQ(Files(), QStringList("settings.txt"));
}

TEST_F(WholeFileTest, WhereNothingCanBeWrittenThatIsSaid) {
  EXPECT_FALSE(WholeFile::Write(Path("absent/settings.txt"), "x", &reason));
  EXPECT_FALSE(reason.isEmpty());
}

#ifndef Q_OS_WIN
TEST_F(WholeFileTest, AFullDiskAtEveryByteLeavesTheOldFile) {
  const QByteArray text(300, 'n');
  for (rlim_t room = 0; room < 300; ++room) {
    ASSERT_TRUE(WholeFile::Write(Path(), QByteArray(310, 'o'), &reason));
    reason.clear();
    {
      const FileSizeLimit limit(room);
      EXPECT_FALSE(WholeFile::Write(Path(), text, &reason)) << room;
    }
    EXPECT_FALSE(reason.isEmpty());
    ASSERT_EQ(Bytes(Path()), QByteArray(310, 'o')) << room;
    ASSERT_EQ(Files(), QStringList("settings.txt")) << room;
  }
}

TEST_F(WholeFileTest, ModeAndLinkStay) {
  ASSERT_TRUE(WholeFile::Write(Path(), "old", &reason));
  ::chmod(QFile::encodeName(Path()).constData(), 0604);
  ASSERT_TRUE(QFile::link(Path(), Path("link")));
  EXPECT_TRUE(WholeFile::Write(Path("link"), "new", &reason));
  EXPECT_EQ(Bytes(Path()), "new");
  EXPECT_TRUE(QFileInfo(Path("link")).isSymLink());
  struct stat state;
  ASSERT_EQ(::stat(QFile::encodeName(Path()).constData(), &state), 0);
  EXPECT_EQ(state.st_mode & 0777, 0604u);
}

TEST_F(WholeFileTest, ForTheOwnerOnly) {
  ASSERT_TRUE(WholeFile::Write(Path(), "old", &reason));
  ::chmod(QFile::encodeName(Path()).constData(), 0644);
  EXPECT_TRUE(WholeFile::Write(Path(), "secret", &reason, WholeFile::Readers::OwnerOnly));
  struct stat state;
  ASSERT_EQ(::stat(QFile::encodeName(Path()).constData(), &state), 0);
  EXPECT_EQ(state.st_mode & 0777, 0600u);
}

TEST_F(WholeFileTest, ADeviceIsWrittenToAndStaysOne) {
  ASSERT_TRUE(QFile::link("/dev/null", Path("null")));
  EXPECT_TRUE(WholeFile::Write(Path("null"), "x", &reason));
  EXPECT_FALSE(WholeFile::Write("/dev/full", "x", &reason));
  EXPECT_TRUE(reason.contains("space")) << reason.toStdString();
  struct stat state;
  ASSERT_EQ(::stat("/dev/full", &state), 0);
  EXPECT_TRUE(S_ISCHR(state.st_mode));
  EXPECT_TRUE(QFileInfo(Path("null")).isSymLink());
}

TEST_F(WholeFileTest, APipeIsWrittenTo) {
  const QByteArray pipe = QFile::encodeName(Path("pipe"));
  ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
  const int reader = ::open(pipe.constData(), O_RDONLY | O_NONBLOCK);
  EXPECT_TRUE(WholeFile::Write(Path("pipe"), "rows", &reason));
  char read[8] = {};
  EXPECT_EQ(::read(reader, read, sizeof read), 4);
  ::close(reader);
  struct stat state;
  ASSERT_EQ(::stat(pipe.constData(), &state), 0);
  EXPECT_TRUE(S_ISFIFO(state.st_mode));
}

// A member of the group writes a file of the site's owner, in a folder of the owner's.
TEST_F(WholeFileTest, OwnerAndGroupStayWhenAnotherUserWrites) {
  if (::geteuid() != 0) GTEST_SKIP() << "only the machine's administrator can be two users";
  constexpr uid_t owner = 1000, writer = 1001;
  constexpr gid_t group = 33;
  ASSERT_TRUE(WholeFile::Write(Path(), "old text of the owner", &reason));
  ASSERT_EQ(::chown(QFile::encodeName(Path()).constData(), owner, group), 0);
  ASSERT_EQ(::chmod(QFile::encodeName(Path()).constData(), 0660), 0);
  for (const int folderMode : {0755, 0777}) {
    ::chmod(QFile::encodeName(directory_.path()).constData(), mode_t(folderMode));
    const pid_t child = ::fork();
    if (child == 0) {
      QString why;
      const bool became = ::setgid(group) == 0 && ::setuid(writer) == 0;
      ::_exit(became && WholeFile::Write(Path(), "new", &why) ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << std::oct << folderMode;
    struct stat state;
    ASSERT_EQ(::stat(QFile::encodeName(Path()).constData(), &state), 0);
    EXPECT_EQ(state.st_uid, owner);
    EXPECT_EQ(state.st_gid, group);
    EXPECT_EQ(state.st_mode & 0777, 0660u);
    EXPECT_EQ(Bytes(Path()), "new");
    EXPECT_EQ(Files(), QStringList("settings.txt"));
  }
}
#endif
