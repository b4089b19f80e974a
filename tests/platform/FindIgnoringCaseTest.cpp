#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/files/IniFile.h"

namespace {

class FindIgnoringCaseTest : public testing::Test {
 protected:
  void Touch(const QString& name) const {
    QFile file(directory.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  }
  QTemporaryDir directory;
};

}  // namespace

TEST_F(FindIgnoringCaseTest, OtherLettersFindTheFile) {
  Touch("Ostana.INI");
  EXPECT_EQ(Files::FindIgnoringCase(directory.path(), "ostana.ini"), directory.filePath("Ostana.INI"));
}

TEST_F(FindIgnoringCaseTest, TheExactNameIsPreferred) {
  Touch("OSTANA.INI");
  Touch("ostana.ini");
  EXPECT_EQ(Files::FindIgnoringCase(directory.path(), "ostana.ini"), directory.filePath("ostana.ini"));
  EXPECT_EQ(Files::FindIgnoringCase(directory.path(), "Ostana.Ini"), directory.filePath("OSTANA.INI"));
}

TEST_F(FindIgnoringCaseTest, MissingNameIsJoinedAsItStands) {
  EXPECT_EQ(Files::FindIgnoringCase(directory.path(), "None.txt"), directory.filePath("None.txt"));
  EXPECT_EQ(Files::FindIgnoringCase(directory.filePath("absent"), "None.txt"), directory.filePath("absent/None.txt"));
}

TEST_F(FindIgnoringCaseTest, ClosingSeparatorIsNotDoubled) {
  Touch("Ostana.INI");
  EXPECT_EQ(Files::FindIgnoringCase(directory.path() + '/', "OSTANA.ini"), directory.filePath("Ostana.INI"));
}

TEST_F(FindIgnoringCaseTest, EveryStepOfAPathIsFound) {
  ASSERT_TRUE(QDir(directory.path()).mkdir("Reports"));
  Touch("Reports/Notice.RPT");
  EXPECT_EQ(Files::FindIgnoringCase(directory.path(), "REPORTS/notice.rpt"), directory.filePath("Reports/Notice.RPT"));
}

TEST_F(FindIgnoringCaseTest, HiddenFilesAreFound) {
  Touch(".Hidden.cfg");
  EXPECT_EQ(Files::FindIgnoringCase(directory.path(), ".hidden.CFG"), directory.filePath(".Hidden.cfg"));
}

TEST_F(FindIgnoringCaseTest, EmptyNameIsTheDirectory) {
  EXPECT_EQ(Files::FindIgnoringCase(directory.path() + '/', ""), directory.path() + '/');
}
