// Recorded transactions are taken back, and settings told as they were.
#include <QFile>
#include <QRegularExpression>

#include "tools/HistoryDesk.h"

namespace {

const QString SetPeriod = "UPDATE ID_LOAN_CODE SET LON_PERIOD = %1 WHERE LOAN_CODE = 'Q'";

class HistoryUndoTest : public HistoryDesk {
 protected:
  void SetUp() override {
    HistoryDesk::SetUp();
    Execute("INSERT INTO ID_LOAN_CODE (LOAN_CODE, LOAN_CODE_DESC, LON_PERIOD, REN_PERIOD) VALUES ('Q', 'q', 1, 1)");
  }
  QString Period() { return Ask("SELECT LON_PERIOD FROM ID_LOAN_CODE WHERE LOAN_CODE = 'Q'"); }
  QString Last() const { return Ids({"--most", "1"}).value(0); }
  QByteArray File(const QString& name) const {
    QFile file(Folder() + '/' + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
  }
};

TEST_F(HistoryUndoTest, PutsBackWhatWasBeforeAndCanBeUndoneItself) {
  Execute(SetPeriod.arg(2));
  const QString id = Last();
  EXPECT_EQ(MustDo({"history", "undo", id}).out,
            "ID_LOAN_CODE: 0 added, 1 changed, 0 removed\n  ~ LOAN_CODE \"Q\"\n      LON_PERIOD 2 -> 1\n"
            "Done: 1 rows written.\n");
  EXPECT_EQ(Period(), "1");
  MustDo({"history", "undo", Last()});
  EXPECT_EQ(Period(), "2");
}

TEST_F(HistoryUndoTest, ADryRunChangesNothing) {
  Execute(SetPeriod.arg(2));
  const int changes = Changes();
  EXPECT_TRUE(MustDo({"history", "undo", Last(), "--dry-run"}).out.contains("Dry run, nothing was changed."));
  EXPECT_EQ(Period(), "2");
  EXPECT_EQ(Changes(), changes);
}

TEST_F(HistoryUndoTest, RefusesWhatHasChangedSinceAndSaysWhoAndWhen) {
  Execute(SetPeriod.arg(2));
  const QString id = Last();
  LoggedOn("paul")->Execute(SetPeriod.arg(3));
  const Result refused = Run({"history", "undo", id});
  EXPECT_EQ(refused.exitCode, 1);
  const QRegularExpression words(
      "^Transaction " + id +
      " cannot be undone: the row LOAN_CODE \"Q\" of ID_LOAN_CODE. It has been changed since. "
      "Last by transaction " +
      Last() +
      " of \\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} \\(UTC\\) by paul\\.\n"
      "Nothing was changed\\.\n$");
  EXPECT_TRUE(words.match(refused.err).hasMatch()) << refused.err.toStdString();
  EXPECT_EQ(Period(), "3");
}

TEST_F(HistoryUndoTest, WhatOthersChangedInOtherColumnsStays) {
  Execute(SetPeriod.arg(2));
  const QString id = Last();
  Execute("UPDATE ID_LOAN_CODE SET REN_PERIOD = 9 WHERE LOAN_CODE = 'Q'");
  MustDo({"history", "undo", id});
  EXPECT_EQ(Ask("SELECT REN_PERIOD FROM ID_LOAN_CODE WHERE LOAN_CODE = 'Q'"), "9");
}

TEST_F(HistoryUndoTest, TakesSeveralBackInTheRightOrder) {
  const QString added = Last();
  for (const int period : {2, 3, 4}) Execute(SetPeriod.arg(period));
  const QStringList all = Ids();
  MustDo({"history", "undo", all[2], all[0], all[1]});
  EXPECT_EQ(Period(), "1");
  MustDo({"history", "undo", added, Last(), all[0], all[1], all[2]});
  EXPECT_EQ(Count("ID_LOAN_CODE", "LOAN_CODE = 'Q'"), 0);
}

TEST_F(HistoryUndoTest, RefusesWhatTheDatabaseRefuses) {
  const QString added = Last();
  Execute("UPDATE ID_LIBRARY SET LOAN_CODE = 'Q' WHERE LIBRARY_ID = 9999999");
  const Result refused = Run({"history", "undo", added, "--dry-run"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.err.contains("The row LOAN_CODE \"Q\" of ID_LOAN_CODE cannot be removed."))
      << refused.err.toStdString();
  EXPECT_TRUE(refused.err.contains("Nothing was changed."));
  EXPECT_EQ(Count("ID_LOAN_CODE", "LOAN_CODE = 'Q'"), 1);
}

TEST_F(HistoryUndoTest, RefusesNumbersThatAreNone) {
  EXPECT_EQ(Run({"history", "undo", "999999"}).err, "The history has no transaction 999999.\nNothing was changed.\n");
  EXPECT_EQ(Run({"history", "undo", "1"}).exitCode, 1);
  EXPECT_EQ(Run({"history", "undo", "x"}).exitCode, 2);
  EXPECT_EQ(Run({"history", "undo"}).exitCode, 2);
}

TEST_F(HistoryUndoTest, NamesThatChangedHandsChangeThemBack) {
  for (const char* code : {"A", "B"})
    Execute(QString("INSERT INTO ID_DEPARTMENT (LIBRARY_ID, DEPARTMENT, DEPARTMENT_DESC) VALUES (9999999, '%1', '%1')")
                .arg(code));
  const QString describe = "UPDATE ID_DEPARTMENT SET DEPARTMENT_DESC = '%2' WHERE DEPARTMENT = '%1'";
  const auto program = LoggedOn("katrin");
  program->BeginTrans();
  program->Execute(describe.arg("A", "x"));
  program->Execute(describe.arg("B", "A"));
  program->Execute(describe.arg("A", "B"));
  program->CommitTrans();
  MustDo({"history", "undo", Last()});
  EXPECT_EQ(Ask("SELECT DEPARTMENT_DESC FROM ID_DEPARTMENT WHERE DEPARTMENT = 'A'"), "A");
  EXPECT_EQ(Ask("SELECT DEPARTMENT_DESC FROM ID_DEPARTMENT WHERE DEPARTMENT = 'B'"), "B");
}

TEST_F(HistoryUndoTest, SecretsAreNotBroughtBackInSilence) {
  Execute("UPDATE ID_LIBRARY SET USER_PASSWORD = 'one' WHERE LIBRARY_ID = 9999999");
  Execute("UPDATE ID_LIBRARY SET USER_PASSWORD = 'two', NOTE = 'n' WHERE LIBRARY_ID = 9999999");
  const QString id = Last();
  const Result refused = Run({"history", "undo", id});
  EXPECT_EQ(refused.exitCode, 1);
  const QString what =
      "The history keeps no passwords and card data: USER_PASSWORD of the row LIBRARY_ID 9999999 of "
      "ID_LIBRARY ";
  EXPECT_EQ(refused.err, what + "cannot be brought back.\nNothing was changed.\n");
  EXPECT_EQ(MustDo({"history", "undo", id, "--keep-secrets"}).err, "Note: " + what + "is not brought back.\n");
  EXPECT_EQ(Ask("SELECT USER_PASSWORD FROM ID_LIBRARY WHERE LIBRARY_ID = 9999999"), "two");
  EXPECT_EQ(Ask("SELECT NOTE FROM ID_LIBRARY WHERE LIBRARY_ID = 9999999"), "(null)");
}

// --- As it was ---

TEST_F(HistoryUndoTest, ExportAtAMomentIsTheExportTakenThen) {
  MustDo({"export", "one.txt"});
  const QString one = Moment();
  Execute(SetPeriod.arg(2));
  Execute("UPDATE ID_LIBRARY SET USER_PASSWORD = 'hidden', WEIGHTING_FACTOR = 1.5 WHERE LIBRARY_ID = 9999999");
  MustDo({"export", "two.txt"});
  const QString two = Moment();
  Execute("DELETE FROM ID_LOAN_CODE WHERE LOAN_CODE = 'Q'");
  MustDo({"export", "--at", one, "at1.txt"});
  MustDo({"export", "--at", two, "at2.txt"});
  EXPECT_EQ(File("at1.txt"), File("one.txt"));
  EXPECT_EQ(File("at2.txt"), File("two.txt"));
  EXPECT_NE(File("one.txt"), File("two.txt"));
  MustDo({"apply", "--delete", "at1.txt"});
  EXPECT_EQ(Period(), "1");
}

TEST_F(HistoryUndoTest, ExportRefusesMomentsThatTheHistoryDoesNotReach) {
  const QString since = History::Since(Client()).value();
  const auto refused = [&](const QString& moment, const QStringList& options = {}) {
    const Result result = Run(QStringList{"export", "--at", moment, "at.txt"} + options);
    EXPECT_EQ(result.exitCode, 1) << result.out.toStdString();
    EXPECT_FALSE(QFile::exists(Folder() + "/at.txt"));
    return result.err;
  };
  EXPECT_EQ(refused("2000-01-01"),
            "The history begins with " + since + " (UTC), and does not reach 2000-01-01 00:00:00.000.\n");
  EXPECT_TRUE(refused("2999-01-01").contains("has not come yet"));
  EXPECT_EQ(Run({"export", "--at", "noon", "at.txt"}).exitCode, 2);
  const QString moment = Moment();
  Execute("UPDATE ID_LIBRARY SET USER_PASSWORD = 'one' WHERE LIBRARY_ID = 9999999");
  const QString between = Moment();
  Execute("UPDATE ID_LIBRARY SET USER_PASSWORD = 'two' WHERE LIBRARY_ID = 9999999");
  EXPECT_TRUE(refused(between, {"--with-secrets"})
                  .startsWith("The history keeps no passwords and card data, and "
                              "USER_PASSWORD of the row LIBRARY_ID 9999999"));
  // What was changed behind its back.
  Execute(SetPeriod.arg(7));
  Execute(
      "UPDATE ID_HISTORY_CHANGE SET NEW_VALUES = '{\"LON_PERIOD\":\"8\"}' WHERE TABLE_NAME = 'ID_LOAN_CODE' AND "
      "KIND = 'U'");
  EXPECT_TRUE(refused(moment).startsWith("The history does not lead back to " + moment));
}

TEST_F(HistoryUndoTest, ASiteWithoutAHistoryHasNoFormerState) {
  MustDo({"history", "off", "--discard"});
  const Result refused = Run({"export", "--at", "2020-01-01", "at.txt"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_EQ(refused.err, "The site keeps no history. It begins with tabulon-db history on.\n");
}

}  // namespace
