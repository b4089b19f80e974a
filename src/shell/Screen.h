#pragma once

#include <QDialog>

#include "core/UserRights.h"

// A form that is told when it comes to the front: when it is shown, and again when a modal screen that it opened has
// closed. Not after a message box.
class ActivatedForm {
 public:
  virtual ~ActivatedForm() = default;
  virtual void Form_Activate() {}
};

// Base of the dialogs. Life of one: Load, Activate, QueryUnload, Unload, in that order. Escape and the window's close
// button unload like the Close command; no button is a default button unless the screen makes it one.
class Screen : public QDialog, public ActivatedForm {
  Q_OBJECT

 public:
  explicit Screen(const QString& formName, const QString& caption, QWidget* parent = nullptr);

  QString Caption() const { return windowTitle(); }
  void SetCaption(const QString& caption) { setWindowTitle(caption); }

  // Load, show, Activate, nested event loop until unloaded.
  void ShowModal();
  // Load and show without a loop of its own (for the splash screen and for tests).
  void ShowModeless();
  // Asks QueryUnload, then Unload; closes when neither cancels. True when the screen is gone.
  bool Unload();
  bool Loaded() const { return loaded_; }

  void done(int result) override;
  void reject() override { Unload(); }

 protected:
  // Those of the function that the screen was opened under; a function borrowed meanwhile is not its own.
  const FunctionRights rights_;

  virtual void Form_Load() {}
  // True cancels the unload.
  virtual bool Form_QueryUnload() { return false; }
  virtual bool Form_Unload() { return false; }
  // The user pressed the window's own close button or Escape; unloads unless overridden (Cancel where there is one).
  virtual void CloseRequested() { Unload(); }

  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Begin();

  bool loaded_ = false;
  bool unloading_ = false;
  bool gone_ = false;
};

// The hourglass pointer, as long as it lives; not over what asks a person.
class Hourglass {
 public:
  Hourglass();
  ~Hourglass();
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
};

// All hourglasses are away as long as it lives.
class NoHourglass {
 public:
  NoHourglass();
  ~NoHourglass();
  NoHourglass(const NoHourglass&) = delete;
  NoHourglass& operator=(const NoHourglass&) = delete;

 private:
  int lifted_ = 0;
};
