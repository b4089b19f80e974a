#pragma once

#include <QObject>
#include <functional>

class QFocusEvent;
class QTabBar;
class QWidget;

// Runs a control's leave check when the focus really goes to another control of the same window, once. The toolkit
// moves the focus before it delivers the press, and lets mnemonics act without moving it at all; the guard makes the
// check come first in every case and, when it refuses, brings the focus back and swallows what caused the leaving.
class LeaveGuard : public QObject {
  Q_OBJECT

 public:
  // `control` is left when the focus goes out of it and its children.
  LeaveGuard(QWidget* control, std::function<bool()> check);
  ~LeaveGuard() override;

  // To be called at the end of focusInEvent and focusOutEvent of whatever takes the focus inside of the control.
  void Entered();
  void Left(const QFocusEvent& event);
  // Whether what has the focus in the window may be left, its check having run: for what acts without taking the focus.
  static bool MayLeave(const QWidget* window);
  bool Checking() const { return phase_ == Phase::Checking; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Outside: nothing is watched. Inside: the focus is in the control. Then, for a press that must not act: its
  // delivery and its release are still to come.
  enum class Phase { Outside, Inside, Checking, PressToCome, ReleaseToCome };

  void Enter(Phase phase);
  bool FocusIsInside() const;
  bool ReallyLeaves(const QFocusEvent& event) const;
  bool Check(bool byMouse);
  // Gives the focus to what is about to act without taking it. True when the check kept the focus.
  bool Refuses(QWidget* actor, Qt::FocusReason reason);
  bool BeforeActing(QWidget* receiver, QEvent* event);
  bool SwallowPress(QEvent* event);
  bool SwallowRelease(QEvent* event);

  QWidget* control_;
  std::function<bool()> check_;
  Phase phase_ = Phase::Outside;
  bool released_ = false;  // the button that was pressed came up while the check ran
};
