#include "platform/desktop/Prompts.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QTemporaryDir>

#include "platform/Window.h"

namespace {

class PromptsTest : public testing::Test {
 protected:
  void SetUp() override { window.Show(); }

  MessageRequest Request(int style, const QString& text = "Text") { return {text, style, "Code Tables", {}, &window}; }

  // Looks at the message box when it is there, then answers it.
  int Ask(const MessageRequest& request, const std::function<void(QMessageBox&)>& look) {
    bool seen = false;
    QTimer::singleShot(0, &window, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      seen = true;
      look(*box);
      if (box->isVisible()) QTest::keyClick(box, Qt::Key_Escape);
    });
    const int answer = Prompts().ShowMessage(request);
    EXPECT_TRUE(seen);
    return answer;
  }

  int AnswerTo(int style, Qt::Key key) {
    return Ask(Request(style), [key](QMessageBox& box) { QTest::keyClick(&box, key); });
  }

  Window window;
};

struct StyleCase {
  int style;
  QMessageBox::Icon icon;
  QMessageBox::StandardButtons buttons;
};

TEST_F(PromptsTest, StyleGivesIconAndButtons) {
  const QMessageBox::StandardButtons ok = QMessageBox::Ok, yesNo = QMessageBox::Yes | QMessageBox::No;
  for (const StyleCase& one : {StyleCase{16, QMessageBox::Critical, ok},
                               {36, QMessageBox::Question, yesNo},
                               {35, QMessageBox::Question, yesNo | QMessageBox::Cancel},
                               {48, QMessageBox::Warning, ok},
                               {52, QMessageBox::Warning, yesNo},
                               {64, QMessageBox::Information, ok},
                               {0, QMessageBox::NoIcon, ok}}) {
    Ask(Request(one.style), [&](QMessageBox& box) {
      EXPECT_EQ(box.icon(), one.icon) << one.style;
      EXPECT_EQ(box.standardButtons(), one.buttons) << one.style;
    });
  }
}

TEST_F(PromptsTest, AnswersAreThePlatformsCodes) {
  const auto press = [this](int style, QMessageBox::StandardButton button) {
    AnswerNextBox(button);
    return Prompts().ShowMessage(Request(style));
  };
  EXPECT_EQ(press(36, QMessageBox::Yes), 6);
  EXPECT_EQ(press(36, QMessageBox::No), 7);
  EXPECT_EQ(press(35, QMessageBox::Yes), 6);
  EXPECT_EQ(press(35, QMessageBox::No), 7);
  EXPECT_EQ(press(35, QMessageBox::Cancel), 2);
  EXPECT_EQ(press(64, QMessageBox::Ok), 1);
}

TEST_F(PromptsTest, EscapeIsTheRefusal) {
  EXPECT_EQ(AnswerTo(36, Qt::Key_Escape), 7);
  EXPECT_EQ(AnswerTo(35, Qt::Key_Escape), 2);
  EXPECT_EQ(AnswerTo(16, Qt::Key_Escape), 1);
}

TEST_F(PromptsTest, EnterTakesTheDefaultButton) {
  EXPECT_EQ(AnswerTo(36, Qt::Key_Return), 6);
  EXPECT_EQ(AnswerTo(36 + 256, Qt::Key_Return), 7);
  EXPECT_EQ(AnswerTo(52 + 256, Qt::Key_Return), 7);
}

TEST_F(PromptsTest, BoxBelongsToItsOwnerAndShowsPlainText) {
  Ask(Request(16, "<b>5 < 6</b>\nsecond line"), [this](QMessageBox& box) {
    EXPECT_EQ(box.objectName(), "ShowMessage");
    EXPECT_EQ(box.windowTitle(), "Code Tables");
    EXPECT_EQ(box.text(), "<b>5 < 6</b>\nsecond line");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.parentWidget(), &window);
    EXPECT_EQ(box.windowModality(), Qt::WindowModal);
  });
}

TEST_F(PromptsTest, WithoutOwnerTheBoxIsModalToAll) {
  Ask({"Text", 64, "Tabulon", {}, nullptr},
      [](QMessageBox& box) { EXPECT_EQ(box.windowModality(), Qt::ApplicationModal); });
}

TEST_F(PromptsTest, IconNameReplacesTheStylesIcon) {
  MessageRequest request = Request(48);
  request.icon = "no-such-icon";
  Ask(request, [](QMessageBox& box) { EXPECT_EQ(box.icon(), QMessageBox::NoIcon); });
}

TEST_F(PromptsTest, FileDialogShowsReports) {
  const QTemporaryDir folder;
  const QString report = folder.filePath("cover.rpt");
  ASSERT_TRUE(QFile(report).open(QIODevice::WriteOnly));
  QTimer::singleShot(0, &window, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->objectName(), "OpenFile");
    EXPECT_EQ(dialog->windowTitle(), "Choose a report");
    EXPECT_EQ(dialog->nameFilters(), QStringList{"Reports (*.rpt)"});
    EXPECT_EQ(dialog->directory().canonicalPath(), QDir(folder.path()).canonicalPath());
    dialog->selectFile(report);
    static_cast<QDialog*>(dialog)->accept();
  });
  const auto chosen = Prompts().OpenFile({"Choose a report", folder.path(), "*.rpt", &window});
  ASSERT_TRUE(chosen.has_value());
  EXPECT_EQ(QFileInfo(*chosen).fileName(), "cover.rpt");
}

TEST_F(PromptsTest, CancelledFileDialogGivesNone) {
  for (const bool saving : {false, true}) {
    QTimer::singleShot(0, &window, [] { static_cast<QDialog*>(QApplication::activeModalWidget())->reject(); });
    const FileRequest request{"Report", QDir::tempPath(), "*.rpt", &window};
    EXPECT_FALSE((saving ? Prompts().SaveFile(request) : Prompts().OpenFile(request)).has_value());
  }
}

TEST_F(PromptsTest, SavedFileGetsItsEnding) {
  const QTemporaryDir folder;
  QTimer::singleShot(0, &window, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->selectFile("fresh");
    static_cast<QDialog*>(dialog)->accept();
  });
  const auto chosen = Prompts().SaveFile({"Report", folder.path(), "*.rpt", &window});
  ASSERT_TRUE(chosen.has_value());
  EXPECT_EQ(QFileInfo(*chosen).fileName(), "fresh.rpt");
}

TEST_F(PromptsTest, WithoutPrintersChoosingGivesNoneAndShowsNothing) {
  if (!Prompts().PrinterNames().isEmpty()) GTEST_SKIP() << "this machine has printers";
  EXPECT_FALSE(Prompts().ChoosePrinter(&window).has_value());
}

// A service that a test puts in place of the desktop's.
class ScriptedPrompts : public PromptService {
 public:
  int ShowMessage(const MessageRequest& request) override {
    shown = request.text;
    return MessageAnswer::No;
  }
  std::optional<QString> OpenFile(const FileRequest&) override { return "opened"; }
  std::optional<QString> SaveFile(const FileRequest&) override { return {}; }
  std::optional<QString> ChoosePrinter(QWidget*) override { return {}; }
  QStringList PrinterNames() override { return {"one"}; }
  void Beep() override {}

  QString shown;
};

TEST(PromptServiceTest, AnotherServiceCanBePutInPlace) {
  ScriptedPrompts scripted;
  PromptService* before = SetPrompts(&scripted);
  EXPECT_EQ(Prompts().ShowMessage({"hello", 36, {}, {}, nullptr}), MessageAnswer::No);
  EXPECT_EQ(scripted.shown, "hello");
  EXPECT_EQ(SetPrompts(nullptr), &scripted);
  EXPECT_EQ(&Prompts(), before);
}

}  // namespace
