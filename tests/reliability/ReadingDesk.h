#pragma once

#include "reliability/FailingReads.h"
#include "reliability/ReliabilityDesk.h"

// Closes each dialog that the program itself opens: the user looks and goes back.
class Glances : public QObject {
 public:
  Glances();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

// A reliability desk that a case makes as often as it needs one, each with a database of its own, and whose program
// reads through FailingReads.
class ReadingDesk : public ReliabilityDesk {
 public:
  ReadingDesk();
  ~ReadingDesk() override;

  FailingReads& Reads() { return *reads_; }
  // The rows of the named tables, of all tables with none.
  DatabaseContents Contents(const QStringList& tables = {});

  // Runs an act of a user who may find that a control is off or a list is empty, and then does nothing. What the
  // helpers of the desk object to fails no case.
  static void Attempt(const std::function<void()>& act);
  // The controls' own state: what a user could press now.
  bool CanClick(const QString& button) const;
  bool CanTrigger(const QString& entry) const;
  // Alt and the letter that is underlined on the button.
  void PressKeyOf(const QString& button);

 private:
  void TestBody() override {}

  Glances glances_;
  std::unique_ptr<FailingReads> reads_;
};
