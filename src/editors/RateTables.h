#pragma once

#include <QLabel>

#include "editors/RateTable.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/TabPage.h"

// Sub-tab "Invoicing Tables": one grid and one set of inputs for the seven rate tables that RateTable describes. What a
// row is stored by, its codes, stands beside it; the screen shows the texts.
class RateTables : public TabPage {
  Q_OBJECT

 public:
  explicit RateTables(frmTabulon& shell);

  // As on entering the tab: no rate table chosen.
  void Reset();
  bool Add();
  bool Update();
  bool Delete();
  void Clear();
  void FocusFirstInput();
  // Empties the inputs for the rate table on show and puts a billing rate into its list.
  void TakeBillingRate(const QString& code);
  // A rate table with a list of billing rates is on show.
  bool HasBillingRates() const;
  TextBox* CodeBox() const { return txt7Code; }

  ButtonCondition Condition() const override;
  void ConfigureGrid() override;
  void LoadGrid() override;

 private:
  // Columns of grd7Table.
  enum CopyrightColumn { Code = 1, Surcharge, Description };
  enum RateColumn { BillingRate = 1, SecondKey };
  enum AliasColumn { SupplyingLibrary = 2, SupplyingUnit, RequestingLibrary, NewBillingRate };

  // The codes of a row whose texts stand in the grid. The grid keeps the row's number in this list.
  struct RowCodes {
    QString billingRate;
    QString key;  // second key, or the supplying unit of an alias
  };

  void BuildControls();
  void ConnectControls();
  void ShowInputs();
  // As on a new choice: no number, no code, no surcharge.
  void EmptyInputs();
  void EmptyLists();
  void Show(QWidget* field, bool shown);
  void Rename(QLabel* label, const QString& caption);

  // The rate table chosen; null for "(none)".
  const RateTable* Rate() const;
  TextBox* Box(RateBox box) const;

  void cmb7RateTable_click();
  void Invoicing_RateTable_CopyRight();
  void Invoicing_RateTable_Typical();
  void Invoicing_RateTable_Alias();
  void LoadRateTable();
  void SelectFirstRow();
  void LoadCopyRight(const RateTable& rate);
  void LoadTypical(const RateTable& rate);
  void LoadAlias(const RateTable& rate);
  void NumberRows();
  const RowCodes& CodesOf(int row) const;
  void PopulateSupplyingUnit();

  void grd7Table_SelChange();
  void ShowCopyRight(int row);
  void ShowTypical(const RateTable& rate, int row);
  void ShowAlias(int row);

  // Steps of Add, Update and Delete.
  bool ExposuresAreWhole();
  bool IsWhole(TextBox* box, const QString& notNumeric, const QString& withDecimals);
  bool CopyrightAdd();
  bool CopyrightUpdate();
  bool CopyrightDelete();
  bool TypicalAdd(const RateTable& rate);
  bool TypicalUpdate(const RateTable& rate);
  bool TypicalDelete(const RateTable& rate);
  bool AliasAdd();
  bool AliasUpdate();
  bool AliasDelete();
  void TrimCopyright(bool upperDescription);
  bool AliasIsChosen();
  bool FindAliasKey(RateSql::AliasKey& key);
  bool RefuseDuplicate(QWidget* focus);
  bool TellUnchanged(QWidget* focus);
  bool RefuseUnknownCode(QWidget* focus);
  bool MayDelete(int row, QWidget* focus);
  bool DeleteRow(const RateTable& rate, const QString& statement, QWidget* focus);
  QStringList ValuesAsSql(const RateTable& rate, bool keepsComma) const;
  int RowOfTypical() const;
  int RowOfTypical(const QString& billingRate, const QString& key) const;
  // After a write: the table is read again and the record with these keys is current.
  void ReloadTypical(const QString& billingRate, const QString& key);
  // The keys of an alias as the grid shows them.
  std::vector<std::pair<int, QString>> AliasCells() const;
  int RowOfAlias() const;
  bool RowIsUnchanged(const RateTable& rate, int row) const;
  // The database's "12.50" in the locale's writing; NULL stays empty.
  static QString Money(const QString& stored);

  std::vector<RowCodes> rowCodes_;
  QStringList copyrightColumns_;  // as the last load of the copyright table named them

  CodeComboBox* const cmb7RateTable = new CodeComboBox(this, "cmb7RateTable");
  TextBox* const txt7Code = new TextBox(this, "txt7Code", 1);
  TextBox* const txt7Description = new TextBox(this, "txt7Description", 50);
  TextBox* const txt7Surcharge = new TextBox(this, "txt7Surcharge", 6);
  QLabel* const lbl7Surcharge = Form::Label(this, "lbl7Surcharge", "Surcharge:");
  QLabel* const lbl7aBillingRate = Form::Label(this, "lbl7aBillingRate", "Billing Rate:");
  CodeComboBox* const cmb7aBillingRate = new CodeComboBox(this, "cmb7aBillingRate");
  QLabel* const lbl7aDeliveryMethod = Form::Label(this, "lbl7aDeliveryMethod", "Delivery Method:");
  CodeComboBox* const cmb7aDeliveryMethod = new CodeComboBox(this, "cmb7aDeliveryMethod");
  QLabel* const lbl7aFlatFee = Form::Label(this, "lbl7aFlatFee", "Flat Fee:");
  TextBox* const txt7aFlatFee = new TextBox(this, "txt7aFlatFee", 6);
  QLabel* const lbl7aUnitSize = Form::Label(this, "lbl7aUnitSize", "Unit Size:");
  TextBox* const txt7aUnitSize = new TextBox(this, "txt7aUnitSize", 3);
  QLabel* const lbl7aFreeExposures = Form::Label(this, "lbl7aFreeExposures", "Free Exposures:");
  TextBox* const txt7aFreeExposures = new TextBox(this, "txt7aFreeExposures", 3);
  QLabel* const lbl7aPerExposure = Form::Label(this, "lbl7aPerExposure", "Per Exposure:");
  TextBox* const txt7aPerExposure = new TextBox(this, "txt7aPerExposure", 6);
  CodeComboBox* const cmb7RequestingLibrary = new CodeComboBox(this, "cmb7RequestingLibrary");
  CodeComboBox* const cmb7Alias = new CodeComboBox(this, "cmb7Alias");
  Grid* const grd7Table = new Grid(this, "grd7Table", 4);
};
