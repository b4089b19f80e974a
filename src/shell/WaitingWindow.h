#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
class Waiting;

// Stands before the program while a statement takes its time: says so, counts the seconds, and stops it on Cancel. The
// windows behind it repaint, and nothing of them can be pressed.
class WaitingWindow : public QDialog {
  Q_OBJECT

 public:
  // From now on a statement that takes over two seconds is waited for in such a window.
  static void Install();

  explicit WaitingWindow(Waiting& waiting, QWidget* parent);
  // Returns when the statement has.
  void Watch();

  void reject() override;

 private:
  void ShowSeconds();

  Waiting& waiting_;
  QLabel* const lblSeconds = new QLabel(this);
  QPushButton* cmdCancel = nullptr;
};
