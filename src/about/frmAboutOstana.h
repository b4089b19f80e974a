#pragma once

#include <QLabel>
#include <QPushButton>

#include "platform/controls/FormLayout.h"
#include "platform/controls/MemoBox.h"
#include "shell/Screen.h"

// "About Ostana": version, edition, contact and support data of the installed system.
class frmAboutOstana : public Screen {
  Q_OBJECT

 public:
  explicit frmAboutOstana(QWidget* parent = nullptr);

 protected:
  void Form_Load() override;

 private:
  void BuildControls();
  void cmdOtherInfo_Click();
  // Starts the platform's system information program, or says that there is none.
  void StartSysInfo();

  QLabel* const lblContact = Form::Label(this, "lblContact", "");
  QLabel* const lblInstitution = Form::Label(this, "lblInstitution", "");
  QLabel* const lblVersion = Form::Label(this, "lblVersion", "Version:");
  QLabel* const lblVersionValue = Form::Label(this, "lblVersionValue", "");
  QLabel* const lblEdition = Form::Label(this, "lblEdition", "Edition:");
  QLabel* const lblEditionValue = Form::Label(this, "lblEditionValue", "");
  QLabel* const lblSupport = Form::Label(this, "lblSupport", "");
  QLabel* const lblCopyright = Form::Label(this, "lblCopyright", "");
  QLabel* const lblDisclaimer = Form::Label(this, "lblDisclaimer", "");
  MemoBox* const txtMoreInfo = new MemoBox(this, "txtMoreInfo");
  QPushButton* const cmdOtherInfo = Form::Button(this, "cmdOtherInfo", "&More Info.");
  QPushButton* const cmdSysInfo = Form::Button(this, "cmdSysInfo", "&System Info...");
  QPushButton* const cmdOK = Form::Button(this, "cmdOK", "&OK");
};
