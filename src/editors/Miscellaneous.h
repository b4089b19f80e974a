#pragma once

#include <QPushButton>

#include "platform/controls/FormLayout.h"
#include "shell/TabPage.h"

class FormName;

// Tab "Miscellaneous": the buttons of the reference screens and of the ISO 18626 connections.
class Miscellaneous : public TabPage {
  Q_OBJECT

 public:
  explicit Miscellaneous(frmTabulon& shell);
  void Miscellaneous_Tab();

 private:
  // The button opens the screen as a modal dialog and does nothing else.
  void Opens(QPushButton* button, FormName formName);

  QPushButton* const cmdPatronMessages = Form::Button(this, "cmdPatronMessages", "&Patron Messages");
  QPushButton* const cmdGeneralMessages = Form::Button(this, "cmdGeneralMessages", "&General Messages");
  QPushButton* const cmdISO18626Connection = Form::Button(this, "cmdISO18626Connection", "IS&O 18626 Connection");
  QPushButton* const cmdServiceCode = Form::Button(this, "cmdServiceCode", "Service Co&de");
  QPushButton* const cmdSuppliedItemType = Form::Button(this, "cmdSuppliedItemType", "Supplied Item &Type");
  QPushButton* const cmd11LevelsOfService = Form::Button(this, "cmd11LevelsOfService", "ISO Le&vels of Service");
  QPushButton* const cmd11Namespace = Form::Button(this, "cmd11Namespace", "ISO &Namespace");
  QPushButton* const cmd11CurrencyCode = Form::Button(this, "cmd11CurrencyCode", "Currenc&y Code");
};
