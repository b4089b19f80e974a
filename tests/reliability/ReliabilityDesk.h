#pragma once

#include <functional>

#include "reliability/Answers.h"
#include "reliability/DatabaseContents.h"
#include "support/Desk.h"

// The desk of the reliability cases: the sample site, a user who agrees to everything, and a link to the server that
// can be cut. What drives the screens is public, so that the table of writing screens can use it.
class ReliabilityDesk : public SampleDesk {
 public:
  static constexpr qint32 Auenfels = 10000000;  // a library of the sample site with rows in every table

  using Desk::Another;
  using Desk::Append;
  using Desk::Ask;
  using Desk::Cell;
  using Desk::Choose;
  using Desk::ChooseAt;
  using Desk::Click;
  using Desk::Count;
  using Desk::Database;
  using Desk::Find;
  using Desk::Folder;
  using Desk::LogLines;
  using Desk::Open;
  using Desk::Paste;
  using Desk::ProcessEnded;
  using Desk::Row;
  using Desk::Rows;
  using Desk::SelectRow;
  using Desk::SelectRowOf;
  using Desk::SelectTab;
  using Desk::Setting;
  using Desk::Shell;
  using Desk::Start;
  using Desk::Statements;
  using Desk::Text;
  using Desk::Trigger;
  using Desk::Type;
  using Desk::Window;

  Answers& Said() { return *answers_; }
  // Settings and login, once.
  void LogOn();
  // The main screen with one of its tabs; started once a case.
  void EnterTab(int tab);
  // A dialog, logged on before; an open one stays as it is.
  void OpenDialog(const QString& formName);
  // A library in hand, as another application of the system gives it.
  void OpenLibraryScreen(const QString& formName, qint32 library = Auenfels);
  // Closes the dialog in front; the user does not want to keep what was entered.
  void LeaveUnsaved();
  // A click on one cell.
  void ClickCell(const QString& grid, int row, int col);
  // Chooses the entry with that code, or with that text where the entries have none.
  void ChooseCode(const QString& combo, const QString& code);

  // --- The link ---
  // Ends the program's session from the server's side; takes SQLite's file away.
  void CutLink();
  // Brings SQLite's file back; a server is there all the time.
  void RestoreLink();
  // Runs after every statement of the program; none when empty.
  void AfterEachStatement(std::function<void(const StatementRecord&)> watch);

 protected:
  void SetUp() override;
  void TearDown() override;

 private:
  QString Taken() { return Database().Settings().name + ".taken"; }

  std::unique_ptr<Answers> answers_;
  std::function<void(const StatementRecord&)> watch_;
  bool started_ = false, loggedOn_ = false, watching_ = false;
};
