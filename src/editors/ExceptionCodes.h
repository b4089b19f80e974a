#pragma once

#include <QLabel>
#include <optional>

#include "editors/ExceptionChoice.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/GridForm.h"
#include "shell/TabPage.h"

// Sub-tab "Exception Codes": the master list of exception codes with their type and an optional service charge.
class ExceptionCodes : public SubPage {
  Q_OBJECT

 public:
  explicit ExceptionCodes(frmTabulon& shell);

  void ConfigureGrid() override;
  void LoadGrid() override;
  bool Add() override;
  bool Update() override;
  bool Delete() override;
  bool Clear() override;
  void CompareAgain() override { form_.CompareAgain(); }

  // Takes label and box of the charge away on a site without the web service.
  void ShowServiceCharge();
  void PopulateExceptionType();
  // Back on this sub-tab: list and rows anew, the record on show kept.
  void Return();
  // Row 1, where there are two records or more.
  void SelectFirstRow();
  // Shows a code picked on another sub-tab; does nothing without a choice.
  void Carry(const ExceptionChoice& choice);
  // Empties the boxes and sends the focus to the code, whichever sub-tab is in front.
  void EmptyAndFocusCode();
  // Type and description of a code as the grid has them; empty for a code that it does not hold.
  QString TypeOf(const QString& code) const;
  QString DescriptionOf(const QString& code) const;

 private:
  void BuildControls();
  void ConnectControls();
  void grd8Table_SelChange();
  void HideCharge();
  int RowOf(const QString& code) const;
  QString CellOf(const QString& code, const QString& database) const;

  void EmptyTexts();
  void TrimEntry();
  bool TypeIsChosen();
  bool EntryIsValid(const QString& code, const QString& description);
  QString InsertStatement(const QString& code, const QString& description) const;
  // Row of the code, 0 when the grid does not hold it, none when a row above it has the description already.
  std::optional<int> RowToUpdate(const QString& code, const QString& description);
  QString UpdateStatement(const QString& code, const QString& description) const;

  TextBox* const txt8Code = new TextBox(this, "txt8Code", 3);
  TextBox* const txt8Description = new TextBox(this, "txt8Description", 50);
  CodeComboBox* const cboExceptionType = new CodeComboBox(this, "cboExceptionType");
  QLabel* const lbl8ServiceCharge = Form::Label(this, "lbl8ServiceCharge", "Service Charge:");
  TextBox* const txt8ServiceCharge = new TextBox(this, "txt8ServiceCharge", 6);
  Grid* const grd8Table = new Grid(this, "grd8Table", 5);
  GridForm form_{grd8Table, record()};
};
