// Numbers of new libraries, alone and against other clients.
#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QSet>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryDesk.h"
#include "directory/NextLibrary.h"
#include "shell/Screen.h"
#include "shell/Screens.h"

namespace {

class NextLibraryTest : public LibraryDesk {
 protected:
  void SetNext(const QString& number) { Another("UPDATE ID_NEXT_LIBRARY SET NEXT_LIBRARY = " + number); }
  QString Next() { return Ask("SELECT NEXT_LIBRARY FROM ID_NEXT_LIBRARY"); }
  // Lets another client take a number after each read of ours, `times` times.
  void OvertakeAfterEachRead(int times) {
    gclsOF->Connection().AddObserver([this, left = times](const StatementRecord& record) mutable {
      if (left == 0 || !record.text.startsWith("SELECT   NEXT_LIBRARY")) return;
      --left;
      Another("UPDATE ID_NEXT_LIBRARY SET NEXT_LIBRARY = NEXT_LIBRARY + 1");
    });
  }
  void AddAndExpect(const QString& message) {
    Open("frmLibraryRegistration");
    Type("txtLibrarySymbol", "WEST");
    Type("txtInstitution", "West");
    Type("txtStreet1", "2 Mill Lane");
    Prompt().Expect(message, MessageStyle::Stop);
    Click("cmdAdd");
    EXPECT_EQ(Focus(), "txtLibrarySymbol");
    EXPECT_EQ(Count("ID_LIBRARY", "LIBRARY_SYMBOL = 'WEST'"), 0);
  }
};

TEST_F(NextLibraryTest, TakesTheNumberAndWritesTheNextOne) {
  Begin();
  qint32 id = 0;
  EXPECT_TRUE(GetNextLibraryID(id));
  EXPECT_EQ(id, 10000000);
  EXPECT_EQ(Next(), "10000001");
  EXPECT_TRUE(GetNextLibraryID(id));
  EXPECT_EQ(id, 10000001);
}

TEST_F(NextLibraryTest, BehindTheLastNumberComesTheFirstOfEightDigits) {
  SetNext("99999999");
  Begin();
  qint32 id = 0;
  EXPECT_TRUE(GetNextLibraryID(id));
  EXPECT_EQ(id, 99999999);
  EXPECT_EQ(Next(), "10000000");
  EXPECT_TRUE(GetNextLibraryID(id));
  EXPECT_EQ(id, 10000000);
}

TEST_F(NextLibraryTest, AnEmptyTableIsAProblemForSupport) {
  Another("DELETE FROM ID_NEXT_LIBRARY");
  Begin();
  AddAndExpect(
      "An error has occurred while attempting to add the Library.\n\n"
      "There is a problem with the Next Library table.  Notify Support.");
  EXPECT_TRUE(LogHolds("No records exist in Table ID_NEXT_LIBRARY.  Please verify table content."));
}

TEST_F(NextLibraryTest, NineteenTimesOvertakenIsStillServed) {
  Begin();
  OvertakeAfterEachRead(19);
  qint32 id = 0;
  EXPECT_TRUE(GetNextLibraryID(id));
  EXPECT_EQ(id, 10000019);
}

TEST_F(NextLibraryTest, TwentyTimesOvertakenGivesUp) {
  Begin();
  OvertakeAfterEachRead(20);
  AddAndExpect(
      "An error has occurred while attempting to add the Library.\n\n"
      "  Please try again.\n\nIf the problem persists Notify Support.");
  EXPECT_TRUE(LogHolds("Failed to get the next Library after 20 attempts.  Check the database."));
  EXPECT_EQ(Next(), "10000020");
}

TEST_F(NextLibraryTest, AnyOtherFailureIsLoggedAndToldWithoutAHint) {
  Begin();
  gclsOF->Connection().AddObserver([this](const StatementRecord& record) {
    if (record.text.startsWith("SELECT   NEXT_LIBRARY"))
      Another("ALTER TABLE ID_NEXT_LIBRARY RENAME COLUMN NEXT_LIBRARY TO MOVED");
  });
  AddAndExpect("An error has occurred while attempting to add the Library.\n\nIf the problem persists Notify Support.");
  EXPECT_TRUE(LogHolds("frmLibraryRegistration.GetNextLibraryID"));
}

// --- Two programs at once ---

constexpr int Each = 200;
constexpr auto ChildVariable = "TABULON_TEST_REGISTERS";

constexpr int MostPresses = 10;

// Reads the last message, as a person does who presses Add again when the database was busy for too long.
class Reader : public PromptService {
 public:
  Reader() : before_(SetPrompts(this)) {}
  ~Reader() override { SetPrompts(before_); }
  QString last;
  int ShowMessage(const MessageRequest& request) override {
    last = request.text;
    return MessageAnswer::Ok;
  }
  std::optional<QString> OpenFile(const FileRequest&) override { return {}; }
  std::optional<QString> SaveFile(const FileRequest&) override { return {}; }
  std::optional<QString> ChoosePrinter(QWidget*) override { return {}; }
  QStringList PrinterNames() override { return {}; }
  void Beep() override {}

 private:
  PromptService* before_;
};

// One program: registers its libraries through the screen. Run by the case below in processes of its own.
TEST(NextLibraryClient, DISABLED_RegistersLibraries) {
  const QString name = qEnvironmentVariable(ChildVariable);
  ASSERT_FALSE(name.isEmpty());
  Reader reader;
  ASSERT_TRUE(gclsOF->LoadApplicationSettings("Tabulon", "", "admin", "secret"));
  ASSERT_TRUE(gclsOF->ID_ValidateLogin("admin", "secret", "Library Registration"));
  gclsOF->SetCallingFunction("Library Registration");
  std::unique_ptr<Screen> screen = MakeScreen("frmLibraryRegistration", nullptr);
  screen->ShowModeless();
  const auto box = [&](const char* control) { return screen->findChild<QLineEdit*>(control); };
  for (int number = 1; number <= Each; ++number) {
    const QString symbol = name + QString::number(number);
    const QString added = "Library Symbol: '" + symbol + "' has been added.";
    box("txtLibrarySymbol")->setText(symbol);
    box("txtInstitution")->setText("Institution " + symbol);
    box("txtStreet1")->setText("1 Harbour Road");
    int presses = 0;
    while (reader.last != added && presses < MostPresses) {
      screen->findChild<QPushButton*>("cmdAdd")->click();
      ++presses;
    }
    EXPECT_EQ(reader.last, added);
  }
  screen.reset();
  ResetModuleState();
}

TEST_F(NextLibraryTest, TwoProgramsRegisterFourHundredLibrariesWithDifferentNumbers) {
  Begin();
  std::vector<std::unique_ptr<QProcess>> programs;
  for (const char* name : {"EAST", "WEST"}) {
    auto program = std::make_unique<QProcess>();
    QDir(Folder()).mkdir(name);  // a log of its own
    program->setWorkingDirectory(QDir(Folder()).filePath(name));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(ChildVariable, name);
    program->setProcessEnvironment(environment);
    program->setProcessChannelMode(QProcess::MergedChannels);
    program->start(QCoreApplication::applicationFilePath(),
                   {"--gtest_also_run_disabled_tests", "--gtest_filter=NextLibraryClient.DISABLED_RegistersLibraries"});
    programs.push_back(std::move(program));
  }
  for (const auto& program : programs) {
    ASSERT_TRUE(program->waitForFinished(120000));
    EXPECT_EQ(program->exitCode(), 0) << program->readAll().toStdString();
  }
  EXPECT_EQ(Count("ID_LIBRARY", "LIBRARY_ID >= 10000000"), 2 * Each);
  EXPECT_EQ(Ask("SELECT COUNT(DISTINCT LIBRARY_ID) FROM ID_LIBRARY WHERE LIBRARY_ID >= 10000000"),
            QString::number(2 * Each));
  // The number of a row that a busy database refused stays used.
  EXPECT_GE(Next().toInt(), 10000000 + 2 * Each);
}

}  // namespace
