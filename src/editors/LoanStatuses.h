#pragma once

#include <QLabel>

#include "editors/LoansPage.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"

class frmLoans;

// Sub-tab "Loan Status": whether a status ends a loan, whether patrons see it, and what it costs. The charge shows only
// where the web services are in use; hidden, it is kept as it is.
class LoanStatuses : public LoansPage {
  Q_OBJECT

 public:
  explicit LoanStatuses(frmLoans& form);

  void ShowCharge(bool shown);
  void Load() override;
  void Enter() override;
  bool Add() override;
  bool Update() override;
  bool Delete() override;
  void Clear() override;

 private:
  enum Column { Marker, Code, Description, LoanCharge, FixedCharge, Complete, Display, Columns };

  void BuildControls();
  void ConnectControls();
  void grd6bTable_SelChange();
  void ShowRow(int row);
  void MarkChanged();
  bool FormatCharge();
  bool RowIsUnchanged(int row) const;
  void WriteRow(int row);
  // The charge as a number in SQL; empty when the box is blank.
  QString ChargeAsSql() const;
  // The letter that is stored with a charge.
  QString FixedLetter() const { return opt6bFixedCharge->IsSet(0) ? "Y" : "N"; }

  frmLoans& form_;
  TextBox* const txt6bCode = new TextBox(this, "txt6bCode", 3);
  TextBox* const txt6bDescription = new TextBox(this, "txt6bDescription", 50);
  OptionGroup* const opt6LoanComplete = new OptionGroup(this, "opt6LoanComplete", {"Yes", "No"});
  OptionGroup* const opt6UserDisplay = new OptionGroup(this, "opt6UserDisplay", {"Yes", "No"});
  QLabel* const lbl6bLoanCharge = Form::Label(this, "lbl6bLoanCharge", "Loan Charge:");
  TextBox* const txt6bLoanCharge = new TextBox(this, "txt6bLoanCharge", 6);
  QLabel* const lbl6bFixedCharge = Form::Label(this, "lbl6bFixedCharge", "Fixed Charge:");
  OptionGroup* const opt6bFixedCharge = new OptionGroup(this, "opt6bFixedCharge", {"Yes", "No"});
  QWidget* const frm6bFixedCharge = opt6bFixedCharge->Row("frm6bFixedCharge");
  Grid* const grd6bTable = new Grid(this, "grd6bTable", Columns);
};
