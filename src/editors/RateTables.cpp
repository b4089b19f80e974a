// The rate tables' page: choosing one, loading it, showing its rows. RateTablesEdit.cpp holds what the buttons do.
#include "editors/RateTables.h"

#include <QGridLayout>
#include <QScopeGuard>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "shell/Editing.h"
#include "shell/FindLibrary.h"
#include "shell/GridTable.h"
#include "shell/Lists.h"
#include "shell/NumericFields.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

namespace {

const QString MoneyPattern = "#####0.00";
const QString CountPattern = "##0";
const QString HighestMoney = "99.99";
const QString HighestCount = "999";

// What the list shows for the code. A code that the list leaves out, its row having changed its kind since, becomes an
// entry of its own, so that the rates stored under it can still be edited.
QString TextOf(CodeComboBox& list, const QString& code, const QString& textWhenMissing) {
  if (list.IndexOfCode(code) < 0) list.Add(textWhenMissing, code);
  return list.DescriptionOf(code);
}

}  // namespace

RateTables::RateTables(frmTabulon& shell) : TabPage(shell) {
  BuildControls();
  ConnectControls();
  ShowInputs();
}

void RateTables::BuildControls() {
  auto* const inputs = new QWidget(this);
  Form::Rows rows(inputs);
  rows.Add("lbl7RateTable", "Rate Table:", cmb7RateTable);
  rows.Add("lbl7Code", "Code:", txt7Code);
  rows.Add("lbl7Description", "Description:", txt7Description);
  rows.Add(lbl7Surcharge, txt7Surcharge);
  rows.Add(lbl7aBillingRate, cmb7aBillingRate);
  rows.Add(lbl7aDeliveryMethod, cmb7aDeliveryMethod);
  const QLabel* const longest = rows.Add("lbl7RequestingLibrary", "Requesting Library:", cmb7RequestingLibrary);
  rows.Add("lbl7Alias", "New Billing Rate:", cmb7Alias);
  rows.Add(lbl7aFlatFee, txt7aFlatFee);
  rows.Add(lbl7aUnitSize, txt7aUnitSize);
  rows.Add(lbl7aFreeExposures, txt7aFreeExposures);
  rows.Add(lbl7aPerExposure, txt7aPerExposure);
  // The inputs stay where they are when another table brings other captions.
  rows.Layout()->setColumnMinimumWidth(0, longest->sizeHint().width());
  for (CodeComboBox* list : {cmb7aBillingRate, cmb7aDeliveryMethod, cmb7RequestingLibrary, cmb7Alias})
    list->setMinimumContentsLength(40);
  txt7Surcharge->SetText("0.00");
  cmb7RateTable->OpenByArrows();
  grd7Table->setAccessibleName("Rows of the rate table");
  Form::Require({txt7Code, txt7Description});
  Form::Column(this, {inputs})->addWidget(grd7Table, 1);
}

void RateTables::ConnectControls() {
  MakeNumeric(*txt7Surcharge, lbl7Surcharge, HighestMoney, MoneyPattern);
  MakeNumeric(*txt7aFlatFee, lbl7aFlatFee, HighestMoney, MoneyPattern);
  MakeNumeric(*txt7aPerExposure, lbl7aPerExposure, HighestMoney, MoneyPattern);
  MakeNumeric(*txt7aUnitSize, lbl7aUnitSize, HighestCount, CountPattern);
  MakeNumeric(*txt7aFreeExposures, lbl7aFreeExposures, HighestCount, CountPattern);
  // Counts have a check of their own on Add and Update: what is pasted has to reach it.
  for (TextBox* box : {txt7aUnitSize, txt7aFreeExposures})
    box->SetKeyPress([box](char16_t key) { return FilterNumericKey(key, *box, false, false); }, true);

  const auto touch = [this] {
    gstrErrorMessage.clear();
    record().Touched();
  };
  for (TextBox* box :
       {txt7Code, txt7Description, txt7Surcharge, txt7aFlatFee, txt7aUnitSize, txt7aFreeExposures, txt7aPerExposure})
    connect(box, &TextBox::Change, this, touch);
  for (CodeComboBox* list : {cmb7aBillingRate, cmb7aDeliveryMethod, cmb7RequestingLibrary, cmb7Alias})
    connect(list, &CodeComboBox::Click, this, touch);
  connect(cmb7aBillingRate, &CodeComboBox::Click, this, [this] {
    if (Rate() && Rate()->kind == RateKind::Alias)
      Procedure("frmTabulon.cmb7aBillingRate_Click", this).Run([this] { PopulateSupplyingUnit(); });
  });
  connect(cmb7RateTable, &CodeComboBox::Click, this, &RateTables::cmb7RateTable_click);
  connect(grd7Table, &Grid::SelChange, this, &RateTables::grd7Table_SelChange);
  KeepRowOnSort(grd7Table);
}

QString RateTables::Money(const QString& stored) {
  return stored.isEmpty() ? stored : Numbers::Format(Numbers::Val(stored), MoneyPattern);
}

const RateTable* RateTables::Rate() const {
  const int index = cmb7RateTable->Index() - 1;
  return index >= 0 ? &RateTable::All().at(static_cast<size_t>(index)) : nullptr;
}

TextBox* RateTables::Box(RateBox box) const {
  switch (box) {
    case RateBox::FlatFee:
      return txt7aFlatFee;
    case RateBox::UnitSize:
      return txt7aUnitSize;
    case RateBox::FreeExposures:
      return txt7aFreeExposures;
    case RateBox::PerExposure:
      return txt7aPerExposure;
  }
  return nullptr;
}

bool RateTables::HasBillingRates() const {
  return Rate() && Rate()->kind != RateKind::Copyright;
}

ButtonCondition RateTables::Condition() const {
  const bool chosen = Rate() != nullptr;
  return {.add = chosen, .update = chosen, .remove = chosen};
}

// --- What is on show ---

void RateTables::Show(QWidget* field, bool shown) {
  field->setVisible(shown);
  for (QLabel* label : findChildren<QLabel*>())
    if (label->buddy() == field) label->setVisible(shown);
}

void RateTables::Rename(QLabel* label, const QString& caption) {
  label->setText(caption);
  label->buddy()->setAccessibleName(caption);
}

void RateTables::ShowInputs() {
  const RateTable* const rate = Rate();
  const bool copyright = !rate || rate->kind == RateKind::Copyright;
  const bool exposures = rate && rate->kind == RateKind::Exposures;
  const bool surcharge = rate && rate->kind == RateKind::Surcharge;
  const bool alias = rate && rate->kind == RateKind::Alias;
  for (TextBox* box : {txt7Code, txt7Description, txt7Surcharge}) Show(box, copyright);
  for (CodeComboBox* list : {cmb7aBillingRate, cmb7aDeliveryMethod}) Show(list, !copyright);
  for (CodeComboBox* list : {cmb7RequestingLibrary, cmb7Alias}) Show(list, alias);
  Show(txt7aFlatFee, exposures || surcharge);
  for (TextBox* box : {txt7aUnitSize, txt7aFreeExposures, txt7aPerExposure}) Show(box, exposures);
  Rename(lbl7aBillingRate, alias ? "Supplying Library:" : "Billing Rate:");
  Rename(lbl7aFlatFee, surcharge ? "Surcharge:" : "Flat Fee:");
  if (!copyright) Rename(lbl7aDeliveryMethod, rate->keyCaption);
}

void RateTables::FocusFirstInput() {
  if (HasBillingRates())
    cmb7aBillingRate->setFocus();
  else
    txt7Code->setFocus();
}

void RateTables::Reset() {
  const Record::Filling filling(record());
  cmb7RateTable->Clear();
  cmb7RateTable->AddNone("(none)");
  for (const RateTable& rate : RateTable::All()) cmb7RateTable->Add(rate.caption);
  cmb7RateTable->SetIndex(0);
  EmptyLists();
  EmptyInputs();
  ConfigureGrid();
}

void RateTables::EmptyInputs() {
  const Record::Filling filling(record());
  Clear();
  txt7Surcharge->SetText(Numbers::Format(0, MoneyPattern));
}

void RateTables::EmptyLists() {
  for (CodeComboBox* list : {cmb7aBillingRate, cmb7aDeliveryMethod, cmb7RequestingLibrary, cmb7Alias}) list->Clear();
}

// --- Choosing a rate table ---

void RateTables::cmb7RateTable_click() {
  Procedure procedure("frmTabulon.cmb7RateTable_click", this);
  procedure.Run([this] {
    grd7Table->Clear();
    // The numbers of the table before are none of this one's.
    EmptyInputs();
    shell().buttonState();
    LoadRateTable();
    if (!Rate()) return;
    SelectFirstRow();
    FocusFirstInput();
  });
  record().Settled();
}

void RateTables::LoadRateTable() {
  const RateTable* const rate = Rate();
  if (!rate) {
    ConfigureGrdTable();
    LoadDataInGrid();
    return Clear();
  }
  switch (rate->kind) {
    case RateKind::Copyright:
      return Invoicing_RateTable_CopyRight();
    case RateKind::Exposures:
    case RateKind::Surcharge:
      return Invoicing_RateTable_Typical();
    case RateKind::Alias:
      return Invoicing_RateTable_Alias();
  }
}

void RateTables::SelectFirstRow() {
  if (grd7Table->Row() == 0 && grd7Table->Rows() > 1) grd7Table->SetRow(1);
}

void RateTables::TakeBillingRate(const QString& code) {
  LoadRateTable();
  Clear();
  (Rate()->kind == RateKind::Alias ? cmb7Alias : cmb7aBillingRate)->SetCode(code);
  FocusFirstInput();
}

void RateTables::Invoicing_RateTable_CopyRight() {
  ConfigureGrdTable();
  LoadDataInGrid();
  txt7Code->setFocus();
}

void RateTables::Invoicing_RateTable_Typical() {
  ConfigureGrdTable();
  LoadDataInGrid();
  cmb7aBillingRate->SetIndex(0);
  cmb7aDeliveryMethod->SetIndex(0);
}

void RateTables::Invoicing_RateTable_Alias() {
  grd7Table->Clear();
  ConfigureGrdTable();
  LoadDataInGrid();
  for (CodeComboBox* list : {cmb7aBillingRate, cmb7RequestingLibrary, cmb7Alias}) list->SetIndex(0);
  PopulateSupplyingUnit();
}

void RateTables::ConfigureGrid() {
  const RateTable& rate = Rate() ? *Rate() : RateTable::All().front();
  ShapeGrid(*grd7Table, {"", "grd7Table", rate.columns});
  ShowInputs();
}

// --- Loading ---

void RateTables::LoadGrid() {
  const SkipGridEvents skip;
  grd7Table->Clear();
  rowCodes_.clear();
  // A list that cannot be filled must not keep the codes of another rate table.
  EmptyLists();
  // The rows that came before a failure have their codes too.
  const auto number = qScopeGuard([this] { NumberRows(); });
  const RateTable* const rate = Rate();
  if (!rate) return;
  switch (rate->kind) {
    case RateKind::Copyright:
      return LoadCopyRight(*rate);
    case RateKind::Exposures:
    case RateKind::Surcharge:
      return LoadTypical(*rate);
    case RateKind::Alias:
      return LoadAlias(*rate);
  }
}

void RateTables::LoadCopyRight(const RateTable& rate) {
  copyrightColumns_ = RateSql::CopyrightColumns();
  FillGrid(*grd7Table, RateSql::CopyrightSelect(copyrightColumns_), RateSql::FailureLine(rate.table, "Select"),
           [](Recordset& rows) {
             return QStringList{Value(rows, 0), Money(Value(rows, 2)), Value(rows, 1)};
           });
}

void RateTables::LoadTypical(const RateTable& rate) {
  FillCombo(*cmb7aBillingRate, "(none)", RateSql::BillingRateList(), RateSql::FailureLine(rate.billingList, "Select"),
            1, 0);
  FillCombo(*cmb7aDeliveryMethod, "(none)", RateSql::KeyList(rate), RateSql::FailureLine(rate.listFailure, "Select"), 1,
            0);
  FillGrid(*grd7Table, RateSql::Select(rate), RateSql::FailureLine(rate.table, "Select"), [&](Recordset& rows) {
    const RowCodes codes{Value(rows, 0), Value(rows, 1)};
    rowCodes_.push_back(codes);
    QStringList cells(SecondKey + static_cast<int>(rate.Values().size()));
    cells[BillingRate - 1] = TextOf(*cmb7aBillingRate, codes.billingRate, codes.billingRate);
    cells[SecondKey - 1] = TextOf(*cmb7aDeliveryMethod, codes.key, codes.key);
    for (const RateValue& value : rate.Values()) {
      const QString stored = Value(rows, value.column);
      cells[value.gridColumn - 1] = value.money ? Money(stored) : stored;
    }
    return cells;
  });
}

void RateTables::LoadAlias(const RateTable& rate) {
  FillCombo(*cmb7Alias, "(none)", RateSql::BillingRateList(), RateSql::FailureLine(rate.billingList, "Select"), 1, 0);
  for (CodeComboBox* list : {cmb7aBillingRate, cmb7RequestingLibrary}) {
    list->Clear();
    list->AddNone("(none)");
  }
  ForEachRow(RateSql::LibraryList(), RateSql::FailureLine("ID_LIBRARY", "Select"), [this](Recordset& rows) {
    for (CodeComboBox* list : {cmb7aBillingRate, cmb7RequestingLibrary}) list->Add(Value(rows, 0), Value(rows, 1));
  });
  const auto symbolOf = [](CodeComboBox& list, const QString& id) {
    return list.IndexOfCode(id) < 0 ? TextOf(list, id, LibrarySymbolOf(id.toInt())) : list.DescriptionOf(id);
  };
  FillGrid(*grd7Table, RateSql::AliasSelect(), RateSql::FailureLine(rate.table, "Select"), [&](Recordset& rows) {
    const RowCodes codes{Value(rows, "BILLING_RATE"), Value(rows, "SUPPLIER_CODE")};
    rowCodes_.push_back(codes);
    QStringList cells(NewBillingRate);
    cells[SupplyingLibrary - 1] = symbolOf(*cmb7aBillingRate, Value(rows, "SUPPLIER_LIBRARY_ID"));
    cells[SupplyingUnit - 1] = codes.key;
    cells[RequestingLibrary - 1] = symbolOf(*cmb7RequestingLibrary, Value(rows, "LIBRARY_ID"));
    cells[NewBillingRate - 1] = TextOf(*cmb7Alias, codes.billingRate, codes.billingRate);
    return cells;
  });
}

void RateTables::NumberRows() {
  for (int row = 1; row < grd7Table->Rows(); ++row) grd7Table->SetRowData(row, row - 1);
}

const RateTables::RowCodes& RateTables::CodesOf(int row) const {
  return rowCodes_.at(static_cast<size_t>(grd7Table->RowData(row)));
}

// The units of the supplying library on show; a library without any has only "(none)".
void RateTables::PopulateSupplyingUnit() {
  cmb7aDeliveryMethod->Clear();
  cmb7aDeliveryMethod->AddNone("(none)");
  cmb7aDeliveryMethod->SetIndex(0);
  const QString libraryId = cmb7aBillingRate->Code();
  if (libraryId.isEmpty()) return;
  ForEachRow(RateSql::UnitList(libraryId.toInt()), RateSql::FailureLine("ID_SUPPLIER", "Select"),
             [this](Recordset& rows) { cmb7aDeliveryMethod->Add(Value(rows, 0)); });
}

// --- Showing a row ---

void RateTables::grd7Table_SelChange() {
  const int row = grd7Table->Row();
  const RateTable* const rate = Rate();
  if (gbSkipGridEvents || row == 0 || !rate) return;
  Procedure procedure("frmTabulon." + rate->selChange, this);
  procedure.Run([&] {
    const Record::Filling filling(record());
    switch (rate->kind) {
      case RateKind::Copyright:
        return ShowCopyRight(row);
      case RateKind::Exposures:
      case RateKind::Surcharge:
        return ShowTypical(*rate, row);
      case RateKind::Alias:
        return ShowAlias(row);
    }
  });
  record().Settled();
}

void RateTables::ShowCopyRight(int row) {
  txt7Code->SetText(grd7Table->Text(row, Code));
  txt7Surcharge->SetText(grd7Table->Text(row, Surcharge));
  txt7Description->SetText(grd7Table->Text(row, Description));
}

void RateTables::ShowTypical(const RateTable& rate, int row) {
  const RowCodes& codes = CodesOf(row);
  cmb7aBillingRate->SetCode(codes.billingRate);
  cmb7aDeliveryMethod->SetCode(codes.key);
  for (const RateValue& value : rate.Values()) Box(value.box)->SetText(grd7Table->Text(row, value.gridColumn));
}

void RateTables::ShowAlias(int row) {
  const RowCodes& codes = CodesOf(row);
  cmb7aBillingRate->SetText(grd7Table->Text(row, SupplyingLibrary));
  cmb7RequestingLibrary->SetText(grd7Table->Text(row, RequestingLibrary));
  cmb7Alias->SetCode(codes.billingRate);
  PopulateSupplyingUnit();
  if (!codes.key.isEmpty()) cmb7aDeliveryMethod->SetText(TextOf(*cmb7aDeliveryMethod, codes.key, codes.key));
}
