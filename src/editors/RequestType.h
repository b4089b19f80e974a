#pragma once

#include <QPushButton>

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/GridForm.h"
#include "shell/TabPage.h"

// Tab "Request Type": library, customer id and invoice flag of the request types. The types themselves are the
// system's, so rows are only updated.
class RequestType : public TabPage {
  Q_OBJECT

 public:
  explicit RequestType(frmTabulon& shell);

  void RequestType_Tab();
  bool RequestType_Update();
  bool RequestType_Clear();

  void ConfigureGrid() override { form_.Shape(); }
  void LoadGrid() override;

 private:
  // Column 4 shows the customer id's description; the id itself is hidden.
  enum Column { Marker, Code, Description, Symbol, CustomerID, InvoiceFlag, CustomerCode };

  void BuildControls();
  void ConnectControls();
  void LoadCustomers();
  void grd9RequestType_SelChange();
  void cmb9InvoiceFlag_Click();
  void cmb9CustomerID_Click();

  QString FlagLetter() const;
  QString StoredCustomer() const;
  void FindRequestLibraryId();
  QString UpdateStatement(const QString& customer) const;
  void WriteRow(int row, const QString& customer);

  qint32 glngRequestLibraryId_ = 0;  // 0: no symbol given, -1: no such library

  TextBox* const txt9Code = new TextBox(this, "txt9Code", 3);
  TextBox* const txt9Description = new TextBox(this, "txt9Description", 50);
  TextBox* const txt9LibrarySymbol = new TextBox(this, "txt9LibrarySymbol", 25);
  QPushButton* const cmd9FindLibrary = Form::Button(this, "cmd9FindLibrary", "&Find Library");
  CodeComboBox* const cmb9CustomerID = new CodeComboBox(this, "cmb9CustomerID");
  CodeComboBox* const cmb9InvoiceFlag = new CodeComboBox(this, "cmb9InvoiceFlag");
  Grid* const grd9RequestType = new Grid(this, "grd9RequestType", 7);
  GridForm form_{grd9RequestType, record()};
};
