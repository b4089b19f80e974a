// Code tables on a database that is busy, full or read-only: the right words, nothing lost.
#include <QFile>
#include <QFileInfo>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/FileSizeLimit.h"
#include "support/Desk.h"

#ifndef Q_OS_WIN
#include <unistd.h>
#endif

namespace {

const QString DatabaseError =
    "A database error has occurred.  Please verify your data entry\nand your Database structure.";
const QString UpdateError = "An error has occurred updating the table.\n\nIf the error persists notify support.";

class CodeTablesTroubleTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    if (TestDatabase::TestEngine() != Engine::Sqlite) GTEST_SKIP() << "about database files";
    Another("UPDATE ID_TABLES SET VIEW_ONLY_FLAG = 'F' WHERE TABLES = 'ID_LIBRARY_CAT'");
  }
  void PickCategories() {
    Start();
    ChooseAt("cmb0Tables", Find<CodeComboBox>("cmb0Tables")->IndexOfCode("ID_LIBRARY_CAT"));
    code_ = Text("txt0Code");
    before_ = Stored();
  }
  QString Stored() { return Ask("SELECT LIBRARY_CAT_DESC FROM ID_LIBRARY_CAT WHERE LIBRARY_CAT = '" + code_ + "'"); }
  void UpdateIsRefused(const QString& reasonInTheLog) {
    Type("txt0Description", "changed");
    Prompt().Expect(UpdateError, 16);
    Click("cmdUpdate");
    EXPECT_EQ(Text("txt0Description"), "changed");
    EXPECT_TRUE(gbRecordModified);
    EXPECT_FALSE(gclsOF->Connection().InTransaction());
    EXPECT_TRUE(LogLines().last().contains(reasonInTheLog)) << LogLines().last().toStdString();
  }
  void UpdateGoesThrough() {
    Prompt().Expect("Record Updated", 64);
    Click("cmdUpdate");
    EXPECT_EQ(Stored(), "changed");
  }

  QString code_, before_;
};

TEST_F(CodeTablesTroubleTest, AnotherProgramsTransactionIsWaitedForThenToldAndTheEditGoesThroughAfterwards) {
  PickCategories();
  Connection& other = Database().OtherClient();
  other.BeginTrans();
  other.Execute("UPDATE ID_PRINTER SET DEVICE = DEVICE");
  UpdateIsRefused("(busy). Please try again.");
  other.RollbackTrans();
  EXPECT_EQ(Stored(), before_);
  UpdateGoesThrough();
}

#ifndef Q_OS_WIN

TEST_F(CodeTablesTroubleTest, OnAFullDiskNothingIsStoredAndTheEditGoesThroughWithRoomAgain) {
  PickCategories();
  {
    const FileSizeLimit full(8192);  // far below the database; the log still has room
    UpdateIsRefused("* Error: ");
    Type("txt0Code", "Q9");
    Prompt().Expect(DatabaseError, 16);
    Click("cmdAdd");
  }
  EXPECT_EQ(Stored(), before_);
  EXPECT_EQ(Count("ID_LIBRARY_CAT", "LIBRARY_CAT = 'Q9'"), 0);
  EXPECT_EQ(Ask("SELECT INTEGRITY_CHECK FROM PRAGMA_INTEGRITY_CHECK"), "ok");
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Count("ID_LIBRARY_CAT", "LIBRARY_CAT = 'Q9'"), 1);
}

// While it lives this process has no more rights to files than an ordinary user.
class OrdinaryUser {
 public:
  OrdinaryUser() {
    if (before_ == 0 && seteuid(Nobody) != 0) ADD_FAILURE() << "The rights of root cannot be laid down";
  }
  ~OrdinaryUser() {
    if (before_ == 0 && seteuid(0) != 0) ADD_FAILURE() << "The rights of root cannot be taken up again";
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  static constexpr uid_t Nobody = 65534;
  const uid_t before_ = geteuid();
};

// Other permissions of a file or a folder, as long as it lives.
class Permissions {
 public:
  Permissions(QString path, QFile::Permissions permissions)
      : path_(std::move(path)), before_(QFile::permissions(path_)) {
    EXPECT_TRUE(QFile::setPermissions(path_, permissions));
  }
  ~Permissions() { QFile::setPermissions(path_, before_); }
  Permissions(const Permissions&) = delete;
  Permissions& operator=(const Permissions&) = delete;

 private:
  const QString path_;
  const QFile::Permissions before_;
};

TEST_F(CodeTablesTroubleTest, ADatabaseFileThatMayOnlyBeReadIsShownAndNotWritten) {
  const QString file = Database().Settings().name;
  constexpr auto readable = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
  constexpr auto passable = readable | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
  constexpr auto writable = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
  {
    const Permissions ofFile(file, readable), ofFolder(QFileInfo(file).path(), passable);
    // The log, the settings and all else of the desk stay open to the program.
    const Permissions ofDesk(Folder(), passable | writable);
    const OrdinaryUser user;
    if (!QFile(file).open(QIODevice::ReadOnly)) GTEST_SKIP() << "an ordinary user does not get to this folder";
    PickCategories();
    EXPECT_FALSE(ProcessEnded());
    EXPECT_GT(Rows("grd0TableDesc"), 1);
    UpdateIsRefused("readonly");
  }
  EXPECT_EQ(Stored(), before_);
}

#endif

}  // namespace
