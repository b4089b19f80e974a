#pragma once

#include <QPushButton>

#include "platform/controls/FormLayout.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

// "About Tabulon": title, version, rights line and comments of this program.
class frmAboutApp : public Screen {
  Q_OBJECT

 public:
  explicit frmAboutApp(QWidget* parent = nullptr);

 protected:
  void Form_Load() override;

 private:
  TextBox* const txtTitle = new TextBox(this, "txtTitle");
  TextBox* const txtVersion = new TextBox(this, "txtVersion");
  TextBox* const txtLegalCopyright = new TextBox(this, "txtLegalCopyright");
  MemoBox* const txtComments = new MemoBox(this, "txtComments");
  QPushButton* const cmdOK = Form::Button(this, "cmdOK", "&OK");
};
