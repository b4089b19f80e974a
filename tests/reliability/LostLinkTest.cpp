// The link to the database is cut before an action and behind each of its statements: nothing half written, a message
// of the screen, and the next action works without a restart.
//
// A server ends the session. SQLite has none: its file is taken away and brought back, which its engine refuses to
// write to while it is gone.
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "reliability/WritingScreens.h"

namespace {

class LostLinkTest : public ReliabilityDesk, public testing::WithParamInterface<WritingScreen> {
 protected:
  const WritingScreen& Subject() const { return GetParam(); }

  // Texts that differ from those of every other round.
  void Fill(const QString& mark) {
    Subject().open(*this);
    for (const WritingField& field : Subject().fields) Type(field.box, {}), Append(field.box, mark);
    Said().Forget();
    Database().OtherClient();  // so that cutting runs no statement of its own to open it
  }

  // Whether the record holds the mark: wholly, not at all, or, which must never be, in part.
  enum class Written { No, Yes, InPart };
  Written IsWritten(const QString& mark) {
    Written written = Written::No;
    for (const RowCells& row : ContentsOf(Database().OtherClient(), Subject().table).rows) {
      int fields = 0;
      for (const WritingField& field : Subject().fields)
        fields += row[field.column].compare(mark, Qt::CaseInsensitive) == 0;
      if (fields == int(Subject().fields.size()))
        written = Written::Yes;
      else if (fields > 0)
        return Written::InPart;
    }
    return written;
  }

  void MustSayWhatFailed() {
    EXPECT_TRUE(Said().Refusal()) << Said().Transcript().toStdString();
    EXPECT_FALSE(Said().Success()) << Said().Transcript().toStdString();
  }

  // Where the link was cut behind the last statement, nobody has been told yet: the next action finds it, writes
  // nothing, and the one after it works.
  void MustWorkAgain(const QString& mark, bool mayFindTheLoss = false) {
    RestoreLink();
    Fill(mark);
    Subject().write(*this);
    if (mayFindTheLoss && Said().Refusal()) {
      EXPECT_EQ(IsWritten(mark), Written::No);
      // A dialog that found it while it loaded is closed and opened again.
      if (Window()->findChild<QWidget*>("cmdCancel")) Click("cmdCancel");
      Fill(mark);
      Subject().write(*this);
    }
    EXPECT_EQ(IsWritten(mark), Written::Yes) << Said().Transcript().toStdString();
    EXPECT_FALSE(Said().Refusal()) << Said().Transcript().toStdString();
    EXPECT_FALSE(gclsOF->Connection().InTransaction());
  }
};

TEST_P(LostLinkTest, CutBeforeTheAction) {
  Fill("m1");
  const DatabaseContents before = ContentsOf(Database().OtherClient());
  CutLink();
  Subject().write(*this);
  RestoreLink();
  EXPECT_TRUE(Differences(before, ContentsOf(Database().OtherClient())).isEmpty());
  MustSayWhatFailed();
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  MustWorkAgain("m2");
}

// Behind a statement is before the next one, and behind the last one of a transaction is before its commit.
TEST_P(LostLinkTest, CutBehindEachStatement) {
  Fill("n0");
  int statements = 0;
  AfterEachStatement([&](const StatementRecord&) { ++statements; });
  Subject().write(*this);
  AfterEachStatement({});
  ASSERT_EQ(IsWritten("n0"), Written::Yes) << Said().Transcript().toStdString();
  ASSERT_GT(statements, 0);
  RecordProperty("statements", statements);  // the table in docs/engines.md
  for (int cut = 1; cut <= statements; ++cut) {
    SCOPED_TRACE("behind statement " + std::to_string(cut) + " of " + std::to_string(statements));
    const QString mark = "p" + QString(QChar(u'a' + cut));
    Fill(mark);
    const DatabaseContents before = ContentsOf(Database().OtherClient());
    int at = 0;
    AfterEachStatement([&](const StatementRecord&) {
      if (++at == cut) CutLink();
    });
    Subject().write(*this);
    AfterEachStatement({});
    RestoreLink();
    ASSERT_GE(at, cut);
    const Written written = IsWritten(mark);
    EXPECT_NE(written, Written::InPart);
    if (written == Written::No) {
      EXPECT_TRUE(Differences(before, ContentsOf(Database().OtherClient())).isEmpty());
      MustSayWhatFailed();
    }
    MustWorkAgain("q" + QString(QChar(u'a' + cut)), written == Written::Yes);
  }
}

INSTANTIATE_TEST_SUITE_P(Screens, LostLinkTest, testing::ValuesIn(ScreensWithText()),
                         [](const auto& screen) { return std::string(screen.param.name); });

}  // namespace
