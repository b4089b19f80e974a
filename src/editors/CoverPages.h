#pragma once

#include <QPushButton>

#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/TextBox.h"
#include "shell/GridForm.h"
#include "shell/TabPage.h"

class FormName;

// Tab "Cover Pages": the texts printed on the cover sheet of each request type. There is one row for each type, so rows
// are only updated. Four buttons open the notice e-mail dialogs of the selected type.
class CoverPages : public TabPage {
  Q_OBJECT

 public:
  explicit CoverPages(frmTabulon& shell);

  void CoverPages_Tab();
  bool CoverPages_Update();
  bool CoverPages_Clear();

  void ConfigureGrid() override { form_.Shape(); }
  void LoadGrid() override;

 private:
  void BuildControls();
  void TellGrid();
  void ConnectControls();
  void grd1CoverInfo_SelChange();
  void OpenNotice(const QString& button, FormName formName);
  QString UpdateStatement() const;

  QStringList gstrFieldNames;  // of the recordset that filled the grid: the four texts, then the key

  TextBox* const txt1RequestType = new TextBox(this, "txt1RequestType", 3);
  TextBox* const txt1Description = new TextBox(this, "txt1Description");
  TextBox* const txt1Header = new TextBox(this, "txt1Header", 60);
  TextBox* const txt1Footer = new TextBox(this, "txt1Footer", 60);
  MemoBox* const txt1Message1 = new MemoBox(this, "txt1Message1", 1000);
  MemoBox* const txt1message2 = new MemoBox(this, "txt1message2", 1000);
  QPushButton* const cmdNotifyPatron =
      Form::Button(this, "cmdNotifyPatron", "&Notify/Cancel",
                   "Configure the Email message and Patron Notification report for the selected request type.");
  QPushButton* const cmdLoanNotices =
      Form::Button(this, "cmdLoanNotices", "L&oan Notices",
                   "Configure the Email message and Loan Notices report for the selected request type.");
  QPushButton* const cmdGeneral =
      Form::Button(this, "cmdGeneral", "&General",
                   "Configure the Email message and General Notification report for the selected request type.");
  QPushButton* const cmdPickup = Form::Button(this, "cmdPickup", "&Pickup");
  Grid* const grd1CoverInfo = new Grid(this, "grd1CoverInfo", 8);
  GridForm form_{grd1CoverInfo, record(), 200};
};
