#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/TextBox.h"
#include "shell/frmTabulon.h"
#include "support/Printing.h"
#include "support/Script.h"
#include "support/TestDatabase.h"

class Screen;

// One workstation, made new for each case: a folder with the settings of a site, a database with the full schema of
// the engine that TABULON_TEST_ENGINE names, the program's module state as at process start, a script for what asks.
// Controls are driven by object name, with key strokes and clicks; a helper that finds no such control, or one that a
// user could not use now, fails the case.
class Desk : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // --- What a case may change before the program starts ---
  virtual bool WithSample() const { return false; }
  virtual bool WithHistory() const { return false; }
  // Replaces or adds a value of the settings file.
  void Setting(const QString& section, const QString& key, const QString& value);
  QString SettingsFile() const { return folder_.filePath("Ostana.ini"); }
  QString Folder() const { return folder_.path(); }

  // Windows open on this display of the offscreen platform ("1024x768"); the first one unless set.
  void UseDisplay(const QString& name);
  void PutOnDisplay(QWidget& window) const;

  // --- The program ---
  // Starts the main screen as the launcher does and shows it. The quoted arguments default to the administrator's.
  frmTabulon& Start(const QString& arguments = "\"\" \"admin\" \"secret\"");
  frmTabulon& Shell() { return *shell_; }
  // Settings and login without a main screen, for cases of one dialog.
  void Logon();
  // Opens a dialog without a nested loop; it is the window that the helpers below drive.
  Screen& Open(const QString& formName);
  // Runs when the next dialog of that name is shown from inside the program (a nested loop). A dialog still open
  // afterwards is unloaded.
  void WhenShown(const QString& formName, std::function<void(Screen&)> act);
  bool ProcessEnded() const { return exitCode_.has_value(); }
  int ExitCode() const { return exitCode_.value_or(-1); }

  // --- Driving ---
  QWidget* Window() const;  // the dialog opened last, else the main screen
  template <class T>
  T* Find(const QString& name) const {
    T* const control = Window()->findChild<T*>(name);
    if (!control) ADD_FAILURE() << "There is no control " << name.toStdString();
    return control;
  }
  void Click(const QString& button);                     // button, check box or option: the name of the element
  void Type(const QString& box, const QString& text);    // replaces the text by key strokes
  void Append(const QString& box, const QString& text);  // key strokes at the end of the text
  void Press(const QString& control, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void Paste(const QString& box, const QString& text);
  void Choose(const QString& combo, const QString& entry);  // as a user picks it; the signal comes even when unchanged
  void ChooseAt(const QString& combo, int index);
  void SelectTab(const QString& tabs, int index);  // any tab control
  void SelectRow(const QString& grid, int row);    // a click on the row
  void SelectRowOf(const QString& grid, const QString& text, int col = 1);
  void SortBy(const QString& grid, int col);   // a click on the heading
  void Trigger(const QString& action);         // a menu entry
  QString Text(const QString& control) const;  // of a box, combo box, label, button
  QString Cell(const QString& grid, int row, int col) const;
  int Rows(const QString& grid) const;
  int Row(const QString& grid) const;
  bool IsChecked(const QString& name) const;
  bool IsEnabled(const QString& name) const;
  bool IsShown(const QString& name) const;
  QString Focus() const;  // object name of the control that has the focus

  // Leaves a picture of the window, or of the one in front, in the folder "gallery" of the build.
  void Picture(const QString& name, QWidget* window = nullptr) const;

  // --- Watching ---
  Script& Prompt() { return *script_; }
  // Statements the program ran since the last call, as composed. Writing() leaves the SELECTs out.
  QStringList Statements();
  QStringList Writing();
  QStringList LogLines() const;
  TestDatabase& Database() { return *database_; }
  // First column of the first row; null when there is none or the value is NULL. Read by another client.
  QString Ask(const QString& sql);
  int Count(const QString& table, const QString& where = {});
  // A statement of another client.
  void Another(const QString& sql);
  // A right of the administrator is taken away before the program starts: "ADD_FLAG" and the like.
  void TakeAway(const QString& flag);
  // Ends the program's session on the server. False on an engine without a server.
  bool DropConnection();
  // Whether any line of the log holds the text.
  bool LogHolds(const QString& text) const;

 private:
  void WriteSettings();
  void Observe();

  QScreen* display_ = nullptr;
  QTemporaryDir folder_;
  QString before_;
  std::unique_ptr<TestDatabase> database_;
  std::unique_ptr<Script> script_;
  std::unique_ptr<frmTabulon> shell_;
  std::vector<std::unique_ptr<Screen>> screens_;
  std::optional<int> exitCode_;
  QStringList statements_;
  std::vector<QObject*> filters_;
  bool observed_ = false;
};

// The same desk with the rows of the sample site.
class SampleDesk : public Desk {
 protected:
  bool WithSample() const override { return true; }
};
