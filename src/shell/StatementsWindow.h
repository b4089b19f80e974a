#pragma once

#include <QWidget>

class Grid;
class MemoBox;
struct StatementRecord;

// The last statements that this program sent, as they were composed, with secrets masked, the newest first: time,
// milliseconds, rows, and the screen and procedure that they came from. It listens while it is open and costs nothing
// while it is closed. The list finds, filters, copies and exports as all lists do.
class StatementsWindow : public QWidget {
  Q_OBJECT

 public:
  static constexpr int Most = 500;

  // Opens the one window of the program, beside the work of `owner`.
  static void Open(QWidget* owner);
  // F12 in this window does.
  static void OpenByF12(QWidget& window);

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  StatementsWindow();
  void BuildControls();
  void Listen();
  void StopListening();
  void Add(const StatementRecord& statement);
  void Copy() const;

  Grid* grdStatements_;
  MemoBox* txtStatement_;
  int observer_ = 0;  // 0 while it does not listen
};
