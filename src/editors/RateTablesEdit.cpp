// What Add, Update, Delete and Clear do on the rate tables' page.
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "editors/RateTables.h"
#include "shell/Messages.h"
#include "shell/NumericFields.h"
#include "shell/frmTabulon.h"

namespace {

bool NothingChosen(const CodeComboBox& list) {
  return list.Index() < 0 || list.IsNone();
}

}  // namespace

bool RateTables::Add() {
  if (!ExposuresAreWhole()) return false;
  const RateTable* const rate = Rate();
  if (!rate) return Refuse("Nothing to Add", MessageStyle::Information, nullptr);
  switch (rate->kind) {
    case RateKind::Copyright:
      return CopyrightAdd();
    case RateKind::Exposures:
    case RateKind::Surcharge:
      return TypicalAdd(*rate);
    case RateKind::Alias:
      return AliasAdd();
  }
  return false;
}

bool RateTables::Update() {
  if (!ExposuresAreWhole()) return false;
  const RateTable* const rate = Rate();
  if (!rate) return Refuse("Nothing to Update", MessageStyle::Information, nullptr);
  switch (rate->kind) {
    case RateKind::Copyright:
      return CopyrightUpdate();
    case RateKind::Exposures:
    case RateKind::Surcharge:
      return TypicalUpdate(*rate);
    case RateKind::Alias:
      return AliasUpdate();
  }
  return false;
}

bool RateTables::Delete() {
  const RateTable* const rate = Rate();
  if (!rate) return Refuse("Nothing to Delete", MessageStyle::Information, nullptr);
  switch (rate->kind) {
    case RateKind::Copyright:
      return CopyrightDelete();
    case RateKind::Exposures:
    case RateKind::Surcharge:
      return TypicalDelete(*rate);
    case RateKind::Alias:
      return AliasDelete();
  }
  return false;
}

void RateTables::Clear() {
  const Record::Filling filling(record());
  const SkipGridEvents skip;
  for (TextBox* box :
       {txt7Code, txt7Description, txt7Surcharge, txt7aFlatFee, txt7aUnitSize, txt7aFreeExposures, txt7aPerExposure})
    box->SetText({});
  for (CodeComboBox* list : {cmb7aBillingRate, cmb7aDeliveryMethod, cmb7RequestingLibrary, cmb7Alias})
    if (!NothingChosen(*list)) list->SetIndex(0);
  grd7Table->SetRowQuietly(0);
}

// --- Steps that the tables share ---

// Tested before anything else, whether the rate table has exposures or not.
bool RateTables::ExposuresAreWhole() {
  return IsWhole(txt7aFreeExposures, "Please enter a numeric Free Exposure value.",
                 "Please enter a numeric value with no decimals for Free Exposure field.") &&
         IsWhole(txt7aUnitSize, "Please enter a numeric Unit Size value.",
                 "Please enter a numeric value with no decimals for Unit Size field.");
}

bool RateTables::IsWhole(TextBox* box, const QString& notNumeric, const QString& withDecimals) {
  const QString text = box->Text();
  if (!text.trimmed().isEmpty() && !Numbers::IsNumeric(text)) return Refuse(notNumeric, MessageStyle::Warning, box);
  // A comma is a decimal separator where the locale says so; bare in a statement it would be a second value.
  if (!text.contains('.') && !text.contains(gstrDecimalSeparator)) return true;
  Tell(withDecimals, MessageStyle::Warning);
  box->SetText({});
  box->setFocus();
  return false;
}

bool RateTables::RefuseDuplicate(QWidget* focus) {
  return Refuse("This record already exists", MessageStyle::Warning, focus);
}

bool RateTables::TellUnchanged(QWidget* focus) {
  Refuse("Nothing has been changed", MessageStyle::Warning, focus);
  // Moving the focus writes a number in full, which is no change either.
  record().Settled();
  return false;
}

// One blank after the first full stop here; the billing rates' sentence has two.
bool RateTables::RefuseUnknownCode(QWidget* focus) {
  return Refuse("This Code does not exist in the table. Please select a Valid Code to Update.", MessageStyle::Stop,
                focus);
}

bool RateTables::MayDelete(int row, QWidget* focus) {
  if (row == 0) return Refuse(Texts::NoSuchRow, MessageStyle::Stop, focus);
  return Confirm(this, Texts::DeleteQuestion);
}

bool RateTables::DeleteRow(const RateTable& rate, const QString& statement, QWidget* focus) {
  if (ExecuteInTransaction(statement, RateSql::FailureLine(rate.table, "DELETE")) == 0)
    return Refuse(Texts::NoSuchRow, MessageStyle::Stop, focus);
  LoadRateTable();
  Tell("Record Deleted", MessageStyle::Information);
  return true;
}

// --- Copyright Comply ---

// Add leaves the letters of the description alone; Update and Delete do not.
void RateTables::TrimCopyright(bool upperDescription) {
  const Record::Filling filling(record());
  txt7Code->TrimUpperInPlace();
  txt7Surcharge->TrimInPlace();
  if (upperDescription)
    txt7Description->TrimUpperInPlace();
  else
    txt7Description->TrimInPlace();
}

bool RateTables::CopyrightAdd() {
  TrimCopyright(false);
  const QString code = txt7Code->Text();
  const QString description = txt7Description->Text();
  if (code.isEmpty() || code == "@") return Refuse("Please enter a Valid Code.", MessageStyle::Warning, txt7Code);
  if (description.isEmpty()) return Refuse("Please enter a Valid Description.", MessageStyle::Warning, txt7Description);
  if (grd7Table->FindRow(code, Code) > 0) return RefuseDuplicate(txt7Code);
  if (grd7Table->FindRow(description, Description) > 0) return RefuseDuplicate(txt7Description);
  // A blank surcharge is not defaulted: the database refuses the statement.
  ExecuteInTransaction(RateSql::CopyrightInsert(code, description, Sql::WithPoint(txt7Surcharge->Text())),
                       RateSql::FailureLine("ID_COPYRIGHT_CMP", "INSERT INTO"));
  Invoicing_RateTable_CopyRight();
  grd7Table->SetRow(grd7Table->FindRow(code, Code));
  Tell("Record Added", MessageStyle::Information);
  txt7Code->setFocus();
  return true;
}

bool RateTables::CopyrightUpdate() {
  TrimCopyright(true);
  const QString code = txt7Code->Text();
  const QString description = txt7Description->Text();
  QString surcharge = txt7Surcharge->Text();
  const int row = grd7Table->FindRow(code, Code);
  if (row > 0 && Numbers::Same(surcharge, grd7Table->Text(row, Surcharge)) &&
      description == grd7Table->Text(row, Description))
    return TellUnchanged(txt7Description);
  if (Numbers::IsBlank(surcharge)) surcharge = "0";
  if (row == 0) return RefuseUnknownCode(txt7Code);
  if (ExecuteInTransaction(RateSql::CopyrightUpdate(copyrightColumns_, code, description, Sql::WithPoint(surcharge)),
                           RateSql::FailureLine("ID_COPYRIGHT_CMP", "UPDATE")) == 0)
    return RefuseUnknownCode(txt7Code);
  grd7Table->SetText(row, Surcharge, Money(surcharge));
  grd7Table->SetText(row, Description, description);
  txt7Surcharge->SetText(Money(surcharge));
  Tell("Record Updated", MessageStyle::Information);
  txt7Code->setFocus();
  return true;
}

bool RateTables::CopyrightDelete() {
  TrimCopyright(true);
  const QString code = txt7Code->Text();
  if (code.isEmpty()) return Refuse("Please choose a record to be Deleted", MessageStyle::Warning, txt7Code);
  if (!MayDelete(grd7Table->FindRow(code, Code), txt7Code)) return false;
  return DeleteRow(*Rate(), RateSql::CopyrightDelete(copyrightColumns_, code), txt7Code);
}

// --- The five tables priced by billing rate ---

int RateTables::RowOfTypical() const {
  if (NothingChosen(*cmb7aBillingRate) || NothingChosen(*cmb7aDeliveryMethod)) return 0;
  return RowOfTypical(cmb7aBillingRate->Code(), cmb7aDeliveryMethod->Code());
}

int RateTables::RowOfTypical(const QString& billingRate, const QString& key) const {
  for (int row = 1; row < grd7Table->Rows(); ++row)
    if (CodesOf(row).billingRate == billingRate && CodesOf(row).key == key) return row;
  return 0;
}

void RateTables::ReloadTypical(const QString& billingRate, const QString& key) {
  Invoicing_RateTable_Typical();
  grd7Table->SetRow(RowOfTypical(billingRate, key));
}

bool RateTables::RowIsUnchanged(const RateTable& rate, int row) const {
  for (const RateValue& value : rate.Values())
    if (!Numbers::Same(Box(value.box)->Text(), grd7Table->Text(row, value.gridColumn))) return false;
  return true;
}

QStringList RateTables::ValuesAsSql(const RateTable& rate, bool keepsComma) const {
  QStringList values;
  for (const RateValue& value : rate.Values()) {
    const QString text = Box(value.box)->Trimmed();
    values.append(Numbers::IsBlank(text) ? QString("NULL") : value.money && !keepsComma ? Sql::WithPoint(text) : text);
  }
  return values;
}

bool RateTables::TypicalAdd(const RateTable& rate) {
  if (NothingChosen(*cmb7aBillingRate))
    return Refuse("Please select a Valid Billing Rate.", MessageStyle::Warning, cmb7aBillingRate);
  if (NothingChosen(*cmb7aDeliveryMethod)) return Refuse(rate.keyMissing, MessageStyle::Warning, cmb7aDeliveryMethod);
  if (RowOfTypical() > 0) {
    RefuseDuplicate(cmb7aBillingRate);
    if (rate.clearsOnDuplicate) Clear();
    return false;
  }
  const QString billingRate = cmb7aBillingRate->Code(), key = cmb7aDeliveryMethod->Code();
  ExecuteInTransaction(RateSql::Insert(rate, billingRate, key, ValuesAsSql(rate, rate.keepsComma)),
                       RateSql::FailureLine(rate.table, "INSERT INTO"));
  ReloadTypical(billingRate, key);
  Tell("Record Added", MessageStyle::Information);
  return true;
}

bool RateTables::TypicalUpdate(const RateTable& rate) {
  const int row = RowOfTypical();
  if (row > 0 && RowIsUnchanged(rate, row)) return TellUnchanged(txt7aFlatFee);
  if (row == 0) return RefuseUnknownCode(cmb7aBillingRate);
  const QString billingRate = cmb7aBillingRate->Code(), key = cmb7aDeliveryMethod->Code();
  if (ExecuteInTransaction(RateSql::Update(rate, billingRate, key, ValuesAsSql(rate, false)),
                           RateSql::FailureLine(rate.table, "UPDATE")) == 0)
    return RefuseUnknownCode(cmb7aBillingRate);
  ReloadTypical(billingRate, key);
  Tell("Record Updated", MessageStyle::Information);
  return true;
}

bool RateTables::TypicalDelete(const RateTable& rate) {
  for (CodeComboBox* list : {cmb7aBillingRate, cmb7aDeliveryMethod})
    if (NothingChosen(*list)) return Refuse("Please choose a valid record to be Deleted", MessageStyle::Warning, list);
  if (!MayDelete(RowOfTypical(), cmb7aBillingRate)) return false;
  return DeleteRow(rate, RateSql::Delete(rate, cmb7aBillingRate->Code(), cmb7aDeliveryMethod->Code()),
                   cmb7aBillingRate);
}

// --- Billing Rate Alias ---

bool RateTables::AliasIsChosen() {
  if (NothingChosen(*cmb7aBillingRate))
    return Refuse("Please select a Valid Supplying Library.", MessageStyle::Warning, cmb7aBillingRate);
  if (NothingChosen(*cmb7RequestingLibrary))
    return Refuse("Please select a Valid Requesting Library.", MessageStyle::Warning, cmb7RequestingLibrary);
  if (NothingChosen(*cmb7Alias))
    return Refuse("Please select a Valid Billing Rate Alias.", MessageStyle::Warning, cmb7Alias);
  return true;
}

// A unit that is not chosen is an empty cell.
std::vector<std::pair<int, QString>> RateTables::AliasCells() const {
  return {{SupplyingLibrary, cmb7aBillingRate->Text()},
          {RequestingLibrary, cmb7RequestingLibrary->Text()},
          {SupplyingUnit, cmb7aDeliveryMethod->Code()}};
}

int RateTables::RowOfAlias() const {
  return grd7Table->FindRow(AliasCells());
}

// The libraries may have gone since the lists were filled.
bool RateTables::FindAliasKey(RateSql::AliasKey& key) {
  if (!gclsOF->FindLibraryId(cmb7RequestingLibrary->Text(), key.requestingId))
    return Refuse("Please select a Valid Requesting Library.", MessageStyle::Warning, cmb7RequestingLibrary);
  if (!gclsOF->FindLibraryId(cmb7aBillingRate->Text(), key.supplyingId))
    return Refuse("Please select a Valid Supplying Library.", MessageStyle::Warning, cmb7aBillingRate);
  key.unit = cmb7aDeliveryMethod->Code();
  return true;
}

bool RateTables::AliasAdd() {
  if (!AliasIsChosen()) return false;
  if (RowOfAlias() > 0) return RefuseDuplicate(cmb7aBillingRate);
  RateSql::AliasKey key;
  if (!FindAliasKey(key)) return false;
  const auto cells = AliasCells();
  ExecuteInTransaction(RateSql::AliasInsert(key, cmb7Alias->Code()),
                       RateSql::FailureLine("ID_RATE_ALIAS", "INSERT INTO"));
  LoadDataInGrid();
  grd7Table->SetRow(grd7Table->FindRow(cells));
  Tell("Record Added", MessageStyle::Information);
  return true;
}

bool RateTables::AliasUpdate() {
  if (!AliasIsChosen()) return false;
  const int row = RowOfAlias();
  if (row > 0 && cmb7Alias->Code() == CodesOf(row).billingRate) return TellUnchanged(cmb7Alias);
  if (row == 0) return RefuseUnknownCode(cmb7aBillingRate);
  RateSql::AliasKey key;
  if (!FindAliasKey(key)) return false;
  const auto cells = AliasCells();
  if (ExecuteInTransaction(RateSql::AliasUpdate(key, cmb7Alias->Code()),
                           RateSql::FailureLine("ID_RATE_ALIAS", "UPDATE")) == 0)
    return RefuseUnknownCode(cmb7aBillingRate);
  Invoicing_RateTable_Alias();
  grd7Table->SetRow(grd7Table->FindRow(cells));
  Tell("Record Updated", MessageStyle::Information);
  return true;
}

bool RateTables::AliasDelete() {
  for (CodeComboBox* list : {cmb7aBillingRate, cmb7RequestingLibrary})
    if (NothingChosen(*list)) return Refuse("Please choose a valid record to be Deleted", MessageStyle::Warning, list);
  int row = RowOfAlias();
  // The new billing rate belongs to what is deleted: another one on show means another record.
  if (row > 0 && CodesOf(row).billingRate != cmb7Alias->Code()) row = 0;
  if (!MayDelete(row, cmb7aBillingRate)) return false;
  RateSql::AliasKey key;
  if (!FindAliasKey(key)) return false;
  return DeleteRow(*Rate(), RateSql::AliasDelete(key), cmb7aBillingRate);
}
