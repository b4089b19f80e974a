#include "core/StatementLog.h"

#include "core/WorkFolder.h"
#include "platform/FileSizeLimit.h"
#include "platform/ado/Connection.h"

namespace {

class StatementLogTest : public WorkFolder {
 protected:
  void SetUp() override {
    WorkFolder::SetUp();
    Clock::Set([] { return QDateTime(QDate(2024, 5, 7), QTime(14, 3, 9, 42)); });
  }
  QStringList Lines() const { return QString::fromUtf8(Bytes("s.log")).split('\n', Qt::SkipEmptyParts); }
};

}  // namespace

TEST_F(StatementLogTest, StatementIsOneLineAsItWasComposed) {
  StatementLog log(Path("s.log"));
  EXPECT_TRUE(log.Write({"UPDATE   T  SET A = N'é  \\'", 12, 3, false}));
  EXPECT_EQ(Lines(), QStringList{QString::fromUtf8("2024-05-07 14:03:09.042\t12\t3\tUPDATE   T  SET A = N'é  \\'")});
}

TEST_F(StatementLogTest, SelectsAndFailuresHaveNoCount) {
  StatementLog log(Path("s.log"));
  log.Write({"SELECT 1", 0, -1, false});
  log.Write({"UPDATE X", 5, -1, true});
  EXPECT_EQ(Lines(),
            (QStringList{"2024-05-07 14:03:09.042\t0\t-\tSELECT 1", "2024-05-07 14:03:09.042\t5\tfailed\tUPDATE X"}));
}

TEST_F(StatementLogTest, LineBreaksInsideLiteralsAreShown) {
  StatementLog log(Path("s.log"));
  log.Write({"UPDATE T SET A = 'one\r\ntwo'", 0, 1, false});
  ASSERT_EQ(Lines().size(), 1);
  EXPECT_TRUE(Lines().first().endsWith(QString::fromUtf8("A = 'one␍␊two'")));
}

TEST_F(StatementLogTest, SecretsAreMasked) {
  StatementLog log(Path("s.log"));
  log.Write({"UPDATE T SET USER_PASSWORD = N'secret'", 0, 1, false});
  EXPECT_FALSE(Lines().first().contains("secret"));
}

TEST_F(StatementLogTest, FormerLinesAreKept) {
  Store("s.log", "former\n");
  StatementLog(Path("s.log")).Write({"SELECT 1", 0, -1, false});
  EXPECT_EQ(Lines().size(), 2);
  EXPECT_EQ(Lines().first(), "former");
}

TEST_F(StatementLogTest, FileThatCannotBeWrittenIsTold) {
  EXPECT_FALSE(StatementLog(Path("absent/s.log")).Write({"SELECT 1", 0, -1, false}));
  EXPECT_FALSE(StatementLog(Path("")).Write({"SELECT 1", 0, -1, false}));
}

#ifndef Q_OS_WIN
TEST_F(StatementLogTest, AFullDiskAtEveryByteLeavesNoHalfLine) {
  StatementLog log(Path("s.log"));
  ASSERT_TRUE(log.Write({"SELECT 1", 0, -1, false}));
  const QByteArray whole = Bytes("s.log");
  for (int room = 0; room < whole.size(); ++room) {
    {
      const FileSizeLimit limit(rlim_t(whole.size() + room));
      EXPECT_FALSE(log.Write({"SELECT 2", 0, -1, false}));
    }
    ASSERT_EQ(Bytes("s.log"), whole) << room;
  }
  EXPECT_TRUE(log.Write({"SELECT 2", 0, -1, false}));
  EXPECT_EQ(Lines().size(), 2);
}
#endif
