#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <random>

#include "platform/desktop/Prompts.h"

// Presses random keys, clicks and types at whatever window is in front. It acts from a timer, so that it goes on within
// the loops of dialogs that its own presses open. Equal seeds press the same as long as the screens answer the same.
class Monkey : public QObject {
 public:
  // Every action is a line of the file as soon as it is chosen, so that the last one is known after a crash.
  Monkey(unsigned seed, const QString& logFile);

  // Acts `steps` times on `window` and what it opens, then closes what is open in front of it. Less often when the
  // window is gone or `ended` becomes true.
  void Act(QWidget& window, int steps, const std::function<bool()>& ended);

  int Steps() const { return steps_; }
  // The longest action, in milliseconds without those that it opened a loop for, and what it was.
  qint64 Longest() const { return longest_; }
  const QString& LongestAction() const { return longestAction_; }
  const QStringList& LastActions() const { return last_; }

  int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
  void Note(const QString& action);

 private:
  void Tick();
  void Next() { QTimer::singleShot(0, this, &Monkey::Tick); }
  QWidget* Front() const;
  void Press(QWidget& window);
  void CloseFront();

  void ClickSomething(QWidget& window);
  void TypeSomething(QWidget& window);
  void PressKey(QWidget& window);
  void ChooseEntry(QWidget& window);
  void ClickCell(QWidget& window);
  void TurnTab(QWidget& window);
  void TriggerAction(QWidget& window);
  void ClickAnywhere(QWidget& window);
  QString SomeText();

  std::mt19937 random_;
  QFile log_;
  QPointer<QWidget> window_;
  std::function<bool()> ended_;
  int left_ = 0;
  int steps_ = 0;
  int closing_ = 0;
  QStringList last_;
  QElapsedTimer timer_;
  QString running_;
  qint64 longest_ = 0;
  QString longestAction_;
  QEventLoop* loop_ = nullptr;
};
