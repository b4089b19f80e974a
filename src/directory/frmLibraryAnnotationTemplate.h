#pragma once

#include <QPushButton>

#include "core/Record.h"
#include "directory/TemplateTarget.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

// The text stamped on a delivered page: whether, what, how large, where. One row for a library, a patron or the system.
class frmLibraryAnnotationTemplate : public Screen {
  Q_OBJECT

 public:
  explicit frmLibraryAnnotationTemplate(QWidget* parent = nullptr);

 protected:
  void Form_Load() override;

 private:
  void BuildControls();
  // False when the template of the target could not be read; the one on show stays.
  bool LoadTemplate();
  void ShowDefaults();
  // Use, text, size, orientation.
  void ShowTemplate(const QStringList& row);
  void cmdOK_Click();
  void cmdDelete_Click();
  QString SelectStatement() const;
  // The WHERE of library and patron.
  QString OfTarget() const;
  QString UpdateStatement() const;
  QString InsertStatement() const;
  void LogFailure(const QString& opening, const QString& statement, const QString& error);

  TextBox* const txtInstitution = new TextBox(this, "txtInstitution", 100);
  TextBox* const txtPatronName = new TextBox(this, "txtPatronName", 101);
  OptionGroup* const optUseAnnotation =
      new OptionGroup(this, {{"optUseAnnotationYes", "Yes"}, {"optUseAnnotationNo", "No"}});
  TextBox* const txtAnnotationText = new TextBox(this, "txtAnnotationText", 200);
  CodeComboBox* const cmbTextFontSize = new CodeComboBox(this, "cmbTextFontSize");
  CodeComboBox* const cmbTextOrientation = new CodeComboBox(this, "cmbTextOrientation");
  QPushButton* const cmdSetSystemDefault = Form::Button(this, "cmdSetSystemDefault", "");
  QPushButton* const cmdOK = Form::Button(this, "cmdOK", "&OK");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdCancel = Form::Button(this, "cmdCancel", "&Cancel");
  Record record_;
  bool mbRowRead = false;  // the controls show a row of the table
  TemplateTarget target_{record_, cmdSetSystemDefault, cmdOK, cmdDelete};
};
