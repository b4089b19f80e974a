#pragma once

#include <vector>

#include "editors/LoansPage.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"

class frmLoans;

// Sub-tab "Loan Policy": loan and renewal period, the periods of the overdue notices and the texts of all notices.
// Below it stands the one setting that this program writes back: from which date a renewal counts.
class LoanPolicies : public LoansPage {
  Q_OBJECT

 public:
  explicit LoanPolicies(frmLoans& form);

  void Load() override;
  void Enter() override;
  bool Add() override;
  bool Update() override;
  bool Delete() override;
  void Clear() override;

 private:
  enum Column { Marker, Description, LoanPeriod, Renewal, Overdue1, Overdue2, Overdue3, FinalOverdue, Columns };

  // One column of ID_LOAN_CODE behind the code.
  struct PolicyField {
    QString column;  // of the default language
    TextBox* box;
    int gridColumn = 0;    // 0: not in the grid
    QString refusal = {};  // what a period that is no number is told; empty for a text
    bool IsPeriod() const { return !refusal.isEmpty(); }
  };

  void BuildControls();
  void ConnectControls();
  void LoadRenewalDate();
  bool RenewsFromDueDate() const { return opt6Renewal->IsSet(1); }
  void WriteRenewalDate();
  void grd6aTable_SelChange();
  void MarkChanged();

  // Records beside the rows of the grid; the grid keeps their numbers, so that they go along when it is sorted.
  const QStringList& RecordOf(int row) const;
  int RowOfCode(const QString& code) const;
  // The boxes as they would be stored, the code first.
  QStringList Typed() const;
  QString TypedValue(const PolicyField& field) const;
  bool HasDigits(const PolicyField& field);
  bool PeriodsAreDigits();
  QString AsSql(const PolicyField& field, const QString& emptyText) const;
  void WriteRow(int row);

  frmLoans& form_;
  std::vector<PolicyField> fields_;   // in the order of the INSERT
  std::vector<QStringList> records_;  // code, then the fields
  QStringList fieldNames_;            // of the last load, the description being that of its language
  bool loadedFromDueDate_ = false;    // the setting as it was read

  TextBox* const txt6LoanCode = new TextBox(this, "txt6LoanCode", 1);
  TextBox* const txt6aDescription = new TextBox(this, "txt6aDescription", 25);
  TextBox* const txt6LoanPeriod = new TextBox(this, "txt6LoanPeriod", 3);
  TextBox* const txt6Renewal = new TextBox(this, "txt6Renewal", 3);
  TextBox* const txt6Overdue1 = new TextBox(this, "txt6Overdue1", 3);
  TextBox* const txt6Overdue2 = new TextBox(this, "txt6Overdue2", 3);
  TextBox* const txt6Overdue3 = new TextBox(this, "txt6Overdue3", 3);
  TextBox* const txt6FinalOverdue = new TextBox(this, "txt6FinalOverdue", 3);
  OptionGroup* const opt6Renewal =
      new OptionGroup(this, {{"opt6RenewalFromCurrentDate", "Current Date"}, {"opt6RenewalFromDueDate", "Due Date"}});
  TextBox* const txt6MessageRenewal = new TextBox(this, "txt6MessageRenewal", 100);
  TextBox* const txt6MessageRenewalRefused = new TextBox(this, "txt6MessageRenewalRefused", 100);
  TextBox* const txt6MessageRecall = new TextBox(this, "txt6MessageRecall", 100);
  TextBox* const txt6MessageOverdue1 = new TextBox(this, "txt6MessageOverdue1", 100);
  TextBox* const txt6MessageOverdue2 = new TextBox(this, "txt6MessageOverdue2", 100);
  TextBox* const txt6MessageOverdue3 = new TextBox(this, "txt6MessageOverdue3", 100);
  TextBox* const txt6MessageFinal = new TextBox(this, "txt6MessageFinal", 200);
  Grid* const grd6aTable = new Grid(this, "grd6aTable", Columns);
};
