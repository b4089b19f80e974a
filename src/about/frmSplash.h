#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include "platform/controls/FormLayout.h"
#include "shell/Screen.h"

// Shown at start when the launcher was not used; closes itself after four seconds.
class frmSplash : public Screen {
  Q_OBJECT

 public:
  explicit frmSplash(QWidget* parent = nullptr);

  static constexpr int ShownFor = 4000;  // milliseconds

 protected:
  void Form_Load() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void BuildControls();
  void Timer1_Timer();

  QLabel* const lblVersion = Form::Label(this, "lblVersion", "");
  QLabel* const lblRights = Form::Label(this, "lblRights", "");
  QLineEdit* const txtHide = new QLineEdit(this);  // takes the focus, so that no caret blinks; never seen
  QTimer* const Timer1 = new QTimer(this);
};
