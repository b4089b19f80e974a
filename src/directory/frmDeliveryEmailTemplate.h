#pragma once

#include <QGroupBox>
#include <QPushButton>

#include "core/Record.h"
#include "directory/TemplateTarget.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

// The e-mail that goes with an electronic delivery: one row for a library, a patron or the system, with two families of
// the same four columns.
class frmDeliveryEmailTemplate : public Screen {
  Q_OBJECT

 public:
  explicit frmDeliveryEmailTemplate(QWidget* parent = nullptr);

 protected:
  void Form_Load() override;

 private:
  void BuildControls();
  // False when the template of target and family could not be read; the one on show stays.
  bool Load_TextBoxes();
  void rdForExternalURL_Click();
  void ClearBoxes();
  void cmdOK_Click();
  void cmdDelete_Click();
  // The family that is chosen: "SED_" for the external URL, "EMAIL_" for electronic delivery.
  QString Family() const;
  QString OfTarget() const;
  bool RowExists() const;
  QString UpdateStatement() const;
  QString InsertStatement() const;

  Record record_;
  bool mbRowRead = false;  // the boxes show a row of the table
  QString family_;         // whose columns the boxes show

  OptionGroup* const rdForExternalURL =
      new OptionGroup(this, {{"rdForExternalURLYes", "Yes"}, {"rdForExternalURLNo", "No"}});
  QGroupBox* const fraTemplate = Form::Frame(this, "fraTemplate", "");
  TextBox* const txtInstitution = new TextBox(this, "txtInstitution", 100);
  TextBox* const txtPatronName = new TextBox(this, "txtPatronName", 101);
  OptionGroup* const rdSkipHeaderAndFooter =
      new OptionGroup(this, {{"rdSkipHeaderAndFooterYes", "Yes"}, {"rdSkipHeaderAndFooterNo", "No"}});
  TextBox* const txtSubject = new TextBox(this, "txtSubject", 100);
  MemoBox* const txtRequestInfo = new MemoBox(this, "txtRequestInfo", 500);
  MemoBox* const txtBody = new MemoBox(this, "txtBody", 3000);
  QPushButton* const cmdSetSystemDefault = Form::Button(this, "cmdSetSystemDefault", "");
  QPushButton* const cmdOK = Form::Button(this, "cmdOK", "&OK");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdCancel = Form::Button(this, "cmdCancel", "&Cancel");
  TemplateTarget target_{record_, cmdSetSystemDefault, cmdOK, cmdDelete};
};
