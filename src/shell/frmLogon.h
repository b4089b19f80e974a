#pragma once

#include <QDialog>

#include "platform/controls/TextBox.h"

class QPushButton;

// The small logon dialog. The user is remembered for the account of the machine, the password never.
class frmLogon : public QDialog {
  Q_OBJECT

 public:
  explicit frmLogon(QWidget* parent = nullptr);

  QString User() const { return txtUser->Trimmed(); }
  QString Password() const { return txtPassword->Text(); }

  void accept() override;

 private:
  TextBox* const txtUser = new TextBox(this, "txtUser", 20);
  TextBox* const txtPassword = new TextBox(this, "txtPassword", 128);
  QPushButton* cmdOK = nullptr;
  QPushButton* cmdCancel = nullptr;

  void BuildControls();
  void EnableOK();
};
